#include <gtest/gtest.h>

#include "rtl/Variant.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {
namespace {

int SomeObject = 0;

// Equality needs code and value (the codes each constructor picks show in the casts and refusals below);
// clear is empty or a nil reference.
TEST(VariantBuildTest, CodesEqualityAndNames) {
  EXPECT_EQ(Variant("a"), Variant(String("a")));
  EXPECT_NE(Variant(5), Variant(Int64(5)));
  EXPECT_NE(Variant::Null(), Variant());
  EXPECT_EQ(Variant::FromDispatch(&SomeObject), Variant::FromDispatch(&SomeObject));
  EXPECT_TRUE(VarIsClear(Variant()));
  EXPECT_FALSE(VarIsClear(Variant::Null()));
  EXPECT_TRUE(VarIsClear(Variant::FromDispatch(nullptr)));
  EXPECT_FALSE(VarIsClear(Variant(0)));
  EXPECT_EQ(VarTypeAsText(varArray | varInteger) + "," + VarTypeAsText(varByRef | varDouble) + "," +
                VarTypeAsText(varString) + "," + VarTypeAsText(0x0FFE),
            "Array of Integer,Double by reference,String,$0FFE");
}

// Conversions between the codes: rounding half to even, hexadecimal, booleans as -1, empty and null.
TEST(VariantCastTest, Conversions) {
  const struct {
    const char* Name;
    Variant Source;
    TVarType Target;
    Variant Expected;
  } rows[] = {{"padded text to integer, through a float", Variant(" 42"), varInteger, Variant(42)},
              {"negative 0x text to smallint", Variant("-0x10"), varSmallint, Variant(SmallInt(-16))},
              {"64 bits of hexadecimal to int64", Variant("$FFFFFFFFFFFFFFFF"), varInt64, Variant(Int64(-1))},
              {"64 bits of hexadecimal to uint64", Variant("$FFFFFFFFFFFFFFFF"), varUInt64, Variant(UINT64_MAX)},
              {"float text rounds half to even", Variant("2.5"), varInteger, Variant(2)},
              {"a float rounds half to even", Variant(3.5), varInteger, Variant(4)},
              {"true to integer", Variant(true), varInteger, Variant(-1)},
              {"true to text", Variant(true), varUString, Variant("True")},
              {"a fraction to boolean", Variant(0.25), varBoolean, Variant(true)},
              {"zero text to boolean", Variant("0"), varBoolean, Variant(false)},
              {"single to text, in single precision", Variant(0.1f), varUString, Variant("0.1")},
              {"currency to integer, half to even", Variant(Currency::FromScaled(25000)), varInteger, Variant(2)},
              {"text to currency, rounded", Variant("1.23456"), varCurrency, Variant(Currency::FromScaled(12346))},
              {"date to text", Variant::FromDate(45351.5), varUString, Variant("2024-02-29 12:00:00")},
              {"date to integer, rounded", Variant::FromDate(45351.75), varInteger, Variant(45352)},
              {"time text to date", Variant("12:00"), varDate, Variant::FromDate(0.5)},
              {"longword to int64", Variant(Cardinal(4000000000u)), varInt64, Variant(Int64(4000000000))},
              {"empty to text", Variant(), varUString, Variant("")},
              {"empty to dispatch", Variant(), varDispatch, Variant::FromDispatch(nullptr)},
              {"anything to null", Variant("x"), varNull, Variant::Null()},
              {"null to empty", Variant::Null(), varEmpty, Variant()}};
  ForEachRow(rows, [](const auto& ARow) { EXPECT_EQ(VarCast(ARow.Source, ARow.Target), ARow.Expected); });
  // The string codes differ in the code only.
  const Variant text = VarCast(Variant(UINT64_MAX), varOleStr);
  EXPECT_EQ(text.VarType(), varOleStr);
  EXPECT_EQ(VarCast(text, varUInt64), Variant(UINT64_MAX));
}

// A refused conversion names both types and says whether the value overflowed.
TEST(VariantCastTest, Refusals) {
  const struct {
    const char* Name;
    Variant Source;
    TVarType Target;
    bool Overflow;
    const char *From, *To;
  } rows[] = {{"integer below byte", Variant(-1), varByte, true, "Integer", "Byte"},
              {"integer above byte", Variant(256), varByte, true, "Integer", "Byte"},
              {"uint64 above int64", Variant(UINT64_MAX), varInt64, true, "UInt64", "Int64"},
              {"int64 below uint64", Variant(Int64(-1)), varUInt64, true, "Int64", "UInt64"},
              {"double above single", Variant(1e300), varSingle, true, "Double", "Single"},
              {"double above currency", Variant(1e300), varCurrency, true, "Double", "Currency"},
              {"text above smallint", Variant("40000"), varSmallint, true, "UnicodeString", "Smallint"},
              {"text without an integer", Variant("abc"), varInteger, false, "UnicodeString", "Integer"},
              {"text without a date", Variant("2023-02-29"), varDate, false, "UnicodeString", "Date"},
              {"null to text", Variant::Null(), varUString, false, "Null", "UnicodeString"},
              {"dispatch to unknown", Variant::FromDispatch(&SomeObject), varUnknown, false, "Dispatch", "Unknown"},
              {"integer to dispatch", Variant(5), varDispatch, false, "Integer", "Dispatch"},
              {"integer to variant", Variant(5), varVariant, false, "Integer", "Variant"},
              {"integer to array", Variant(5), varArray | varInteger, false, "Integer", "Array of Integer"},
              {"date beyond the calendar to text", Variant::FromDate(1e9), varUString, false, "Date", "UnicodeString"}};
  ForEachRow(rows, [](const auto& ARow) {
    ExpectError<EVariantTypeCastError>([&] { VarCast(ARow.Source, ARow.Target); },
                                       std::string(ARow.Overflow ? "Overflow while converting" : "Could not convert") +
                                           " variant of type (" + ARow.From + ") into type (" + ARow.To + ")");
  });
}

// The accessors convert like VarCast; wide integers reach Extended without passing through Double.
TEST(VariantReadTest, AccessorsConvert) {
  EXPECT_EQ(Variant(INT64_MAX).AsExtended(), Extended(INT64_MAX));
  EXPECT_EQ(Variant(UINT64_MAX).AsExtended(), Extended(UINT64_MAX));
  EXPECT_EQ(Variant(Currency::FromScaled(1)).AsExtended(), 1.0L / 10000);
  EXPECT_EQ(Variant(0.1f).AsDouble(), double(0.1f));
  EXPECT_EQ(Variant("2024-02-29 12:00").AsDate(), 45351.5);
  EXPECT_EQ(Variant::FromDispatch(&SomeObject).AsPointer(), &SomeObject);
  EXPECT_EQ(Variant().AsPointer(), nullptr);
  EXPECT_THROW(Variant(5).AsPointer(), EVariantTypeCastError);
  EXPECT_THROW(Variant(Int64(1) << 40).AsInteger(), EVariantTypeCastError);
  EXPECT_THROW(Variant::Null().AsExtended(), EVariantTypeCastError);
  EXPECT_EQ(VarToStr(Variant::Null()) + VarToStr(Variant()) + VarToStr(Variant(-3)), "-3");
  EXPECT_EQ(VarToStrDef(Variant::Null(), "(none)"), "(none)");
  EXPECT_EQ(VarToStrDef(Variant(), "(none)"), "");
  EXPECT_THROW(VarToStr(Variant::FromDispatch(&SomeObject)), EVariantTypeCastError);
}

} // namespace
} // namespace Tarvo::Testing
