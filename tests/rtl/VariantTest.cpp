#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

#include "rtl/Exceptions.h"
#include "rtl/Variant.h"

namespace Tarvo {
namespace {

int SomeObject = 0;

TEST(VariantBuildTest, ConstructorsPickTheirCodes) {
  const std::pair<Variant, TVarType> rows[] = {
      {Variant(), varEmpty},
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
      {Variant(String("text")), varUString},
      {Variant::FromDispatch(&SomeObject), varDispatch},
      {Variant::FromUnknown(&SomeObject), varUnknown},
  };
  for (const auto& [value, code] : rows) EXPECT_EQ(value.VarType(), code) << VarTypeAsText(code);
}

TEST(VariantBuildTest, EqualityNeedsTheSameCodeAndValue) {
  EXPECT_EQ(Variant(5), Variant(5));
  EXPECT_NE(Variant(5), Variant(Int64(5)));
  EXPECT_NE(Variant(5), Variant(6));
  EXPECT_EQ(Variant("a"), Variant(String("a")));
  EXPECT_EQ(Variant::Null(), Variant::Null());
  EXPECT_NE(Variant::Null(), Variant());
  EXPECT_EQ(Variant::FromDispatch(&SomeObject), Variant::FromDispatch(&SomeObject));
}

TEST(VariantBuildTest, ClearAndNull) {
  EXPECT_TRUE(VarIsEmpty(Variant()));
  EXPECT_TRUE(VarIsNull(Variant::Null()));
  EXPECT_TRUE(VarIsClear(Variant()));
  EXPECT_FALSE(VarIsClear(Variant::Null()));
  EXPECT_TRUE(VarIsClear(Variant::FromDispatch(nullptr)));
  EXPECT_FALSE(VarIsClear(Variant::FromDispatch(&SomeObject)));
  EXPECT_FALSE(VarIsClear(Variant(0)));
}

TEST(VariantBuildTest, TypeNamesOfFlagsAndUnknownCodes) {
  const std::pair<TVarType, const char*> rows[] = {{varString, "String"},
                                                   {varUString, "UnicodeString"},
                                                   {varArray | varInteger, "Array of Integer"},
                                                   {varByRef | varDouble, "Double by reference"},
                                                   {0x0FFE, "$0FFE"}};
  for (const auto& [code, name] : rows) EXPECT_EQ(VarTypeAsText(code), name);
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
    EXPECT_EQ(VarCast(r.Source, r.Target), r.Expected) << VarTypeAsText(r.Source.VarType()) << " -> " << VarTypeAsText(r.Target);
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
    const char* Message;
  } rows[] = {
      {Variant(70000), varSmallint, "Overflow while converting variant of type (Integer) into type (Smallint)"},
      {Variant(-1), varByte, "Overflow while converting variant of type (Integer) into type (Byte)"},
      {Variant(256), varByte, "Overflow while converting variant of type (Integer) into type (Byte)"},
      {Variant(UINT64_MAX), varInt64, "Overflow while converting variant of type (UInt64) into type (Int64)"},
      {Variant(Int64(-1)), varUInt64, "Overflow while converting variant of type (Int64) into type (UInt64)"},
      {Variant(Int64(1) << 32), varLongWord, "Overflow while converting variant of type (Int64) into type (LongWord)"},
      {Variant(1e19), varInt64, "Overflow while converting variant of type (Double) into type (Int64)"},
      {Variant(1e300), varSingle, "Overflow while converting variant of type (Double) into type (Single)"},
      {Variant(1e300), varCurrency, "Overflow while converting variant of type (Double) into type (Currency)"},
      {Variant("40000"), varSmallint, "Overflow while converting variant of type (UnicodeString) into type (Smallint)"},
      {Variant("abc"), varInteger, "Could not convert variant of type (UnicodeString) into type (Integer)"},
      {Variant("abc"), varDouble, "Could not convert variant of type (UnicodeString) into type (Double)"},
      {Variant("yes"), varBoolean, "Could not convert variant of type (UnicodeString) into type (Boolean)"},
      {Variant("2023-02-29"), varDate, "Could not convert variant of type (UnicodeString) into type (Date)"},
      {Variant::Null(), varInteger, "Could not convert variant of type (Null) into type (Integer)"},
      {Variant::Null(), varUString, "Could not convert variant of type (Null) into type (UnicodeString)"},
      {Variant::Null(), varBoolean, "Could not convert variant of type (Null) into type (Boolean)"},
      {Variant::FromDispatch(&SomeObject), varInteger, "Could not convert variant of type (Dispatch) into type (Integer)"},
      {Variant::FromDispatch(&SomeObject), varUString,
       "Could not convert variant of type (Dispatch) into type (UnicodeString)"},
      {Variant::FromDispatch(&SomeObject), varUnknown, "Could not convert variant of type (Dispatch) into type (Unknown)"},
      {Variant(5), varDispatch, "Could not convert variant of type (Integer) into type (Dispatch)"},
      {Variant(5), varError, "Could not convert variant of type (Integer) into type (Error)"},
      {Variant(5), varVariant, "Could not convert variant of type (Integer) into type (Variant)"},
      {Variant(5), varArray | varInteger, "Could not convert variant of type (Integer) into type (Array of Integer)"},
      {Variant(5), 0x0FFE, "Could not convert variant of type (Integer) into type ($0FFE)"},
      {Variant::FromDate(1e9), varUString, "Could not convert variant of type (Date) into type (UnicodeString)"},
  };
  for (const auto& r : rows) {
    try {
      VarCast(r.Source, r.Target);
      ADD_FAILURE() << "no error: " << r.Message;
    } catch (const EVariantTypeCastError& e) {
      EXPECT_EQ(e.Message(), r.Message);
    }
  }
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
}

TEST(VariantReadTest, VarToStr) {
  EXPECT_EQ(VarToStr(Variant::Null()), "");
  EXPECT_EQ(VarToStr(Variant()), "");
  EXPECT_EQ(VarToStr(Variant(-3)), "-3");
  EXPECT_EQ(VarToStrDef(Variant::Null(), "(none)"), "(none)");
  EXPECT_EQ(VarToStrDef(Variant(), "(none)"), "");
  EXPECT_EQ(VarToStrDef(Variant(false), "(none)"), "False");
  EXPECT_THROW(VarToStr(Variant::FromDispatch(&SomeObject)), EVariantTypeCastError);
}

} // namespace
} // namespace Tarvo
