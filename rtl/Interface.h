#pragma once
#pragma GCC visibility push(default)
// Reference-counted interfaces. An interface is an abstract class with a static IID that derives
// virtually from its parent interface; implementations derive virtually from the interfaces they
// implement, so one final overrider serves every path to an operation. References are held by
// TRef, which releases by scope; nobody deletes a reference-counted object.

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <type_traits>
#include <utility>

#include "rtl/Guid.h"

namespace Tarvo {

using HRESULT = std::int32_t;
inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002u);

// Declares the identity of an interface: its name, its IID and its parent. The parent comes last
// so that a template parent may hold commas: TARVO_INTERFACE(IDictionary, AGuid, IPairs<K, V>).
#define TARVO_INTERFACE(AName, AGuid, ...)                                                                             \
public:                                                                                                                \
  static constexpr ::Tarvo::TGUID IID = ::Tarvo::TGUID::Parse(AGuid);                                                  \
  using TParentInterface = __VA_ARGS__;                                                                                \
  static constexpr const char* InterfaceName = #AName;

class IInterface {
public:
  static constexpr TGUID IID = TGUID::Parse("{00000000-0000-0000-C000-000000000046}");
  using TParentInterface = void;
  static constexpr const char* InterfaceName = "IInterface";

  virtual HRESULT QueryInterface(const TGUID& AIID, void** AObj) = 0;
  virtual int _AddRef() = 0;
  virtual int _Release() = 0;

protected:
  // Objects die through _Release, never through an interface pointer.
  ~IInterface() = default;
};

// Asked of an object through QueryInterface, answers the TObject behind an interface.
inline constexpr TGUID ObjCastGUID = TGUID::Parse("{CEDF24DE-80A4-447D-8C75-EB871DC121FD}");

template <class I> class TRef {
public:
  using element_type = I;

  TRef() noexcept = default;
  TRef(std::nullptr_t) noexcept {}
  TRef(I* APtr) noexcept : FPtr(APtr) { AddRef(); }
  TRef(const TRef& AOther) noexcept : FPtr(AOther.FPtr) { AddRef(); }
  TRef(TRef&& AOther) noexcept : FPtr(std::exchange(AOther.FPtr, nullptr)) {}
  template <class J>
    requires std::is_convertible_v<J*, I*> TRef(const TRef<J>& AOther)
  noexcept : FPtr(AOther.get()) { AddRef(); }
  template <class J>
    requires std::is_convertible_v<J*, I*> TRef(TRef<J>&& AOther)
  noexcept : FPtr(AOther.Detach()) {}
  ~TRef() { Release(); }

  TRef& operator=(TRef AOther) noexcept {
    std::swap(FPtr, AOther.FPtr);
    return *this;
  }

  I* get() const noexcept { return FPtr; }
  I* operator->() const noexcept { return FPtr; }
  I& operator*() const noexcept { return *FPtr; }
  explicit operator bool() const noexcept { return FPtr != nullptr; }

  // Hands the reference over without releasing it.
  I* Detach() noexcept { return std::exchange(FPtr, nullptr); }
  // Takes over a reference that was counted already.
  static TRef Adopt(I* APtr) noexcept {
    TRef r;
    r.FPtr = APtr;
    return r;
  }
  void reset() noexcept { TRef().swap(*this); }
  void swap(TRef& AOther) noexcept { std::swap(FPtr, AOther.FPtr); }

private:
  void AddRef() const noexcept {
    if (FPtr) FPtr->_AddRef();
  }
  void Release() noexcept {
    if (FPtr) std::exchange(FPtr, nullptr)->_Release();
  }

  I* FPtr = nullptr;
};

// The identity of the object behind an interface: its single IInterface subobject.
template <class I>
  requires std::is_convertible_v<I*, const IInterface*>
inline const IInterface* InterfaceIdentity(I* APtr) noexcept {
  return APtr ? static_cast<const IInterface*>(APtr) : nullptr;
}

template <class I, class J> bool operator==(const TRef<I>& A, const TRef<J>& B) noexcept {
  return InterfaceIdentity(A.get()) == InterfaceIdentity(B.get());
}
template <class I> bool operator==(const TRef<I>& A, std::nullptr_t) noexcept { return !A; }

// Asks AInstance for I; false (and AResult nil) when it does not answer.
template <class I, class J> bool Supports(J* AInstance, TRef<I>& AResult) {
  void* obj = nullptr;
  if (AInstance && AInstance->QueryInterface(I::IID, &obj) == S_OK) {
    AResult = TRef<I>::Adopt(static_cast<I*>(obj));
    return true;
  }
  AResult = nullptr;
  return false;
}
template <class I, class J> bool Supports(const TRef<J>& AInstance, TRef<I>& AResult) {
  return Supports<I>(AInstance.get(), AResult);
}
template <class I, class J> bool Supports(const TRef<J>& AInstance) {
  TRef<I> unused;
  return Supports<I>(AInstance.get(), unused);
}
// The reference as I, or nil.
template <class I, class J> TRef<I> QueryAs(const TRef<J>& AInstance) {
  TRef<I> result;
  Supports<I>(AInstance.get(), result);
  return result;
}

namespace Detail {
// An interface with the empty GUID has no identity that a query could ask for; it is skipped.
template <class I, class TSelf> bool QueryChain(TSelf* ASelf, const TGUID& AIID, void** AObj) {
  if (!I::IID.IsEmpty() && AIID == I::IID) {
    *AObj = static_cast<I*>(ASelf);
    return true;
  }
  if constexpr (std::is_void_v<typename I::TParentInterface>) return false;
  else return QueryChain<typename I::TParentInterface>(ASelf, AIID, AObj);
}
} // namespace Detail

// Answers AIID when it names one of AInterfaces or one of their ancestors; counts the reference.
template <class... AInterfaces, class TSelf> bool QueryInterfaces(TSelf* ASelf, const TGUID& AIID, void** AObj) {
  if ((Detail::QueryChain<AInterfaces>(ASelf, AIID, AObj) || ...)) {
    ASelf->_AddRef();
    return true;
  }
  return false;
}

} // namespace Tarvo

template <class I> struct std::hash<Tarvo::TRef<I>> {
  std::size_t operator()(const Tarvo::TRef<I>& ARef) const noexcept {
    return std::hash<const void*>()(Tarvo::InterfaceIdentity(ARef.get()));
  }
};

#pragma GCC visibility pop
