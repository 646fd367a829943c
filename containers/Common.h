#pragma once
#pragma GCC visibility push(default)
// The shapes shared by every container: function types, comparers, enumerators, enumerables and
// change notification. One GUID stands for a generic interface across its element types, so a
// query by GUID tells the shape of a container, not its element type.

#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "rtl/InterfacedObject.h"
#include "rtl/Value.h"

namespace Tarvo {

// ---- Function types ----
// TFunc<A..., R> and TProc<A...> take their arguments by value; TConstFunc and TConstProc pass
// the element by constant reference. A by-value function converts to the constant form, so an
// operation declared once with the constant form accepts both.

namespace Detail {
template <class TArgs, class... TRest> struct TFuncBuilder;
template <class... TArgs, class R> struct TFuncBuilder<std::tuple<TArgs...>, R> {
  using Type = std::function<R(TArgs...)>;
  using ConstType = std::function<R(const TArgs&...)>;
};
template <class... TArgs, class TNext, class... TRest>
struct TFuncBuilder<std::tuple<TArgs...>, TNext, TRest...> : TFuncBuilder<std::tuple<TArgs..., TNext>, TRest...> {};
} // namespace Detail

template <class... TArgsThenResult> using TFunc = typename Detail::TFuncBuilder<std::tuple<>, TArgsThenResult...>::Type;
template <class... TArgsThenResult>
using TConstFunc = typename Detail::TFuncBuilder<std::tuple<>, TArgsThenResult...>::ConstType;
template <class... TArgs> using TProc = std::function<void(TArgs...)>;
template <class... TArgs> using TConstProc = std::function<void(const TArgs&...)>;
template <class T> using TComparison = std::function<int(const T&, const T&)>;

// ---- Comparers ----

template <class T> class IComparer : public virtual IInterface {
  TARVO_INTERFACE(IComparer, "{6F5C2B0E-3C39-4D2F-9B52-2C5E3A8B7A11}", IInterface)
public:
  virtual int Compare(const T& ALeft, const T& ARight) = 0;
};

// Element types with a default order: numbers, strings, pointers, interfaces, values and
// whatever has an operator<.
template <class T>
concept CDefaultOrdered = std::is_same_v<T, TValue> || std::is_pointer_v<T> || requires(const T& A) {
  InterfaceIdentity(A.get());
} || requires(const T& A, const T& B) {
  A < B;
};

// Ordinal order for numbers and strings, identity for objects, interfaces and class references,
// and the text for values.
template <CDefaultOrdered T> int DefaultCompare(const T& ALeft, const T& ARight) {
  if constexpr (std::is_same_v<T, TValue>) return DefaultCompare(ALeft.ToString(), ARight.ToString());
  else if constexpr (requires { InterfaceIdentity(ALeft.get()); }) {
    const auto* l = InterfaceIdentity(ALeft.get());
    const auto* r = InterfaceIdentity(ARight.get());
    return std::less<const void*>()(l, r) ? -1 : std::less<const void*>()(r, l) ? 1 : 0;
  } else if constexpr (std::is_pointer_v<T>)
    return std::less<T>()(ALeft, ARight) ? -1 : std::less<T>()(ARight, ALeft) ? 1 : 0;
  else if constexpr (std::is_same_v<T, String>) return ALeft.compare(ARight) < 0 ? -1 : ALeft == ARight ? 0 : 1;
  else return ALeft < ARight ? -1 : ARight < ALeft ? 1 : 0;
}

template <class T> class TDelegatedComparer : public TImplements<TInterfacedObject, IComparer<T>> {
public:
  explicit TDelegatedComparer(TComparison<T> AComparison) : FComparison(std::move(AComparison)) {
    TARVO_ASSERT(FComparison != nullptr);
  }
  int Compare(const T& ALeft, const T& ARight) override { return FComparison(ALeft, ARight); }

private:
  TComparison<T> FComparison;
};

[[noreturn]] void RaiseNoDefaultOrder();

// The default comparer of T, made once. Plain records have no order: comparing them raises,
// while the operations that take their own predicate work as usual.
template <class T> TRef<IComparer<T>> DefaultComparer() {
  static const TRef<IComparer<T>> comparer = [] {
    if constexpr (CDefaultOrdered<T>) return TRef<IComparer<T>>(New<TDelegatedComparer<T>>(&DefaultCompare<T>));
    else
      return TRef<IComparer<T>>(New<TDelegatedComparer<T>>([](const T&, const T&) -> int { RaiseNoDefaultOrder(); }));
  }();
  return comparer;
}

// ---- Enumerators ----

template <class T> class IEnumerator : public virtual IInterface {
  TARVO_INTERFACE(IEnumerator, "{1E1D4B7C-5A43-4F6E-8E0B-7D2C9F3A6B21}", IInterface)
public:
  virtual void Reset() = 0;
  virtual bool MoveNext() = 0;
  // Untyped current element: the object of a class element, the object behind an interface
  // element, nil for any other element.
  virtual TObject* GetCurrent() = 0;
  virtual T GenericGetCurrent() = 0;
};

template <class T> class TBasicEnumerator : public TImplements<TInterfacedObject, IEnumerator<T>> {
public:
  TObject* GetCurrent() override {
    if constexpr (std::is_convertible_v<T, TObject*>) return GenericGetCurrent();
    else if constexpr (requires(T AItem) { ObjectOf(AItem); }) return ObjectOf(GenericGetCurrent());
    else return nullptr;
  }
  T GenericGetCurrent() override = 0;
};

// Lets a C++ range-for walk any enumerator: for (auto item : *list).
template <class T> class TEnumeratorIterator {
public:
  TEnumeratorIterator() = default;
  explicit TEnumeratorIterator(TRef<IEnumerator<T>> AEnumerator) : FEnumerator(std::move(AEnumerator)) { ++*this; }
  T operator*() const { return FEnumerator->GenericGetCurrent(); }
  TEnumeratorIterator& operator++() {
    if (!FEnumerator->MoveNext()) FEnumerator = nullptr;
    return *this;
  }
  bool operator==(const TEnumeratorIterator& AOther) const { return FEnumerator == AOther.FEnumerator; }

private:
  TRef<IEnumerator<T>> FEnumerator;
};

template <class T> class IEnumerable : public virtual IInterface {
  TARVO_INTERFACE(IEnumerable, "{CAFEC3AE-090E-4135-849E-B39A213C7231}", IInterface)
public:
  virtual TRef<IEnumerator<T>> GetEnumerator() = 0;

  TEnumeratorIterator<T> begin() { return TEnumeratorIterator<T>(GetEnumerator()); }
  TEnumeratorIterator<T> end() { return {}; }
};

template <class T> class IReverseEnumeratorHost : public virtual IInterface {
  TARVO_INTERFACE(IReverseEnumeratorHost, "{C6AAC7EC-5F44-41D0-BF9C-D2BE9BF7B351}", IInterface)
public:
  virtual TRef<IEnumerator<T>> GetEnumerator() = 0;

  TEnumeratorIterator<T> begin() { return TEnumeratorIterator<T>(GetEnumerator()); }
  TEnumeratorIterator<T> end() { return {}; }
};

template <class T> class IReverseEnumerable : public virtual IEnumerable<T> {
  TARVO_INTERFACE(IReverseEnumerable, "{D95A8112-779C-4B45-BE62-BA12D4E6D28F}", IEnumerable<T>)
public:
  virtual TRef<IEnumerator<T>> GetReverseEnumerator() = 0;
};

// A range-for over a returned reference keeps the reference for the whole loop:
// for (auto item : list->GetReverse()).
template <class I> auto begin(const TRef<I>& AEnumerable) { return AEnumerable->begin(); }
template <class I> auto end(const TRef<I>& AEnumerable) { return AEnumerable->end(); }

// ---- Change notification ----

// A handler as handed back by the add operations; removing takes the same handler again.
using TNotifyHandler = std::shared_ptr<const TProc<>>;

class IChangeNotification : public virtual IInterface {
  TARVO_INTERFACE(IChangeNotification, "{8B0B6D2A-4C1E-4F7B-9E3D-5A2F6C8D1E47}", IInterface)
public:
  virtual TNotifyHandler AddChangeHandler(TProc<> AHandler) = 0;
  virtual void RemoveChangeHandler(const TNotifyHandler& AHandler) = 0;
  virtual TNotifyHandler AddDestructionHandler(TProc<> AHandler) = 0;
  virtual void RemoveDestructionHandler(const TNotifyHandler& AHandler) = 0;
};

// Root of all containers: a reference-counted object that carries subscribers.
class TInterfacedChangeNotifyObject : public TImplements<TInterfacedObject, IChangeNotification> {
  TARVO_CLASS(TInterfacedChangeNotifyObject, TImplements<TInterfacedObject, IChangeNotification>)

public:
  TNotifyHandler AddChangeHandler(TProc<> AHandler) override;
  void RemoveChangeHandler(const TNotifyHandler& AHandler) override;
  TNotifyHandler AddDestructionHandler(TProc<> AHandler) override;
  void RemoveDestructionHandler(const TNotifyHandler& AHandler) override;

  // Calls every change handler installed on this object.
  void ChangeNotify();
  bool HasChangeHandlers() const { return !FChangeHandlers.empty(); }
  // Tells the destruction handlers before the object goes.
  void BeforeDestruction() override;

private:
  std::vector<TNotifyHandler> FChangeHandlers;
  std::vector<TNotifyHandler> FDestructionHandlers;
};

// A subscription of a container to one of its elements.
struct TInterfacedChangeNotifyItem {
  TObject* Object = nullptr;
  TNotifyHandler ChangeHandler;
  TNotifyHandler DestructionHandler;
};

} // namespace Tarvo

#pragma GCC visibility pop
