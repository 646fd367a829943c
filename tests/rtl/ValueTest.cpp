#include <gtest/gtest.h>

#include <cmath>

#include "rtl/Sets.h"
#include "rtl/Value.h"
#include "rtl/Variant.h"

namespace Tarvo {

TARVO_ENUM(TTestFruit, tfApple, tfBanana, tfCherry)
TARVO_SET(TTestFruits, TTestFruit)
TARVO_IMPLEMENT_ENUM(TTestFruit)
TARVO_IMPLEMENT_SET(TTestFruits, TTestFruit)

namespace {

// ---- Type records ----

TEST(TypeRecordTest, OrdinalLimitsAsDeclared) {
  struct Row {
    PTypeInfo Type;
    TTypeKind Kind;
    Integer Min, Max;
  };
  const Row rows[] = {
      {&TypeInfo_Integer, tkInteger, INT32_MIN, INT32_MAX},
      {&TypeInfo_Cardinal, tkInteger, 0, -1}, // the 32-bit field holds the unsigned maximum's bits
      {&TypeInfo_Byte, tkInteger, 0, 255},
      {&TypeInfo_ShortInt, tkInteger, -128, 127},
      {&TypeInfo_Word, tkInteger, 0, 65535},
      {&TypeInfo_SmallInt, tkInteger, -32768, 32767},
      {&TypeInfo_Boolean, tkEnumeration, 0, 1},
      {&TypeInfo_AnsiChar, tkChar, 0, 255},
      {&TypeInfo_WideChar, tkWChar, 0, 65535},
  };
  for (const Row& r : rows) {
    EXPECT_EQ(r.Type->Kind, r.Kind) << r.Type->Name;
    EXPECT_EQ(r.Type->MinValue, r.Min) << r.Type->Name;
    EXPECT_EQ(r.Type->MaxValue, r.Max) << r.Type->Name;
  }
  EXPECT_EQ(TypeInfo_Cardinal.OrdinalMax(), 4294967295);
  EXPECT_EQ(TypeInfo_Int64.Kind, tkInt64);
  EXPECT_EQ(TypeInfo_Int64.MinInt64Value, INT64_MIN);
  EXPECT_EQ(TypeInfo_UInt64.MaxInt64Value, -1);
}

TEST(TypeRecordTest, NamedTypesHaveRecordsOfTheirOwn) {
  EXPECT_NE(&TypeInfo_TDate, &TypeInfo_Double);
  EXPECT_STREQ(TypeInfo_TDate.Name, "TDate");
  EXPECT_EQ(TypeInfo_TDate.Kind, tkFloat);
  EXPECT_EQ(TypeInfo<Double>(), &TypeInfo_Double);
  EXPECT_EQ(TypeInfo<String>()->Kind, tkUString);
  EXPECT_EQ(TypeInfo_AnsiString.Kind, tkLString);
}

TEST(TypeRecordTest, EnumerationAndSetRecords) {
  const PTypeInfo fruit = TypeInfo<TTestFruit>();
  EXPECT_EQ(fruit->Kind, tkEnumeration);
  EXPECT_EQ(fruit->MaxValue, 2);
  EXPECT_EQ(fruit->EnumName(1), "tfBanana");
  EXPECT_EQ(fruit->EnumName(3), "");
  EXPECT_EQ(fruit->EnumValue("TFCHERRY"), 2);
  EXPECT_EQ(fruit->EnumValue("tfDate"), -1);
  const PTypeInfo fruits = TypeInfo<TTestFruits>();
  EXPECT_EQ(fruits->Kind, tkSet);
  EXPECT_EQ(fruits->CompType, fruit);
  EXPECT_EQ(fruits->DataSize(), 1u);
}

// ---- Values ----

TEST(ValueTest, EmptyValue) {
  const TValue empty = TValue::GetEmpty();
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_EQ(empty.GetTypeKind(), tkUnknown);
  EXPECT_EQ(empty.ToString(), "");
  EXPECT_EQ(empty.AsInteger(), 0);
  EXPECT_EQ(empty.AsObject(), nullptr);
  EXPECT_TRUE(empty.AsVariant().IsEmpty());
}

TEST(ValueTest, ImplicitBuildsCarryTheirTypes) {
  EXPECT_EQ(TValue(5).GetTypeInfo(), &TypeInfo_Integer);
  EXPECT_EQ(TValue(Int64(5)).GetTypeInfo(), &TypeInfo_Int64);
  EXPECT_EQ(TValue(true).GetTypeInfo(), &TypeInfo_Boolean);
  EXPECT_EQ(TValue(2.5).GetTypeInfo(), &TypeInfo_Double);
  EXPECT_EQ(TValue(Extended(2.5)).GetTypeInfo(), &TypeInfo_Extended);
  EXPECT_EQ(TValue("text").GetTypeKind(), tkUString);
}

TEST(ValueTest, ToStringByType) {
  const Cardinal big = 4000000000u;
  const TTestFruits basket{tfApple, tfCherry};
  const Single third = 1.0f / 3.0f;
  struct Row {
    TValue Value;
    const char* Text;
  };
  const Row rows[] = {
      {TValue(-12), "-12"},
      {TValue::From(big), "4000000000"},
      {TValue::From(UInt64(18446744073709551615u)), "18446744073709551615"},
      {TValue(true), "True"},
      {TValue::From(tfBanana), "tfBanana"},
      {TValue::From(basket), "[tfApple,tfCherry]"},
      {TValue::From(TTestFruits{}), "[]"},
      {TValue::From('x'), "x"},
      {TValue::From(u'\u00e9'), "\xc3\xa9"},
      {TValue("abc"), "abc"},
      {TValue::From(third), "0.3333333"},
      {TValue(2.5), "2.5"},
      {TValue::From(TDateTime(45351.5), &TypeInfo_TDateTime), "2024-02-29 12:00:00"},
      {TValue::From(TDateTime(45351.0), &TypeInfo_TDate), "2024-02-29"},
      {TValue::From(Currency::FromScaled(15000)), "1.5"},
  };
  for (const Row& r : rows) EXPECT_EQ(r.Value.ToString(), r.Text) << r.Value.GetTypeInfo()->Name;
}

TEST(ValueTest, FromStringKeepsTheReceiversType) {
  TValue v(7);
  EXPECT_FALSE(v.FromString("abc"));
  EXPECT_EQ(v.GetTypeInfo(), &TypeInfo_Integer);
  EXPECT_EQ(v.AsInteger(), 7);
  EXPECT_TRUE(v.FromString("$10"));
  EXPECT_EQ(v.GetTypeInfo(), &TypeInfo_Integer);
  EXPECT_EQ(v.AsInteger(), 16);

  TValue b = TValue::From(Byte(1));
  EXPECT_FALSE(b.FromString("300")); // does not fit the type
  EXPECT_FALSE(b.FromString("-1"));
  EXPECT_TRUE(b.FromString("255"));
  EXPECT_EQ(b.GetTypeInfo(), &TypeInfo_Byte);
  EXPECT_EQ(b.AsInteger(), 255);

  TValue fruit = TValue::From(tfApple);
  EXPECT_TRUE(fruit.FromString("TFCHERRY"));
  EXPECT_EQ(fruit.AsOrdinal(), tfCherry);
  EXPECT_FALSE(fruit.FromString("tfDate"));

  TValue basket = TValue::From(TTestFruits{});
  EXPECT_TRUE(basket.FromString("[tfBanana, tfCherry]"));
  EXPECT_EQ(basket.ToString(), "[tfBanana,tfCherry]");
  EXPECT_FALSE(basket.FromString("[tfBanana, tfDate]"));

  TValue date = TValue::From(TDateTime(0), &TypeInfo_TDate);
  EXPECT_TRUE(date.FromString("2024-02-29"));
  EXPECT_EQ(date.GetTypeInfo(), &TypeInfo_TDate);
  EXPECT_DOUBLE_EQ(date.AsExtended(), 45351.0);
  EXPECT_FALSE(date.FromString("2023-02-29"));

  TValue flag(false);
  EXPECT_TRUE(flag.FromString("true"));
  EXPECT_TRUE(flag.AsBoolean());
  EXPECT_FALSE(flag.FromString("maybe"));
}

TEST(ValueTest, FromStringRaisesForTypesWithoutText) {
  TValue object(static_cast<TObject*>(nullptr));
  EXPECT_THROW(object.FromString("x"), EConvertError);
  TValue nothing;
  EXPECT_FALSE(nothing.FromString("1"));
}

TEST(ValueTest, ReadingConvertsBetweenCompatibleForms) {
  EXPECT_EQ(TValue::From(Byte(200)).AsInteger(), 200);
  EXPECT_EQ(TValue::From(Cardinal(4000000000u)).AsInteger(), -294967296); // the 32-bit pattern
  EXPECT_THROW(TValue(Int64(1) << 40).AsInteger(), EInvalidCast);
  EXPECT_EQ(TValue(Int64(1) << 40).AsOrdinal(), Int64(1) << 40);
  EXPECT_DOUBLE_EQ(static_cast<double>(TValue(3).AsExtended()), 3.0);
  EXPECT_EQ(TValue::From('q').AsString(), "q");
  EXPECT_THROW(TValue(3).AsBoolean(), EInvalidCast);
  EXPECT_THROW(TValue(3).AsString(), EInvalidCast);
  EXPECT_THROW(TValue("3").AsOrdinal(), EInvalidCast);
  EXPECT_EQ(TValue(5).AsVariant().VarType(), varInteger);
  EXPECT_EQ(TValue("s").AsVariant().VarType(), varUString);
  EXPECT_EQ(TValue::From(Currency::FromScaled(10000)).AsVariant().VarType(), varCurrency);
  EXPECT_EQ(TValue::From(TDateTime(1), &TypeInfo_TDateTime).AsVariant().VarType(), varDate);
}

TEST(ValueTest, TryCastChecksTheTargetsRange) {
  TValue result;
  EXPECT_TRUE(TValue(255).TryCast(&TypeInfo_Byte, result));
  EXPECT_EQ(result.GetTypeInfo(), &TypeInfo_Byte);
  EXPECT_FALSE(TValue(256).TryCast(&TypeInfo_Byte, result));
  EXPECT_FALSE(TValue(-5).TryCast(&TypeInfo_Cardinal, result));
  EXPECT_TRUE(TValue(Int64(4000000000)).TryCast(&TypeInfo_Cardinal, result));
  EXPECT_EQ(result.AsUInt64(), 4000000000u);
  EXPECT_FALSE(TValue::From(UInt64(1) << 63).TryCast(&TypeInfo_Int64, result));
  EXPECT_TRUE(TValue(3).TryCast(&TypeInfo_Double, result));
  EXPECT_EQ(result.ToString(), "3");
  EXPECT_FALSE(TValue(2.5).TryCast(&TypeInfo_Integer, result));
  EXPECT_FALSE(TValue(1).TryCast(TypeInfo<TTestFruit>(), result)); // no integer into an enumeration
  EXPECT_TRUE(TValue("x").TryCast(&TypeInfo_AnsiString, result));
  EXPECT_EQ(result.GetTypeKind(), tkLString);
  EXPECT_THROW(TValue("x").Cast(&TypeInfo_Integer), EInvalidCast);
}

TEST(ValueTest, EmptyCastsToAnyTypeOnlyWhenAsked) {
  TValue result;
  EXPECT_TRUE(TValue().TryCast(&TypeInfo_Integer, result));
  EXPECT_EQ(result.GetTypeInfo(), &TypeInfo_Integer);
  EXPECT_EQ(result.AsInteger(), 0);
  EXPECT_FALSE(TValue().TryCast(&TypeInfo_Integer, result, false));
  EXPECT_TRUE(TValue().TryCast(TObject::ClassInfo()->ClassTypeRecord(), result, false));
}

TEST(ValueTest, VariantCastsThroughItsOwnConversions) {
  const TValue v = TValue::From(Variant(String("42")));
  EXPECT_EQ(v.GetTypeKind(), tkVariant);
  EXPECT_EQ(v.AsInteger(), 42);
  EXPECT_EQ(v.ToString(), "42");
  TValue result;
  EXPECT_TRUE(v.TryCast(&TypeInfo_Byte, result));
  EXPECT_EQ(result.AsInteger(), 42);
  EXPECT_FALSE(TValue::From(Variant(String("x"))).TryCast(&TypeInfo_Integer, result));
}

TEST(ValueTest, RawDataOfSets) {
  const TValue v = TValue::From(TTestFruits{tfBanana, tfCherry});
  std::uint64_t word = 0;
  v.ExtractRawDataNoCopy(&word);
  EXPECT_EQ(word, 0b110u);
  EXPECT_EQ(v.AnyToInt64(), 0b110);
  word |= 1;
  const TValue rebuilt = TValue::Make(&word, v.GetTypeInfo());
  EXPECT_EQ(rebuilt.ToString(), "[tfApple,tfBanana,tfCherry]");
}

class INamedThing : public virtual IInterface {
  TARVO_INTERFACE(INamedThing, IInterface, "{5D0E8C61-93A7-4C5E-8F11-0A6B2C3D4E5F}")
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
    EXPECT_TRUE(held.IsInterface());
    EXPECT_EQ(held.GetTypeInfo()->Guid, INamedThing::IID);
    EXPECT_EQ(held.GetTypeInfo()->IntfParent, TypeInfo<TRef<IInterface>>());
    EXPECT_TRUE(held.AsInterface() == thing);
    EXPECT_EQ(held.AsType<TRef<INamedThing>>()->Name(), "thing");
    const TValue copyValue = held;
    EXPECT_EQ(thing->RefCount(), 2);
  }
  EXPECT_EQ(thing->RefCount(), 1);
}

TEST(ValueTest, ObjectsAndTheirClasses) {
  TCountedThing* raw = Construct<TCountedThing>();
  TRef<TCountedThing> owner(raw);
  const TValue v(static_cast<TObject*>(raw));
  EXPECT_TRUE(v.IsObject());
  EXPECT_EQ(v.AsObject(), raw);
  EXPECT_EQ(v.AsType<TObject*>(), raw);
  EXPECT_EQ(TValue(static_cast<TObject*>(nullptr)).ToString(), "nil");
}

} // namespace
} // namespace Tarvo
