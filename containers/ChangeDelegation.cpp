#include "containers/ChangeDelegation.h"

#include "containers/LinkedList.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TDelegatingChangeNotifyObject)

namespace {
void RemoveHandlers(const TInterfacedChangeNotifyItem& AItem) {
  TRef<IChangeNotification> notification;
  if (!Supports<IChangeNotification>(AItem.Object, notification)) return;
  notification->RemoveChangeHandler(AItem.ChangeHandler);
  notification->RemoveDestructionHandler(AItem.DestructionHandler);
}

TConstFunc<TInterfacedChangeNotifyItem, Boolean> ItemOf(TObject* AObject) {
  return [AObject](const TInterfacedChangeNotifyItem& AEntry) { return AEntry.Object == AObject; };
}
} // namespace

void TDelegatingChangeNotifyObject::BeforeDestruction() {
  UndelegateAll();
  inherited::BeforeDestruction();
}

void TDelegatingChangeNotifyObject::DelegateNotifyObject(TObject* AObject) {
  if (!HasChangeHandlers()) return;
  TRef<IChangeNotification> notification;
  if (!Supports<IChangeNotification>(AObject, notification)) return;
  if (!FDelegatedNotications) FDelegatedNotications = New<TLinkedList<TInterfacedChangeNotifyItem>>();
  TInterfacedChangeNotifyItem item;
  item.Object = AObject;
  item.ChangeHandler = notification->AddChangeHandler([this] { ChangeNotify(); });
  item.DestructionHandler =
      notification->AddDestructionHandler([this, AObject] { InternalRemoveNotification(AObject); });
  FDelegatedNotications->Add(item);
}

void TDelegatingChangeNotifyObject::UndelegateNotifyObject(TObject* AObject) {
  if (!FDelegatedNotications) return;
  TInterfacedChangeNotifyItem item;
  if (FDelegatedNotications->FindAndRemoveOne(ItemOf(AObject), item)) RemoveHandlers(item);
  DropWhenEmpty();
}

void TDelegatingChangeNotifyObject::InternalRemoveNotification(TObject* AObject) {
  if (!FDelegatedNotications) return;
  FDelegatedNotications->IfRemoveOne(ItemOf(AObject));
  DropWhenEmpty();
}

void TDelegatingChangeNotifyObject::UndelegateAll() {
  if (!FDelegatedNotications) return;
  for (const TInterfacedChangeNotifyItem& item : FDelegatedNotications) RemoveHandlers(item);
  FDelegatedNotications = nullptr;
}

void TDelegatingChangeNotifyObject::DropWhenEmpty() {
  if (FDelegatedNotications->GetCount() == 0) FDelegatedNotications = nullptr;
}

} // namespace Tarvo
