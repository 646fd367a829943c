// The package as a host starts it: through its entry points, with the design core's own
// registrations in place, and with component modules coming and going.
#include <gtest/gtest.h>

#include <cstring>

#include "design/MemberCategoryRegistry.h"
#include "design/Registry.h"
#include "design/editors/BasicEditors.h"
#include "package/DesignUnit.h"
#include "package/PackageEntry.h"
#include "reflection/ComponentRegistration.h"
#include "reflection/Publish.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "rtl/Module.h"
#include "runtime/Controls.h"
#include "runtime/Shape.h"
#include "tests/design/editors/TypedEditorTest.h"

namespace Tarvo {

// A class that is no control and no component, with members named as the hidden ones are.
class TStartupTestPlain : public TObject {
  TARVO_CLASS(TStartupTestPlain, TObject)
public:
  Integer FLeft = 0;
  NativeInt FTag = 0;
};
TARVO_IMPLEMENT_CLASS(TStartupTestPlain)
TARVO_PUBLISH(TStartupTestPlain) {
  Property("Left", &TStartupTestPlain::FLeft, &TStartupTestPlain::FLeft);
  Property("Tag", &TStartupTestPlain::FTag, &TStartupTestPlain::FTag, &TypeInfo_NativeInt);
}

class TStartupTestWidget : public TComponent {
  TARVO_CLASS(TStartupTestWidget, TComponent)
public:
  using TComponent::TComponent;
  Integer FSecret = 0;
};
TARVO_IMPLEMENT_CLASS(TStartupTestWidget)
TARVO_PUBLISH(TStartupTestWidget) {
  Property("Secret", &TStartupTestWidget::FSecret, &TStartupTestWidget::FSecret).Attr<HiddenDesignAttribute>();
}

namespace {

const TPackageUnitEntry& Unit(const char* AName) {
  const TPackageInfoTable& table = *GetPackageInfoTable();
  for (int i = 0; i < table.UnitCount; ++i)
    if (std::strcmp(table.Units[i].Name, AName) == 0) return table.Units[i];
  throw Exception(String("no unit ") + AName);
}

String EditorOf(TObject* AObject, const String& AMember) {
  TRef<IArrayList<TMemberEditorClass>> classes;
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(AObject, false)->GetAllMembers())
    if (member->GetName() == AMember)
      return GetMemberEditorClasses(member, AObject, classes) ? String(classes->GetItem(0)->ClassName()) : String("-");
  throw Exception("no member " + AMember);
}

Integer EntriesNamed(const String& AName) {
  Integer count = 0;
  for (const TRef<IMemberEditorItem>& entry : GMemberEditors) count += entry->GetInstance()->MemberName == AName;
  return count;
}

TEST(PackageStartupTest, ASecondInitializeDoesNothingAndOnlyTheBalancingFinalizeTearsDown) {
  ASSERT_FALSE(GMemberEditors);
  Initialize();
  const TRef<ILinkedList<TRef<IMemberEditorItem>>> registry = GMemberEditors;
  ASSERT_TRUE(registry);
  const Integer entries = registry->GetCount();
  EXPECT_GT(entries, 0);
  EXPECT_TRUE(GDesignKeptTypes.ComponentType);

  Initialize();
  EXPECT_EQ(GMemberEditors.get(), registry.get());
  EXPECT_EQ(GMemberEditors->GetCount(), entries);
  EXPECT_EQ(Unit("Tarvo.Design").Counter, -2);
  EXPECT_EQ(Unit("Tarvo.VCL.ColorInplaceFormUnit").Counter, -2);

  Finalize();
  EXPECT_EQ(GMemberEditors.get(), registry.get());
  EXPECT_TRUE(DefaultEditorClasses.ByTypeKind[tkInteger]);

  Finalize();
  EXPECT_FALSE(GMemberEditors);
  EXPECT_FALSE(DefaultEditorClasses.ByTypeKind[tkInteger]);
  EXPECT_FALSE(GDesignKeptTypes.ComponentType);
  EXPECT_EQ(Unit("Tarvo.Design").Counter, 0);

  // The component hook went with the registry: a class with a hidden member, registered now,
  // reaches neither.
  EXPECT_NO_THROW(RegisterComponents("Startup", {TStartupTestWidget::ClassInfo()}));
}

class PackageRegistrationsTest : public testing::Test {
protected:
  void SetUp() override { Initialize(); }
  void TearDown() override { Finalize(); }
};

TEST_F(PackageRegistrationsTest, ControlsAndComponentsHideTheirListedMembersOnly) {
  TOwnedObject<TShape> shape(Construct<TShape>(nullptr));
  TStartupTestPlain plain;
  TOwnedObject<TComponent> component(Construct<TComponent>(nullptr));
  for (const char* name : {"Left", "Top", "Width", "Height", "Align", "Anchors", "Constraints", "Margins",
                           "HelpKeyword", "PopupMenu", "CustomHint", "ParentCustomHint", "Tag"})
    EXPECT_EQ(EditorOf(shape.get(), name), "THiddenEditor") << name;
  EXPECT_EQ(EditorOf(component.get(), "Tag"), "THiddenEditor");
  EXPECT_EQ(EditorOf(&plain, "Left"), "TIntegerPropertyEditor");
  EXPECT_EQ(EditorOf(&plain, "Tag"), "TInt64PropertyEditor");
  EXPECT_EQ(EditorOf(shape.get(), "Shape"), "TEnumPropertyEditor");
  EXPECT_EQ(EditorOf(shape.get(), "SetBounds"), "TMethodEditor");
}

TEST_F(PackageRegistrationsTest, TypedEditorsServeTheirKindsAndTypes) {
  struct TRow {
    const char* Name;
    const char* Editor;
  };
  const TRow rows[] = {
      {"Gain", "TIntegerPropertyEditor"},        {"Count", "TCardinalPropertyEditor"},
      {"Narrow", "TAnsiCharPropertyEditor"},     {"Wide", "TWideCharPropertyEditor"},
      {"Notes", "TStringPropertyEditor"},        {"MultiLine", "TMultiLineStringPropertyEditor"},
      {"WideText", "TWideStringPropertyEditor"}, {"WideMultiLine", "TWideStringPropertyEditor"},
      {"FontName", "TFontNamePropertyEditor"},   {"ImeName", "TImeNamePropertyEditor"},
      {"File", "TAttributedFileNameEdit"},       {"Name", "TNamePropertyEditor"},
  };
  TTypedGadget typed;
  Testing::ForEachRow(rows, [&](const TRow& ARow) { EXPECT_EQ(EditorOf(&typed, ARow.Name), ARow.Editor); });
}

TEST_F(PackageRegistrationsTest, AComponentModuleBringsItsEntriesAndTakesThemAlongWhenItGoes) {
  // Classes of this binary that other tests registered bring their categories too.
  const auto inputFilters = [] {
    return dynamic_cast<TMemberCategoryInstance&>(*GMemberCategories->GetCategory(TInputMemberCategory::ClassInfo()))
        .GetFilters(mkSingleProperty)
        ->GetCount();
  };
  const Integer filtersBefore = inputFilters();
  TModule* module = LoadModule(TARVO_SAMPLES_MODULE_PATH);
  // The module's components were walked as they registered, and their types still know the
  // members published after the walk first met them.
  EXPECT_EQ(EntriesNamed("NoiseSeed"), 1);
  TRef<IValueMemberInfo> frequency;
  ASSERT_TRUE(TRttiObjectHelper::ClassTypeInfo(FindClass("TSignalGenerator"))->FindMember("Frequency", frequency));

  TRef<IValueMemberInfo> waveform;
  ASSERT_TRUE(TRttiObjectHelper::ClassTypeInfo(FindClass("TSignalGenerator"))->FindMember("Waveform", waveform));
  RegisterPropertyEditor(waveform->GetTypeInfo(), THiddenEditor::ClassInfo());
  RegisterPropertyEditor(TypeInfo<Integer>(), FindClass("TSignalFilter"), "Order", THiddenEditor::ClassInfo());
  const Integer before = GMemberEditors->GetCount();
  // The scope's members brought their categories; their filters name the module's class.
  const auto input = GMemberCategories->GetCategory(TInputMemberCategory::ClassInfo());
  EXPECT_TRUE(input->IsInCategory(mkSingleProperty, FindClass("TSignalScope"), "Gain",
                                  TTypeInfoHelper::TypeInfo(TypeInfo<Byte>())));

  UnloadModule(module);
  // The two entries above, and the hidden member's entry made for the module's class, though it
  // names only the runtime's Integer and TObject.
  EXPECT_EQ(GMemberEditors->GetCount(), before - 3);
  EXPECT_EQ(EntriesNamed("NoiseSeed"), 0);
  EXPECT_EQ(inputFilters(), filtersBefore);
  for (const TRef<IMemberEditorItem>& entry : GMemberEditors) {
    const TMemberEditorItem& item = *entry->GetInstance();
    EXPECT_NE(item.MemberType->GetHandle()->Module(), module);
    EXPECT_TRUE(!item.OwnerClass || item.OwnerClass->Module() != module);
  }
}

} // namespace
} // namespace Tarvo
