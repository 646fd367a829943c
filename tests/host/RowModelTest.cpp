// The inspector's rows over the sample design, in process: which rows the package gives, what
// they show over one and over several objects, and how writes and sub-rows go through editors.
#include <gtest/gtest.h>

#include "design/Registry.h"
#include "host/headless/RowModel.h"
#include "reflection/RttiTypes.h"
#include "rtl/SysUtils.h"
#include "runtime/Graphics.h"
#include "tests/host/SampleSession.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo {

// Expands a font into its published members, as a class editor would.
class TInspectTestFontEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TInspectTestFontEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  Boolean GetIsExpandable() override { return true; }
  Boolean GetSubMembers(TRef<IMembersInfo>& AResult, Boolean) override {
    AResult = TRttiObjectHelper::ClassTypeInfo(TFont::ClassInfo())->GetMembers(mvsPublished);
    return true;
  }
  TObject* GetValueForDirectInstance(TObject* AObject) override {
    return GetValueMember(AObject)->GetValue(AObject).AsObject();
  }
};
TARVO_IMPLEMENT_CLASS(TInspectTestFontEditor)

namespace {

class RowModelTest : public testing::Test {
protected:
  RowModelTest() : FInspector(FSession.Designer()) {}

  std::vector<TInspectorRow> Select(std::initializer_list<const char*> ANames) {
    FSession.Select(ANames);
    FInspector.Refresh();
    return FInspector.Rows();
  }
  static const TInspectorRow* Row(const std::vector<TInspectorRow>& ARows, const String& AName) {
    const auto found = std::ranges::find(ARows, AName, &TInspectorRow::Name);
    return found == ARows.end() ? nullptr : &*found;
  }

  Testing::TSampleSession FSession;
  TRowModel FInspector;
};

// The tool's tests show the texts; here, what the printed rows say of their editors and what
// the rows of a selection are.
TEST_F(RowModelTest, RowsAreTheCommonMembersWithAVisibleEditorSortedByName) {
  std::vector<TInspectorRow> rows = Select({"Generator1"});
  EXPECT_TRUE(std::ranges::is_sorted(rows, [](const TInspectorRow& A, const TInspectorRow& B) {
    return CompareText(A.Name, B.Name) < 0;
  }));
  // Hidden by attribute, protected, private.
  for (const char* absent : {"NoiseSeed", "Running", "StartCount"}) EXPECT_FALSE(Row(rows, absent)) << absent;
  EXPECT_EQ(Row(rows, "Phase")->EditorName, "TFloatPropertyEditor");
  EXPECT_EQ(Row(rows, "OnStart")->EditorName, "TEventPropertyEditor");
  EXPECT_EQ(Row(rows, "Advance")->EditorName, "TMethodEditor");
  EXPECT_EQ(Row(rows, "Advance")->Value, "(ACount: Cardinal)");

  // A component reference with no writer behind it is shown read-only, though its editor never
  // says so; one with a writer can be set.
  EXPECT_EQ(Row(rows, "Owner")->EditorName, "TComponentPropertyEditor");
  EXPECT_TRUE(Row(rows, "Owner")->ReadOnly);
  EXPECT_FALSE(Row(Select({"Scope1"}), "Source")->ReadOnly);
  rows = Select({"Generator1"});

  using Testing::ExpectError;
  ExpectError<EInspectError>([&] { FInspector.SetValue("Owner", "Scope1"); }, "row \"Owner\" is read-only");
  ExpectError<EInspectError>([&] { FInspector.SetValue("OnStart", "x"); }, "row \"OnStart\" has no value");
  ExpectError<EInspectError>([&] { FInspector.Find("Frequency.Size"); },
                             "no row \"Frequency.Size\": \"Frequency\" does not expand");

  rows = Select({"Generator1", "Filter1"});
  EXPECT_TRUE(Row(rows, "Name"));
  EXPECT_FALSE(Row(rows, "Frequency"));
  EXPECT_FALSE(Row(rows, "Cutoff"));
}

TEST_F(RowModelTest, AnExpandingEditorGivesSubRowsThatWriteToTheValuesOfEverySelectedObject) {
  RegisterPropertyEditor(TypeInfo<TFont*>(), TInspectTestFontEditor::ClassInfo());
  Select({"Scope1", "TriggerMark"});
  FInspector.Expand("font");
  const std::vector<TInspectorRow> rows = FInspector.Rows();
  const TInspectorRow* font = Row(rows, "Font");
  ASSERT_TRUE(font && font->Expanded);
  std::vector<String> children;
  for (const TInspectorRow& child : font->Children) children.push_back(child.Path);
  EXPECT_EQ(children,
            (std::vector<String>{"Font.Charset", "Font.Color", "Font.Height", "Font.Name", "Font.Size", "Font.Style"}));

  FInspector.SetValue("Font.Size", "14");
  for (const char* name : {"Scope1", "TriggerMark"}) {
    TRef<ISinglePropertyInfo> member;
    TComponent* component = FSession.Component(name);
    TRttiObjectHelper::TypeInfo(component, false)->FindSinglePropertyMember("Font", member);
    EXPECT_EQ(static_cast<TFont*>(member->GetValue(component).AsObject())->GetSize(), 14) << name;
  }
  FInspector.Refresh();
  FInspector.ExpandAll();
  EXPECT_EQ(FInspector.Find("Font.Size").Value, "14");
}

} // namespace
} // namespace Tarvo
