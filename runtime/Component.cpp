#include "runtime/Component.h"

#include "reflection/ComponentRegistration.h"
#include "runtime/DynamicElement.h"

#include <algorithm>

#include "containers/List.h"
#include "reflection/Publish.h"
#include "rtl/SysUtils.h"
#include "rtl/Utf8Text.h"
#include "runtime/ComponentNames.h"

namespace Tarvo {

namespace {

// The state that the next TComponent constructor on this thread starts with.
thread_local TComponentState GPendingState;

void EraseLast(std::vector<TComponent*>& AList, const TComponent* AComponent) {
  const auto found = std::find(AList.rbegin(), AList.rend(), AComponent);
  if (found != AList.rend()) AList.erase(std::next(found).base());
}

class TPendingStateScope {
public:
  explicit TPendingStateScope(TComponentState AState) : FSaved(std::exchange(GPendingState, AState)) {}
  ~TPendingStateScope() { GPendingState = FSaved; }
  TPendingStateScope(const TPendingStateScope&) = delete;
  TPendingStateScope& operator=(const TPendingStateScope&) = delete;

private:
  TComponentState FSaved;
};

} // namespace

// ---- TPersistent ----

TARVO_IMPLEMENT_CLASS(TPersistent)
TARVO_IMPLEMENT_CLASS(TDynamicElement)

void TPersistent::Assign(TPersistent* ASource) {
  if (ASource) ASource->AssignTo(this);
  else AssignError(nullptr);
}

void TPersistent::AssignTo(TPersistent* ADest) { ADest->AssignError(this); }

void TPersistent::AssignError(TPersistent* ASource) {
  throw EConvertError(Format("Cannot assign a %s to a %s", {ASource ? ASource->ClassName() : "nil", ClassName()}));
}

// ---- TChangeNotifyPersistent ----

TARVO_IMPLEMENT_CLASS(TChangeNotifyPersistent)

TNotifyHandler TChangeNotifyPersistent::AddChangeHandler(TProc<> AHandler) {
  TARVO_ASSERT(AHandler != nullptr);
  return FChangeHandlers.emplace_back(std::make_shared<const TProc<>>(std::move(AHandler)));
}

void TChangeNotifyPersistent::RemoveChangeHandler(const TNotifyHandler& AHandler) {
  std::erase(FChangeHandlers, AHandler);
}

void TChangeNotifyPersistent::EndUpdate() {
  TARVO_ASSERT(FUpdateCount > 0);
  if (--FUpdateCount == 0 && std::exchange(FChangedInUpdate, false)) Changed();
}

void TChangeNotifyPersistent::Changed() {
  if (FUpdateCount > 0) {
    FChangedInUpdate = true;
    return;
  }
  // A handler may remove itself or others while the walk runs.
  const std::vector<TNotifyHandler> handlers = FChangeHandlers;
  for (const TNotifyHandler& handler : handlers) (*handler)();
}

// ---- TComponent ----

TARVO_IMPLEMENT_CLASS(TComponent)
// Only components go on a palette.
static const bool GComponentBaseNamed = (SetComponentBaseClass(TComponent::ClassInfo()), true);
TARVO_IMPLEMENT_ENUM(TOperation)
TARVO_IMPLEMENT_ENUM(TComponentStateFlag)
TARVO_IMPLEMENT_SET(TComponentState, TComponentStateFlag)

TARVO_PUBLISH(TComponent) {
  Property("Name", &TComponent::GetName, &TComponent::SetName, &TypeInfo_TComponentName);
  Property("Tag", &TComponent::GetTag, &TComponent::SetTag, &TypeInfo_NativeInt).Default(NativeInt(0));
  Public();
  Property("Owner", &TComponent::Owner);
  Property("ComponentCount", &TComponent::ComponentCount);
  IndexedProperty("Components", &TComponent::Components);
}

TComponent::TComponent(TComponent* AOwner) : FComponentState(std::exchange(GPendingState, TComponentState())) {
  if (AOwner) AOwner->InsertComponent(this);
}

TComponent::~TComponent() { Teardown(); }

void TComponent::BeforeDestruction() {
  TPersistent::BeforeDestruction();
  Teardown();
}

void TComponent::Teardown() {
  Destroying();
  while (!FFreeNotifies.empty()) {
    TComponent* other = FFreeNotifies.back();
    FFreeNotifies.pop_back();
    std::erase(other->FFreeNotifies, this);
    other->Notification(this, opRemove);
  }
  DestroyComponents();
  if (FOwner) FOwner->RemoveComponent(this);
}

void TComponent::DestroyComponents() {
  // Last made goes first; each is given up before it goes, so that its siblings hear of it.
  while (!FComponents.empty()) {
    TComponent* component = FComponents.back();
    RemoveComponent(component);
    Free(component);
  }
}

void TComponent::Destroying() {
  if (FComponentState.Contains(csDestroying)) return;
  FComponentState.Include(csDestroying);
  for (TComponent* component : FComponents) component->Destroying();
}

HRESULT TComponent::QueryInterface(const TGUID& AIID, void** AObj) {
  return QueryRootInterface(this, this, AIID, AObj);
}

bool TComponent::GetInterface(const TGUID& AIID, void** AObj) { return QueryInterface(AIID, AObj) == S_OK; }

void TComponent::SetName(const String& ANewName) {
  if (FName == ANewName) return;
  if (!ANewName.empty() && !IsValidIdent(ANewName))
    throw EComponentError(Format("'%s' is not a valid component name", {EscapedUtf8(ANewName)}));
  if (FOwner) {
    FOwner->ValidateRename(this, ANewName);
    TComponentNames& names = FOwner->Names();
    if (!FName.empty()) names.Remove(FName);
    if (!ANewName.empty()) names.Add(ANewName, this);
  }
  FName = ANewName;
}

void TComponent::ValidateRename(TComponent* AComponent, const String& ANewName) const {
  const TComponent* other = FindComponent(ANewName);
  if (other && other != AComponent) throw EComponentError(Format("A component named %s already exists", {ANewName}));
}

TComponent* TComponent::Components(Integer AIndex) const {
  if (AIndex < 0 || AIndex >= ComponentCount()) RaiseListIndexError(AIndex);
  return FComponents[std::size_t(AIndex)];
}

TComponent* TComponent::FindComponent(const String& AName) const {
  return AName.empty() || !FNames ? nullptr : FNames->Find(AName);
}

TComponentNames& TComponent::Names() {
  if (!FNames) FNames = std::make_unique<TComponentNames>();
  return *FNames;
}

String TComponent::UniqueComponentName(const String& ABaseName) { return Names().UniqueName(ABaseName); }

void TComponent::InsertComponent(TComponent* AComponent) {
  TARVO_ASSERT(AComponent != nullptr && AComponent != this);
  if (AComponent->FOwner == this) return;
  ValidateRename(AComponent, AComponent->FName);
  if (AComponent->FOwner) AComponent->FOwner->RemoveComponent(AComponent);
  FComponents.push_back(AComponent);
  if (!AComponent->FName.empty()) Names().Add(AComponent->FName, AComponent);
  if (AComponent->FHearsOfSiblings) FSiblingListeners.push_back(AComponent);
  AComponent->FOwner = this;
  if (FComponentState.Contains(csDesigning)) AComponent->SetDesigning(true, true);
  Notification(AComponent, opInsert);
}

void TComponent::RemoveComponent(TComponent* AComponent) {
  TARVO_ASSERT(AComponent != nullptr && AComponent->FOwner == this);
  Notification(AComponent, opRemove);
  // Searched from the end: an owner gives up its components last made first.
  EraseLast(FComponents, AComponent);
  if (AComponent->FHearsOfSiblings) EraseLast(FSiblingListeners, AComponent);
  if (!AComponent->FName.empty()) FNames->Remove(AComponent->FName);
  AComponent->FOwner = nullptr;
}

void TComponent::HearOfSiblings() {
  if (std::exchange(FHearsOfSiblings, true) || !FOwner) return;
  // Usually asked in the constructor, just after the owner took this component in last.
  std::vector<TComponent*>& listeners = FOwner->FSiblingListeners;
  if (FOwner->FComponents.back() == this) {
    listeners.push_back(this);
    return;
  }
  listeners.clear();
  for (TComponent* component : FOwner->FComponents)
    if (component->FHearsOfSiblings) listeners.push_back(component);
}

void TComponent::FreeNotification(TComponent* AComponent) {
  TARVO_ASSERT(AComponent != nullptr);
  // A component on its way out takes no new references.
  if (AComponent == this || (FComponentState + AComponent->FComponentState).Contains(csDestroying)) return;
  if (std::find(FFreeNotifies.begin(), FFreeNotifies.end(), AComponent) != FFreeNotifies.end()) return;
  FFreeNotifies.push_back(AComponent);
  AComponent->FFreeNotifies.push_back(this);
}

void TComponent::RemoveFreeNotification(TComponent* AComponent) {
  std::erase(FFreeNotifies, AComponent);
  if (AComponent) std::erase(AComponent->FFreeNotifies, this);
}

void TComponent::Notification(TComponent* AComponent, TOperation AOperation) {
  if (AOperation == opRemove && AComponent) {
    RemoveFreeNotification(AComponent);
    // The owned components that refer to the one given up let go of it now, before it goes.
    if (AComponent->FOwner == this)
      for (TComponent* referring : std::vector<TComponent*>(AComponent->FFreeNotifies))
        if (referring->FOwner == this && !referring->FHearsOfSiblings) referring->Notification(AComponent, opRemove);
  }
  // A notified component may give up others: the index is checked at every step.
  for (std::size_t i = FSiblingListeners.size(); i-- > 0;)
    if (i < FSiblingListeners.size()) FSiblingListeners[i]->Notification(AComponent, AOperation);
}

void TComponent::Loaded() { FComponentState.Exclude(csLoading); }

void TComponent::SetDesigning(Boolean AValue, Boolean ASetChildren) {
  if (AValue) FComponentState.Include(csDesigning);
  else FComponentState.Exclude(csDesigning);
  if (ASetChildren)
    for (TComponent* component : FComponents) component->SetDesigning(AValue, true);
}

// ---- TComponentHelper ----

void TComponentHelper::SetIntDesigning(TComponent* AComponent, Boolean AValue, Boolean ASetChildren) {
  AComponent->SetDesigning(AValue, ASetChildren);
}

void TComponentHelper::SetIntLoading(TComponent* AComponent, Boolean AValue) {
  if (AValue) AComponent->FComponentState.Include(csLoading);
  else if (AComponent->FComponentState.Contains(csLoading)) AComponent->Loaded();
}

TComponent* TComponentHelper::CreateComponent(TComponentClass AClass, TComponent* AOwner, Boolean ADesigning,
                                              Boolean ALoading) {
  TARVO_ASSERT(AClass);
  TComponentState state;
  if (ADesigning) state.Include(csDesigning);
  if (ALoading) state.Include(csLoading);
  const TPendingStateScope scope(state);
  return AClass.Create(AOwner);
}

} // namespace Tarvo
