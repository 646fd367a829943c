#pragma once
#pragma GCC visibility push(default)
// TArrayList<T>: one contiguous array behind IArrayList<T>.

#include <algorithm>

#include "containers/ListCommon.h"

namespace Tarvo {

template <class T> class TArrayList : public TListCommon<T, IArrayList<T>, TArrayList<T>> {
  using TBase = TListCommon<T, IArrayList<T>, TArrayList<T>>;

public:
  using TBase::Append;
  using TBase::CreateEnumerator;
  using TBase::FindAndRemoveOne;
  using TBase::RemoveAll;
  using TBase::RemoveOne;
  using typename TBase::TPredicate;
  using typename TBase::TSelf;

  static TSelf CreateCopy(const TRef<IArrayList<T>>& AOther) {
    TARVO_ASSERT(AOther != nullptr);
    const TRef<TArrayList> result = New<TArrayList>();
    result->FList = AOther->ToArray();
    return result;
  }
  static TSelf CreateArray(const std::vector<T>& AOther) { return New<TArrayList>()->Append(AOther); }

  // The enumerators read through raw pointers to keep a walk free of allocations per element;
  // they do not keep the list alive.
  TRef<IEnumerator<T>> GetEnumerator() override {
    return New<TBasicListEnumerator<T>>([this] { return GetCount(); },
                                        [this](Integer AIndex) { return GetItem(AIndex); });
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
        [] { return TSelf(New<TArrayList>()); }, [](TSelf AList, T AItem) { AList->Add(AItem); }, self,
        this->FComparer);
  }

  // Unlike Clear, notifies and drops every subscription.
  void ClearValues() override {
    FList.clear();
    this->UndelegateAll();
    this->ChangeNotify();
  }

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
    if (IndexOfMatch(this->EqualTo(AItem)) < 0) Add(AItem);
    return this;
  }

  Boolean FindAndRemoveOne(const TPredicate& ACompareFunc, T& AItem) override {
    const Integer index = IndexOfMatch(ACompareFunc);
    if (index < 0) return false;
    AItem = FList[index];
    Delete(index);
    return true;
  }
  Integer RemoveOne(const T& AItem) override {
    const Integer index = IndexOfMatch(this->EqualTo(AItem));
    if (index >= 0) Delete(index);
    this->ChangeNotify();
    return index;
  }
  Boolean IfRemoveOne(const TPredicate& ACompareFunc) override {
    const Integer index = IndexOfMatch(ACompareFunc);
    if (index >= 0) Delete(index);
    return index >= 0;
  }

  TSelf RemoveAll(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();) {
      const T item = walk->GenericGetCurrent();
      for (Integer i = GetCount() - 1; i >= 0; --i)
        if (this->FComparer->Compare(FList[i], item) == 0) {
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
    if (ACompareFunc) {
      const TRef<IComparer<T>> comparer = New<TDelegatedComparer<T>>(ACompareFunc);
      IComparer<T>* const compare = comparer.get();
      std::sort(FList.begin(), FList.end(),
                [compare](const T& ALeft, const T& ARight) { return compare->Compare(ALeft, ARight) < 0; });
    } else if constexpr (CDefaultOrdered<T>) {
      // The list's comparer is the default one: compare inline rather than through it.
      std::sort(FList.begin(), FList.end(),
                [](const T& ALeft, const T& ARight) { return DefaultCompare(ALeft, ARight) < 0; });
    } else {
      RaiseNoDefaultOrder();
    }
    return this;
  }

  std::vector<T> ToArray() override { return FList; }

private:
  void CheckIndex(Integer AIndex) const {
    if (AIndex < 0 || AIndex >= static_cast<Integer>(FList.size())) RaiseListIndexError(AIndex);
  }

  bool FindFirst(const TPredicate& ACompareFunc, T& AItem) override {
    const Integer index = IndexOfMatch(ACompareFunc);
    if (index >= 0) AItem = FList[index];
    return index >= 0;
  }

  // The predicate may change the list, so the count is read on every step.
  Integer IndexOfMatch(const TPredicate& ACompareFunc) {
    TARVO_ASSERT(ACompareFunc != nullptr);
    for (Integer i = 0; i < GetCount(); ++i)
      if (ACompareFunc(FList[i])) return i;
    return -1;
  }

  std::vector<T> FList;
};

} // namespace Tarvo

// The class templates an array list of one element type is made of. An element type that many
// files use has its instances compiled once: TARVO_ARRAY_LIST_INSTANCES(extern, T) beside the type
// in a header, and TARVO_ARRAY_LIST_INSTANCES(, T) in one source file. Use inside namespace Tarvo.
// A linked list of the same type adds TARVO_LINKED_LIST_INSTANCES.
#define TARVO_ARRAY_LIST_INSTANCES(AExtern, ...)                                                                       \
  TARVO_LIST_ELEMENT_INSTANCES(AExtern, __VA_ARGS__)                                                                   \
  AExtern template class TArrayList<__VA_ARGS__>;                                                                      \
  TARVO_LIST_KIND_INSTANCES(AExtern, IArrayList<__VA_ARGS__>, TArrayList<__VA_ARGS__>, __VA_ARGS__)                    \
  AExtern template class TBasicListEnumerator<__VA_ARGS__>;                                                            \
  AExtern template class TBasicReverseListEnumerator<__VA_ARGS__>;                                                     \
  AExtern template class TReverseEnumeratorHost<__VA_ARGS__>;                                                          \
  AExtern template class TImplements<TInterfacedObject, IReverseEnumeratorHost<__VA_ARGS__>>;                          \
  AExtern template class TAutoReverseEnumeratorHost<__VA_ARGS__>;

#pragma GCC visibility pop
