#include <gtest/gtest.h>

#include "reflection/Attributes.h"
#include "reflection/ClassAttributes.h"
#include "reflection/ComponentEditorAttributes.h"
#include "reflection/ListAttributes.h"
#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {

TARVO_ENUM(TAttrTestUnit, auMilli, auCenti, auMetre)
TARVO_IMPLEMENT_ENUM(TAttrTestUnit)

// A class type: its attributes stand behind every member of that type.
class TAttrTestGauge : public TObject {
  TARVO_CLASS(TAttrTestGauge, TObject)
};
TARVO_IMPLEMENT_CLASS(TAttrTestGauge)
TARVO_PUBLISH(TAttrTestGauge) {
  ClassAttr<NameAttribute>("Gauge");
  ClassAttr<DisplayNestedAttribute>(false);
  ClassAttr<HideEmptyAttribute>();
}

class TAttrTestPanel : public TObject {
  TARVO_CLASS(TAttrTestPanel, TObject)
public:
  void Reset() {}
  void Calibrate() {}
  TAttrTestGauge *FMain = nullptr, *FSpare = nullptr;
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

// The class that answered and what it holds; empty for none.
String Describe(TCustomAttribute* AAttribute) {
  if (!AAttribute) return String();
  String text = AAttribute->ClassName();
  if (auto* name = dynamic_cast<NameAttribute*>(AAttribute)) text += " " + name->Name();
  if (auto* flag = dynamic_cast<TBasicBooleanAttribute*>(AAttribute)) text += flag->Value() ? " yes" : " no";
  if (auto* entry = dynamic_cast<ComponentEditorEntryDesignAttribute*>(AAttribute))
    text += " " + entry->Text() + (entry->First() ? " first" : "");
  if (auto* question = dynamic_cast<ComponentEditorEntryDesignConfirmationAttribute*>(AAttribute))
    text += " " + question->Text();
  return text;
}

// A member's own attributes come before its type's; an attribute answers for its base class, not its siblings.
TEST(AttributesTest, TheMembersOwnComeBeforeItsTypesAndDescendantsAnswerForTheirBase) {
  const struct {
    const char *Name, *Member;
    TClass Class;
    bool Inherited;
    const char* Found;
  } rows[] = {
      {"the member's own name", "Main", NameAttribute::ClassInfo(), true, "NameAttribute Main gauge"},
      {"the type's name for a member without one", "Spare", NameAttribute::ClassInfo(), true, "NameAttribute Gauge"},
      {"no name of the member's own", "Spare", NameAttribute::ClassInfo(), false, ""},
      {"the type's flag", "Main", HideEmptyAttribute::ClassInfo(), true, "HideEmptyAttribute"},
      {"the member's own flag answers for the base", "Main", TBasicBooleanAttribute::ClassInfo(), true,
       "DisplayNestedShortAttribute yes"},
      {"the type's flag of its own class", "Main", DisplayNestedAttribute::ClassInfo(), true,
       "DisplayNestedAttribute no"},
      {"a flag's sibling", "Spare", DisplayNestedShortAttribute::ClassInfo(), true, ""},
      {"no flag at all", "Height", TBasicBooleanAttribute::ClassInfo(), true, ""},
      {"a menu entry", "Reset", ComponentEditorEntryDesignAttribute::ClassInfo(), true,
       "ComponentEditorEntryDesignAttribute Reset first"},
      {"its confirmation", "Reset", ComponentEditorEntryDesignConfirmationAttribute::ClassInfo(), true,
       "ComponentEditorEntryDesignConfirmationAttribute Reset all?"},
      {"an entry that answers for its base", "Calibrate", ComponentEditorEntryDesignAttribute::ClassInfo(), true,
       "ComponentEditorEntryFullRefreshDesignAttribute Calibrate..."}};
  Testing::ForEachRow(rows, [](const auto& row) {
    TCustomAttribute* found = nullptr;
    EXPECT_EQ(PanelMember(row.Member)->GetCustomAttribute(row.Class, row.Inherited, found), *row.Found != 0);
    EXPECT_EQ(Describe(found), row.Found);
  });
  // What the design core searches: the member's own, then its type's.
  std::vector<String> access;
  for (TCustomAttribute* attribute : PanelMember("Main")->GetMemberAccessAttributes()->GetCustomAttributes())
    access.push_back(Describe(attribute));
  EXPECT_EQ(access, (std::vector<String>{"NameAttribute Main gauge", "DisplayNestedShortAttribute yes",
                                         "NameAttribute Gauge", "DisplayNestedAttribute no", "HideEmptyAttribute"}));
}

// Range ends keep the kind they were written with; several attributes of one class come in
// declaration order.
TEST(AttributesTest, ValuesKeepTheirKindAndOrder) {
  TCustomAttribute* found = nullptr;
  ASSERT_TRUE(PanelMember("Height")->GetCustomAttribute(DesignRangeAttribute::ClassInfo(), found));
  EXPECT_EQ(static_cast<DesignRangeAttribute*>(found)->MinValue().GetTypeKind(), tkInteger);
  ASSERT_TRUE(PanelMember("Gain")->GetCustomAttribute(ValueRangeAttribute::ClassInfo(), found));
  EXPECT_EQ(static_cast<ValueRangeAttribute*>(found)->MaxValue().ToString(), "2.5");
  ASSERT_TRUE(PanelMember("Unit")->GetCustomAttribute(DesignMinAttribute::ClassInfo(), found));
  EXPECT_EQ(static_cast<DesignMinAttribute*>(found)->Value().ToString(), "auCenti");

  const TRef<IAttributeList> values =
      PanelMember("Source")->GetCustomAttributes(PropertyListDesignValueAttribute::ClassInfo());
  ASSERT_EQ(values->GetCount(), 2);
  EXPECT_EQ(static_cast<PropertyListDesignValueAttribute*>(values->GetItem(0))->Value(), "(none)");
  EXPECT_TRUE(static_cast<PropertyListDesignValueAttribute*>(values->GetItem(1))->After());
}

} // namespace
} // namespace Tarvo
