#include <gtest/gtest.h>

#include "design/Registry.h"
#include "design/editors/BasicEditors.h"
#include "reflection/Publish.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"

namespace Tarvo {

// ---- Editors and reflected classes of the tests ----

#define TEST_EDITOR(AName)                                                                                             \
  class AName : public TMemberEditor {                                                                                 \
    TARVO_CLASS(AName, TMemberEditor)                                                                                  \
  public:                                                                                                              \
    using TMemberEditor::TMemberEditor;                                                                                \
  };                                                                                                                   \
  TARVO_IMPLEMENT_CLASS(AName)

TEST_EDITOR(TRegTestEditorA)
TEST_EDITOR(TRegTestEditorB)
TEST_EDITOR(TRegTestDefaultEditor)
TEST_EDITOR(TRegTestStringEditor)

class TRegTestPart : public TObject {
  TARVO_CLASS(TRegTestPart, TObject)
};
class TRegTestSpecialPart : public TRegTestPart {
  TARVO_CLASS(TRegTestSpecialPart, TRegTestPart)
};
TARVO_IMPLEMENT_CLASS(TRegTestPart)
TARVO_IMPLEMENT_CLASS(TRegTestSpecialPart)

struct TRegTestPoint {
  Integer X = 0, Y = 0;
};
constinit const TTypeInfo TypeInfo_TRegTestPoint = TypeRecordOfKind<TRegTestPoint>("TRegTestPoint", tkRecord);

class TRegTestOwner : public TObject {
  TARVO_CLASS(TRegTestOwner, TObject)
public:
  Integer FLeft = 0, FSecret = 0, FHidden = 0;
  String FCaption, FNotes;
  TRegTestSpecialPart* FPart = nullptr;
  TRef<IValueMemberInfo> FValueMember;
  TRegTestPoint FPoint;
  void Run(Integer) {}
};
class TRegTestDerivedOwner : public TRegTestOwner {
  TARVO_CLASS(TRegTestDerivedOwner, TRegTestOwner)
};
TARVO_IMPLEMENT_CLASS(TRegTestOwner)
TARVO_IMPLEMENT_CLASS(TRegTestDerivedOwner)
TARVO_PUBLISH(TRegTestOwner) {
  Property("Left", &TRegTestOwner::FLeft, &TRegTestOwner::FLeft);
  Property("Caption", &TRegTestOwner::FCaption, &TRegTestOwner::FCaption);
  Property("Notes", &TRegTestOwner::FNotes, &TRegTestOwner::FNotes).Attr<MultiLineAttribute>();
  Property("Part", &TRegTestOwner::FPart, &TRegTestOwner::FPart);
  Property("ValueMember", &TRegTestOwner::FValueMember, &TRegTestOwner::FValueMember);
  Property("Point", &TRegTestOwner::FPoint, &TRegTestOwner::FPoint, &TypeInfo_TRegTestPoint);
  Property("Hidden", &TRegTestOwner::FHidden, &TRegTestOwner::FHidden).Attr<HiddenDesignAttribute>();
  Public();
  Method("Run", &TRegTestOwner::Run, {"ATimes"});
  Method("Unknown", &TRegTestOwner::Run);
  Private();
  Property("Secret", &TRegTestOwner::FSecret, &TRegTestOwner::FSecret);
}

class TRegTestGauge : public TObject {
  TARVO_CLASS(TRegTestGauge, TObject)
public:
  Word FLevel = 0, FLimit = 0;
  TRegTestOwner* FOwner = nullptr;
};
TARVO_IMPLEMENT_CLASS(TRegTestGauge)
TARVO_PUBLISH(TRegTestGauge) {
  Property("Level", &TRegTestGauge::FLevel, &TRegTestGauge::FLevel).Attr<HiddenDesignAttribute>();
  Property("Limit", &TRegTestGauge::FLimit, &TRegTestGauge::FLimit);
  Property("Owner", &TRegTestGauge::FOwner, &TRegTestGauge::FOwner);
}

namespace {

class RegistryTest : public testing::Test {
protected:
  void SetUp() override {
    GMemberEditors = New<TLinkedList<TRef<IMemberEditorItem>>>();
    FSavedDefaults = DefaultEditorClasses;
    for (TTypeKind kind : {tkInteger, tkUString, tkClass})
      DefaultEditorClasses.ByTypeKind[kind] = TRegTestDefaultEditor::ClassInfo();
    DefaultEditorClasses.StringEditor = TRegTestStringEditor::ClassInfo();
    DefaultEditorClasses.MultiLineStringEditor = TRegTestEditorB::ClassInfo();
    DefaultEditorClasses.MethodEditor = TMethodEditor::ClassInfo();
  }
  void TearDown() override {
    GMemberEditors = nullptr;
    DefaultEditorClasses = FSavedDefaults;
  }

  TRef<IMemberInfo> Member(const String& AName) {
    for (const TRef<IMemberInfo>& member :
         TRttiObjectHelper::ClassTypeInfo(TRegTestOwner::ClassInfo())->GetAllMembers())
      if (member->GetName() == AName) return member;
    ADD_FAILURE() << AName;
    return nullptr;
  }
  // The editor classes chosen for a member of FOwner, by name.
  std::vector<String> Editors(const String& AMember, TObject* AObject = nullptr) {
    TRef<IArrayList<TMemberEditorClass>> classes;
    GetMemberEditorClasses(Member(AMember), AObject ? AObject : &FOwner, classes);
    std::vector<String> names;
    for (const TMemberEditorClass& editor : classes) names.push_back(editor->ClassName());
    return names;
  }
  static TRef<ITypeInfo> Type(PTypeInfo AType) { return TTypeInfoHelper::TypeInfo(AType); }
  static TRef<ITypeInfo> ClassType(TClass AClass) { return Type(AClass->ClassTypeRecord()); }

  TRegTestOwner FOwner;
  TFallbackEditorClasses FSavedDefaults;
};

using V = std::vector<String>;

// A hidden member gets no list at all; a method of unknown parameters an empty one.
TEST_F(RegistryTest, HiddenMemberGivesNilWhileUnknownParametersGiveAnEmptyList) {
  TRef<IMemberEditorItemList> entries;
  EXPECT_FALSE(GetMemberEditorEntries(Member("Hidden"), &FOwner, entries));
  EXPECT_FALSE(entries);
  EXPECT_FALSE(GetMemberEditorEntries(Member("Unknown"), &FOwner, entries));
  ASSERT_TRUE(entries);
  EXPECT_EQ(entries->GetCount(), 0);
}

// Lookup order: entries of equal rank come back in the order registered.
TEST_F(RegistryTest, TiesComeBackInRegistrationOrder) {
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "", TRegTestEditorA::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "", TRegTestEditorB::ClassInfo());
  EXPECT_EQ(Editors("Left"), (V{"TRegTestEditorA", "TRegTestEditorB"}));
  // An entry without a name behind a named one of the same owner and type stays in the list.
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "Left", TRegTestEditorB::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "", TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Left"), (V{"TRegTestEditorB", "TRegTestEditorA"}));
}

// Which entry replaces which: owner class, derived member type, derived owner class.
TEST_F(RegistryTest, ReplaceRulesInTheirOrder) {
  // A later entry with an owner class beats an earlier one without.
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestEditorA::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "", TRegTestEditorB::ClassInfo());
  EXPECT_EQ(Editors("Left"), V{"TRegTestEditorB"});
  // An earlier owner entry is not beaten by a later one without owner of the same type.
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Left"), V{"TRegTestEditorB"});

  // An owner-less entry of a more derived class type beats an ancestor type's entry with owner.
  RegisterPropertyEditor(ClassType(TRegTestPart::ClassInfo()), TRegTestOwner::ClassInfo(), "",
                         TRegTestEditorA::ClassInfo());
  RegisterPropertyEditor(ClassType(TRegTestSpecialPart::ClassInfo()), TRegTestEditorB::ClassInfo());
  EXPECT_EQ(Editors("Part"), V{"TRegTestEditorB"});

  // A derived owner class beats its ancestor.
  TRegTestDerivedOwner derived;
  RegisterPropertyEditor(&TypeInfo_String, TRegTestOwner::ClassInfo(), "", TRegTestEditorA::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_String, TRegTestDerivedOwner::ClassInfo(), "", TRegTestEditorB::ClassInfo());
  EXPECT_EQ(Editors("Caption", &derived), V{"TRegTestEditorB"});
  EXPECT_EQ(Editors("Caption"), V{"TRegTestEditorA"});
}

// A class type's entry serves its descendants; an interface's entry does not.
TEST_F(RegistryTest, ClassAncestryMatchesButInterfaceAncestryDoesNot) {
  RegisterPropertyEditor(ClassType(TRegTestPart::ClassInfo()), TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Part"), V{"TRegTestEditorA"});
  RegisterPropertyEditor(TypeInfo<TRef<IMemberInfo>>(), TRegTestEditorB::ClassInfo());
  TRef<IMemberEditorItemList> entries;
  EXPECT_FALSE(GetMemberEditorEntries(Member("ValueMember"), &FOwner, entries)); // no default for interfaces here
}

// Member names compare without case and count only with an owner class.
TEST_F(RegistryTest, NamesCompareWithoutCaseAndNeedAnOwnerClass) {
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "LEFT", TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Left"), V{"TRegTestEditorA"});
  // Without an owner class the name is dropped, so the entry applies to every name.
  GMemberEditors->Clear();
  RegisterPropertyEditor(&TypeInfo_Integer, nullptr, "Top", TRegTestEditorB::ClassInfo());
  EXPECT_EQ(GMemberEditors->Last()->GetInstance()->MemberName, "");
  EXPECT_EQ(Editors("Left"), V{"TRegTestEditorB"});
}

// The fallback editors by kind, none for private members or records.
TEST_F(RegistryTest, FallbackByKindAndVisibility) {
  EXPECT_EQ(Editors("Left"), V{"TRegTestDefaultEditor"});
  EXPECT_EQ(Editors("Caption"), V{"TRegTestStringEditor"});
  EXPECT_EQ(Editors("Notes"), V{"TRegTestEditorB"}); // multi-line
  EXPECT_EQ(Editors("Run"), V{"TMethodEditor"});
  // A private member gets no default editor, though a registered one still serves it.
  EXPECT_EQ(Editors("Secret"), V{});
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestOwner::ClassInfo(), "Secret", TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Secret"), V{"TRegTestEditorA"});
  // A record has no default editor.
  TRef<IMemberEditorItemList> entries;
  EXPECT_FALSE(GetMemberEditorEntries(Member("Point"), &FOwner, entries));
  EXPECT_EQ(entries->GetCount(), 0);
}

// Only the member kinds a lookup asks for match: events and sets never do here.
TEST_F(RegistryTest, EventAndSetKindsNeverMatchARegisteredEntry) {
  RegisterMemberEditor({mkEvent, mkSet}, Type(&TypeInfo_Integer), nullptr, "", TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Left"), V{"TRegTestDefaultEditor"});
  RegisterMemberEditor({mkEvent, mkSingleProperty}, Type(&TypeInfo_Integer), nullptr, "", TRegTestEditorA::ClassInfo());
  EXPECT_EQ(Editors("Left"), V{"TRegTestEditorA"});
}

// Registering a component's hidden members adds one entry, for the hidden member only.
TEST_F(RegistryTest, HiddenMembersOfRegisteredComponentsGetTheHiddenEditor) {
  // Level is hidden and its type is met first; the walk goes on into Owner's members, where
  // Hidden is an Integer like Left before it, so it is passed over.
  RegisterHiddenMembers(TRegTestGauge::ClassInfo());
  ASSERT_EQ(GMemberEditors->GetCount(), 1);
  const TMemberEditorItem& item = *GMemberEditors->Last()->GetInstance();
  EXPECT_EQ(item.MemberName, "Level");
  EXPECT_EQ(item.OwnerClass, TObject::ClassInfo());
  EXPECT_EQ(item.EditorClass.get(), THiddenEditor::ClassInfo());
  EXPECT_EQ(item.MemberType->GetHandle(), &TypeInfo_Word);
  // The entry names Level: Limit, of the same type, keeps its default editor.
  TRegTestGauge gauge;
  TRef<IArrayList<TMemberEditorClass>> classes;
  TRef<IValueMemberInfo> limit;
  ASSERT_TRUE(TRttiObjectHelper::TypeInfo(&gauge, false)->FindMember("Limit", limit));
  ASSERT_TRUE(GetMemberEditorClasses(limit, &gauge, classes));
  EXPECT_EQ(classes->GetItem(0).get(), TRegTestDefaultEditor::ClassInfo());
}

// The unload sweep drops the entries whose editor or member type lives in the module.
TEST_F(RegistryTest, UnloadSweepRemovesEntriesOfTheModule) {
  // The member type of one entry lies in the runtime; the other entry is all of this module.
  RegisterPropertyEditor(&TypeInfo_Integer, TRegTestEditorA::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TRegTestPoint, TRegTestEditorB::ClassInfo());
  SweepMemberEditors(TypeInfo_Integer.Module());
  ASSERT_EQ(GMemberEditors->GetCount(), 1);
  EXPECT_EQ(GMemberEditors->Last()->GetInstance()->EditorClass.get(), TRegTestEditorB::ClassInfo());
}

} // namespace
} // namespace Tarvo
