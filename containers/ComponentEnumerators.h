#pragma once
#pragma GCC visibility push(default)
// Enumerators over things that are no containers: the children of a component, read through a
// count function and an item function, flat or through the whole subtree, forward or reverse;
// and a filter that passes on only the elements a predicate accepts.

#include <utility>

#include "containers/Query.h"

namespace Tarvo {

template <class T> class TFilterEnumerator : public TBasicEnumerator<T> {
public:
  TFilterEnumerator(TRef<IEnumerator<T>> AEnumerator, TConstFunc<T, Boolean> AFilter)
      : FEnumerator(std::move(AEnumerator)), FFilter(std::move(AFilter)) {
    TARVO_ASSERT(FEnumerator != nullptr);
    TARVO_ASSERT(FFilter != nullptr);
  }

  void Reset() override { FEnumerator->Reset(); }
  bool MoveNext() override {
    while (FEnumerator->MoveNext())
      if (FFilter(FEnumerator->GenericGetCurrent())) return true;
    return false;
  }
  T GenericGetCurrent() override { return FEnumerator->GenericGetCurrent(); }

private:
  TRef<IEnumerator<T>> FEnumerator;
  TConstFunc<T, Boolean> FFilter;
};

// The children of FComponent, first to last. The count is read at every step, so children that
// go during the walk end it early rather than out of range.
template <class T> class TComponentEnumerator : public TBasicEnumerator<T> {
public:
  TComponentEnumerator(T AComponent, TFunc<T, Integer> AGetCount, TFunc<T, Integer, T> AGetItem)
      : FComponent(std::move(AComponent)), FGetCount(std::move(AGetCount)), FGetItem(std::move(AGetItem)) {
    TARVO_ASSERT(FGetCount != nullptr);
    TARVO_ASSERT(FGetItem != nullptr);
  }

  void Reset() override { FIndex = -1; }
  bool MoveNext() override {
    const Integer count = ChildCount();
    if (FIndex >= count) return false;
    return ++FIndex < count;
  }
  T GenericGetCurrent() override { return FGetItem(FComponent, FIndex); }

protected:
  Integer ChildCount() { return FGetCount(FComponent); }

  T FComponent;
  Integer FIndex = -1;
  TFunc<T, Integer> FGetCount;
  TFunc<T, Integer, T> FGetItem;
};

// The children of FComponent, last to first.
template <class T> class TComponentReverseEnumerator : public TComponentEnumerator<T> {
public:
  TComponentReverseEnumerator(T AComponent, TFunc<T, Integer> AGetCount, TFunc<T, Integer, T> AGetItem)
      : TComponentEnumerator<T>(std::move(AComponent), std::move(AGetCount), std::move(AGetItem)) {
    this->FIndex = this->ChildCount();
  }

  void Reset() override { this->FIndex = this->ChildCount(); }
  bool MoveNext() override {
    if (this->FIndex <= 0) return false;
    --this->FIndex;
    return true;
  }
};

namespace Detail {
// What the two recursive walks share: while a child's subtree is being walked, FNested (a walk of
// the same kind over that child) answers for the current element.
template <class TFlat, class TSelf> class TComponentSubtreeWalk : public TFlat {
public:
  using TItem = decltype(std::declval<TFlat&>().GenericGetCurrent());
  using TFlat::TFlat;

  void Reset() override {
    FNested = nullptr;
    TFlat::Reset();
  }
  TItem GenericGetCurrent() override { return FNested ? FNested->GenericGetCurrent() : TFlat::GenericGetCurrent(); }

protected:
  bool IsOnChild() { return this->FIndex >= 0 && this->FIndex < this->ChildCount(); }
  void DescendIntoCurrent() { FNested = New<TSelf>(TFlat::GenericGetCurrent(), this->FGetCount, this->FGetItem); }

  TRef<IEnumerator<TItem>> FNested;
};
} // namespace Detail

// Depth first, each child before its own children: the pre-order of the subtree below
// FComponent, without FComponent itself.
template <class T>
class TComponentEnumeratorRecursive
    : public Detail::TComponentSubtreeWalk<TComponentEnumerator<T>, TComponentEnumeratorRecursive<T>> {
  using TWalk = Detail::TComponentSubtreeWalk<TComponentEnumerator<T>, TComponentEnumeratorRecursive<T>>;

public:
  using TWalk::TWalk;

  bool MoveNext() override {
    // The child just handed out is entered on the step after it.
    if (!this->FNested && this->IsOnChild()) this->DescendIntoCurrent();
    if (this->FNested) {
      if (this->FNested->MoveNext()) return true;
      this->FNested = nullptr;
    }
    return TComponentEnumerator<T>::MoveNext();
  }
};

// The exact mirror of the forward walk: children last to first, each child after its own
// children (a post-order over reversed children). Deepest and last come first, as in a walk from
// the top of the z-order down.
template <class T>
class TComponentReverseEnumeratorRecursive
    : public Detail::TComponentSubtreeWalk<TComponentReverseEnumerator<T>, TComponentReverseEnumeratorRecursive<T>> {
  using TWalk = Detail::TComponentSubtreeWalk<TComponentReverseEnumerator<T>, TComponentReverseEnumeratorRecursive<T>>;

public:
  using TWalk::TWalk;

  bool MoveNext() override {
    if (this->FNested) {
      if (!this->FNested->MoveNext()) this->FNested = nullptr; // the subtree is done: the child itself
      return true;
    }
    if (!TComponentReverseEnumerator<T>::MoveNext()) return false;
    this->DescendIntoCurrent();
    return MoveNext();
  }
};

// The query over the children of ARoot (Q converts to the component type T): the walk chosen by
// ARecursive and AReverse, narrowed by AFilter, results collected into collections made by
// ACreateCollection.
template <class Q, class C, class T>
TRef<IContainerQuery<Q, C, T>> CreateComponentQuery(Q ARoot, TFunc<T, Integer> AGetCount, TFunc<T, Integer, T> AGetItem,
                                                    Boolean ARecursive, Boolean AReverse,
                                                    TConstFunc<T, Boolean> AFilter, TFunc<C> ACreateCollection,
                                                    TProc<C, T> AAddToCollection) {
  TARVO_ASSERT(AGetCount != nullptr);
  TARVO_ASSERT(AGetItem != nullptr);
  TARVO_ASSERT(AFilter != nullptr);
  const T component = ARoot;
  auto createEnumerator = [=]() -> TRef<IEnumerator<T>> {
    TRef<IEnumerator<T>> walk;
    if (ARecursive && AReverse) walk = New<TComponentReverseEnumeratorRecursive<T>>(component, AGetCount, AGetItem);
    else if (AReverse) walk = New<TComponentReverseEnumerator<T>>(component, AGetCount, AGetItem);
    else if (ARecursive) walk = New<TComponentEnumeratorRecursive<T>>(component, AGetCount, AGetItem);
    else walk = New<TComponentEnumerator<T>>(component, AGetCount, AGetItem);
    return New<TFilterEnumerator<T>>(walk, AFilter);
  };
  return New<TContainerQuery<Q, C, T>>(createEnumerator, std::move(ACreateCollection), std::move(AAddToCollection),
                                       std::move(ARoot));
}

} // namespace Tarvo

#pragma GCC visibility pop
