#include "design/Designer.h"

#include "reflection/ClassNames.h"

namespace Tarvo {

namespace {

// Identity and order count: equal objects are not the same selection, nor are the same objects
// in another order.
bool SameSelection(const TRef<IObjectArrayList>& AOld, const TRef<IObjectArrayList>& ANew) {
  return AOld == ANew || AOld->ToArray() == ANew->ToArray();
}

} // namespace

// ---- TDesigner ----

void TDesigner::SetSelectionImpl(const TRef<IObjectArrayList>& ASelection, [[maybe_unused]] Boolean ANotify) {
  const TRef<IObjectArrayList> old = FSelection;
  FSelection = ASelection ? ASelection : TRef<IObjectArrayList>(New<TObjectArrayList>());
  if (!SameSelection(old, FSelection)) NotifyOutsideUpdate(&ISelectionChange::SelectionChanged);
}

// Announced before the count rises, so that listeners still see the surface outside a bracket.
void TDesigner::BeginUpdate() {
  NotifyOutsideUpdate(&ISelectionChange::SelectionChangingBegin);
  ++FInUpdateCount;
}

// The selection may have changed silently inside the bracket: its end is always announced.
void TDesigner::EndUpdate() {
  --FInUpdateCount;
  NotifyOutsideUpdate(&ISelectionChange::SelectionChanged);
}

void TDesigner::SetSelection(std::span<TObject* const> ASelection) {
  SetSelection(TObjectArrayList::CreateArray({ASelection.begin(), ASelection.end()}));
}

void TDesigner::AddSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) {
  FSelecttionNotifications->Add(ANotify);
}

void TDesigner::RemoveSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) {
  FSelecttionNotifications->RemoveOne(ANotify);
}

// A listener that modifies something in reaction doesn't start a second pass. A listener's
// exception leaves the guard set, so later calls do nothing.
void TDesigner::Modified() {
  if (FInModified) return;
  FInModified = true;
  NotifyOutsideUpdate(&ISelectionChange::ItemModified);
  FInModified = false;
}

// The helper puts the designing and loading state in place before the constructors run, which
// look at it.
TComponent* TDesigner::CreateComponent(const TRef<IClassTypeInfo>& AClass, Boolean ALoading) {
  TComponent* const result = TComponentHelper::CreateComponent(TComponentClass(AClass->GetClass()), GetEditRoot(),
                                                               GetInDesignMode(), ALoading);
  // A component that can't be prepared or named would stay nameless in the edit root.
  try {
    if (TRef<IDynamicTypeInfo> dynamic; Supports(AClass, dynamic)) dynamic->InitInstance(result);
    result->SetName(UniqueName(GetClassNameBase(result)));
  } catch (...) {
    TObject::Free(result);
    throw;
  }
  return result;
}

// ---- TNestedDesigner ----

TNestedDesigner::TNestedDesigner(TRef<IDesigner> ANestedDesigner, TObject* AObject)
    : FNestedDesigner(std::move(ANestedDesigner)), FObject(AObject) {
  TARVO_ASSERT(FNestedDesigner != nullptr);
}

// ---- TSelectionChangeNotifier ----

TSelectionChangeNotifier::TSelectionChangeNotifier(TProc<> AOnSelectionChangingBegin, TProc<> AOnSelectionChanged,
                                                   TProc<> AOnModified, TProc<> AOnRefreshView,
                                                   TProc<> AOnResetObjectInspector)
    : FOnSelectionChangingBegin(std::move(AOnSelectionChangingBegin)),
      FOnSelectionChanged(std::move(AOnSelectionChanged)), FOnModified(std::move(AOnModified)),
      FOnRefreshView(std::move(AOnRefreshView)), FOnResetObjectInspector(std::move(AOnResetObjectInspector)) {}

TRef<TSelectionChangeNotifier> TSelectionChangeNotifier::SetOnSelectionChangingBegin(TProc<> AProc) {
  FOnSelectionChangingBegin = std::move(AProc);
  return this;
}

TRef<ISelectionChangeNotifier> TSelectionChangeNotifier::SetOnSelectionChanged(TProc<> AProc) {
  FOnSelectionChanged = std::move(AProc);
  return this;
}

TRef<ISelectionChangeNotifier> TSelectionChangeNotifier::SetOnModified(TProc<> AProc) {
  FOnModified = std::move(AProc);
  return this;
}

TRef<ISelectionChangeNotifier> TSelectionChangeNotifier::SetOnRefreshView(TProc<> AProc) {
  FOnRefreshView = std::move(AProc);
  return this;
}

TRef<TSelectionChangeNotifier> TSelectionChangeNotifier::SetOnResetObjectInspector(TProc<> AProc) {
  FOnResetObjectInspector = std::move(AProc);
  return this;
}

} // namespace Tarvo
