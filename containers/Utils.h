#pragma once
#pragma GCC visibility push(default)
// Enumerators over anything that can tell a count and an item by index, the untyped value
// enumerator behind IList, and the hosts that hand out back-to-front walks.

#include "containers/Common.h"

namespace Tarvo {

// ---- Elements as values ----

template <class T>
concept CHasTypeRecord = requires {
  TTypeRecordOf<std::remove_cvref_t<T>>::Get();
};

// An element as a TValue of its type. Element types without a type record (plain records)
// have no value form and raise EInvalidCast.
template <class T> TValue ElementToValue(const T& AItem) {
  if constexpr (std::is_same_v<T, TValue>) return AItem;
  else if constexpr (CHasTypeRecord<T>) return TValue::From<T>(AItem);
  else throw EInvalidCast("Invalid class typecast: the element type has no value form");
}

// A TValue read as an element; the same limits as ElementToValue.
template <class T> T ElementFromValue(const TValue& AValue) {
  if constexpr (std::is_same_v<T, TValue>) return AValue;
  else if constexpr (CHasTypeRecord<T>) return AValue.AsType<T>();
  else throw EInvalidCast("Invalid class typecast: the element type has no value form");
}

// ---- Enumerators by index ----

// Asks for the count on every step, so a list that shrinks during a walk ends it without error.
template <class T> class TBasicListEnumerator : public TBasicEnumerator<T> {
public:
  TBasicListEnumerator(TFunc<Integer> AGetCount, TFunc<Integer, T> AGetItem)
      : FGetCount(std::move(AGetCount)), FGetItem(std::move(AGetItem)) {
    TARVO_ASSERT(FGetCount != nullptr);
    TARVO_ASSERT(FGetItem != nullptr);
  }

  void Reset() override { FIndex = -1; }

  bool MoveNext() override {
    const Integer count = FGetCount();
    if (FIndex >= count) return false;
    ++FIndex;
    return FIndex < count;
  }

  T GenericGetCurrent() override { return FGetItem(FIndex); }

protected:
  Integer FIndex = -1;
  TFunc<Integer> FGetCount;
  TFunc<Integer, T> FGetItem;
};

template <class T> class TBasicReverseListEnumerator : public TBasicListEnumerator<T> {
public:
  TBasicReverseListEnumerator(TFunc<Integer> AGetCount, TFunc<Integer, T> AGetItem)
      : TBasicListEnumerator<T>(std::move(AGetCount), std::move(AGetItem)) {
    Reset();
  }

  void Reset() override { this->FIndex = this->FGetCount(); }

  bool MoveNext() override {
    if (this->FIndex <= 0) return false;
    --this->FIndex;
    return true;
  }
};

// ---- Untyped walk ----

template <class T> class TGenricValueEnumerator : public TBasicEnumerator<TValue> {
public:
  explicit TGenricValueEnumerator(TRef<IEnumerator<T>> ANestedEnumerator)
      : FNestedEnumerator(std::move(ANestedEnumerator)) {
    TARVO_ASSERT(FNestedEnumerator != nullptr);
  }

  void Reset() override { FNestedEnumerator->Reset(); }
  bool MoveNext() override { return FNestedEnumerator->MoveNext(); }
  TObject* GetCurrent() override { return FNestedEnumerator->GetCurrent(); }
  TValue GenericGetCurrent() override { return ElementToValue<T>(FNestedEnumerator->GenericGetCurrent()); }

private:
  TRef<IEnumerator<T>> FNestedEnumerator;
};

// ---- Reverse hosts ----

template <class T> class TReverseEnumeratorHost : public TImplements<TInterfacedObject, IReverseEnumeratorHost<T>> {
public:
  explicit TReverseEnumeratorHost(TFunc<TRef<IEnumerator<T>>> ACreate) : FCreate(std::move(ACreate)) {
    TARVO_ASSERT(FCreate != nullptr);
  }

  TRef<IEnumerator<T>> GetEnumerator() override { return FCreate(); }

protected:
  TFunc<TRef<IEnumerator<T>>> FCreate;
};

template <class T> class TAutoReverseEnumeratorHost : public TReverseEnumeratorHost<T> {
public:
  TAutoReverseEnumeratorHost(TFunc<Integer> AGetCount, TFunc<Integer, T> AGetItem)
      : TReverseEnumeratorHost<T>([AGetCount = std::move(AGetCount), AGetItem = std::move(AGetItem)] {
          return TRef<IEnumerator<T>>(New<TBasicReverseListEnumerator<T>>(AGetCount, AGetItem));
        }) {}
};

} // namespace Tarvo

#pragma GCC visibility pop
