// The inspector's rows over the sample design, in process: which rows the package gives, what
// they show over one and over several objects, and how writes and sub-rows go through editors.
#include <gtest/gtest.h>

#include <optional>

#include "design/Registry.h"
#include "host/headless/RowModel.h"
#include "reflection/RttiTypes.h"
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

  TRowModel& Select(std::initializer_list<const char*> ANames) {
    FSession.Select(ANames);
    FInspector.Refresh();
    return FInspector;
  }
  std::vector<String> Names() {
    std::vector<String> names;
    for (const TInspectorRow& row : FInspector.Rows()) names.push_back(row.Name);
    return names;
  }
  bool HasRow(const String& AName) { return std::ranges::count(Names(), AName) == 1; }

  Testing::TSampleSession FSession;
  TRowModel FInspector;
};

TEST_F(RowModelTest, RowsAreTheMembersThePackageGivesAVisibleEditorSortedByName) {
  Select({"Generator1"});
  const std::vector<String> names = Names();
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  for (const char* shown : {"Frequency", "Waveform", "OnStart", "Start", "Advance", "PeakToPeak"})
    EXPECT_TRUE(HasRow(shown)) << shown;
  // Hidden by attribute, protected, private.
  for (const char* absent : {"NoiseSeed", "Running", "StartCount"}) EXPECT_FALSE(HasRow(absent)) << absent;

  const TInspectorRow& phase = FInspector.Find("phase");
  EXPECT_EQ(phase.DisplayName, "Phase (degrees)");
  EXPECT_EQ(phase.EditorName, "TFloatPropertyEditor");
  EXPECT_TRUE(phase.IsDefault);
  EXPECT_FALSE(phase.ReadOnly);
  EXPECT_EQ(FInspector.Find("OnStart").EditorName, "TEventPropertyEditor");
  const TInspectorRow& advance = FInspector.Find("Advance");
  EXPECT_EQ(advance.EditorName, "TMethodEditor");
  EXPECT_EQ(advance.Value, "(ACount: Cardinal)");
}

TEST_F(RowModelTest, SeveralObjectsShareTheRowsTheyAllHaveAndShowOneTextWhenTheyAgree) {
  Select({"Generator1", "Generator2"});
  EXPECT_EQ(FInspector.Find("Waveform").Value, "wfSine;wfSquare");
  EXPECT_EQ(FInspector.Find("SampleRate").Value, "48000;44100");

  FInspector.SetValue("Frequency", "1500");
  FInspector.Refresh();
  EXPECT_EQ(FInspector.Find("Frequency").Value, "1500");
  FInspector.ResetValue("Frequency");
  FInspector.Refresh();
  EXPECT_EQ(FInspector.Find("Frequency").Value, "440");
  EXPECT_TRUE(FInspector.Find("Frequency").IsDefault);

  // Only members that every selected object has get rows.
  Select({"Generator1", "Filter1"});
  EXPECT_TRUE(HasRow("Name"));
  EXPECT_FALSE(HasRow("Frequency"));
  EXPECT_FALSE(HasRow("Cutoff"));
}

// The refusals of an unknown row, a read-only row and a plain row's expansion are asserted
// through the tool, in its bad input table.
TEST_F(RowModelTest, RowsWithoutAValueAndPathsThroughAPlainRowAreRefusedByName) {
  Select({"Generator1"});
  using Testing::ExpectError;
  ExpectError<EInspectError>([&] { FInspector.SetValue("OnStart", "x"); }, "row \"OnStart\" has no value");
  ExpectError<EInspectError>([&] { FInspector.Find("Frequency.Size"); },
                             "no row \"Frequency.Size\": \"Frequency\" does not expand");
}

TEST_F(RowModelTest, AnExpandingEditorGivesSubRowsThatWriteToTheValuesOfEverySelectedObject) {
  RegisterPropertyEditor(TypeInfo<TFont*>(), TInspectTestFontEditor::ClassInfo());
  Select({"Scope1", "TriggerMark"});
  TInspectorRow& font = FInspector.Find("Font");
  EXPECT_TRUE(font.Expandable);
  FInspector.Expand(font);
  std::vector<String> children;
  for (const TInspectorRow& child : font.Children) children.push_back(child.Path);
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
