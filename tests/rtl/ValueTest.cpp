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

TEST(TypeRecordTest, OrdinalRangesEnumerationsAndSets) {
  // Unsigned 32-bit limits are kept as bit patterns and read back unsigned.
  const struct {
    const char* Name;
    PTypeInfo Type;
    Int64 Min, Max;
  } ranges[] = {{"cardinal", &TypeInfo_Cardinal, 0, 4294967295},
                {"shortint", &TypeInfo_ShortInt, -128, 127},
                {"wide character", &TypeInfo_WideChar, 0, 65535},
                {"integer", &TypeInfo_Integer, INT32_MIN, INT32_MAX},
                {"int64", &TypeInfo_Int64, INT64_MIN, INT64_MAX}};
  Testing::ForEachRow(ranges, [](const auto& ARow) {
    EXPECT_EQ(ARow.Type->OrdinalMin(), ARow.Min);
    EXPECT_EQ(ARow.Type->OrdinalMax(), ARow.Max);
  });
  const PTypeInfo fruit = TypeInfo<TTestFruit>();
  EXPECT_EQ(fruit->EnumName(1), "tfBanana");
  EXPECT_EQ(fruit->EnumName(3), "");
  EXPECT_EQ(fruit->EnumValue("TFCHERRY"), 2);
  EXPECT_EQ(fruit->EnumValue("tfDate"), -1);
  EXPECT_EQ(TypeInfo<TTestFruits>()->CompType, fruit);
  EXPECT_EQ(TypeInfo<TTestFruits>()->DataSize(), 1u);
}

TEST(ValueTest, EmptyValue) {
  const TValue empty;
  EXPECT_EQ(empty.GetTypeKind(), tkUnknown);
  EXPECT_EQ(empty.ToString(), "");
  EXPECT_EQ(empty.AsInteger(), 0);
  EXPECT_EQ(empty.AsObject(), nullptr);
  EXPECT_TRUE(empty.AsVariant().IsEmpty());
  TValue result;
  EXPECT_TRUE(empty.TryCast(&TypeInfo_Integer, result)); // to any type, unless asked not to
  EXPECT_EQ(result.GetTypeInfo(), &TypeInfo_Integer);
  EXPECT_EQ(result.AsInteger(), 0);
  EXPECT_FALSE(empty.TryCast(&TypeInfo_Integer, result, false));
  EXPECT_TRUE(empty.TryCast(TObject::ClassInfo()->ClassTypeRecord(), result, false));
  EXPECT_FALSE(TValue().FromString("1"));
}

TEST(ValueTest, ToStringByType) {
  const struct {
    const char* Name;
    TValue Value;
    const char* Text;
  } rows[] = {
      {"a negative integer", TValue(-12), "-12"},
      {"a cardinal above the signed range", TValue::From(Cardinal(4000000000u)), "4000000000"},
      {"the largest unsigned 64-bit number", TValue::From(UINT64_MAX), "18446744073709551615"},
      {"a boolean", TValue(true), "True"},
      {"an enumeration", TValue::From(tfBanana), "tfBanana"},
      {"a set", TValue::From(TTestFruits{tfApple, tfCherry}), "[tfApple,tfCherry]"},
      {"an empty set", TValue::From(TTestFruits{}), "[]"},
      {"a character", TValue::From('x'), "x"},
      {"a wide character, as UTF-8", TValue::From(u'\u00e9'), "\xc3\xa9"},
      {"a text", TValue("abc"), "abc"},
      {"a single", TValue::From(1.0f / 3.0f), "0.3333333"},
      {"a double", TValue(2.5), "2.5"},
      {"a date and time", TValue::From(TDateTime(45351.5), &TypeInfo_TDateTime), "2024-02-29 12:00:00"},
      {"a date", TValue::From(TDateTime(45351.0), &TypeInfo_TDate), "2024-02-29"},
      {"a currency", TValue::From(Currency::FromScaled(15000)), "1.5"},
      {"a nil object", TValue(static_cast<TObject*>(nullptr)), "nil"},
      {"a variant", TValue::From(Variant(String("42"))), "42"},
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
  } rows[] = {{"no number", TValue(7), "abc", false, "7"},
              {"hexadecimal", TValue(7), "$10", true, "16"},
              {"above a byte", TValue::From(Byte(1)), "300", false, "1"},
              {"below a byte", TValue::From(Byte(1)), "-1", false, "1"},
              {"a byte's largest", TValue::From(Byte(1)), "255", true, "255"},
              {"an enumeration name in any case", TValue::From(tfApple), "TFCHERRY", true, "tfCherry"},
              {"an unknown name", TValue::From(tfApple), "tfDate", false, "tfApple"},
              {"a set", TValue::From(TTestFruits{}), "[tfBanana, tfCherry]", true, "[tfBanana,tfCherry]"},
              {"a set with an unknown name", TValue::From(TTestFruits{}), "[tfBanana, tfDate]", false, "[]"},
              {"a leap day", TValue::From(TDateTime(0), &TypeInfo_TDate), "2024-02-29", true, "2024-02-29"},
              {"no leap day", TValue::From(TDateTime(0), &TypeInfo_TDate), "2023-02-29", false, "1899-12-30"},
              {"a boolean", TValue(false), "true", true, "True"},
              {"no boolean", TValue(false), "maybe", false, "False"},
              {"above a double", TValue(1.5), "1e400", false, "1.5"},
              {"below a double", TValue(1.5), "-1e400", false, "1.5"},
              {"an extended holds it", TValue(Extended(1.5)), "1e400", true, "1E400"},
              {"above a single", TValue::From(Single(1.5f)), "1e39", false, "1.5"},
              {"a single's largest", TValue::From(Single(1.5f)), "3.4e38", true, "3.4E38"},
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

TEST(ValueTest, ReadingAndCasting) {
  EXPECT_EQ(TValue::From(Byte(200)).AsInteger(), 200);
  EXPECT_EQ(TValue::From(Cardinal(4000000000u)).AsInteger(), -294967296); // the 32-bit pattern
  EXPECT_THROW(TValue(Int64(1) << 40).AsInteger(), EInvalidCast);
  EXPECT_EQ(TValue(Int64(1) << 40).AsOrdinal(), Int64(1) << 40);
  EXPECT_DOUBLE_EQ(static_cast<double>(TValue(3).AsExtended()), 3.0);
  EXPECT_EQ(TValue::From('q').AsString(), "q");
  EXPECT_THROW(TValue(3).AsBoolean(), EInvalidCast);
  EXPECT_THROW(TValue(3).AsString(), EInvalidCast);
  EXPECT_THROW(TValue("3").AsOrdinal(), EInvalidCast);
  EXPECT_EQ(TValue::From(Variant(String("42"))).AsInteger(), 42);
  const struct {
    const char* Name;
    TValue Value;
    TVarType Code;
  } variants[] = {{"an integer", TValue(5), varInteger},
                  {"a text", TValue("s"), varUString},
                  {"a currency", TValue::From(Currency::FromScaled(10000)), varCurrency},
                  {"a date and time", TValue::From(TDateTime(1), &TypeInfo_TDateTime), varDate}};
  Testing::ForEachRow(variants, [](const auto& ARow) { EXPECT_EQ(ARow.Value.AsVariant().VarType(), ARow.Code); });

  // Casts check the target's range; a variant converts through its own conversions.
  const struct {
    const char* Name;
    TValue Value;
    PTypeInfo Target;
    const char* Result; // nil when the cast fails
  } casts[] = {{"a byte's largest", TValue(255), &TypeInfo_Byte, "255"},
               {"above a byte", TValue(256), &TypeInfo_Byte, nullptr},
               {"below a cardinal", TValue(-5), &TypeInfo_Cardinal, nullptr},
               {"a cardinal above the integers", TValue(Int64(4000000000)), &TypeInfo_Cardinal, "4000000000"},
               {"above an int64", TValue::From(UInt64(1) << 63), &TypeInfo_Int64, nullptr},
               {"an integer to a double", TValue(3), &TypeInfo_Double, "3"},
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

TEST(ValueTest, RawDataOfSets) {
  const TValue v = TValue::From(TTestFruits{tfBanana, tfCherry});
  std::uint64_t word = 0;
  v.ExtractRawDataNoCopy(&word);
  EXPECT_EQ(word, 0b110u);
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
    EXPECT_EQ(held.GetTypeInfo()->Guid, INamedThing::IID);
    EXPECT_EQ(held.GetTypeInfo()->IntfParent, TypeInfo<TRef<IInterface>>());
    EXPECT_TRUE(held.AsInterface() == thing);
    EXPECT_EQ(held.AsType<TRef<INamedThing>>()->Name(), "thing");
    const TValue copyValue = held;
    EXPECT_EQ(thing->RefCount(), 2);
    const TValue object(static_cast<TObject*>(thing.get()));
    EXPECT_EQ(object.AsType<TObject*>(), thing.get());
  }
  EXPECT_EQ(thing->RefCount(), 1);
}

} // namespace
} // namespace Tarvo
