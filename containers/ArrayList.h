#pragma once
// TArrayList<T>: one contiguous array behind IArrayList<T>.

#include <algorithm>

#include "containers/ChangeDelegation.h"
#include "containers/ListInterfaces.h"

namespace Tarvo {

template <class T>
class TArrayList final : public TImplements<TTypedInterfacedChangeNotifyObject<T>, IList, IArrayList<T>> {
public:
  using TSelf = TRef<IArrayList<T>>;
  using TPredicate = TConstFunc<T, Boolean>;

  TArrayList() : FComparer(DefaultComparer<T>()) {}

  // The copying factories add through Add, so subscriptions are made.
  static TSelf CreateEnumerator(const TRef<IEnumerator<T>>& AEnumerator) {
    TARVO_ASSERT(AEnumerator != nullptr);
    const TRef<TArrayList> result = New<TArrayList>();
    while (AEnumerator->MoveNext()) result->Add(AEnumerator->GenericGetCurrent());
    return result;
  }
  static TSelf CreateCopy(const TRef<IArrayList<T>>& AOther) {
    TARVO_ASSERT(AOther != nullptr);
    const TRef<TArrayList> result = New<TArrayList>();
    AOther->Query()->ForEach([&result](const T& AItem) { result->Add(AItem); });
    return result;
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

  // The query holds the list, so a query keeps its source alive.
  TRef<IContainerQuery<TSelf, TSelf, T>> Query(Boolean AReverse = false) override {
    const TSelf self(this);
    return New<TContainerQuery<TSelf, TSelf, T>>(
        [self, AReverse] { return AReverse ? self->GetReverseEnumerator() : self->GetEnumerator(); },
        [] { return TSelf(New<TArrayList>()); }, [](TSelf AList, T AItem) { AList->Add(AItem); }, self, FComparer);
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

} // namespace Tarvo
