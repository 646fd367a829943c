#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

#include "rtl/Variant.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo::Testing {
namespace {

int SomeObject = 0;

TEST(VariantBuildTest, CodesEqualityAndNames) {
  const std::pair<Variant, TVarType> codes[] = {{Variant(), varEmpty},
                                                {Variant::Null(), varNull},
                                                {Variant(true), varBoolean},
                                                {Variant(ShortInt(-1)), varShortInt},
                                                {Variant(Byte(1)), varByte},
                                                {Variant(SmallInt(1)), varSmallint},
                                                {Variant(Word(1)), varWord},
                                                {Variant(1), varInteger},
                                                {Variant(1u), varLongWord},
                                                {Variant(Int64(1)), varInt64},
                                                {Variant(UInt64(1)), varUInt64},
                                                {Variant(1.5f), varSingle},
                                                {Variant(1.5), varDouble},
                                                {Variant(Currency::FromScaled(1)), varCurrency},
                                                {Variant::FromDate(1), varDate},
                                                {Variant("text"), varUString},
                                                {Variant::FromDispatch(&SomeObject), varDispatch},
                                                {Variant::FromUnknown(&SomeObject), varUnknown}};
  for (const auto& [value, code] : codes) EXPECT_EQ(value.VarType(), code) << VarTypeAsText(code);
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
  for (const auto& [code, name] : {std::pair<TVarType, const char*>{varString, "String"},
                                   {varUString, "UnicodeString"},
                                   {varArray | varInteger, "Array of Integer"},
                                   {varByRef | varDouble, "Double by reference"},
                                   {0x0FFE, "$0FFE"}})
    EXPECT_EQ(VarTypeAsText(code), name);
}

TEST(VariantCastTest, Conversions) {
  const struct {
    Variant Source;
    TVarType Target;
    Variant Expected;
  } rows[] = {
      {Variant("42"), varInteger, Variant(42)},
      {Variant(" 42"), varInteger, Variant(42)}, // integer text fails, float text trims
      {Variant("$FF"), varByte, Variant(Byte(255))},
      {Variant("-0x10"), varSmallint, Variant(SmallInt(-16))},
      {Variant("$FFFFFFFFFFFFFFFF"), varInt64, Variant(Int64(-1))},
      {Variant("$FFFFFFFFFFFFFFFF"), varUInt64, Variant(UINT64_MAX)},
      {Variant("18446744073709551615"), varUInt64, Variant(UINT64_MAX)},
      {Variant("2.5"), varInteger, Variant(2)}, // half to even
      {Variant(3.5), varInteger, Variant(4)},
      {Variant(-70000), varUString, Variant("-70000")},
      {Variant(true), varInteger, Variant(-1)},
      {Variant(false), varSmallint, Variant(SmallInt(0))},
      {Variant(true), varDouble, Variant(-1.0)},
      {Variant(true), varUString, Variant("True")},
      {Variant(0), varBoolean, Variant(false)},
      {Variant(7), varBoolean, Variant(true)},
      {Variant(0.25), varBoolean, Variant(true)},
      {Variant("true"), varBoolean, Variant(true)},
      {Variant("0"), varBoolean, Variant(false)},
      {Variant(0.1f), varUString, Variant("0.1")},
      {Variant(0.1), varUString, Variant("0.1")},
      {Variant(1e20), varUString, Variant("1E20")},
      {Variant(Currency::FromScaled(15000)), varUString, Variant("1.5")},
      {Variant(Currency::FromScaled(25000)), varInteger, Variant(2)},
      {Variant(Currency::FromScaled(15000)), varDouble, Variant(1.5)},
      {Variant("1.23456"), varCurrency, Variant(Currency::FromScaled(12346))},
      {Variant(3), varCurrency, Variant(Currency::FromScaled(30000))},
      {Variant::FromDate(45351.5), varUString, Variant("2024-02-29 12:00:00")},
      {Variant::FromDate(45351.75), varInteger, Variant(45352)},
      {Variant("2024-02-29"), varDate, Variant::FromDate(45351)},
      {Variant("12:00"), varDate, Variant::FromDate(0.5)},
      {Variant(45351), varDate, Variant::FromDate(45351)},
      {Variant(5), varDouble, Variant(5.0)},
      {Variant(0.5), varSingle, Variant(0.5f)},
      {Variant(Int64(-1)), varInteger, Variant(-1)},
      {Variant(Cardinal(4000000000u)), varInt64, Variant(Int64(4000000000))},
      {Variant(), varInteger, Variant(0)},
      {Variant(), varUString, Variant("")},
      {Variant(), varBoolean, Variant(false)},
      {Variant(), varDispatch, Variant::FromDispatch(nullptr)},
      {Variant(5), varEmpty, Variant()},
      {Variant("x"), varNull, Variant::Null()},
      {Variant::Null(), varEmpty, Variant()},
      {Variant::Null(), varNull, Variant::Null()},
      {Variant::FromDispatch(&SomeObject), varDispatch, Variant::FromDispatch(&SomeObject)},
  };
  for (const auto& r : rows)
    EXPECT_EQ(VarCast(r.Source, r.Target), r.Expected)
        << VarTypeAsText(r.Source.VarType()) << " -> " << VarTypeAsText(r.Target);
  // The string codes differ in the code only.
  const Variant text = VarCast(Variant(UINT64_MAX), varOleStr);
  EXPECT_EQ(text.VarType(), varOleStr);
  EXPECT_EQ(text.AsString(), "18446744073709551615");
  EXPECT_EQ(VarCast(text, varUInt64), Variant(UINT64_MAX));
}

TEST(VariantCastTest, Refusals) {
  const struct {
    Variant Source;
    TVarType Target;
    bool Overflow;
    const char *From, *To;
  } rows[] = {
      {Variant(70000), varSmallint, true, "Integer", "Smallint"},
      {Variant(-1), varByte, true, "Integer", "Byte"},
      {Variant(256), varByte, true, "Integer", "Byte"},
      {Variant(UINT64_MAX), varInt64, true, "UInt64", "Int64"},
      {Variant(Int64(-1)), varUInt64, true, "Int64", "UInt64"},
      {Variant(Int64(1) << 32), varLongWord, true, "Int64", "LongWord"},
      {Variant(1e19), varInt64, true, "Double", "Int64"},
      {Variant(1e300), varSingle, true, "Double", "Single"},
      {Variant(1e300), varCurrency, true, "Double", "Currency"},
      {Variant("40000"), varSmallint, true, "UnicodeString", "Smallint"},
      {Variant("abc"), varInteger, false, "UnicodeString", "Integer"},
      {Variant("abc"), varDouble, false, "UnicodeString", "Double"},
      {Variant("yes"), varBoolean, false, "UnicodeString", "Boolean"},
      {Variant("2023-02-29"), varDate, false, "UnicodeString", "Date"},
      {Variant::Null(), varInteger, false, "Null", "Integer"},
      {Variant::Null(), varUString, false, "Null", "UnicodeString"},
      {Variant::Null(), varBoolean, false, "Null", "Boolean"},
      {Variant::FromDispatch(&SomeObject), varInteger, false, "Dispatch", "Integer"},
      {Variant::FromDispatch(&SomeObject), varUString, false, "Dispatch", "UnicodeString"},
      {Variant::FromDispatch(&SomeObject), varUnknown, false, "Dispatch", "Unknown"},
      {Variant(5), varDispatch, false, "Integer", "Dispatch"},
      {Variant(5), varError, false, "Integer", "Error"},
      {Variant(5), varVariant, false, "Integer", "Variant"},
      {Variant(5), varArray | varInteger, false, "Integer", "Array of Integer"},
      {Variant(5), 0x0FFE, false, "Integer", "$0FFE"},
      {Variant::FromDate(1e9), varUString, false, "Date", "UnicodeString"},
  };
  for (const auto& r : rows)
    ExpectError<EVariantTypeCastError>([&] { VarCast(r.Source, r.Target); },
                                       std::string(r.Overflow ? "Overflow while converting" : "Could not convert") +
                                           " variant of type (" + r.From + ") into type (" + r.To + ")");
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
