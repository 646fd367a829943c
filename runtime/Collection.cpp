#include "runtime/Collection.h"

#include <algorithm>

#include "containers/List.h"
#include "reflection/Publish.h"

namespace Tarvo {

// ---- TCollectionItem ----

TARVO_IMPLEMENT_CLASS(TCollectionItem)
TARVO_PUBLISH(TCollectionItem) {
  Public();
  Property("Collection", &TCollectionItem::GetCollection, &TCollectionItem::SetCollection);
  Property("Index", &TCollectionItem::GetIndex, &TCollectionItem::SetIndex);
  Property("ID", &TCollectionItem::ID);
  Property("DisplayName", &TCollectionItem::GetDisplayName, &TCollectionItem::SetDisplayName);
}

TCollectionItem::TCollectionItem(TCollection* ACollection) { SetCollection(ACollection); }

TCollectionItem::~TCollectionItem() { SetCollection(nullptr); }

void TCollectionItem::SetCollection(TCollection* ACollection) {
  if (ACollection == FCollection) return;
  if (FCollection) FCollection->RemoveItem(this);
  if (ACollection) ACollection->InsertItem(this);
}

Integer TCollectionItem::GetIndex() const {
  if (!FCollection) return -1;
  const std::vector<TCollectionItem*>& items = FCollection->FItems;
  return static_cast<Integer>(std::find(items.begin(), items.end(), this) - items.begin());
}

void TCollectionItem::SetIndex(Integer AValue) {
  const Integer current = GetIndex();
  if (current < 0 || AValue == current) return;
  std::vector<TCollectionItem*>& items = FCollection->FItems;
  if (AValue < 0 || AValue >= static_cast<Integer>(items.size())) RaiseListIndexError(AValue);
  items.erase(items.begin() + current);
  items.insert(items.begin() + AValue, this);
  Changed(true);
}

String TCollectionItem::GetDisplayName() const { return ClassName(); }

void TCollectionItem::SetDisplayName(const String&) { Changed(false); }

TPersistent* TCollectionItem::GetOwner() const { return FCollection; }

void TCollectionItem::Changed(Boolean AAllItems) {
  if (FCollection && FCollection->FUpdateCount == 0) FCollection->Update(AAllItems ? nullptr : this);
}

// ---- TCollection ----

TARVO_IMPLEMENT_CLASS(TCollection)
TARVO_PUBLISH(TCollection) {
  Public();
  Property("Count", &TCollection::Count);
  IndexedProperty("Items", &TCollection::Items, &TCollection::SetItem);
}

TCollection::TCollection(TCollectionItemClass AItemClass, TPersistent* AOwner)
    : FItemClass(AItemClass), FOwner(AOwner) {
  TARVO_ASSERT(FItemClass);
}

TCollection::~TCollection() {
  // Nobody hears of the items that go with the collection: Update is no longer a descendant's.
  ++FUpdateCount;
  while (!FItems.empty()) Free(FItems.back());
}

TCollectionItem* TCollection::Add() { return FItemClass.Create(this); }

TCollectionItem* TCollection::Insert(Integer AIndex) {
  if (AIndex < 0 || AIndex > Count()) RaiseListIndexError(AIndex);
  const TUpdateScope update(*this);
  TCollectionItem* item = Add();
  item->SetIndex(AIndex);
  return item;
}

void TCollection::Delete(Integer AIndex) { Free(Items(AIndex)); }

void TCollection::Clear() {
  if (FItems.empty()) return;
  const TUpdateScope update(*this);
  while (!FItems.empty()) Free(FItems.back());
}

TCollectionItem* TCollection::Items(Integer AIndex) const {
  if (AIndex < 0 || AIndex >= Count()) RaiseListIndexError(AIndex);
  return FItems[std::size_t(AIndex)];
}

void TCollection::SetItem(Integer AIndex, TCollectionItem* AValue) { Items(AIndex)->Assign(AValue); }

TCollectionItem* TCollection::FindItemID(Integer AID) const {
  const auto it =
      std::find_if(FItems.begin(), FItems.end(), [AID](const TCollectionItem* AItem) { return AItem->FID == AID; });
  return it != FItems.end() ? *it : nullptr;
}

void TCollection::EndUpdate() {
  TARVO_ASSERT(FUpdateCount > 0);
  if (--FUpdateCount == 0) Changed();
}

void TCollection::Assign(TPersistent* ASource) {
  AssignContents<TCollection, inherited>(*this, ASource, [this](const TCollection& AFrom) {
    for (TCollectionItem* item : AFrom.FItems) Add()->Assign(item);
  });
}

void TCollection::Update(TCollectionItem*) {}

void TCollection::Changed() {
  if (FUpdateCount == 0) Update(nullptr);
}

void TCollection::InsertItem(TCollectionItem* AItem) {
  FItems.push_back(AItem);
  AItem->FCollection = this;
  AItem->FID = FNextID++;
  Changed();
}

void TCollection::RemoveItem(TCollectionItem* AItem) {
  std::erase(FItems, AItem);
  AItem->FCollection = nullptr;
  Changed();
}

} // namespace Tarvo
