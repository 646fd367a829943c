// Object rows: their sub-rows, summaries and defaults, references by name, and owned elements
// replaced by class.

#include <gtest/gtest.h>

#include "design/editors/ClassEditors.h"
#include "package/DesignUnit.h"
#include "reflection/DynamicElements.h"
#include "reflection/Publish.h"
#include "reflection/RowAttributes.h"
#include "runtime/DynamicElement.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

namespace ClassEditorsTesting {

class TLevels : public TPersistent {
  TARVO_CLASS(TLevels, TPersistent)
public:
  Integer FLevel = 0;
  TLevels* FSelf = nullptr;
};

// Every member declines to show in a parent's summary.
class TQuiet : public TPersistent {
  TARVO_CLASS(TQuiet, TPersistent)
public:
  Integer FHidden = 0;
};

class TFigure : public TDynamicElement {
  TARVO_CLASS(TFigure, TDynamicElement)
public:
  using TDynamicElement::TDynamicElement;
  ~TFigure() override { ++Freed; }
  static inline Integer Freed = 0;
};
class TRound : public TFigure {
  TARVO_CLASS(TRound, TFigure)
public:
  using TFigure::TFigure;
};
class TSquare : public TFigure {
  TARVO_CLASS(TSquare, TFigure)
public:
  using TFigure::TFigure;
};

class THolder : public TComponent {
  TARVO_CLASS(THolder, TComponent)
public:
  THolder() : TComponent(nullptr) {}
  ~THolder() override { delete FShape; }
  TLevels FLevelsObject;
  TQuiet FQuietObject;
  TLevels* GetLevels() const { return const_cast<TLevels*>(&FLevelsObject); }
  TQuiet* GetQuiet() const { return const_cast<TQuiet*>(&FQuietObject); }
  TLevels* FMissing = nullptr;
  TComponent* FLink = nullptr;
  TFigure* FShape = nullptr; // written straight into the field: no setter frees the old one
};

TARVO_IMPLEMENT_CLASS(TLevels)
TARVO_IMPLEMENT_CLASS(TQuiet)
TARVO_IMPLEMENT_CLASS(TFigure)
TARVO_IMPLEMENT_CLASS(TRound)
TARVO_IMPLEMENT_CLASS(TSquare)
TARVO_IMPLEMENT_CLASS(THolder)

TARVO_PUBLISH(TLevels) {
  Property("Level", &TLevels::FLevel, &TLevels::FLevel).Default(0);
  Property("Self", &TLevels::FSelf, &TLevels::FSelf);
}
TARVO_PUBLISH(TQuiet) { Property("Hidden", &TQuiet::FHidden, &TQuiet::FHidden).Attr<DisplayNestedAttribute>(false); }
TARVO_PUBLISH(TRound) { ClassAttr<NameAttribute>("Round shape"); }
TARVO_PUBLISH(THolder) {
  Property("Levels", &THolder::GetLevels);
  Property("Quiet", &THolder::GetQuiet);
  Property("Missing", &THolder::FMissing);
  Property("Link", &THolder::FLink, &THolder::FLink);
  Property("Shape", &THolder::FShape, &THolder::FShape);
}

class ClassEditorsTest : public testing::Test {
protected:
  ClassEditorsTest() {
    InitializeDesignUnit();
    FFirst.SetName("First");
    FSecond.SetName("Second");
    FDesigner->Select({&FFirst, &FSecond});
  }
  ~ClassEditorsTest() override { FinalizeDesignUnit(); }

  template <class E = TClassPropertyEditor> TRef<E> Editor(const String& AName) {
    return Testing::MakeEditor<E>(FDesigner, AName);
  }
  static std::vector<String> Names(const TRef<IMembersInfo>& AMembers) {
    std::vector<String> names;
    for (const TRef<IMemberInfo>& member : AMembers) names.push_back(member->GetName());
    return names;
  }

  // Names the components the test holds.
  class TNamedDesigner : public Testing::TLoggingDesigner {
  public:
    TNamedDesigner(std::vector<String>& ALog, std::vector<TComponent*> AComponents)
        : TLoggingDesigner(ALog), FComponents(std::move(AComponents)) {}
    TComponent* GetComponent(const String& AName) override {
      for (TComponent* component : FComponents)
        if (component->GetName() == AName) return component;
      return nullptr;
    }
    TRef<IStringArrayList> GetComponentNames() override {
      const TRef<IStringArrayList> names = New<TStringArrayList>();
      for (TComponent* component : FComponents) names->Add(component->GetName());
      return names;
    }

  private:
    std::vector<TComponent*> FComponents;
  };

  std::vector<String> FLog;
  THolder FFirst, FSecond;
  TRef<TNamedDesigner> FDesigner = New<TNamedDesigner>(FLog, std::vector<TComponent*>{&FFirst, &FSecond});
};

TEST_F(ClassEditorsTest, SubRowsComeFromTheObjectOrTheDeclaredTypeButNeverFromAComponent) {
  TRef<IMembersInfo> members;
  ASSERT_TRUE(Editor("Missing")->GetSubMembers(members, true));
  EXPECT_EQ(Names(members), (std::vector<String>{"Level", "Self"})) << "a nil object lists its declared type";
  FFirst.FLink = &FSecond;
  ASSERT_TRUE(Editor("Link")->GetSubMembers(members, true));
  EXPECT_EQ(members->GetCount(), 0) << "a component's own rows are not repeated under a reference";
  FFirst.FLink = nullptr;
  ASSERT_TRUE(Editor("Link")->GetSubMembers(members, true));
  EXPECT_EQ(members->GetCount(), 0) << "nor those of a nil component's type";
}

TEST_F(ClassEditorsTest, SummaryJoinsTheRowsThatShowAndStopsAtAnObjectMetAgain) {
  FFirst.FLevelsObject.FLevel = 3;
  FFirst.FLevelsObject.FSelf = &FSecond.FLevelsObject;
  FSecond.FLevelsObject.FSelf = &FFirst.FLevelsObject; // a cycle through two objects
  EXPECT_EQ(Editor("Levels")->GetDisplayValue(nullptr), "(Level=3,Self=(Level=0,Self=))");
  FFirst.FLevelsObject.FSelf = &FFirst.FLevelsObject;
  EXPECT_EQ(Editor("Levels")->GetDisplayValue(nullptr), "(Level=3,Self=)");
  EXPECT_EQ(Editor("Quiet")->GetDisplayValue(nullptr), "()");
  EXPECT_EQ(Editor("Missing")->GetDisplayValue(nullptr), "");
}

TEST_F(ClassEditorsTest, WithoutAStringAccessPropertyTheRowIsReadOnlyAndIgnoresText) {
  const TRef<TClassPropertyEditor> editor = Editor("Levels");
  EXPECT_TRUE(editor->GetIsReadOnly());
  editor->SetStringValue("(Level=9)");
  editor->ResetValue();
  EXPECT_EQ(FFirst.FLevelsObject.FLevel, 0);
  EXPECT_TRUE(FLog.empty());
}

TEST_F(ClassEditorsTest, AModificationNoticeRebuildsSummaryAndDefaultsButKeepsTheSubMembers) {
  const TRef<TClassPropertyEditor> editor = Editor("Levels");
  TRef<IMembersInfo> before, after;
  editor->GetSubMembers(before, true);
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "(Level=0,Self=)");
  EXPECT_TRUE(editor->GetIsAllDefault());
  FFirst.FLevelsObject.FLevel = 5;
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "(Level=0,Self=)") << "kept until the notice";
  FDesigner->TDesigner::Modified();
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "(Level=5,Self=)");
  EXPECT_FALSE(editor->GetIsAllDefault());
  editor->GetSubMembers(after, false);
  EXPECT_EQ(after.get(), before.get());
}

TEST_F(ClassEditorsTest, AComponentIsPickedByNameAndAnUnknownNameWritesNil) {
  const TRef<TComponentPropertyEditor> editor = Editor<TComponentPropertyEditor>("Link");
  EXPECT_FALSE(editor->GetIsReadOnly());
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "(none)");
  EXPECT_EQ(editor->GetStringListValues()->ToArray(), (std::vector<String>{"First", "Second"}));
  editor->SetStringValue("Second");
  EXPECT_EQ(FFirst.FLink, &FSecond);
  EXPECT_EQ(FSecond.FLink, &FSecond);
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "Second");
  editor->SetStringValue("Nobody");
  EXPECT_EQ(FFirst.FLink, nullptr);
  EXPECT_EQ(FSecond.FLink, nullptr);
  EXPECT_EQ(FLog, (std::vector<String>{"Modified", "Modified"}));
}

TEST_F(ClassEditorsTest, ADynamicElementIsReplacedOnEverySelectedObjectAndTheOldOnesFreed) {
  RegisterDynamicElement(TFigure::ClassInfo(), TRound::ClassInfo());
  RegisterDynamicElement(TFigure::ClassInfo(), TSquare::ClassInfo());
  const TRef<TDynamicElementPropertyEditor> editor = Editor<TDynamicElementPropertyEditor>("Shape");
  EXPECT_EQ(editor->GetStringListValues()->ToArray(), (std::vector<String>{"Round shape", "TSquare"}));
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "(none)");

  editor->SetStringValue("TRound"); // the class name answers as well as the shown name
  TFigure* firstRound = FFirst.FShape;
  ASSERT_NE(dynamic_cast<TRound*>(firstRound), nullptr);
  ASSERT_NE(dynamic_cast<TRound*>(FSecond.FShape), nullptr);
  EXPECT_NE(firstRound, FSecond.FShape);
  EXPECT_EQ(firstRound->GetOwner(), &FFirst);

  const Integer freed = TFigure::Freed;
  editor->SetStringValue("TSquare");
  EXPECT_EQ(TFigure::Freed, freed + 2) << "the field has no setter to free the old elements";
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "TSquare");
  editor->SetStringValue("Triangle");
  EXPECT_EQ(TFigure::Freed, freed + 2) << "an unknown class changes nothing";
  EXPECT_EQ(FLog, (std::vector<String>{"Modified", "Modified"}));
}

} // namespace ClassEditorsTesting

} // namespace Tarvo
