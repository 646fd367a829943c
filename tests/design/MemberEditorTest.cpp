#include <gtest/gtest.h>

#include "design/MemberEditor.h"
#include "design/editors/BasicEditors.h"
#include "reflection/Publish.h"
#include "reflection/RttiTypes.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

class TEdTestGadget : public TObject {
  TARVO_CLASS(TEdTestGadget, TObject)
public:
  explicit TEdTestGadget(Integer AWidth = 0) : FWidth(AWidth) {}
  Integer FWidth;
  void Reset() {}
  String Join(Integer, const String&) { return String(); }
  Integer Measure() { return 0; }
};
class TEdTestOtherGadget : public TObject {
  TARVO_CLASS(TEdTestOtherGadget, TObject)
};
TARVO_IMPLEMENT_CLASS(TEdTestGadget)
TARVO_IMPLEMENT_CLASS(TEdTestOtherGadget)
TARVO_PUBLISH(TEdTestGadget) {
  Property("Width", &TEdTestGadget::FWidth, &TEdTestGadget::FWidth);
  Public();
  Method("Reset", &TEdTestGadget::Reset);
  Method("Join", &TEdTestGadget::Join, {"ACount", "ASeparator"});
  Method("Measure", &TEdTestGadget::Measure, {});
  Method("Blind", &TEdTestGadget::Join);
}

class TWatchedEditor : public TMemberEditor {
  TARVO_CLASS(TWatchedEditor, TMemberEditor)
public:
  using TMemberEditor::TMemberEditor;
  ~TWatchedEditor() override { *Destroyed = true; }
  static inline bool* Destroyed = nullptr;
};
TARVO_IMPLEMENT_CLASS(TWatchedEditor)

namespace {

class MemberEditorTest : public testing::Test {
protected:
  void SetUp() override {
    FDesigner = New<TDesigner>();
    TObject* selection[] = {&FFirst, &FSecond};
    FDesigner->SetSelection(selection);
  }
  template <class E = TMemberEditor>
  TRef<E> Editor(const String& AName, TObject* AOwnerObject = nullptr, TRef<IMemberInfo> AFirst = nullptr) {
    return Testing::MakeEditor<E>(FDesigner, AName, AOwnerObject, nullptr, nullptr, AFirst);
  }
  TRef<IMemberInfo> Method(const String& AName) {
    TRef<IMemberInfo> found;
    TRttiObjectHelper::ClassTypeInfo(TEdTestGadget::ClassInfo())
        ->GetAllMethods()
        ->Query()
        ->Find([&](const TRef<IMemberInfo>& AMember) { return AMember->GetName() == AName; }, found);
    return found;
  }

  TEdTestGadget FFirst{1}, FSecond{2}, FLone{3};
  TEdTestOtherGadget FOther;
  TRef<TDesigner> FDesigner;
};

// Members are collected once, on the first call, and only from objects that have them.
TEST_F(MemberEditorTest, MembersAreCollectedOnceWhateverListComesLaterAndOnlyFromObjectsThatHaveThem) {
  const TRef<TMemberEditor> editor = Editor("Width");
  const TRef<IMemberInfoList> first = editor->GetMembers(nullptr);
  EXPECT_EQ(first->GetCount(), 2);
  EXPECT_TRUE(editor->GetMembers(New<TObjectArrayList>()->Add(&FLone)) == first);
  EXPECT_EQ(editor->GetFirstMember()->GetName(), "Width");
  TObject* selection[] = {&FOther, &FFirst};
  FDesigner->SetSelection(selection);
  EXPECT_EQ(Editor("Width")->GetMembers(nullptr)->GetCount(), 1);
}

// Owner objects: the list given, else the owner object, else the selection.
TEST_F(MemberEditorTest, OwnerObjectsComeFromTheListTheOwnerOrTheSelection) {
  const TRef<IObjectArrayList> given = New<TObjectArrayList>()->Add(&FLone);
  EXPECT_TRUE(Editor("Width")->GetOwnerObjects(given) == given);
  const TRef<TMemberEditor> bound = Editor("Width", &FLone);
  EXPECT_EQ(bound->GetOwnerObjects(nullptr)->ToArray(), std::vector<TObject*>{&FLone});
  EXPECT_EQ(bound->GetOwnerObject(), &FLone);
  const TRef<TMemberEditor> free = Editor("Width");
  EXPECT_EQ(free->GetOwnerObjects(nullptr)->ToArray(), (std::vector<TObject*>{&FFirst, &FSecond}));
  EXPECT_EQ(free->GetOwnerObject(), &FFirst);
}

// The parameter text of a method row, names unknown shown as question marks.
TEST_F(MemberEditorTest, FunctionParameterStrings) {
  const struct {
    const char *Name, *Method, *Text;
  } rows[] = {{"a procedure without parameters", "Reset", "()"},
              {"a function with named parameters", "Join", "(ACount: Integer; ASeparator: string) : string"},
              {"a function without parameters", "Measure", "() : Integer"},
              {"parameters without names", "Blind", "(?\?\?)"}};
  Testing::ForEachRow(rows, [this](const auto& r) {
    EXPECT_EQ(Editor<TMethodEditor>(r.Method, nullptr, Method(r.Method))->GetFunctionParamString(), r.Text);
  });
}

// Lifetime: an editor is made unreferenced and ends with its last reference.
TEST_F(MemberEditorTest, CountStartsAtZeroAndTheLastReleaseEndsTheEditor) {
  bool destroyed = false;
  TWatchedEditor::Destroyed = &destroyed;
  TMemberEditor* raw =
      TMemberEditorClass(TWatchedEditor::ClassInfo()).Create(nullptr, nullptr, nullptr, nullptr, String(), nullptr);
  EXPECT_EQ(raw->RefCount(), 0);
  {
    const TRef<IMemberEditor> held(raw);
    EXPECT_EQ(raw->RefCount(), 1);
    EXPECT_EQ(held->GetInstance(), raw);
  }
  EXPECT_TRUE(destroyed);
}

} // namespace
} // namespace Tarvo
