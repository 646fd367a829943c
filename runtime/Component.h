#pragma once
#pragma GCC visibility push(default)
// Persistents and components.
//
// A TPersistent copies itself from another through Assign. A TComponent has a name, an owner
// that destroys it and free notifications with the components that refer to it.
//
// Components end through TObject::Free: the teardown runs in BeforeDestruction, where every
// override (Notification above all) is still in place. A component that is deleted directly
// runs the same teardown from its destructor, without the overrides of its descendants.
//
// Designing and loading state before the constructor: components are made in one step (there
// is no allocation apart from construction), so TComponentHelper::CreateComponent puts the
// wanted state into a per-thread pending slot for the duration of the call, and the TComponent
// constructor takes it from there. Every constructor of a descendant therefore already sees
// csDesigning and csLoading. The slot is taken by the first component constructed, so a
// component made inside that constructor does not inherit it; an owned one gets csDesigning
// from its owner instead, when it is inserted.
//
// Designs of many thousand components: an owner indexes its components' names (TComponentNames),
// and passes the insertion and removal of one of them on only to those that asked to hear of
// their siblings (HearOfSiblings) and, for a removal, to those that refer to it: neither grows
// with the square of the count.

#include <memory>
#include <vector>

#include "containers/Common.h"
#include "runtime/NamedTypes.h"

namespace Tarvo {

class TPersistent : public TObject {
  TARVO_CLASS(TPersistent, TObject)

public:
  // Copies ASource into this object. Unless a descendant knows the source, the source is asked
  // to copy itself here (AssignTo); raises EConvertError when neither knows the other.
  virtual void Assign(TPersistent* ASource);
  // The object this one belongs to, if any: the component of a font, the collection of an item.
  virtual TPersistent* GetOwner() const { return nullptr; }

protected:
  virtual void AssignTo(TPersistent* ADest);
  // "Cannot assign a <source> to a <this>".
  [[noreturn]] void AssignError(TPersistent* ASource);
};

// A persistent that tells listeners when it changes: a control learns that its constraints moved.
class TChangeNotifyPersistent : public TPersistent {
  TARVO_CLASS(TChangeNotifyPersistent, TPersistent)

public:
  TNotifyHandler AddChangeHandler(TProc<> AHandler);
  void RemoveChangeHandler(const TNotifyHandler& AHandler);
  // Changes inside a bracket are told once, when the outermost bracket closes.
  void BeginUpdate() { ++FUpdateCount; }
  void EndUpdate();

protected:
  void Changed();
  // Writes AValue and tells of it, unless nothing changes.
  template <class T, class V> void Change(T& AField, const V& AValue) {
    if (AField == AValue) return;
    AField = AValue;
    Changed();
  }
  // Copies the data of a source of the same class; false when the source is of another.
  template <class C, class D> bool AssignData(TPersistent* ASource, D C::*AData) {
    const auto* source = dynamic_cast<const C*>(ASource);
    if (!source) return false;
    Change(static_cast<C*>(this)->*AData, source->*AData);
    return true;
  }

private:
  std::vector<TNotifyHandler> FChangeHandlers;
  Integer FUpdateCount = 0;
  bool FChangedInUpdate = false;
};

// Holds an update bracket open for a scope: BeginUpdate now, EndUpdate at the end.
template <class T> class TUpdateScope {
public:
  explicit TUpdateScope(T& ATarget) : FTarget(ATarget) { FTarget.BeginUpdate(); }
  ~TUpdateScope() { FTarget.EndUpdate(); }
  TUpdateScope(const TUpdateScope&) = delete;
  TUpdateScope& operator=(const TUpdateScope&) = delete;

private:
  T& FTarget;
};

// The shape of Assign in a list-like persistent: a source of its own class replaces the
// contents under one update bracket (assigning to itself does nothing); any other source goes
// to the inherited Assign.
template <class T, class TBase, class F> void AssignContents(T& ATarget, TPersistent* ASource, F ACopyFrom) {
  const auto* source = dynamic_cast<const T*>(ASource);
  if (!source) {
    ATarget.TBase::Assign(ASource);
    return;
  }
  if (source == &ATarget) return;
  const TUpdateScope<T> update(ATarget);
  ATarget.Clear();
  ACopyFrom(*source);
}

TARVO_ENUM(TOperation, opInsert, opRemove)
TARVO_ENUM(TComponentStateFlag, csLoading, csDesigning, csDestroying)
TARVO_SET(TComponentState, TComponentStateFlag)

class TComponent;
class TComponentNames;
using TComponentClass = TClassOf<TComponent>;

// A component answers interface queries without counting references: its owner, not a
// reference, decides when it goes. A component implements interfaces as
// TImplements<TComponent, IFoo>.
class TComponent : public TPersistent, public virtual IInterface {
  TARVO_CLASS(TComponent, TPersistent)

public:
  using TConstructor = TConstructorSignature<TComponent*>;

  explicit TComponent(TComponent* AOwner);
  ~TComponent() override;
  void BeforeDestruction() override;

  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  int _AddRef() override { return -1; }
  int _Release() override { return -1; }
  bool GetInterface(const TGUID& AIID, void** AObj) override;

  const String& GetName() const { return FName; }
  // An identifier, or empty; unique among the owner's components, whatever the case.
  void SetName(const String& ANewName);
  NativeInt GetTag() const { return FTag; }
  void SetTag(NativeInt AValue) { FTag = AValue; }

  TComponent* Owner() const { return FOwner; }
  TComponent* GetOwner() const override { return FOwner; }
  Integer ComponentCount() const { return static_cast<Integer>(FComponents.size()); }
  TComponent* Components(Integer AIndex) const;
  // The owned component of that name, case-insensitive; nil for none and for the empty name.
  TComponent* FindComponent(const String& AName) const;
  // Takes AComponent over from its current owner; its name must be free here.
  void InsertComponent(TComponent* AComponent);
  // Gives AComponent up without destroying it; it is told through Notification first.
  void RemoveComponent(TComponent* AComponent);
  // ABaseName followed by the lowest number from 1 that no owned component's name takes, in any
  // case. The search starts where the last one for that base ended, so that making N names costs
  // N steps; a name that comes free again lowers the start.
  String UniqueComponentName(const String& ABaseName);

  TComponentState ComponentState() const { return FComponentState; }

  // AComponent is told, through Notification(this, opRemove), when this component goes; and
  // this one when AComponent goes. Asking twice records once.
  void FreeNotification(TComponent* AComponent);
  // Both forget each other.
  void RemoveFreeNotification(TComponent* AComponent);

protected:
  // AComponent is inserted into or removed from this owner, or goes while this one refers to it.
  // Passed on to the owned components that hear of their siblings, and a removal also to those
  // that refer to the component removed.
  virtual void Notification(TComponent* AComponent, TOperation AOperation);
  // From now on this component's Notification hears of every component its owners take in or
  // give up, not only of those it refers to.
  void HearOfSiblings();
  // Raises when ANewName is taken here by another than AComponent.
  virtual void ValidateRename(TComponent* AComponent, const String& ANewName) const;
  // The loading state ends.
  virtual void Loaded();
  // Marks this component and its owned ones as going.
  void Destroying();
  // Points AField at AValue with a free notification between the two, so that Notification can
  // clear the field when the referenced component goes.
  template <class T> void SetComponentReference(T*& AField, T* AValue) {
    if (AField == AValue) return;
    if (AField) AField->RemoveFreeNotification(this);
    AField = AValue;
    if (AValue) AValue->FreeNotification(this);
  }

private:
  friend struct TComponentHelper;

  void SetDesigning(Boolean AValue, Boolean ASetChildren);
  void Teardown();
  void DestroyComponents();
  TComponentNames& Names();

  String FName;
  NativeInt FTag = 0;
  TComponent* FOwner = nullptr;
  std::vector<TComponent*> FComponents;
  std::unique_ptr<TComponentNames> FNames;
  // The owned components that hear of their siblings, in the order of FComponents.
  std::vector<TComponent*> FSiblingListeners;
  bool FHearsOfSiblings = false;
  std::vector<TComponent*> FFreeNotifies;
  TComponentState FComponentState;
};

struct TComponentHelper {
  // Sets or clears csDesigning; with ASetChildren on the owned components too, all the way down.
  static void SetIntDesigning(TComponent* AComponent, Boolean AValue, Boolean ASetChildren);
  // Sets csLoading, or ends loading through the component's Loaded.
  static void SetIntLoading(TComponent* AComponent, Boolean AValue);
  // Makes a component of AClass whose constructors see the designing and loading state.
  static TComponent* CreateComponent(TComponentClass AClass, TComponent* AOwner, Boolean ADesigning, Boolean ALoading);
};

} // namespace Tarvo

#pragma GCC visibility pop
