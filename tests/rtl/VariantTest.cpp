#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

#include "rtl/Variant.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {
namespace {

int SomeObject = 0;

TEST(VariantBuildTest, CodesEqualityAndNames) {
  const struct {
    const char* Name;
    Variant Value;
    TVarType Code;
  } codes[] = {{"empty", Variant(), varEmpty},
               {"null", Variant::Null(), varNull},
               {"boolean", Variant(true), varBoolean},
               {"shortint", Variant(ShortInt(-1)), varShortInt},
               {"byte", Variant(Byte(1)), varByte},
               {"smallint", Variant(SmallInt(1)), varSmallint},
               {"word", Variant(Word(1)), varWord},
               {"integer", Variant(1), varInteger},
               {"longword", Variant(1u), varLongWord},
               {"int64", Variant(Int64(1)), varInt64},
               {"uint64", Variant(UInt64(1)), varUInt64},
               {"single", Variant(1.5f), varSingle},
               {"double", Variant(1.5), varDouble},
               {"currency", Variant(Currency::FromScaled(1)), varCurrency},
               {"date", Variant::FromDate(1), varDate},
               {"text", Variant("text"), varUString},
               {"dispatch", Variant::FromDispatch(&SomeObject), varDispatch},
               {"unknown", Variant::FromUnknown(&SomeObject), varUnknown}};
  ForEachRow(codes, [](const auto& ARow) { EXPECT_EQ(ARow.Value.VarType(), ARow.Code); });
  // Equal needs the same code and the same value.
  EXPECT_EQ(Variant("a"), Variant(String("a")));
  EXPECT_NE(Variant(5), Variant(Int64(5)));
  EXPECT_NE(Variant(5), Variant(6));
  EXPECT_EQ(Variant::Null(), Variant::Null());
  EXPECT_NE(Variant::Null(), Variant());
  EXPECT_EQ(Variant::FromDispatch(&SomeObject), Variant::FromDispatch(&SomeObject));
  // Clear: empty or a nil reference, not null.
  EXPECT_TRUE(VarIsClear(Variant()));
  EXPECT_FALSE(VarIsClear(Variant::Null()));
  EXPECT_TRUE(VarIsClear(Variant::FromDispatch(nullptr)));
  EXPECT_FALSE(VarIsClear(Variant::FromDispatch(&SomeObject)));
  EXPECT_FALSE(VarIsClear(Variant(0)));
  const struct {
    const char* Name;
    TVarType Code;
    const char* Text;
  } names[] = {{"string", varString, "String"},
               {"unicode string", varUString, "UnicodeString"},
               {"array", varArray | varInteger, "Array of Integer"},
               {"by reference", varByRef | varDouble, "Double by reference"},
               {"unknown code", 0x0FFE, "$0FFE"}};
  ForEachRow(names, [](const auto& ARow) { EXPECT_EQ(VarTypeAsText(ARow.Code), ARow.Text); });
}

TEST(VariantCastTest, Conversions) {
  const struct {
    const char* Name;
    Variant Source;
    TVarType Target;
    Variant Expected;
  } rows[] = {
      {"text to integer", Variant("42"), varInteger, Variant(42)},
      {"padded text to integer, through a float", Variant(" 42"), varInteger, Variant(42)},
      {"hexadecimal text to byte", Variant("$FF"), varByte, Variant(Byte(255))},
      {"negative 0x text to smallint", Variant("-0x10"), varSmallint, Variant(SmallInt(-16))},
      {"64 bits of hexadecimal to int64", Variant("$FFFFFFFFFFFFFFFF"), varInt64, Variant(Int64(-1))},
      {"64 bits of hexadecimal to uint64", Variant("$FFFFFFFFFFFFFFFF"), varUInt64, Variant(UINT64_MAX)},
      {"the largest uint64 text", Variant("18446744073709551615"), varUInt64, Variant(UINT64_MAX)},
      {"float text rounds half to even", Variant("2.5"), varInteger, Variant(2)},
      {"a float rounds half to even", Variant(3.5), varInteger, Variant(4)},
      {"integer to text", Variant(-70000), varUString, Variant("-70000")},
      {"true to integer", Variant(true), varInteger, Variant(-1)},
      {"false to smallint", Variant(false), varSmallint, Variant(SmallInt(0))},
      {"true to double", Variant(true), varDouble, Variant(-1.0)},
      {"true to text", Variant(true), varUString, Variant("True")},
      {"zero to boolean", Variant(0), varBoolean, Variant(false)},
      {"another integer to boolean", Variant(7), varBoolean, Variant(true)},
      {"a fraction to boolean", Variant(0.25), varBoolean, Variant(true)},
      {"a boolean name to boolean", Variant("true"), varBoolean, Variant(true)},
      {"zero text to boolean", Variant("0"), varBoolean, Variant(false)},
      {"single to text, in single precision", Variant(0.1f), varUString, Variant("0.1")},
      {"double to text", Variant(0.1), varUString, Variant("0.1")},
      {"large double to text", Variant(1e20), varUString, Variant("1E20")},
      {"currency to text", Variant(Currency::FromScaled(15000)), varUString, Variant("1.5")},
      {"currency to integer, half to even", Variant(Currency::FromScaled(25000)), varInteger, Variant(2)},
      {"currency to double", Variant(Currency::FromScaled(15000)), varDouble, Variant(1.5)},
      {"text to currency, rounded", Variant("1.23456"), varCurrency, Variant(Currency::FromScaled(12346))},
      {"integer to currency", Variant(3), varCurrency, Variant(Currency::FromScaled(30000))},
      {"date to text", Variant::FromDate(45351.5), varUString, Variant("2024-02-29 12:00:00")},
      {"date to integer, rounded", Variant::FromDate(45351.75), varInteger, Variant(45352)},
      {"date text to date", Variant("2024-02-29"), varDate, Variant::FromDate(45351)},
      {"time text to date", Variant("12:00"), varDate, Variant::FromDate(0.5)},
      {"integer to date", Variant(45351), varDate, Variant::FromDate(45351)},
      {"integer to double", Variant(5), varDouble, Variant(5.0)},
      {"double to single", Variant(0.5), varSingle, Variant(0.5f)},
      {"int64 to integer", Variant(Int64(-1)), varInteger, Variant(-1)},
      {"longword to int64", Variant(Cardinal(4000000000u)), varInt64, Variant(Int64(4000000000))},
      {"empty to integer", Variant(), varInteger, Variant(0)},
      {"empty to text", Variant(), varUString, Variant("")},
      {"empty to boolean", Variant(), varBoolean, Variant(false)},
      {"empty to dispatch", Variant(), varDispatch, Variant::FromDispatch(nullptr)},
      {"anything to empty", Variant(5), varEmpty, Variant()},
      {"anything to null", Variant("x"), varNull, Variant::Null()},
      {"null to empty", Variant::Null(), varEmpty, Variant()},
      {"null to null", Variant::Null(), varNull, Variant::Null()},
      {"dispatch to dispatch", Variant::FromDispatch(&SomeObject), varDispatch, Variant::FromDispatch(&SomeObject)}};
  ForEachRow(rows, [](const auto& ARow) { EXPECT_EQ(VarCast(ARow.Source, ARow.Target), ARow.Expected); });
  // The string codes differ in the code only.
  const Variant text = VarCast(Variant(UINT64_MAX), varOleStr);
  EXPECT_EQ(text.VarType(), varOleStr);
  EXPECT_EQ(text.AsString(), "18446744073709551615");
  EXPECT_EQ(VarCast(text, varUInt64), Variant(UINT64_MAX));
}

TEST(VariantCastTest, Refusals) {
  const struct {
    const char* Name;
    Variant Source;
    TVarType Target;
    bool Overflow;
    const char *From, *To;
  } rows[] = {{"integer above smallint", Variant(70000), varSmallint, true, "Integer", "Smallint"},
              {"integer below byte", Variant(-1), varByte, true, "Integer", "Byte"},
              {"integer above byte", Variant(256), varByte, true, "Integer", "Byte"},
              {"uint64 above int64", Variant(UINT64_MAX), varInt64, true, "UInt64", "Int64"},
              {"int64 below uint64", Variant(Int64(-1)), varUInt64, true, "Int64", "UInt64"},
              {"int64 above longword", Variant(Int64(1) << 32), varLongWord, true, "Int64", "LongWord"},
              {"double above int64", Variant(1e19), varInt64, true, "Double", "Int64"},
              {"double above single", Variant(1e300), varSingle, true, "Double", "Single"},
              {"double above currency", Variant(1e300), varCurrency, true, "Double", "Currency"},
              {"text above smallint", Variant("40000"), varSmallint, true, "UnicodeString", "Smallint"},
              {"text without an integer", Variant("abc"), varInteger, false, "UnicodeString", "Integer"},
              {"text without a float", Variant("abc"), varDouble, false, "UnicodeString", "Double"},
              {"text without a boolean", Variant("yes"), varBoolean, false, "UnicodeString", "Boolean"},
              {"text without a date", Variant("2023-02-29"), varDate, false, "UnicodeString", "Date"},
              {"null to integer", Variant::Null(), varInteger, false, "Null", "Integer"},
              {"null to text", Variant::Null(), varUString, false, "Null", "UnicodeString"},
              {"null to boolean", Variant::Null(), varBoolean, false, "Null", "Boolean"},
              {"dispatch to integer", Variant::FromDispatch(&SomeObject), varInteger, false, "Dispatch", "Integer"},
              {"dispatch to text", Variant::FromDispatch(&SomeObject), varUString, false, "Dispatch", "UnicodeString"},
              {"dispatch to unknown", Variant::FromDispatch(&SomeObject), varUnknown, false, "Dispatch", "Unknown"},
              {"integer to dispatch", Variant(5), varDispatch, false, "Integer", "Dispatch"},
              {"integer to error", Variant(5), varError, false, "Integer", "Error"},
              {"integer to variant", Variant(5), varVariant, false, "Integer", "Variant"},
              {"integer to array", Variant(5), varArray | varInteger, false, "Integer", "Array of Integer"},
              {"integer to an unknown code", Variant(5), 0x0FFE, false, "Integer", "$0FFE"},
              {"date beyond the calendar to text", Variant::FromDate(1e9), varUString, false, "Date", "UnicodeString"}};
  ForEachRow(rows, [](const auto& ARow) {
    ExpectError<EVariantTypeCastError>([&] { VarCast(ARow.Source, ARow.Target); },
                                       std::string(ARow.Overflow ? "Overflow while converting" : "Could not convert") +
                                           " variant of type (" + ARow.From + ") into type (" + ARow.To + ")");
  });
}

TEST(VariantReadTest, AccessorsConvert) {
  EXPECT_EQ(Variant("12").AsInteger(), 12);
  EXPECT_EQ(Variant(Byte(200)).AsInt64(), 200);
  EXPECT_EQ(Variant(INT64_MAX).AsExtended(), Extended(INT64_MAX)); // no trip through Double
  EXPECT_EQ(Variant(UINT64_MAX).AsExtended(), Extended(UINT64_MAX));
  EXPECT_EQ(Variant(Currency::FromScaled(1)).AsExtended(), 1.0L / 10000);
  EXPECT_EQ(Variant(0.1f).AsDouble(), double(0.1f));
  EXPECT_TRUE(Variant("TRUE").AsBoolean());
  EXPECT_EQ(Variant(2.5).AsString(), "2.5");
  EXPECT_EQ(Variant(2.5).AsCurrency(), Currency::FromScaled(25000));
  EXPECT_EQ(Variant("2024-02-29 12:00").AsDate(), 45351.5);
  EXPECT_EQ(Variant::FromDispatch(&SomeObject).AsPointer(), &SomeObject);
  EXPECT_EQ(Variant().AsPointer(), nullptr);
  EXPECT_THROW(Variant(5).AsPointer(), EVariantTypeCastError);
  EXPECT_THROW(Variant("abc").AsInteger(), EVariantTypeCastError);
  EXPECT_THROW(Variant(Int64(1) << 40).AsInteger(), EVariantTypeCastError);
  EXPECT_THROW(Variant::Null().AsString(), EVariantTypeCastError);
  EXPECT_THROW(Variant::Null().AsExtended(), EVariantTypeCastError);
  EXPECT_EQ(VarToStr(Variant::Null()) + VarToStr(Variant()) + VarToStr(Variant(-3)), "-3");
  EXPECT_EQ(VarToStrDef(Variant::Null(), "(none)"), "(none)");
  EXPECT_EQ(VarToStrDef(Variant(), "(none)"), "");
  EXPECT_THROW(VarToStr(Variant::FromDispatch(&SomeObject)), EVariantTypeCastError);
}

} // namespace
} // namespace Tarvo::Testing
