#include <gtest/gtest.h>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "runtime/LockItem.h"
#include "tests/runtime/ComponentTestSupport.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TTestLogComponent)

// Makes an owned component in its constructor, and keeps the state that one saw.
class TTestCompoundComponent : public TComponent {
  TARVO_CLASS(TTestCompoundComponent, TComponent)
public:
  explicit TTestCompoundComponent(TComponent* AOwner)
      : TComponent(AOwner), PartState(Construct<TTestLogComponent>(this)->StateAtConstruction) {}
  TComponentState PartState;
};
TARVO_IMPLEMENT_CLASS(TTestCompoundComponent)

class TTestAbstractComponent : public TComponent {
  TARVO_CLASS(TTestAbstractComponent, TComponent)
public:
  using TComponent::TComponent;
  virtual void Run() = 0;
};
TARVO_IMPLEMENT_CLASS(TTestAbstractComponent)

class TTestLockComponent : public TImplements<TComponent, ILockItem> {
  TARVO_CLASS(TTestLockComponent, TImplements<TComponent, ILockItem>)
public:
  explicit TTestLockComponent(TComponent* AOwner) : TImplements(AOwner) {}
  TProc<> GetNotifier() override {
    return [this] { ++Fired; };
  }
  int Fired = 0;
};
TARVO_IMPLEMENT_CLASS(TTestLockComponent)

namespace {

using TComponentPtr = TOwnedObject<TComponent>;

String NameError(TComponent& AComponent, const String& AName) {
  try {
    AComponent.SetName(AName);
  } catch (const EComponentError& e) {
    return e.Message();
  }
  return String();
}

// Only identifiers (or nothing) are names; the Name member passes the error on.
TEST(ComponentNameTest, OnlyIdentifiersAreNamesAndReflectionPassesTheErrorThrough) {
  const TComponentPtr component(Construct<TComponent>(nullptr));
  for (const char* name : {"_x9", ""}) EXPECT_EQ(NameError(*component, name), "") << name;
  for (const char* name : {"1abc", "a b", "a.b", "a-b", "\xC3\xA9", " a"})
    EXPECT_EQ(NameError(*component, name), "'" + String(name) + "' is not a valid component name");
  // Bytes that are no UTF-8 are not echoed: the message stays readable text.
  EXPECT_EQ(NameError(*component, "Ab\xFF\xC3"), "'Ab\\xFF\\xC3' is not a valid component name");
  EXPECT_EQ(component->GetName(), "");
  TRef<IValueMemberInfo> member;
  ASSERT_TRUE(TRttiObjectHelper::TypeInfo(component.get(), false)->FindMember("Name", member));
  EXPECT_THROW(member->SetFromString(component.get(), "9lives"), EComponentError);
}

// Names are unique among an owner's components in any case, and empty names never collide. The
// owner's index of names follows renames, frees and moves: a name given up is free again at once.
TEST(ComponentNameTest, NamesAreUniqueAmongAnOwnersComponentsAndTheIndexFollowsThem) {
  const TComponentPtr owner(Construct<TComponent>(nullptr));
  const TComponentPtr other(Construct<TComponent>(nullptr));
  TComponent* first = NewLogged(owner.get(), "Scope1");
  TComponent* second = NewLogged(owner.get(), "Scope2");
  EXPECT_EQ(NameError(*second, "SCOPE1"), "A component named SCOPE1 already exists");
  EXPECT_EQ(second->GetName(), "Scope2");
  EXPECT_EQ(NameError(*first, "scope1"), ""); // its own name in another case
  EXPECT_EQ(owner->FindComponent("SCOPE1"), first);

  // Components of other owners may share a name; taking one in checks its name against the new
  // owner's, and a refused one stays where it was.
  TComponent* stranger = NewLogged(other.get(), "Scope1");
  EXPECT_THROW(owner->InsertComponent(stranger), EComponentError);
  EXPECT_EQ(stranger->Owner(), other.get());
  TObject::Free(stranger);

  EXPECT_EQ(NameError(*first, "Renamed"), "");
  EXPECT_EQ(owner->FindComponent("scope1"), nullptr);
  EXPECT_EQ(NameError(*second, "Scope1"), "");
  TObject::Free(first);
  EXPECT_EQ(owner->FindComponent("Renamed"), nullptr);
  EXPECT_EQ(NewLogged(owner.get(), "RENAMED")->Owner(), owner.get());

  other->InsertComponent(second); // the name goes with the component
  EXPECT_EQ(owner->FindComponent("Scope1"), nullptr);
  EXPECT_EQ(other->FindComponent("SCOPE1"), second);
  EXPECT_EQ(NewLogged(owner.get(), "Scope1")->Owner(), owner.get());
  EXPECT_EQ(NameError(*second, "") + NameError(*NewLogged(other.get(), "Third"), ""), "");
  EXPECT_EQ(other->FindComponent("Scope1"), nullptr);
  EXPECT_EQ(other->FindComponent(""), nullptr);
}

// Unique names take the lowest free number, in any case; a number given up by a free or a rename
// is taken again, and names made before are never repeated.
TEST(ComponentNameTest, UniqueNamesTakeTheLowestFreeNumber) {
  const TComponentPtr owner(Construct<TComponent>(nullptr));
  const auto make = [&](const String& ABase) { return NewLogged(owner.get(), owner->UniqueComponentName(ABase)); };
  TComponent* scope1 = make("Scope");
  TComponent* scope2 = make("Scope");
  NewLogged(owner.get(), "SCOPE3"); // named by hand, in another case
  EXPECT_EQ(make("scope")->GetName(), "scope4");
  EXPECT_EQ(make("Scope1")->GetName(), "Scope11"); // a base that ends in a digit
  TObject::Free(scope2);
  EXPECT_EQ(make("Scope")->GetName(), "Scope2");
  scope1->SetName("Other");
  EXPECT_EQ(owner->UniqueComponentName("Scope"), "Scope1");
  EXPECT_EQ(owner->UniqueComponentName("Scope"), "Scope1"); // asking takes nothing
  EXPECT_EQ(make("Scope")->GetName(), "Scope1");
  EXPECT_EQ(make("Scope")->GetName(), "Scope5");
  TObject::Free(owner->FindComponent("Scope11"));
  EXPECT_EQ(make("Scope1")->GetName(), "Scope11");
  EXPECT_EQ(make("Scope")->GetName(), "Scope6");
}

// An owner frees its components last made first, and every component of the owner hears of each.
TEST(ComponentOwnershipTest, OwnerDestroysItsComponentsLastFirstTellingEach) {
  TLog log;
  TTestLogComponent* owner = NewLogged(nullptr, "Owner", &log);
  NewLogged(owner, "A", &log);
  NewLogged(owner, "B", &log);
  EXPECT_EQ(log, (TLog{"Owner: insert A", "A: insert B", "Owner: insert B"})); // siblings hear too
  log.clear();
  TObject::Free(owner);
  EXPECT_EQ(log,
            (TLog{"A: remove B", "Owner: remove B", "destroy B", "Owner: remove A", "destroy A", "destroy Owner"}));
}

// A component taken by another owner leaves the first; a freed one leaves its owner.
TEST(ComponentOwnershipTest, ComponentsMoveBetweenOwnersAndLeaveOnTheirOwn) {
  TLog log;
  const TComponentPtr first(NewLogged(nullptr, "First", &log));
  const TComponentPtr second(NewLogged(nullptr, "Second", &log));
  TComponent* part = NewLogged(first.get(), "Part");
  second->InsertComponent(part);
  EXPECT_EQ(first->ComponentCount(), 0);
  EXPECT_EQ(second->Components(0), part);
  EXPECT_THROW(second->Components(1), EListError);
  TObject::Free(part); // an owned component that goes leaves its owner
  EXPECT_EQ(second->ComponentCount(), 0);
  EXPECT_EQ(log, (TLog{"First: insert Part", "First: remove Part", "Second: insert Part", "Second: remove Part"}));
}

// A free notification goes from whichever side is freed; both sides then forget it.
TEST(FreeNotificationTest, TheComponentThatGoesTellsTheOtherAndBothForget) {
  const struct {
    const char* Name;
    bool FirstGoes;
  } rows[] = {{"the asking one goes", true}, {"the asked one goes", false}};
  Testing::ForEachRow(rows, [](const auto& ARow) {
    TLog log;
    TTestLogComponent* a = NewLogged(nullptr, "A", &log);
    TTestLogComponent* b = NewLogged(nullptr, "B", &log);
    a->FreeNotification(b);
    a->FreeNotification(b); // recorded once
    TObject::Free(ARow.FirstGoes ? a : b);
    EXPECT_EQ(log, (ARow.FirstGoes ? TLog{"B: remove A", "destroy A"} : TLog{"A: remove B", "destroy B"}));
    log.clear();
    // The survivor no longer refers to the one that went: ending it tells nobody.
    TObject::Free(ARow.FirstGoes ? b : a);
    EXPECT_EQ(log, TLog{ARow.FirstGoes ? "destroy B" : "destroy A"});
  });
  // A removed notification, from either side, is not sent.
  TLog log;
  TTestLogComponent* a = NewLogged(nullptr, "A", &log);
  const TOwnedObject<TTestLogComponent> b(NewLogged(nullptr, "B", &log));
  a->FreeNotification(b.get());
  b->RemoveFreeNotification(a);
  TObject::Free(a);
  EXPECT_EQ(log, TLog{"destroy A"});
}

// Constructors see the designing and loading asked of CreateComponent, once, even after a failed creation.
TEST(ComponentStateTest, ConstructorsSeeTheStateAskedOfCreateComponent) {
  const TComponentPtr owner(Construct<TComponent>(nullptr));
  const struct {
    const char* Name;
    bool Designing, Loading;
  } states[] = {{"loading", false, true}, {"designing", true, false}};
  Testing::ForEachRow(states, [&](const auto& ARow) {
    auto* component = static_cast<TTestLogComponent*>(
        TComponentHelper::CreateComponent(TTestLogComponent::ClassInfo(), owner.get(), ARow.Designing, ARow.Loading));
    EXPECT_EQ(component->StateAtConstruction.Contains(csDesigning), ARow.Designing);
    EXPECT_EQ(component->StateAtConstruction.Contains(csLoading), ARow.Loading);
    EXPECT_EQ(component->Owner(), owner.get());
  });
  // An owned part made inside a constructor takes designing from its owner, not loading.
  const TComponentPtr compound(
      TComponentHelper::CreateComponent(TTestCompoundComponent::ClassInfo(), nullptr, true, true));
  EXPECT_EQ(static_cast<TTestCompoundComponent*>(compound.get())->PartState, TComponentState{csDesigning});
  // The pending state was taken, also by a creation that failed: a component made afterwards
  // starts clean.
  const auto startsClean = [] {
    return TOwnedObject<TTestLogComponent>(Construct<TTestLogComponent>(nullptr))->StateAtConstruction.IsEmpty();
  };
  EXPECT_TRUE(startsClean());
  EXPECT_THROW(TComponentHelper::CreateComponent(TTestAbstractComponent::ClassInfo(), nullptr, true, true),
               EInvalidCast);
  EXPECT_TRUE(startsClean());
}

// Designing reaches owned components only when asked to; ending loading calls Loaded once.
TEST(ComponentStateTest, DesigningReachesChildrenOnlyWhenAskedAndLoadingEndsThroughLoaded) {
  const TComponentPtr owner(Construct<TComponent>(nullptr));
  TTestLogComponent* child = NewLogged(owner.get(), "Child");
  const auto designing = [](TComponent* AComponent) { return AComponent->ComponentState().Contains(csDesigning); };
  TComponentHelper::SetIntDesigning(owner.get(), true, false);
  EXPECT_TRUE(designing(owner.get()));
  EXPECT_FALSE(designing(child));
  TComponentHelper::SetIntDesigning(owner.get(), true, true);
  EXPECT_TRUE(designing(child));
  EXPECT_TRUE(designing(NewLogged(owner.get(), "Late"))); // inserted into a designing owner
  TComponentHelper::SetIntDesigning(owner.get(), false, true);
  EXPECT_FALSE(designing(child));

  TComponentHelper::SetIntLoading(child, true);
  TComponentHelper::SetIntLoading(child, false);
  TComponentHelper::SetIntLoading(child, false); // not loading any more: nothing to end
  EXPECT_FALSE(child->ComponentState().Contains(csLoading));
  EXPECT_EQ(child->LoadedCalls, 1);
}

// A lock item's notifier fires on each call; interface references do not own the component.
TEST(ComponentInterfaceTest, LockItemNotifierFiresAndReferencesDoNotCount) {
  const TOwnedObject<TTestLockComponent> item(Construct<TTestLockComponent>(nullptr));
  {
    TRef<ILockItem> reference;
    ASSERT_TRUE(Supports(static_cast<TObject*>(item.get()), reference));
  } // the released reference leaves the component alone
  EXPECT_TRUE(NotifyLockItem(item.get()));
  EXPECT_TRUE(NotifyLockItem(item.get()));
  EXPECT_EQ(item->Fired, 2);
  EXPECT_FALSE(NotifyLockItem(TComponentPtr(Construct<TComponent>(nullptr)).get()));
}

} // namespace
} // namespace Tarvo
