#pragma once
// The list containers: TArrayList<T> behind IArrayList<T> and TLinkedList<T> behind ILinkedList<T>,
// their untyped face IList, and the base that forwards the changes of elements to the container.
//
// Predicate- and procedure-taking operations are declared once with the constant-reference
// function types; a by-value function converts to them.

#include <algorithm>
#include <vector>

#include "containers/Utils.h"

namespace Tarvo {

// ---- Interfaces ----

// The door for code that knows no element type: serialisers, collection editors.
class IList : public virtual IInterface {
  TARVO_INTERFACE(IList, IInterface, "{EEFAD71F-D914-4F0B-A092-DBE8223F48CA}")
public:
  virtual TRef<IEnumerator<TValue>> GetValueEnumerator() = 0;
  virtual void ClearValues() = 0;
  // A value of the element type holding its default.
  virtual TValue GetNewValue() = 0;
  // Converts to the element type and adds.
  virtual void AddValue(const TValue& AValue) = 0;
};

template <class T> class IArrayList : public virtual IReverseEnumerable<T> {
  TARVO_INTERFACE(IArrayList, IReverseEnumerable<T>, "{B15CDC27-7A72-49FC-A4C4-FC8F6B74D246}")
public:
  using TSelf = TRef<IArrayList<T>>;
  using TPredicate = TConstFunc<T, Boolean>;

  virtual TRef<IReverseEnumeratorHost<T>> GetReverse() = 0;
  virtual Integer GetCount() = 0;
  virtual T GetItem(Integer AIndex) = 0;
  // Replaces in place: no notification, no change of subscriptions.
  virtual void SetItem(Integer AIndex, const T& AItem) = 0;
  // Insert subscribes but does not notify.
  virtual TSelf Insert(Integer AIndex, const T& AItem) = 0;
  virtual TSelf Insert(Integer AIndex, const TRef<IEnumerable<T>>& AOther) = 0;
  // The first match; when none, the made or given item is added and returned.
  virtual T FindOrAdd(const TPredicate& ACompareFunc, const TFunc<T>& ACreate) = 0;
  virtual T FindOrAdd(const TPredicate& ACompareFunc, const T& AItem) = 0;
  virtual TSelf Add(const T& AItem) = 0;
  virtual TSelf AddFront(const T& AItem) = 0;
  virtual TSelf AddUnique(const T& AItem) = 0;
  virtual Boolean FindAndRemoveOne(const T& AItem) = 0;
  // AItem is left untouched when nothing matches.
  virtual Boolean FindAndRemoveOne(const TPredicate& ACompareFunc, T& AItem) = 0;
  virtual TSelf FindAndRemoveOne(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc) = 0;
  // The index of the removed element or -1; notifies either way.
  virtual Integer RemoveOne(const T& AItem) = 0;
  virtual TSelf RemoveOne(const TPredicate& ACompareFunc) = 0;
  virtual Boolean IfRemoveOne(const TPredicate& ACompareFunc) = 0;
  virtual TSelf RemoveAll(const T& AItem) = 0;
  // Per element of AOther, the last equal element goes: duplicates survive unless AOther repeats them.
  virtual TSelf RemoveAll(const TRef<IEnumerable<T>>& AOther) = 0;
  // AFoundProc, when given, sees each removed element after its removal.
  virtual TSelf RemoveAll(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc = nullptr) = 0;
  // An index at or past the end is ignored. Delete does not notify.
  virtual TSelf Delete(Integer AIndex) = 0;
  virtual TSelf Delete(Integer AIndex, Integer ACount) = 0;
  virtual TSelf Swap(Integer AIndex1, Integer AIndex2) = 0;
  // Empties the array only: no notification, subscriptions stay.
  virtual TSelf Clear() = 0;
  // Not stable. A nil comparison sorts by the default order of T.
  virtual TSelf Sort(const TComparison<T>& ACompareFunc = nullptr) = 0;
  virtual TSelf Append(const TRef<IEnumerable<T>>& AOther) = 0;
  virtual TSelf Append(const std::vector<T>& AItems) = 0;
  virtual TSelf Assign(const TRef<IEnumerable<T>>& AOther) = 0;
  virtual std::vector<T> ToArray() = 0;
};

template <class T> class ILinkedList : public virtual IEnumerable<T> {
  TARVO_INTERFACE(ILinkedList, IEnumerable<T>, "{755EACF6-A7BC-4EA5-AF72-A6FC7D7155C2}")
public:
  using TSelf = TRef<ILinkedList<T>>;
  using TPredicate = TConstFunc<T, Boolean>;

  // Stays high by one for each element removed while a walk was alive.
  virtual Integer GetCount() = 0;
  // The last element, or the default of T when empty.
  virtual T Last() = 0;
  virtual Boolean Last(T& AItem) = 0;
  virtual TSelf ForLast(const TConstProc<T>& AProc) = 0;
  // Removes and returns the first element; the default of T when empty.
  virtual T PopFirst() = 0;
  virtual TSelf PopFirst(T& AItem) = 0;
  // Nothing is called on an empty list.
  virtual TSelf PopFirst(const TConstProc<T>& AProc) = 0;
  virtual Boolean IfPopFirst(T& AItem) = 0;
  virtual Boolean IfPopFirst(const TConstProc<T>& AProc) = 0;
  virtual TSelf Add(const T& AItem) = 0;
  virtual TSelf AddFront(const T& AItem) = 0;
  virtual TSelf Append(const TRef<IEnumerable<T>>& AOther) = 0;
  virtual TSelf Append(const std::vector<T>& AItems) = 0;
  virtual T FindOrAdd(const TPredicate& ACompareFunc, const TFunc<T>& ACreate) = 0;
  virtual T FindOrAdd(const TPredicate& ACompareFunc, const T& AItem) = 0;
  virtual TSelf Assign(const TRef<IEnumerable<T>>& AOther) = 0;
  virtual Boolean FindAndRemoveOne(const T& AItem) = 0;
  virtual Boolean FindAndRemoveOne(const TPredicate& ACompareFunc, T& AItem) = 0;
  virtual TSelf FindAndRemoveOne(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc) = 0;
  virtual Integer RemoveOne(const T& AItem) = 0;
  virtual TSelf RemoveOne(const TPredicate& ACompareFunc) = 0;
  virtual Boolean IfRemoveOne(const TPredicate& ACompareFunc) = 0;
  virtual TSelf RemoveAll(const T& AItem) = 0;
  virtual TSelf RemoveAll(const TRef<IEnumerable<T>>& AOther) = 0;
  virtual TSelf RemoveAll(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc = nullptr) = 0;
  // Notifies and drops every subscription. A list that is being walked must not be cleared.
  virtual TSelf Clear() = 0;
};

// ---- Helpers ----

[[noreturn]] void RaiseListIndexError(Integer AIndex);
[[noreturn]] void RaiseListRangeError(Integer AIndex, Integer ACount);
[[noreturn]] void RaiseNoDefaultOrder();

// Element types whose default comparer compares anything: numbers, strings, pointers,
// interfaces, values and whatever has an order.
template <class T>
concept CDefaultOrdered = std::is_same_v<T, TValue> || std::is_pointer_v<T> ||
                          requires(const T& A) { InterfaceIdentity(A.get()); } ||
                          requires(const T& A, const T& B) { A < B; };

// The default comparer of T. Plain records have none: comparing them raises, while the
// operations that take their own predicate work as usual.
template <class T> TRef<IComparer<T>> ElementComparer() {
  if constexpr (CDefaultOrdered<T>) return DefaultComparer<T>();
  else {
    static const TRef<IComparer<T>> comparer =
        New<TDelegatedComparer<T>>([](const T&, const T&) -> int { RaiseNoDefaultOrder(); });
    return comparer;
  }
}

// Class and interface elements can be asked for change notification.
template <class T>
concept CObjectElement = (std::is_pointer_v<T> && std::is_convertible_v<T, TObject*>) ||
                         requires(const T& AItem) { ObjectOf(AItem); };

template <class T> TObject* ElementObject(const T& AItem) {
  if constexpr (std::is_pointer_v<T>) return AItem;
  else return ObjectOf(AItem);
}

template <class T> class TLinkedList;

// ---- Change delegation ----

// A container that, while someone listens to it, listens to its elements: a change in an
// element is a change of the container.
template <class T> class TTypedInterfacedChangeNotifyObject : public TInterfacedChangeNotifyObject {
public:
  using inherited = TInterfacedChangeNotifyObject;

  // A dying container leaves no handler behind on its elements.
  void BeforeDestruction() override {
    UndelegateAll();
    inherited::BeforeDestruction();
  }

protected:
  // After an element entered.
  void DelegateNotify(const T& AItem) {
    if constexpr (CObjectElement<T>) {
      if (!HasChangeHandlers()) return;
      TObject* object = ElementObject(AItem);
      TRef<IChangeNotification> notification;
      if (!Supports<IChangeNotification>(object, notification)) return;
      if (!FDelegatedNotications) FDelegatedNotications = New<TLinkedList<TInterfacedChangeNotifyItem>>();
      TInterfacedChangeNotifyItem item;
      item.Object = object;
      item.ChangeHandler = notification->AddChangeHandler([this] { ChangeNotify(); });
      item.DestructionHandler = notification->AddDestructionHandler([this, object] { InternalRemoveNotification(object); });
      FDelegatedNotications->Add(item);
    }
  }

  // Before an element leaves.
  void UndelegateNotify(const T& AItem) {
    if constexpr (CObjectElement<T>) {
      if (!FDelegatedNotications) return;
      TObject* object = ElementObject(AItem);
      TInterfacedChangeNotifyItem item;
      if (FDelegatedNotications->FindAndRemoveOne(
              [object](const TInterfacedChangeNotifyItem& AEntry) { return AEntry.Object == object; }, item))
        RemoveHandlers(item);
      DropWhenEmpty();
    }
  }

  // The element is dying: only our record of it goes; it stays in the container.
  void InternalRemoveNotification(TObject* AObject) {
    if (!FDelegatedNotications) return;
    FDelegatedNotications->IfRemoveOne(
        [AObject](const TInterfacedChangeNotifyItem& AEntry) { return AEntry.Object == AObject; });
    DropWhenEmpty();
  }

  void UndelegateAll() {
    if (!FDelegatedNotications) return;
    for (const TInterfacedChangeNotifyItem& item : *FDelegatedNotications) RemoveHandlers(item);
    FDelegatedNotications = nullptr;
  }

  bool IsSelf(const TRef<IEnumerable<T>>& AOther) const {
    return InterfaceIdentity(AOther.get()) == InterfaceIdentity(this);
  }

private:
  static void RemoveHandlers(const TInterfacedChangeNotifyItem& AItem) {
    TRef<IChangeNotification> notification;
    if (!Supports<IChangeNotification>(AItem.Object, notification)) return;
    notification->RemoveChangeHandler(AItem.ChangeHandler);
    notification->RemoveDestructionHandler(AItem.DestructionHandler);
  }

  void DropWhenEmpty() {
    if (FDelegatedNotications->GetCount() == 0) FDelegatedNotications = nullptr;
  }

  TRef<ILinkedList<TInterfacedChangeNotifyItem>> FDelegatedNotications;
};

// ---- Array list ----

template <class T>
class TArrayList final : public TImplements<TTypedInterfacedChangeNotifyObject<T>, IList, IArrayList<T>> {
public:
  using TSelf = TRef<IArrayList<T>>;
  using TPredicate = TConstFunc<T, Boolean>;

  TArrayList() : FComparer(ElementComparer<T>()) {}

  // The copying factories add through Add, so subscriptions are made.
  static TSelf CreateEnumerator(const TRef<IEnumerator<T>>& AEnumerator) {
    TARVO_ASSERT(AEnumerator != nullptr);
    const TRef<TArrayList> result = New<TArrayList>();
    while (AEnumerator->MoveNext()) result->Add(AEnumerator->GenericGetCurrent());
    return result;
  }
  static TSelf CreateCopy(const TRef<IArrayList<T>>& AOther) {
    TARVO_ASSERT(AOther != nullptr);
    return CreateEnumerator(AOther->GetEnumerator());
  }
  static TSelf CreateArray(const std::vector<T>& AOther) { return New<TArrayList>()->Append(AOther); }

  // The enumerators read through raw pointers to keep a walk free of allocations per element;
  // they do not keep the list alive.
  TRef<IEnumerator<T>> GetEnumerator() override {
    return New<TBasicListEnumerator<T>>([this] { return GetCount(); }, [this](Integer AIndex) { return GetItem(AIndex); });
  }
  TRef<IEnumerator<T>> GetReverseEnumerator() override { return GetReverse()->GetEnumerator(); }
  TRef<IReverseEnumeratorHost<T>> GetReverse() override {
    return New<TAutoReverseEnumeratorHost<T>>([this] { return GetCount(); },
                                              [this](Integer AIndex) { return GetItem(AIndex); });
  }

  // IList
  TRef<IEnumerator<TValue>> GetValueEnumerator() override { return New<TGenricValueEnumerator<T>>(GetEnumerator()); }
  void ClearValues() override {
    FList.clear();
    this->UndelegateAll();
    this->ChangeNotify();
  }
  TValue GetNewValue() override { return ElementToValue<T>(T{}); }
  void AddValue(const TValue& AValue) override { Add(ElementFromValue<T>(AValue)); }

  Integer GetCount() override { return static_cast<Integer>(FList.size()); }
  T GetItem(Integer AIndex) override {
    CheckIndex(AIndex);
    return FList[AIndex];
  }
  void SetItem(Integer AIndex, const T& AItem) override {
    CheckIndex(AIndex);
    FList[AIndex] = AItem;
  }

  TSelf Insert(Integer AIndex, const T& AItem) override {
    if (AIndex < 0 || AIndex > GetCount()) RaiseListIndexError(AIndex);
    FList.insert(FList.begin() + AIndex, AItem);
    this->DelegateNotify(AItem);
    return this;
  }
  TSelf Insert(Integer AIndex, const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    // Walking ourselves while inserting would never end: insert what we held.
    const TRef<IEnumerable<T>> source = this->IsSelf(AOther) ? TRef<IEnumerable<T>>(CreateCopy(this)) : AOther;
    for (const TRef<IEnumerator<T>> walk = source->GetEnumerator(); walk->MoveNext();)
      Insert(AIndex++, walk->GenericGetCurrent());
    return this;
  }

  T FindOrAdd(const TPredicate& ACompareFunc, const TFunc<T>& ACreate) override {
    TARVO_ASSERT(ACreate != nullptr);
    const Integer index = IndexOfMatch(ACompareFunc);
    if (index >= 0) return FList[index];
    const T item = ACreate();
    Add(item);
    return item;
  }
  T FindOrAdd(const TPredicate& ACompareFunc, const T& AItem) override {
    return FindOrAdd(ACompareFunc, [&AItem] { return AItem; });
  }

  TSelf Add(const T& AItem) override {
    FList.push_back(AItem);
    this->ChangeNotify();
    this->DelegateNotify(AItem);
    return this;
  }
  TSelf AddFront(const T& AItem) override {
    FList.insert(FList.begin(), AItem);
    this->ChangeNotify();
    this->DelegateNotify(AItem);
    return this;
  }
  TSelf AddUnique(const T& AItem) override {
    if (IndexOfMatch(EqualTo(AItem)) < 0) Add(AItem);
    return this;
  }

  Boolean FindAndRemoveOne(const T& AItem) override { return IfRemoveOne(EqualTo(AItem)); }
  Boolean FindAndRemoveOne(const TPredicate& ACompareFunc, T& AItem) override {
    const Integer index = IndexOfMatch(ACompareFunc);
    if (index < 0) return false;
    AItem = FList[index];
    Delete(index);
    return true;
  }
  TSelf FindAndRemoveOne(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc) override {
    TARVO_ASSERT(AFoundProc != nullptr);
    T item{};
    if (FindAndRemoveOne(ACompareFunc, item)) AFoundProc(item);
    return this;
  }

  Integer RemoveOne(const T& AItem) override {
    const Integer index = IndexOfMatch(EqualTo(AItem));
    if (index >= 0) Delete(index);
    this->ChangeNotify();
    return index;
  }
  TSelf RemoveOne(const TPredicate& ACompareFunc) override {
    IfRemoveOne(ACompareFunc);
    return this;
  }
  Boolean IfRemoveOne(const TPredicate& ACompareFunc) override {
    const Integer index = IndexOfMatch(ACompareFunc);
    if (index >= 0) Delete(index);
    return index >= 0;
  }

  TSelf RemoveAll(const T& AItem) override { return RemoveAll(EqualTo(AItem)); }
  TSelf RemoveAll(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();) {
      const T item = walk->GenericGetCurrent();
      for (Integer i = GetCount() - 1; i >= 0; --i)
        if (FComparer->Compare(FList[i], item) == 0) {
          Delete(i);
          break;
        }
    }
    return this;
  }
  TSelf RemoveAll(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc = nullptr) override {
    TARVO_ASSERT(ACompareFunc != nullptr);
    // The callbacks may change the list, so every read is range-checked.
    for (Integer i = GetCount() - 1; i >= 0; --i) {
      const T item = GetItem(i);
      if (!ACompareFunc(item)) continue;
      Delete(i);
      if (AFoundProc) AFoundProc(item);
    }
    return this;
  }

  TSelf Delete(Integer AIndex) override {
    if (AIndex >= GetCount()) return this;
    this->UndelegateNotify(GetItem(AIndex));
    FList.erase(FList.begin() + AIndex);
    return this;
  }
  TSelf Delete(Integer AIndex, Integer ACount) override {
    const Integer count = GetCount();
    if (AIndex >= count) return this;
    for (Integer i = AIndex; i < AIndex + ACount && i < count; ++i) this->UndelegateNotify(GetItem(i));
    if (AIndex < 0 || ACount < 0 || AIndex + ACount > count) RaiseListRangeError(AIndex, ACount);
    FList.erase(FList.begin() + AIndex, FList.begin() + AIndex + ACount);
    return this;
  }

  TSelf Swap(Integer AIndex1, Integer AIndex2) override {
    CheckIndex(AIndex1);
    CheckIndex(AIndex2);
    std::iter_swap(FList.begin() + AIndex1, FList.begin() + AIndex2);
    return this;
  }

  TSelf Clear() override {
    FList.clear();
    return this;
  }

  TSelf Sort(const TComparison<T>& ACompareFunc = nullptr) override {
    const TRef<IComparer<T>> comparer =
        ACompareFunc ? TRef<IComparer<T>>(New<TDelegatedComparer<T>>(ACompareFunc)) : FComparer;
    IComparer<T>* const compare = comparer.get();
    std::sort(FList.begin(), FList.end(),
              [compare](const T& ALeft, const T& ARight) { return compare->Compare(ALeft, ARight) < 0; });
    return this;
  }

  TSelf Append(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    if (this->IsSelf(AOther)) return this;
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();) Add(walk->GenericGetCurrent());
    return this;
  }
  TSelf Append(const std::vector<T>& AItems) override {
    for (const T& item : AItems) Add(item);
    return this;
  }
  TSelf Assign(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    if (this->IsSelf(AOther)) return this;
    Clear();
    return Append(AOther);
  }

  std::vector<T> ToArray() override { return FList; }

private:
  void CheckIndex(Integer AIndex) const {
    if (AIndex < 0 || AIndex >= static_cast<Integer>(FList.size())) RaiseListIndexError(AIndex);
  }

  TPredicate EqualTo(const T& AItem) const {
    return [this, &AItem](const T& AOther) { return FComparer->Compare(AOther, AItem) == 0; };
  }

  // The predicate may change the list, so the count is read on every step.
  Integer IndexOfMatch(const TPredicate& ACompareFunc) {
    TARVO_ASSERT(ACompareFunc != nullptr);
    for (Integer i = 0; i < GetCount(); ++i)
      if (ACompareFunc(FList[i])) return i;
    return -1;
  }

  std::vector<T> FList;
  TRef<IComparer<T>> FComparer;
};

// ---- Linked list ----

// Singly linked. While an enumerator lives no node is freed: a removed node is only flagged and
// stays linked, and the last enumerator to go unlinks the flagged nodes. The count does not fall
// for a node removed that way. Operations other than the walk see flagged nodes like any other,
// so PopFirst during a walk finds the same first node again.
template <class T>
class TLinkedList final : public TImplements<TTypedInterfacedChangeNotifyObject<T>, IList, ILinkedList<T>> {
  struct TNode;
  // The link comes first in a node, so a node doubles as the link to its successor and a walk
  // can start from the address of FFirst like from any other link.
  struct TLink {
    TNode* Next = nullptr;
  };
  struct TNode : TLink {
    T Item;
    Boolean Deleted = false;
  };

public:
  using TSelf = TRef<ILinkedList<T>>;
  using TPredicate = TConstFunc<T, Boolean>;

  TLinkedList() : FComparer(ElementComparer<T>()) {}
  ~TLinkedList() override {
    while (TNode* node = FFirst) {
      FFirst = node->Next;
      delete node;
    }
  }

  static TSelf CreateEnumerator(const TRef<IEnumerator<T>>& AEnumerator) {
    TARVO_ASSERT(AEnumerator != nullptr);
    const TRef<TLinkedList> result = New<TLinkedList>();
    while (AEnumerator->MoveNext()) result->Add(AEnumerator->GenericGetCurrent());
    return result;
  }
  static TSelf CreateCopy(const TRef<ILinkedList<T>>& AOther) {
    TARVO_ASSERT(AOther != nullptr);
    return CreateEnumerator(AOther->GetEnumerator());
  }

  TRef<IEnumerator<T>> GetEnumerator() override { return New<TEnumerator>(this); }

  // IList
  TRef<IEnumerator<TValue>> GetValueEnumerator() override { return New<TGenricValueEnumerator<T>>(GetEnumerator()); }
  void ClearValues() override { Clear(); }
  TValue GetNewValue() override { return ElementToValue<T>(T{}); }
  void AddValue(const TValue& AValue) override { Add(ElementFromValue<T>(AValue)); }

  Integer GetCount() override { return FCount; }

  T Last() override { return FLast ? FLast->Item : T{}; }
  Boolean Last(T& AItem) override {
    AItem = Last();
    return FLast != nullptr;
  }
  TSelf ForLast(const TConstProc<T>& AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    if (FLast) AProc(FLast->Item);
    return this;
  }

  T PopFirst() override {
    T item{};
    IfPopFirst(item);
    return item;
  }
  TSelf PopFirst(T& AItem) override {
    IfPopFirst(AItem);
    return this;
  }
  TSelf PopFirst(const TConstProc<T>& AProc) override {
    IfPopFirst(AProc);
    return this;
  }
  Boolean IfPopFirst(T& AItem) override {
    if (!FFirst) {
      AItem = T{};
      return false;
    }
    AItem = FFirst->Item;
    RemoveNode(nullptr, FFirst);
    return true;
  }
  Boolean IfPopFirst(const TConstProc<T>& AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    T item{};
    if (!IfPopFirst(item)) return false;
    AProc(item);
    return true;
  }

  TSelf Add(const T& AItem) override {
    TNode* node = new TNode{{nullptr}, AItem, false};
    (FLast ? FLast->Next : FFirst) = node;
    FLast = node;
    return Entered(node);
  }
  TSelf AddFront(const T& AItem) override {
    TNode* node = new TNode{{FFirst}, AItem, false};
    FFirst = node;
    if (!FLast) FLast = node;
    return Entered(node);
  }
  // Appending a list to itself does nothing, as assigning does: the walk would never end.
  TSelf Append(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    if (this->IsSelf(AOther)) return this;
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();) Add(walk->GenericGetCurrent());
    return this;
  }
  TSelf Append(const std::vector<T>& AItems) override {
    for (const T& item : AItems) Add(item);
    return this;
  }

  T FindOrAdd(const TPredicate& ACompareFunc, const TFunc<T>& ACreate) override {
    TARVO_ASSERT(ACreate != nullptr);
    TNode* previous = nullptr;
    if (const TNode* node = FindNode(ACompareFunc, previous)) return node->Item;
    const T item = ACreate();
    Add(item);
    return item;
  }
  T FindOrAdd(const TPredicate& ACompareFunc, const T& AItem) override {
    return FindOrAdd(ACompareFunc, [&AItem] { return AItem; });
  }

  TSelf Assign(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    if (this->IsSelf(AOther)) return this;
    Clear();
    return Append(AOther);
  }

  Boolean FindAndRemoveOne(const T& AItem) override { return IfRemoveOne(EqualTo(AItem)); }
  Boolean FindAndRemoveOne(const TPredicate& ACompareFunc, T& AItem) override {
    TNode* previous = nullptr;
    TNode* node = FindNode(ACompareFunc, previous);
    if (!node) return false;
    AItem = node->Item;
    RemoveNode(previous, node);
    return true;
  }
  TSelf FindAndRemoveOne(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc) override {
    TARVO_ASSERT(AFoundProc != nullptr);
    T item{};
    if (FindAndRemoveOne(ACompareFunc, item)) AFoundProc(item);
    return this;
  }

  // Removing a node notifies; an absent element notifies all the same.
  Integer RemoveOne(const T& AItem) override {
    Integer index = 0;
    TNode* previous = nullptr;
    for (TNode* node = FFirst; node; previous = node, node = node->Next, ++index)
      if (FComparer->Compare(node->Item, AItem) == 0) {
        RemoveNode(previous, node);
        return index;
      }
    this->ChangeNotify();
    return -1;
  }
  TSelf RemoveOne(const TPredicate& ACompareFunc) override {
    IfRemoveOne(ACompareFunc);
    return this;
  }
  Boolean IfRemoveOne(const TPredicate& ACompareFunc) override {
    TNode* previous = nullptr;
    TNode* node = FindNode(ACompareFunc, previous);
    if (node) RemoveNode(previous, node);
    return node != nullptr;
  }

  TSelf RemoveAll(const T& AItem) override { return RemoveAll(EqualTo(AItem)); }
  TSelf RemoveAll(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();) {
      const T item = walk->GenericGetCurrent();
      TNode *lastPrevious = nullptr, *last = nullptr;
      for (TNode *previous = nullptr, *node = FFirst; node; previous = node, node = node->Next)
        if (FComparer->Compare(node->Item, item) == 0) {
          lastPrevious = previous;
          last = node;
        }
      if (last) RemoveNode(lastPrevious, last);
    }
    return this;
  }
  // Front to back: a linked list has no cheap way down.
  TSelf RemoveAll(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc = nullptr) override {
    TARVO_ASSERT(ACompareFunc != nullptr);
    TNode* previous = nullptr;
    for (TNode* node = FFirst; node;) {
      TNode* const next = node->Next;
      if (!ACompareFunc(node->Item)) {
        previous = node;
      } else {
        const T item = node->Item;
        if (!RemoveNode(previous, node)) previous = node;
        if (AFoundProc) AFoundProc(item);
      }
      node = next;
    }
    return this;
  }

  // Clearing a list that holds nodes while a walk is alive would leave the walk on freed nodes;
  // it is refused.
  TSelf Clear() override {
    TARVO_ASSERT(FCountEnumerotors == 0 || !FFirst);
    while (TNode* node = FFirst) {
      FFirst = node->Next;
      delete node;
    }
    FLast = nullptr;
    FCount = 0;
    this->UndelegateAll();
    this->ChangeNotify();
    return this;
  }

private:
  // The cursor points at a link: first at FFirst, then at the link inside the current node.
  class TEnumerator final : public TBasicEnumerator<T> {
  public:
    explicit TEnumerator(TLinkedList* AList) : FList(AList) {
      ++FList->FCountEnumerotors;
      Reset();
    }
    ~TEnumerator() override { FList->ReleaseEnumerator(); }

    void Reset() override { FCursor = &FList->FFirst; }

    // Reads the successor's flag, not the node's own (except at the end): a node whose
    // successor was removed during the walk is passed over.
    bool MoveNext() override {
      for (;;) {
        TNode* const node = *FCursor;
        if (!node) return false;
        FCursor = &node->Next;
        if (!node->Next) return !node->Deleted;
        if (!node->Next->Deleted) return true;
      }
    }

    T GenericGetCurrent() override {
      TARVO_ASSERT(FCursor != &FList->FFirst);
      return static_cast<TNode*>(reinterpret_cast<TLink*>(FCursor))->Item;
    }

  private:
    const TRef<TLinkedList> FList; // held: the release step runs on it
    TNode** FCursor = nullptr;
  };

  TSelf Entered(TNode* ANode) {
    ++FCount;
    this->ChangeNotify();
    this->DelegateNotify(ANode->Item);
    return this;
  }

  // True when the node was freed, false when it was only flagged.
  bool RemoveNode(TNode* APrevious, TNode* ANode) {
    this->UndelegateNotify(ANode->Item);
    const bool freed = FCountEnumerotors == 0;
    if (freed) {
      (APrevious ? APrevious->Next : FFirst) = ANode->Next;
      if (FLast == ANode) FLast = APrevious;
      delete ANode;
      --FCount;
    } else {
      FHasDeleted = true;
      ANode->Deleted = true;
    }
    this->ChangeNotify();
    return freed;
  }

  // The count and FHasDeleted stay as they are.
  void ReleaseEnumerator() {
    if (--FCountEnumerotors != 0 || !FHasDeleted) return;
    bool freed = false;
    TNode* live = nullptr;
    for (TNode** link = &FFirst; TNode* node = *link;) {
      if (!node->Deleted) {
        live = node;
        link = &node->Next;
        continue;
      }
      *link = node->Next;
      if (node == FLast) FLast = live;
      this->UndelegateNotify(node->Item);
      delete node;
      freed = true;
    }
    if (freed) this->ChangeNotify();
  }

  TNode* FindNode(const TPredicate& ACompareFunc, TNode*& APrevious) {
    TARVO_ASSERT(ACompareFunc != nullptr);
    APrevious = nullptr;
    for (TNode* node = FFirst; node; APrevious = node, node = node->Next)
      if (ACompareFunc(node->Item)) return node;
    return nullptr;
  }

  TPredicate EqualTo(const T& AItem) const {
    return [this, &AItem](const T& AOther) { return FComparer->Compare(AOther, AItem) == 0; };
  }

  Cardinal FCountEnumerotors = 0;
  Boolean FHasDeleted = false;
  TNode* FFirst = nullptr;
  TNode* FLast = nullptr;
  Integer FCount = 0;
  TRef<IComparer<T>> FComparer;
};

// ---- The named instantiations ----

using IObjectArrayList = IArrayList<TObject*>;
using TObjectArrayList = TArrayList<TObject*>;
using IStringArrayList = IArrayList<String>;
// Sorts by the ordinal, case-sensitive order of the text.
using TStringArrayList = TArrayList<String>;

extern template class TArrayList<TObject*>;
extern template class TArrayList<String>;
extern template class TLinkedList<TInterfacedChangeNotifyItem>;

} // namespace Tarvo
