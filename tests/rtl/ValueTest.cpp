#include <gtest/gtest.h>

#include "rtl/Sets.h"
#include "rtl/Value.h"
#include "rtl/Variant.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {

TARVO_ENUM(TTestFruit, tfApple, tfBanana, tfCherry)
TARVO_SET(TTestFruits, TTestFruit)
TARVO_IMPLEMENT_ENUM(TTestFruit)
TARVO_IMPLEMENT_SET(TTestFruits, TTestFruit)

namespace {

// Ordinal ranges (unsigned 32-bit limits are kept as bit patterns and read back unsigned), names and sets.
TEST(TypeRecordTest, OrdinalRangesEnumerationsAndSets) {
  EXPECT_EQ(TypeInfo_Cardinal.OrdinalMax(), 4294967295);
  EXPECT_EQ(TypeInfo_ShortInt.OrdinalMin(), -128);
  EXPECT_EQ(TypeInfo_Int64.OrdinalMin(), INT64_MIN);
  const PTypeInfo fruit = TypeInfo<TTestFruit>();
  EXPECT_EQ(fruit->EnumName(3), "");
  EXPECT_EQ(fruit->EnumValue("TFCHERRY"), 2);
  EXPECT_EQ(fruit->EnumValue("tfDate"), -1);
  EXPECT_EQ(TypeInfo<TTestFruits>()->DataSize(), 1u);
}

// An empty value reads as zero of any kind and casts to any type, unless asked not to.
TEST(ValueTest, EmptyValue) {
  const TValue empty;
  EXPECT_EQ(empty.ToString(), "");
  EXPECT_EQ(empty.AsObject(), nullptr);
  EXPECT_TRUE(empty.AsVariant().IsEmpty());
  TValue result;
  EXPECT_TRUE(empty.TryCast(&TypeInfo_Integer, result));
  EXPECT_EQ(result.GetTypeInfo(), &TypeInfo_Integer);
  EXPECT_FALSE(empty.TryCast(&TypeInfo_Integer, result, false));
  EXPECT_TRUE(empty.TryCast(TObject::ClassInfo()->ClassTypeRecord(), result, false));
  EXPECT_FALSE(TValue().FromString("1"));
}

// Text by the value's type; number and date forms are tested with their own routines.
TEST(ValueTest, ToStringByType) {
  const struct {
    const char* Name;
    TValue Value;
    const char* Text;
  } rows[] = {
      {"a cardinal above the signed range", TValue::From(Cardinal(4000000000u)), "4000000000"},
      {"the largest unsigned 64-bit number", TValue::From(UINT64_MAX), "18446744073709551615"},
      {"a boolean", TValue(true), "True"},
      {"a set", TValue::From(TTestFruits{tfApple, tfCherry}), "[tfApple,tfCherry]"},
      {"a wide character, as UTF-8", TValue::From(u'\u00e9'), "\xc3\xa9"},
      {"a single, in single precision", TValue::From(1.0f / 3.0f), "0.3333333"},
      {"a date", TValue::From(TDateTime(45351.0), &TypeInfo_TDate), "2024-02-29"},
      {"a currency", TValue::From(Currency::FromScaled(15000)), "1.5"},
      {"a nil object", TValue(static_cast<TObject*>(nullptr)), "nil"},
  };
  Testing::ForEachRow(rows, [](const auto& ARow) { EXPECT_EQ(ARow.Value.ToString(), ARow.Text); });
}

// Each row parses into a value of the row's type: the type stays, and a failure leaves the value.
TEST(ValueTest, FromStringKeepsTheReceiversType) {
  const struct {
    const char* Name;
    TValue Value;
    const char* Text;
    bool Ok;
    const char* After;
  } rows[] = {{"hexadecimal", TValue(7), "$10", true, "16"},
              {"above a byte", TValue::From(Byte(1)), "300", false, "1"},
              {"a byte's largest", TValue::From(Byte(1)), "255", true, "255"},
              {"an enumeration name in any case", TValue::From(tfApple), "TFCHERRY", true, "tfCherry"},
              {"an unknown name", TValue::From(tfApple), "tfDate", false, "tfApple"},
              {"a set", TValue::From(TTestFruits{}), "[tfBanana, tfCherry]", true, "[tfBanana,tfCherry]"},
              {"a set with an unknown name", TValue::From(TTestFruits{}), "[tfBanana, tfDate]", false, "[]"},
              {"no leap day", TValue::From(TDateTime(0), &TypeInfo_TDate), "2023-02-29", false, "1899-12-30"},
              {"no boolean", TValue(false), "maybe", false, "False"},
              {"below a double", TValue(1.5), "-1e400", false, "1.5"},
              {"an extended holds it", TValue(Extended(1.5)), "1e400", true, "1E400"},
              {"above a single", TValue::From(Single(1.5f)), "1e39", false, "1.5"},
              {"a single's smallest fraction rounds to zero", TValue::From(Single(1.5f)), "1e-50", true, "0"}};
  Testing::ForEachRow(rows, [](const auto& ARow) {
    TValue value = ARow.Value;
    EXPECT_EQ(value.FromString(ARow.Text), ARow.Ok);
    EXPECT_EQ(value.GetTypeInfo(), ARow.Value.GetTypeInfo());
    EXPECT_EQ(value.ToString(), ARow.After);
  });
  TValue object(static_cast<TObject*>(nullptr));
  EXPECT_THROW(object.FromString("x"), EConvertError);
}

// Readers refuse other kinds and values out of range; casts check the target's range, variants convert.
TEST(ValueTest, ReadingAndCasting) {
  EXPECT_EQ(TValue::From(Cardinal(4000000000u)).AsInteger(), -294967296); // the 32-bit pattern
  EXPECT_THROW(TValue(Int64(1) << 40).AsInteger(), EInvalidCast);
  EXPECT_EQ(TValue(Int64(1) << 40).AsOrdinal(), Int64(1) << 40);
  EXPECT_EQ(TValue::From('q').AsString(), "q");
  EXPECT_THROW(TValue(3).AsBoolean(), EInvalidCast);
  EXPECT_THROW(TValue("3").AsOrdinal(), EInvalidCast);
  EXPECT_EQ(TValue::From(Variant(String("42"))).AsInteger(), 42);
  EXPECT_EQ(TValue::From(Currency::FromScaled(10000)).AsVariant().VarType(), varCurrency);
  EXPECT_EQ(TValue::From(TDateTime(1), &TypeInfo_TDateTime).AsVariant().VarType(), varDate);

  const struct {
    const char* Name;
    TValue Value;
    PTypeInfo Target;
    const char* Result; // nil when the cast fails
  } casts[] = {{"above a byte", TValue(256), &TypeInfo_Byte, nullptr},
               {"below a cardinal", TValue(-5), &TypeInfo_Cardinal, nullptr},
               {"a cardinal above the integers", TValue(Int64(4000000000)), &TypeInfo_Cardinal, "4000000000"},
               {"above an int64", TValue::From(UInt64(1) << 63), &TypeInfo_Int64, nullptr},
               {"a fraction to an integer", TValue(2.5), &TypeInfo_Integer, nullptr},
               {"no integer into an enumeration", TValue(1), TypeInfo<TTestFruit>(), nullptr},
               {"a text to an ansi string", TValue("x"), &TypeInfo_AnsiString, "x"},
               {"a variant converts", TValue::From(Variant(String("42"))), &TypeInfo_Byte, "42"},
               {"a variant that does not convert", TValue::From(Variant(String("x"))), &TypeInfo_Integer, nullptr}};
  Testing::ForEachRow(casts, [](const auto& c) {
    TValue result;
    ASSERT_EQ(c.Value.TryCast(c.Target, result), c.Result != nullptr);
    if (c.Result) {
      EXPECT_EQ(result.GetTypeInfo(), c.Target);
      EXPECT_EQ(result.ToString(), c.Result);
    }
  });
  EXPECT_THROW(TValue("x").Cast(&TypeInfo_Integer), EInvalidCast);
}

// A set's raw data is its bit word, both ways.
TEST(ValueTest, RawDataOfSets) {
  const TValue v = TValue::From(TTestFruits{tfBanana, tfCherry});
  std::uint64_t word = 0;
  v.ExtractRawDataNoCopy(&word);
  EXPECT_EQ(v.AnyToInt64(), 0b110);
  word |= 1;
  EXPECT_EQ(TValue::Make(&word, v.GetTypeInfo()).ToString(), "[tfApple,tfBanana,tfCherry]");
}

class INamedThing : public virtual IInterface {
  TARVO_INTERFACE(INamedThing, "{5D0E8C61-93A7-4C5E-8F11-0A6B2C3D4E5F}", IInterface)
public:
  virtual String Name() = 0;
};

class TCountedThing : public TImplements<TInterfacedObject, INamedThing> {
public:
  String Name() override { return "thing"; }
};

// Copies share their data; an interface value holds one reference for all its copies and drops it.
TEST(ValueTest, CopiesShareTheirDataAndReleaseIt) {
  const String longText(100, 'z');
  TValue a(longText);
  TValue b = a;
  EXPECT_EQ(a.GetReferenceToRawData(), b.GetReferenceToRawData()); // shared, not copied
  b = TValue(1);
  EXPECT_EQ(a.AsString(), longText);

  TRef<TCountedThing> thing = New<TCountedThing>();
  {
    const TValue held = TValue::From(TRef<INamedThing>(thing));
    EXPECT_EQ(thing->RefCount(), 2);
    EXPECT_EQ(held.GetTypeInfo()->IntfParent, TypeInfo<TRef<IInterface>>());
    EXPECT_EQ(held.AsType<TRef<INamedThing>>()->Name(), "thing");
    const TValue copyValue = held;
    EXPECT_EQ(thing->RefCount(), 2);
  }
  EXPECT_EQ(thing->RefCount(), 1);
}

} // namespace
} // namespace Tarvo
