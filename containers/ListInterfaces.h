#pragma once
#pragma GCC visibility push(default)
// The list interfaces: IArrayList<T> with indexed access and a reverse walk, ILinkedList<T>
// without either, and IList, their untyped face.
//
// Predicate- and procedure-taking operations are declared once with the constant-reference
// function types; a by-value function converts to them.

#include <vector>

#include "containers/Query.h"
#include "containers/Utils.h"

namespace Tarvo {

// The door for code that knows no element type: serialisers, collection editors.
class IList : public virtual IInterface {
  TARVO_INTERFACE(IList, "{EEFAD71F-D914-4F0B-A092-DBE8223F48CA}", IInterface)
public:
  virtual TRef<IEnumerator<TValue>> GetValueEnumerator() = 0;
  virtual void ClearValues() = 0;
  // A value of the element type holding its default.
  virtual TValue GetNewValue() = 0;
  // Converts to the element type and adds.
  virtual void AddValue(const TValue& AValue) = 0;
};

template <class T> class IArrayList : public virtual IReverseEnumerable<T> {
  TARVO_INTERFACE(IArrayList, "{B15CDC27-7A72-49FC-A4C4-FC8F6B74D246}", IReverseEnumerable<T>)
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
  // A query over the list, front to back or back to front; its results are new array lists.
  virtual TRef<IContainerQuery<TSelf, TSelf, T>> Query(Boolean AReverse = false) = 0;
};

template <class T> class ILinkedList : public virtual IEnumerable<T> {
  TARVO_INTERFACE(ILinkedList, "{755EACF6-A7BC-4EA5-AF72-A6FC7D7155C2}", IEnumerable<T>)
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
  // A query over the list; its results are new linked lists.
  virtual TRef<IContainerQuery<TSelf, TSelf, T>> Query() = 0;
};

[[noreturn]] void RaiseListIndexError(Integer AIndex);
[[noreturn]] void RaiseListRangeError(Integer AIndex, Integer ACount);

} // namespace Tarvo

#pragma GCC visibility pop
