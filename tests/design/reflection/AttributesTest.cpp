#include <gtest/gtest.h>

#include "design/reflection/Attributes.h"
#include "design/reflection/Publish.h"
#include "design/reflection/TypeInfo.h"

namespace Tarvo {

TARVO_ENUM(TAttrTestUnit, auMilli, auCenti, auMetre)
TARVO_IMPLEMENT_ENUM(TAttrTestUnit)

// A class type: its attributes stand behind every member of that type.
class TAttrTestGauge : public TObject {
  TARVO_CLASS(TAttrTestGauge, TObject)
public:
  Integer FLevel = 0;
};
TARVO_IMPLEMENT_CLASS(TAttrTestGauge)
TARVO_PUBLISH(TAttrTestGauge) {
  Property("Level", &TAttrTestGauge::FLevel, &TAttrTestGauge::FLevel);
  ClassAttr<NameAttribute>("Gauge");
  ClassAttr<DisplayNestedAttribute>(false);
  ClassAttr<HideEmptyAttribute>();
}

class TAttrTestPanel : public TObject {
  TARVO_CLASS(TAttrTestPanel, TObject)
public:
  void Reset() {}
  void Calibrate() {}
  TAttrTestGauge* FMain = nullptr;
  TAttrTestGauge* FSpare = nullptr;
  Integer FHeight = 0;
  Double FGain = 1;
  TAttrTestUnit FUnit = auMetre;
  String FSource;
};
TARVO_IMPLEMENT_CLASS(TAttrTestPanel)
TARVO_PUBLISH(TAttrTestPanel) {
  Property("Main", &TAttrTestPanel::FMain, &TAttrTestPanel::FMain)
      .Attr<NameAttribute>("Main gauge")
      .Attr<DisplayNestedShortAttribute>();
  Property("Spare", &TAttrTestPanel::FSpare, &TAttrTestPanel::FSpare).Attr<HideNestedDefaultAttribute>(false);
  Property("Height", &TAttrTestPanel::FHeight, &TAttrTestPanel::FHeight).Attr<DesignRangeAttribute>(0, 500);
  Property("Gain", &TAttrTestPanel::FGain, &TAttrTestPanel::FGain).Attr<ValueRangeAttribute>(0.5, 2.5);
  Property("Unit", &TAttrTestPanel::FUnit, &TAttrTestPanel::FUnit).Attr<DesignMinAttribute>(TValue::From(auCenti));
  Property("Source", &TAttrTestPanel::FSource, &TAttrTestPanel::FSource)
      .Attr<PropertyListDesignValueAttribute>("(none)")
      .Attr<PropertyListDesignValueAttribute>("(custom)", true);
  Public();
  Method("Reset", &TAttrTestPanel::Reset)
      .Attr<ComponentEditorEntryDesignAttribute>("Reset", true)
      .Attr<ComponentEditorEntryDesignConfirmationAttribute>("Reset all?");
  Method("Calibrate", &TAttrTestPanel::Calibrate).Attr<ComponentEditorEntryFullRefreshDesignAttribute>("Calibrate...");
}

namespace {

TRef<IMemberInfo> PanelMember(const String& AName) {
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::ClassTypeInfo(TAttrTestPanel::ClassInfo())->GetAllMembers())
    if (member->GetName() == AName) return member;
  ADD_FAILURE() << "no member " << AName;
  return nullptr;
}

// The attribute a design core would find for the member (its own first, then its type's); the
// C++ type must agree with the class that answered.
template <class A> const A* Lookup(const String& AMember, bool AInherited = true) {
  TCustomAttribute* found = nullptr;
  if (!PanelMember(AMember)->GetCustomAttribute(A::ClassInfo(), AInherited, found)) return nullptr;
  const A* typed = dynamic_cast<const A*>(found);
  EXPECT_NE(typed, nullptr) << found->ClassName() << " answered for " << A::ClassInfo()->ClassName();
  return typed;
}

TEST(AttributesTest, MemberAttributeComesBeforeItsTypes) {
  ASSERT_NE(Lookup<NameAttribute>("Main"), nullptr);
  EXPECT_EQ(Lookup<NameAttribute>("Main")->Name(), "Main gauge");
  ASSERT_NE(Lookup<NameAttribute>("Spare"), nullptr);
  EXPECT_EQ(Lookup<NameAttribute>("Spare")->Name(), "Gauge");
  EXPECT_EQ(Lookup<NameAttribute>("Spare", false), nullptr);
  EXPECT_NE(Lookup<HideEmptyAttribute>("Main"), nullptr);
  EXPECT_EQ(Lookup<HideEmptyAttribute>("Height"), nullptr);
}

TEST(AttributesTest, BooleanAttributesReadAsTheirValue) {
  struct TRow {
    const char* Member;
    TClass AttributeClass;
    bool Found;
    bool Value;
  };
  const TRow rows[] = {
      // Any descendant answers for the base, the member's own first.
      {"Main", TBasicBooleanAttribute::ClassInfo(), true, true},
      {"Spare", TBasicBooleanAttribute::ClassInfo(), true, false},
      {"Main", DisplayNestedShortAttribute::ClassInfo(), true, true},
      {"Main", DisplayNestedAttribute::ClassInfo(), true, false},
      {"Spare", HideNestedDefaultAttribute::ClassInfo(), true, false},
      // Siblings don't answer for each other.
      {"Main", HideNestedDefaultAttribute::ClassInfo(), false, false},
      {"Spare", DisplayNestedShortAttribute::ClassInfo(), false, false},
      {"Height", TBasicBooleanAttribute::ClassInfo(), false, false},
  };
  for (const TRow& row : rows) {
    SCOPED_TRACE(std::string(row.Member) + " " + row.AttributeClass->ClassName());
    TCustomAttribute* found = nullptr;
    ASSERT_EQ(PanelMember(row.Member)->GetCustomAttribute(row.AttributeClass, true, found), row.Found);
    if (row.Found) {
      EXPECT_EQ(static_cast<TBasicBooleanAttribute*>(found)->Value(), row.Value);
    }
  }
}

// Range ends keep the kind they were written with; several attributes of one class come in
// declaration order.
TEST(AttributesTest, ValuesKeepTheirKindAndOrder) {
  const DesignRangeAttribute* height = Lookup<DesignRangeAttribute>("Height");
  ASSERT_NE(height, nullptr);
  EXPECT_EQ(height->MinValue().GetTypeKind(), tkInteger);
  EXPECT_EQ(height->MaxValue().AsInteger(), 500);
  const ValueRangeAttribute* gain = Lookup<ValueRangeAttribute>("Gain");
  ASSERT_NE(gain, nullptr);
  EXPECT_EQ(gain->MinValue().GetTypeKind(), tkFloat);
  EXPECT_DOUBLE_EQ(gain->MaxValue().AsExtended(), 2.5);
  const DesignMinAttribute* unit = Lookup<DesignMinAttribute>("Unit");
  ASSERT_NE(unit, nullptr);
  EXPECT_EQ(unit->Value().GetTypeInfo(), TypeInfo<TAttrTestUnit>());
  EXPECT_EQ(unit->Value().ToString(), "auCenti");

  const TRef<IAttributeList> values = PanelMember("Source")->GetCustomAttributes(PropertyListDesignValueAttribute::ClassInfo());
  ASSERT_EQ(values->GetCount(), 2);
  EXPECT_EQ(static_cast<PropertyListDesignValueAttribute*>(values->GetItem(0))->Value(), "(none)");
  EXPECT_FALSE(static_cast<PropertyListDesignValueAttribute*>(values->GetItem(0))->After());
  EXPECT_TRUE(static_cast<PropertyListDesignValueAttribute*>(values->GetItem(1))->After());
}

TEST(AttributesTest, ComponentEditorEntriesOnMethods) {
  const ComponentEditorEntryDesignAttribute* reset = Lookup<ComponentEditorEntryDesignAttribute>("Reset");
  ASSERT_NE(reset, nullptr);
  EXPECT_TRUE(reset->First());
  EXPECT_FALSE(reset->Is<ComponentEditorEntryFullRefreshDesignAttribute>());
  ASSERT_NE(Lookup<ComponentEditorEntryDesignConfirmationAttribute>("Reset"), nullptr);
  // The full-refresh entry is found as an entry, with the entry's fields.
  const ComponentEditorEntryDesignAttribute* calibrate = Lookup<ComponentEditorEntryDesignAttribute>("Calibrate");
  ASSERT_NE(calibrate, nullptr);
  EXPECT_TRUE(calibrate->Is<ComponentEditorEntryFullRefreshDesignAttribute>());
  EXPECT_EQ(calibrate->Text(), "Calibrate...");
  EXPECT_EQ(Lookup<ComponentEditorEntryDesignConfirmationAttribute>("Calibrate"), nullptr);
}

TEST(AttributesTest, SuppressAttributeNamesAttributeClassesOnly) {
  EXPECT_THROW((void)SuppressAttribute(TAttrTestGauge::ClassInfo()), EInvalidCast);
  EXPECT_EQ(SuppressAttribute(DisplayNestedAttribute::ClassInfo()).AttributeClass(), DisplayNestedAttribute::ClassInfo());
}

} // namespace
} // namespace Tarvo
