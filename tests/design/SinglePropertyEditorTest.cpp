#include <gtest/gtest.h>

#include "design/MemberKinds.h"
#include "design/SinglePropertyEditor.h"
#include "reflection/MemberInfo.h"
#include "reflection/Publish.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "rtl/SysUtils.h"
#include "runtime/LockItem.h"
#include "tests/design/EditorTestSupport.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo {

// What the objects, the designer and the listeners were told, in order.
inline std::vector<String> GSpeLog;

class TSpeGadget : public TImplements<TComponent, ILockItem> {
  TARVO_CLASS(TSpeGadget, TImplements<TComponent, ILockItem>)
public:
  explicit TSpeGadget(String ALabel, Integer ALevel = 0)
      : TImplements(nullptr), FLabel(std::move(ALabel)), FLevel(ALevel) {}
  TProc<> GetNotifier() override {
    return [this] { GSpeLog.push_back("changed " + FLabel); };
  }
  void SetSize(Integer AValue) {
    FSize = AValue;
    GSpeLog.push_back("Size " + FLabel);
  }
  void SetGuarded(Integer AValue) {
    if (FRefuse) throw EDesignPropertyError(FLabel + " refuses " + IntToStr(Int64(AValue)));
    FGuarded = AValue;
  }
  bool IsStampStored() const { return FStamp != 7; }
  Integer GetCount() const { return 3; }
  void SetSink(Integer) {}

  String FLabel;
  Integer FLevel, FSize = 0, FGuarded = 0, FStamp = 0, FQuiet = 0, FMemo = 0;
  String FMode = "Fast";
  TSpeGadget* FChild = nullptr;
  Boolean FRefuse = false;
};
TARVO_IMPLEMENT_CLASS(TSpeGadget)
TARVO_PUBLISH(TSpeGadget) {
  Property("Level", &TSpeGadget::FLevel, &TSpeGadget::FLevel).Default(0);
  Property("Size", &TSpeGadget::FSize, &TSpeGadget::SetSize).Attr<RefreshPropertiesAttribute>();
  Property("Mode", &TSpeGadget::FMode, &TSpeGadget::FMode).Attr<PropertyFixedListDesignAttribute>();
  Property("Label", &TSpeGadget::FLabel, &TSpeGadget::FLabel);
  Property("Guarded", &TSpeGadget::FGuarded, &TSpeGadget::SetGuarded);
  Property("Child", &TSpeGadget::FChild, &TSpeGadget::FChild);
  Property("Stamp", &TSpeGadget::FStamp, &TSpeGadget::FStamp).Stored(&TSpeGadget::IsStampStored);
  Property("Count", &TSpeGadget::GetCount);
  WriteOnlyProperty("Sink", &TSpeGadget::SetSink);
  Property("Quiet", &TSpeGadget::FQuiet, &TSpeGadget::FQuiet)
      .Default(0)
      .Attr<HideNestedDefaultAttribute>()
      .Attr<DisplayNestedAttribute>();
  Property("Brief", &TSpeGadget::FQuiet, &TSpeGadget::FQuiet).Attr<DisplayNestedShortAttribute>();
  Property("Hushed", &TSpeGadget::FQuiet, &TSpeGadget::FQuiet).Attr<DisplayNestedAttribute>(false);
  Public();
  Property("Secret", &TSpeGadget::FQuiet, &TSpeGadget::FQuiet);
  Property("Shown", &TSpeGadget::FQuiet, &TSpeGadget::FQuiet).Attr<DisplayNestedAttribute>();
  Field("Memo", &TSpeGadget::FMemo);
}

// Each object gets the value plus the number of objects constrained before it.
class TSpeStepEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TSpeStepEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  TValue ApplyConstraints(const TValue& AValue) override { return AValue.AsInteger() + FCalls++; }
  Integer FCalls = 0;
};

// Offers a fixed list of modes.
class TSpeListEditor : public TImplements<TSinglePropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TSpeListEditor, TImplements<TSinglePropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  TRef<IStringArrayList> GetStringListValues() override { return TStringArrayList::CreateArray({"Fast", "Slow"}); }
};

// The row of a nested object: a selected gadget stands for its child.
class TSpeChildEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TSpeChildEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  TObject* GetValueForDirectInstance(TObject* AObject) override { return static_cast<TSpeGadget*>(AObject)->FChild; }
};

// Editor classes carrying type attributes: read-only, and shown nested.
class TSpeLockedEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TSpeLockedEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
};

class TSpeNestedEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TSpeNestedEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
};

// Logs the setup a subclass adds when the editor is made.
class TSpeInitEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TSpeInitEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override {
    inherited::InitCreate(AInstance);
    GSpeLog.push_back("init " + AInstance->GetName());
  }
};

TARVO_IMPLEMENT_CLASS(TSpeStepEditor)
TARVO_IMPLEMENT_CLASS(TSpeListEditor)
TARVO_IMPLEMENT_CLASS(TSpeChildEditor)
TARVO_IMPLEMENT_CLASS(TSpeLockedEditor)
TARVO_IMPLEMENT_CLASS(TSpeNestedEditor)
TARVO_IMPLEMENT_CLASS(TSpeInitEditor)

const bool GSpeEditorAttributes = [] {
  RegisterTypeAttribute(TSpeLockedEditor::ClassInfo()->ClassTypeRecord(), new ReadOnlyAttribute());
  RegisterTypeAttribute(TSpeNestedEditor::ClassInfo()->ClassTypeRecord(), new DisplayNestedAttribute(true));
  return true;
}();

// A set element whose own answers would all be "no"; the editor must ask its property instead.
class TSpeSetElement : public TImplements<TValueMemberInfo, ISetValueMemberInfo> {
public:
  explicit TSpeSetElement(TRef<IValueMemberInfo> AOwner)
      : TImplements(TypeInfo<Boolean>(), nullptr, "Element"), FOwner(std::move(AOwner)) {}
  TValue GetDefault(TObject*) override { return TValue(); }
  bool GetHasDefault() override { return false; }
  bool GetIsDefault(TObject*, bool) override { return false; }
  TValue GetValue(TObject*) override { return false; }
  void SetValue(TObject*, const TValue&) override {}
  TRef<IValueMemberInfo> GetOwnerMember() override { return FOwner; }

private:
  TRef<IValueMemberInfo> FOwner;
};

class TSpeListener : public TImplements<TInterfacedObject, IRefreshMemberNotify> {
public:
  explicit TSpeListener(String AName) : FName(std::move(AName)) {}
  void RefreshMember() override { GSpeLog.push_back("refresh " + FName); }

private:
  String FName;
};

namespace {

using TLog = std::vector<String>;

class SinglePropertyEditorTest : public testing::Test {
protected:
  void SetUp() override {
    GSpeLog.clear();
    FDesigner = New<Testing::TLoggingDesigner>(GSpeLog);
    Select({&FFirst, &FSecond, &FThird});
  }
  void Select(std::vector<TObject*> AObjects) { FDesigner->Select(AObjects); }

  template <class E = TSinglePropertyEditor>
  TRef<E> Editor(const String& AName, TObject* AOwnerObject = nullptr, TMemberEditor* AParent = nullptr,
                 TRef<IMemberInfo> AShared = nullptr) {
    return Testing::MakeEditor<E>(FDesigner, AName, AOwnerObject, AParent, AShared);
  }
  static TRef<IValueMemberInfo> Member(const String& AName) {
    TRef<IValueMemberInfo> member;
    EXPECT_TRUE(TRttiObjectHelper::ClassTypeInfo(TSpeGadget::ClassInfo())->FindMember(AName, member)) << AName;
    return member;
  }
  static std::vector<String> Texts(const TRef<IValueArrayList>& AValues) {
    std::vector<String> texts;
    for (const TValue& value : AValues) texts.push_back(value.IsEmpty() ? "<empty>" : value.ToString());
    return texts;
  }

  TSpeGadget FFirst{"First", 1}, FSecond{"Second", 2}, FThird{"Third", 1}, FLone{"Lone", 9};
  TRef<Testing::TLoggingDesigner> FDesigner;
};

// One text when all objects agree, else every object's text joined.
TEST_F(SinglePropertyEditorTest, DisplayValueShowsOneTextWhenAllAgreeElseAllJoined) {
  const struct {
    const char* Name;
    std::vector<Integer> Levels;
    const char* Text;
  } rows[] = {{"texts differ", {1, 2, 1}, "1;2;1"}, {"all agree", {4, 4, 4}, "4"}, {"no object", {}, ""}};
  Testing::ForEachRow(rows, [this](const auto& ARow) {
    std::vector<TObject*> selection;
    TSpeGadget* gadgets[] = {&FFirst, &FSecond, &FThird};
    for (std::size_t i = 0; i < ARow.Levels.size(); ++i) {
      gadgets[i]->FLevel = ARow.Levels[i];
      selection.push_back(gadgets[i]);
    }
    Select(selection);
    EXPECT_EQ(Editor("Level")->GetDisplayValue(nullptr), ARow.Text);
  });
}

// A nil object in a given list reads empty and has no stored answer.
TEST_F(SinglePropertyEditorTest, NilObjectInAnExplicitListGivesAnEmptyValueAndNoStoredAnswer) {
  FSecond.FStamp = 7; // not stored
  const TRef<TSinglePropertyEditor> editor = Editor("Stamp");
  const TRef<IObjectArrayList> list = TObjectArrayList::CreateArray({&FFirst, nullptr, &FSecond});
  EXPECT_EQ(Texts(editor->GetInstanceValues(list)), (TLog{"0", "<empty>", "7"}));
  EXPECT_EQ(editor->GetDisplayValue(list), "0;;7");
  std::vector<std::pair<bool, bool>> stored;
  for (const TIsDefaultByStrored& item : editor->GetIsDefaultsByStored(list))
    stored.emplace_back(item.HasStored, item.IsDefault);
  EXPECT_EQ(stored, (std::vector<std::pair<bool, bool>>{{true, false}, {false, false}, {true, true}}));
  // A member without a stored specifier has nothing to ask.
  for (const TIsDefaultByStrored& item : Editor("Level")->GetIsDefaultsByStored(list))
    EXPECT_FALSE(item.HasStored || item.IsDefault);
}

// Reads go to the root selection, writes to the selection.
TEST_F(SinglePropertyEditorTest, ReadsTakeTheRootSelectionAndWritesTheSelection) {
  FDesigner->Root = TObjectArrayList::CreateArray({&FLone});
  const TRef<TSinglePropertyEditor> editor = Editor("Level");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "9");
  editor->SetInstanceValues(5);
  EXPECT_EQ(FLone.FLevel, 9);
  EXPECT_EQ((std::vector<Integer>{FFirst.FLevel, FSecond.FLevel, FThird.FLevel}), (std::vector<Integer>{5, 5, 5}));
}

// Under a parent row, each selected object stands for its nested object, for reads and writes; a
// parent row that is no single property editor is refused by name.
TEST_F(SinglePropertyEditorTest, ParentEditorMapsSelectedObjectsToTheirNestedObjects) {
  TSpeGadget firstChild{"FirstChild", 10}, secondChild{"SecondChild", 20};
  FFirst.FChild = &firstChild;
  FSecond.FChild = &secondChild;
  Select({&FFirst, &FSecond});
  const TRef<TSpeChildEditor> parent = Editor<TSpeChildEditor>("Child");
  const TRef<TSinglePropertyEditor> child = Editor("Level", nullptr, parent.get());
  EXPECT_EQ(child->GetDisplayValue(nullptr), "10;20");
  EXPECT_EQ(child->GetOwnerObject(), &firstChild);

  child->SetInstanceValues(3);
  EXPECT_TRUE(firstChild.FLevel == 3 && secondChild.FLevel == 3 && FFirst.FLevel == 1);
  EXPECT_EQ(GSpeLog, (TLog{"changed FirstChild", "changed SecondChild", "Modified"}));

  GSpeLog.clear();
  child->SetInstanceValue(&FSecond, 4);
  EXPECT_EQ(secondChild.FLevel, 4);
  EXPECT_EQ(GSpeLog, (TLog{"changed SecondChild", "Modified"}));

  Select({});
  EXPECT_EQ(child->GetOwnerObject(), nullptr);

  const TRef<TMemberEditor> plain = Editor<TMemberEditor>("Child");
  Testing::ExpectError<EInvalidCast>(
      [&] { Editor("Level", nullptr, plain.get())->GetOwnerObject(); },
      "Invalid class typecast: the parent editor TMemberEditor is no single property editor");
}

// Write order over a selection: each object then one Modified, and one reset for a refreshing member.
TEST_F(SinglePropertyEditorTest, RefreshingMemberOnTwoObjectsModifiesOnceThenResetsOnce) {
  Select({&FFirst, &FSecond});
  Editor("Size")->SetInstanceValues(8);
  EXPECT_EQ(GSpeLog,
            (TLog{"Size First", "changed First", "Size Second", "changed Second", "Modified", "ResetObjectInspector"}));
  EXPECT_EQ(FSecond.FSize, 8);

  GSpeLog.clear();
  Editor("Level")->SetInstanceValues(8);
  EXPECT_EQ(GSpeLog, (TLog{"changed First", "changed Second", "Modified"}));
}

// A setter's exception stops the walk with the objects before it written and no Modified.
TEST_F(SinglePropertyEditorTest, SetterExceptionPassesThroughAndLeavesEarlierObjectsWritten) {
  FSecond.FRefuse = true;
  Testing::ExpectError<EDesignPropertyError>([&] { Editor("Guarded")->SetInstanceValues(6); }, "Second refuses 6");
  EXPECT_TRUE(FFirst.FGuarded == 6 && FThird.FGuarded == 0);
  EXPECT_EQ(GSpeLog, TLog{"changed First"});
}

// Constraints run once per object, for writes and resets alike.
TEST_F(SinglePropertyEditorTest, ConstraintsAreAppliedAnewForEachObject) {
  const TRef<TSpeStepEditor> editor = Editor<TSpeStepEditor>("Level");
  editor->SetInstanceValues(10);
  EXPECT_EQ((std::vector<Integer>{FFirst.FLevel, FSecond.FLevel, FThird.FLevel}), (std::vector<Integer>{10, 11, 12}));
  editor->ResetValue();
  EXPECT_EQ((std::vector<Integer>{FFirst.FLevel, FSecond.FLevel, FThird.FLevel}), (std::vector<Integer>{3, 4, 5}));
}

// An editor bound to an owner object reads and writes that object only, whatever it is given.
TEST_F(SinglePropertyEditorTest, OwnerBoundEditorReadsAndWritesOnlyItsOwnObject) {
  const TRef<TSinglePropertyEditor> editor = Editor("Size", &FLone);
  EXPECT_EQ(Texts(Editor("Level", &FLone)->GetInstanceValues(nullptr)), TLog{"9"});
  EXPECT_FALSE(Editor("Level", &FLone)->GetIsAllDefault());
  editor->SetInstanceValue(&FFirst, 4);
  EXPECT_TRUE(FFirst.FSize == 0 && FLone.FSize == 0 && GSpeLog.empty());
  editor->SetInstanceValue(&FLone, 4);
  EXPECT_EQ(FLone.FSize, 4);
  GSpeLog.clear();
  editor->SetInstanceValues(5);
  EXPECT_TRUE(FLone.FSize == 5 && FFirst.FSize == 0);
  EXPECT_EQ(GSpeLog, (TLog{"Size Lone", "changed Lone", "Modified", "ResetObjectInspector"}));
}

// Text is converted into the first value's type. Text the type or a closed list refuses is dropped
// silently; text the converter raises on resets the value to its default.
TEST_F(SinglePropertyEditorTest, TextIsConvertedDroppedOrResets) {
  const TRef<TSinglePropertyEditor> editor = Editor("Level");
  editor->SetStringValue("42");
  EXPECT_TRUE(FFirst.FLevel == 42 && FThird.FLevel == 42);
  GSpeLog.clear();
  editor->SetStringValue("forty");
  EXPECT_TRUE(FFirst.FLevel == 42 && GSpeLog.empty());

  const TRef<TSpeListEditor> list = Editor<TSpeListEditor>("Mode");
  EXPECT_NO_THROW(list->SetStringValue("Medium"));
  EXPECT_TRUE(FFirst.FMode == "Fast" && GSpeLog.empty());
  list->SetStringValue("Slow");
  EXPECT_EQ(FThird.FMode, "Slow");
  // The list closes only a member that says so.
  Editor<TSpeListEditor>("Label")->SetStringValue("Medium");
  EXPECT_EQ(FSecond.FLabel, "Medium");

  TSpeGadget child{"Child"};
  FFirst.FChild = FSecond.FChild = FThird.FChild = &child;
  GSpeLog.clear();
  Editor("Child")->SetStringValue("Child");
  EXPECT_TRUE(FFirst.FChild == nullptr && FThird.FChild == nullptr);
  EXPECT_EQ(GSpeLog.back(), "Modified");
}

// Per object, one that doesn't store the value counting as default; no selection at all is all
// default, has no default value and writes no notice.
TEST_F(SinglePropertyEditorTest, DefaultsPerObjectAndOfNoSelection) {
  FFirst.FLevel = 0;
  const TRef<TSinglePropertyEditor> editor = Editor("Level");
  EXPECT_EQ(editor->GetIsDefaults(nullptr)->ToArray(), (std::vector<Boolean>{true, false, false}));
  EXPECT_FALSE(editor->GetIsAllDefault());
  EXPECT_EQ(editor->GetDefaultStringValue(), "0");
  FSecond.FLevel = FThird.FLevel = 0;
  EXPECT_TRUE(editor->GetIsAllDefault());
  FFirst.FStamp = 7;
  FSecond.FStamp = 3;
  EXPECT_EQ(Editor("Stamp")->GetIsDefaults(TObjectArrayList::CreateArray({&FFirst, &FSecond}))->ToArray(),
            (std::vector<Boolean>{true, false}));

  Select({});
  const TRef<TSinglePropertyEditor> none = Editor("Level", nullptr, nullptr, Member("Level"));
  EXPECT_TRUE(none->GetIsAllDefault());
  EXPECT_TRUE(none->GetDefaultValue().IsEmpty() && none->GetDefaultStringValue() == "");
  none->SetInstanceValues(1);
  EXPECT_TRUE(GSpeLog.empty());
}

// Read-only, write-only and has-default by accessors, editor class and set element owner.
TEST_F(SinglePropertyEditorTest, AccessAndDefaultFlagsOfMembers) {
  const auto of = [this](const char* AMember) { return Editor(AMember, nullptr, nullptr, Member(AMember)); };
  // A set element's own answers are all "no": the editor asks its property instead.
  const auto element = [this](const char* AOf) {
    return Editor("Element", nullptr, nullptr, New<TSpeSetElement>(Member(AOf)));
  };
  const struct {
    const char* Name;
    TRef<TSinglePropertyEditor> Editor;
    bool ReadOnly, WriteOnly, HasDefault;
  } rows[] = {{"a property with a default", of("Level"), false, false, true},
              {"a property without a setter", of("Count"), true, false, false},
              {"a property without a getter", of("Sink"), false, true, false},
              {"a field is no single property", of("Memo"), true, true, false},
              {"an editor whose type is read-only", Editor<TSpeLockedEditor>("Level"), true, false, true},
              {"a set element of a property with a default", element("Level"), false, false, true},
              {"a set element of a property without a setter", element("Count"), true, false, false}};
  Testing::ForEachRow(rows, [](const auto& ARow) {
    EXPECT_EQ(ARow.Editor->GetIsReadOnly(), ARow.ReadOnly);
    EXPECT_EQ(ARow.Editor->GetIsWriteOnly(), ARow.WriteOnly);
    EXPECT_EQ(ARow.Editor->GetHasDefault(), ARow.HasDefault);
  });
}

// The summary of a row in its parent's text, by attributes, editor class and visibility.
TEST_F(SinglePropertyEditorTest, DisplayNestedByAttributesAndVisibility) {
  struct Row {
    const char *Name, *Member;
    bool NestedEditor;
    Integer Value;
    bool Shown;
    const char* Text;
  };
  const Row rows[] = {
      {"a published member", "Level", false, 5, true, "Level=5"},
      {"an unpublished member still fills the text", "Secret", false, 5, false, "Secret=5"},
      {"a member shown by its attribute", "Shown", false, 5, true, "Shown=5"},
      {"a member shown by the editor class", "Secret", true, 5, true, "Secret=5"},
      {"the member's attribute before the editor class", "Hushed", true, 5, false, "Hushed=5"},
      {"a value without its name", "Brief", false, 5, true, "5"},
      {"a nested member off its default", "Quiet", false, 5, true, "Quiet=5"},
      {"a nested member at its default stays hidden", "Quiet", false, 0, false, ""},
  };
  Select({&FFirst});
  Testing::ForEachRow(rows, [this](const Row& ARow) {
    FFirst.FLevel = FFirst.FQuiet = ARow.Value;
    const TRef<TSinglePropertyEditor> editor =
        ARow.NestedEditor ? Editor<TSpeNestedEditor>(ARow.Member) : Editor(ARow.Member);
    String text = "left over";
    EXPECT_EQ(editor->GetDisplayNested(text, nullptr), ARow.Shown);
    EXPECT_EQ(text, ARow.Text);
  });
}

// A subclass's setup runs once when made; refresh listeners hear in the order added until removed.
TEST_F(SinglePropertyEditorTest, SubclassSetupRunsOnceAndListenersHearRefreshInOrder) {
  const TRef<TSpeInitEditor> editor = Editor<TSpeInitEditor>("Level");
  EXPECT_EQ(GSpeLog, TLog{"init Level"});
  const TRef<IRefreshMemberNotify> a = New<TSpeListener>("a"), b = New<TSpeListener>("b");
  editor->AddRefreshNotify(a);
  editor->AddRefreshNotify(b);
  editor->RefreshView();
  editor->RemoveRefreshNotify(a);
  editor->RefreshView();
  EXPECT_EQ(GSpeLog, (TLog{"init Level", "refresh a", "refresh b", "refresh b"}));
}

} // namespace
} // namespace Tarvo
