#pragma once
#pragma GCC visibility push(default)
// The query chain: a small object that walks any enumerable source and answers questions about
// it. Every run asks the factory for a fresh enumerator, so a query made once can be run any
// number of times and always sees the source as it stands then. Filter, Skip and Take are eager:
// they copy into a new collection and never touch the source again.

#include <memory>
#include <utility>

#include "containers/Common.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

template <class T> class IQuery : public virtual IInterface {
  TARVO_INTERFACE(IQuery, "{B6ABA8F6-C80C-48D5-B08C-4C0C10F2FA54}", IInterface)
public:
  // Walks both in step; without AEqual the comparer decides, non-zero meaning unequal.
  virtual Boolean Equals(const TRef<IEnumerable<T>>& AOther, TConstFunc<T, T, Boolean> AEqual = nullptr) = 0;
  virtual Boolean ContainsAny(const TRef<IEnumerable<T>>& AOther) = 0;
  virtual Boolean Contains(const T& AItem) = 0;
  virtual Boolean Contains(TConstFunc<T, Boolean> APredicate) = 0;
  virtual Integer Count(const T& AItem) = 0;
  virtual Integer Count(TConstFunc<T, Boolean> APredicate) = 0;
  // AItem is set to the default of T when nothing matches.
  virtual Boolean Find(TConstFunc<T, Boolean> APredicate, T& AItem) = 0;
  virtual Boolean Find(TConstFunc<T, Boolean> APredicate, TConstProc<T> AProc) = 0;
  virtual Boolean IsEmpty() = 0;
  virtual T First() = 0;
  virtual Boolean First(T& AItem) = 0;
  // AIndex is -1 when nothing matches.
  virtual Boolean IndexOf(const T& AItem, Integer& AIndex) = 0;
  virtual Boolean IndexOf(TConstFunc<T, Boolean> APredicate, Integer& AIndex) = 0;
};

template <class C, class T> class IBasicContainerQuery : public virtual IQuery<T> {
  TARVO_INTERFACE(IBasicContainerQuery, "{3243BF2F-8493-442B-B77A-6B4CDD696276}", IQuery<T>)
public:
  virtual C Filter(TConstFunc<T, Boolean> APredicate) = 0;
  // A count of zero or less skips nothing.
  virtual C Skip(Integer ACount) = 0;
  // A count of zero or less takes nothing.
  virtual C Take(Integer ACount) = 0;
};

// What a container query was made from; made when first asked for and owned by the query.
template <class Q, class C, class T> class TContainerQueryAccess {
public:
  TContainerQueryAccess(TFunc<TRef<IEnumerator<T>>> ACreateEnumerator, Q ACollection)
      : FCreateEnumerator(std::move(ACreateEnumerator)), FCollection(std::move(ACollection)) {}

  TRef<IEnumerator<T>> CreateEnumerator() const { return FCreateEnumerator(); }
  const Q& Collection() const { return FCollection; }

private:
  TFunc<TRef<IEnumerator<T>>> FCreateEnumerator;
  Q FCollection;
};

template <class Q, class C, class T> class IContainerQuery : public virtual IBasicContainerQuery<C, T> {
  using TBasicQuery = IBasicContainerQuery<C, T>; // the macro takes no commas
  TARVO_INTERFACE(IContainerQuery, "{6F2946A8-F9C1-4FEE-91B2-83E5F6D5E8ED}", TBasicQuery)
public:
  // The fluent Find forms hide the Boolean ones of IQuery<T>. A virtual function cannot differ
  // from the one it overrides by its result alone, so these are templates (which never override)
  // that run the Boolean form and hand back the source.
  template <class = void> Q Find(TConstFunc<T, Boolean> APredicate, T& AItem) {
    static_cast<IQuery<T>*>(this)->Find(std::move(APredicate), AItem);
    return Access()->Collection();
  }
  template <class = void> Q Find(TConstFunc<T, Boolean> APredicate, TConstProc<T> AProc) {
    static_cast<IQuery<T>*>(this)->Find(std::move(APredicate), std::move(AProc));
    return Access()->Collection();
  }
  virtual Q ForEach(TConstProc<T> AProc) = 0;
  // The index counts from zero in walking order.
  virtual Q ForEach(TConstProc<Integer, T> AProc) = 0;
  virtual Q ForFirst(TConstProc<T> AProc) = 0;
  virtual Q ForFirstMatch(TConstFunc<T, Boolean> APredicate, TConstProc<T> AProc) = 0;
  virtual Q Do(TProc<C> AProc) = 0;
  virtual TContainerQueryAccess<Q, C, T>* Access() = 0;
};

template <class T> class TQuery : public TImplements<TInterfacedObject, IQuery<T>> {
public:
  // A nil comparer stands for the default comparer of T.
  explicit TQuery(TFunc<TRef<IEnumerator<T>>> ACreateEnumerator, TRef<IComparer<T>> AComparer = nullptr)
      : FCreateEnumerator(std::move(ACreateEnumerator)), FComparer(AComparer ? AComparer : DefaultComparer<T>()) {
    TARVO_ASSERT(FCreateEnumerator != nullptr);
  }

  Boolean Equals(const TRef<IEnumerable<T>>& AOther, TConstFunc<T, T, Boolean> AEqual = nullptr) override {
    TARVO_ASSERT(AOther != nullptr);
    if (!AEqual) AEqual = [this](const T& ALeft, const T& ARight) { return FComparer->Compare(ALeft, ARight) == 0; };
    const auto mine = NewEnumerator();
    const auto other = AOther->GetEnumerator();
    for (;;) {
      const bool hasMine = mine->MoveNext();
      if (hasMine != other->MoveNext()) return false;
      if (!hasMine) return true;
      if (!AEqual(mine->GenericGetCurrent(), other->GenericGetCurrent())) return false;
    }
  }

  Boolean ContainsAny(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    for (const T& item : *AOther)
      if (Contains(item)) return true;
    return false;
  }

  Boolean Contains(const T& AItem) override { return FindFirst(EqualTo(AItem), nullptr, nullptr); }

  Boolean Contains(TConstFunc<T, Boolean> APredicate) override {
    TARVO_ASSERT(APredicate != nullptr);
    return FindFirst(APredicate, nullptr, nullptr);
  }

  Integer Count(const T& AItem) override { return CountWhere(EqualTo(AItem)); }

  Integer Count(TConstFunc<T, Boolean> APredicate) override {
    TARVO_ASSERT(APredicate != nullptr);
    return CountWhere(APredicate);
  }

  Boolean Find(TConstFunc<T, Boolean> APredicate, T& AItem) override {
    TARVO_ASSERT(APredicate != nullptr);
    return FindFirst(APredicate, &AItem, nullptr);
  }

  Boolean Find(TConstFunc<T, Boolean> APredicate, TConstProc<T> AProc) override {
    TARVO_ASSERT(APredicate != nullptr);
    TARVO_ASSERT(AProc != nullptr);
    T item{};
    if (!FindFirst(APredicate, &item, nullptr)) return false;
    AProc(item);
    return true;
  }

  Boolean IsEmpty() override { return !NewEnumerator()->MoveNext(); }

  T First() override {
    T item{};
    First(item);
    return item;
  }

  Boolean First(T& AItem) override { return FindFirst(Any(), &AItem, nullptr); }

  Boolean IndexOf(const T& AItem, Integer& AIndex) override { return FindFirst(EqualTo(AItem), nullptr, &AIndex); }

  Boolean IndexOf(TConstFunc<T, Boolean> APredicate, Integer& AIndex) override {
    TARVO_ASSERT(APredicate != nullptr);
    return FindFirst(APredicate, nullptr, &AIndex);
  }

protected:
  TRef<IEnumerator<T>> NewEnumerator() {
    TRef<IEnumerator<T>> result = FCreateEnumerator();
    TARVO_ASSERT(result != nullptr);
    return result;
  }

  static TConstFunc<T, Boolean> Any() {
    return [](const T&) { return true; };
  }

  // The one walk behind every search: the first match, its place, or the defaults when none.
  Boolean FindFirst(const TConstFunc<T, Boolean>& APredicate, T* AItem, Integer* AIndex) {
    const auto enumerator = NewEnumerator();
    for (Integer index = 0; enumerator->MoveNext(); ++index) {
      T current = enumerator->GenericGetCurrent();
      if (!APredicate(current)) continue;
      if (AItem) *AItem = std::move(current);
      if (AIndex) *AIndex = index;
      return true;
    }
    if (AItem) *AItem = T{};
    if (AIndex) *AIndex = -1;
    return false;
  }

  TFunc<TRef<IEnumerator<T>>> FCreateEnumerator;
  TRef<IComparer<T>> FComparer;

private:
  TConstFunc<T, Boolean> EqualTo(const T& AItem) {
    return [this, &AItem](const T& ACurrent) { return FComparer->Compare(ACurrent, AItem) == 0; };
  }

  Integer CountWhere(const TConstFunc<T, Boolean>& APredicate) {
    Integer result = 0;
    const auto enumerator = NewEnumerator();
    while (enumerator->MoveNext())
      if (APredicate(enumerator->GenericGetCurrent())) ++result;
    return result;
  }
};

// Q is what the query was made from and what its fluent operations hand back; C is the kind of
// collection that Filter, Skip and Take fill. They differ when the source is no container.
template <class Q, class C, class T> class TContainerQuery : public TImplements<TQuery<T>, IContainerQuery<Q, C, T>> {
  using TBase = TImplements<TQuery<T>, IContainerQuery<Q, C, T>>;

public:
  TContainerQuery(TFunc<TRef<IEnumerator<T>>> ACreateEnumerator, TFunc<C> ACreateCollection,
                  TProc<C, T> AAddToCollection, Q ACollection, TRef<IComparer<T>> AComparer = nullptr)
      : TBase(std::move(ACreateEnumerator), std::move(AComparer)), FCreateCollection(std::move(ACreateCollection)),
        FAddToCollection(std::move(AAddToCollection)), FCollection(std::move(ACollection)) {
    TARVO_ASSERT(FCreateCollection != nullptr);
    TARVO_ASSERT(FAddToCollection != nullptr);
  }

  using IContainerQuery<Q, C, T>::Find;

  C Filter(TConstFunc<T, Boolean> APredicate) override {
    TARVO_ASSERT(APredicate != nullptr);
    C result = FCreateCollection();
    Walk([&](const T& AItem) {
      if (APredicate(AItem)) FAddToCollection(result, AItem);
    });
    return result;
  }

  C Skip(Integer ACount) override {
    C result = FCreateCollection();
    Walk([&](const T& AItem) {
      if (ACount >= 1) --ACount;
      else FAddToCollection(result, AItem);
    });
    return result;
  }

  // The count is checked after each step, so the walk ends one step past the last element taken.
  C Take(Integer ACount) override {
    C result = FCreateCollection();
    const auto enumerator = this->NewEnumerator();
    while (enumerator->MoveNext() && ACount >= 1) {
      FAddToCollection(result, enumerator->GenericGetCurrent());
      --ACount;
    }
    return result;
  }

  Q ForEach(TConstProc<T> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    Walk(AProc);
    return FCollection;
  }

  Q ForEach(TConstProc<Integer, T> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    Integer index = 0;
    Walk([&](const T& AItem) { AProc(index++, AItem); });
    return FCollection;
  }

  Q ForFirst(TConstProc<T> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    T item{};
    if (this->FindFirst(TQuery<T>::Any(), &item, nullptr)) AProc(item);
    return FCollection;
  }

  Q ForFirstMatch(TConstFunc<T, Boolean> APredicate, TConstProc<T> AProc) override {
    TARVO_ASSERT(APredicate != nullptr);
    TARVO_ASSERT(AProc != nullptr);
    T item{};
    if (this->FindFirst(APredicate, &item, nullptr)) AProc(item);
    return FCollection;
  }

  // Over a container the procedure gets the container itself. Over a source that is no C (the
  // child controls of a window control) it gets a new C holding the elements.
  Q Do(TProc<C> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    if constexpr (std::is_convertible_v<const Q&, C>) AProc(FCollection);
    else AProc(Skip(0));
    return FCollection;
  }

  TContainerQueryAccess<Q, C, T>* Access() override {
    if (!FAccess) FAccess = std::make_unique<TContainerQueryAccess<Q, C, T>>(this->FCreateEnumerator, FCollection);
    return FAccess.get();
  }

private:
  template <class AProc> void Walk(const AProc& AVisit) {
    const auto enumerator = this->NewEnumerator();
    while (enumerator->MoveNext()) AVisit(enumerator->GenericGetCurrent());
  }

  TFunc<C> FCreateCollection;
  TProc<C, T> FAddToCollection;
  Q FCollection;
  std::unique_ptr<TContainerQueryAccess<Q, C, T>> FAccess;
};

} // namespace Tarvo

#pragma GCC visibility pop
