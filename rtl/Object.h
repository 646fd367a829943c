#pragma once
#pragma GCC visibility push(default)
// TObject, the root of reflected classes, and its metaclass objects. A class reference (TClass)
// points at the metaclass: name, parent, owning module, and for classes of a hierarchy that
// constructs through a virtual constructor, a typed factory.

#include <memory>
#include <string>
#include <type_traits>

#include "rtl/Export.h"
#include "rtl/Interface.h"
#include "rtl/TypeRecords.h"

namespace Tarvo {

class TModule;
class TObject;
class TMetaClass;
using TClass = const TMetaClass*;

// A hierarchy root names the arguments of its virtual constructor with this:
//   using TConstructor = TConstructorSignature<TComponent*>;
template <class... AArgs> struct TConstructorSignature {};

class TMetaClass {
public:
  using TFactory = void (*)(); // erased; TClassOf restores the hierarchy's signature

  TMetaClass(const char* AName, TClass AParent, TFactory AFactory);
  TMetaClass(const TMetaClass&) = delete;
  TMetaClass& operator=(const TMetaClass&) = delete;

  const char* ClassName() const { return FTypeRecord.Name; }
  TClass ClassParent() const { return FParent; }
  // True for this class and every descendant of AClass.
  bool InheritsFrom(TClass AClass) const;
  TModule* Module() const;
  TFactory Factory() const { return FFactory; }
  // The type record of references to instances of this class (kind tkClass).
  PTypeInfo ClassTypeRecord() const { return &FTypeRecord; }

private:
  TClass FParent;
  TFactory FFactory;
  TTypeInfo FTypeRecord;
};

class TObject {
public:
  using inherited = void;

  TObject() = default;
  TObject(const TObject&) = delete;
  TObject& operator=(const TObject&) = delete;
  virtual ~TObject() = default;

  static TClass ClassInfo();
  virtual TClass ClassType() const { return ClassInfo(); }
  const char* ClassName() const { return ClassType()->ClassName(); }
  bool InheritsFrom(TClass AClass) const { return ClassType()->InheritsFrom(AClass); }
  template <class T> bool Is() const { return InheritsFrom(T::ClassInfo()); }

  // Run after the constructor of the most derived class and before the destructor chain.
  virtual void AfterConstruction() {}
  virtual void BeforeDestruction() {}

  // Interface lookup for objects that implement interfaces; plain objects answer none.
  virtual bool GetInterface(const TGUID& AIID, void** AObj);

  // Ends an object that is not reference-counted; nil is allowed.
  static void Free(TObject* AObject);

  // The root's part in the parent check of TARVO_CLASS.
  template <class ASelf>
    requires(!std::is_same_v<ASelf, TObject>)
  friend TObject* TarvoReflectedBase(TObject*, ASelf*);
};

// Builds a plain object: constructor, then AfterConstruction.
template <class T, class... AArgs> T* Construct(AArgs&&... AArgsList) {
  T* result = new T(std::forward<AArgs>(AArgsList)...);
  try {
    result->AfterConstruction();
  } catch (...) {
    delete result;
    throw;
  }
  return result;
}

// Ends an object through Free, so that BeforeDestruction runs; for owned sub-objects.
struct TFreeObject {
  void operator()(TObject* AObject) const { TObject::Free(AObject); }
};
template <class T> using TOwnedObject = std::unique_ptr<T, TFreeObject>;

// The object behind an interface, when it is one of ours; nil otherwise.
TObject* ObjectOf(IInterface* AIntf);
template <class I> TObject* ObjectOf(const TRef<I>& AIntf) { return ObjectOf(static_cast<IInterface*>(AIntf.get())); }

// Asks an object for an interface.
template <class I> bool Supports(TObject* AObject, TRef<I>& AResult) {
  void* obj = nullptr;
  if (AObject && AObject->GetInterface(I::IID, &obj)) {
    AResult = TRef<I>::Adopt(static_cast<I*>(obj));
    return true;
  }
  AResult = nullptr;
  return false;
}

namespace Detail {
template <class T, class = void> struct THasConstructor : std::false_type {};
template <class T> struct THasConstructor<T, std::void_t<typename T::TConstructor>> : std::true_type {};

template <class T, class... AArgs> TObject* ConstructErased(AArgs... AArgsList) {
  return Construct<T>(std::forward<AArgs>(AArgsList)...);
}
template <class T, class... AArgs> TMetaClass::TFactory FactoryOf(TConstructorSignature<AArgs...>*) {
  if constexpr (std::is_abstract_v<T> || !std::is_constructible_v<T, AArgs...>) return nullptr;
  else return reinterpret_cast<TMetaClass::TFactory>(&ConstructErased<T, AArgs...>);
}
template <class T> TMetaClass::TFactory FactoryFor() {
  if constexpr (THasConstructor<T>::value) return FactoryOf<T>(static_cast<typename T::TConstructor*>(nullptr));
  else return nullptr;
}
template <class... AArgs> using TErasedConstructor = TObject* (*)(AArgs...);
template <class TSig> struct TFactoryCall;
template <class... AArgs> struct TFactoryCall<TConstructorSignature<AArgs...>> {
  static TObject* Call(TMetaClass::TFactory AFactory, AArgs... AArgsList) {
    return reinterpret_cast<TErasedConstructor<AArgs...>>(AFactory)(std::forward<AArgs>(AArgsList)...);
  }
};
[[noreturn]] void RaiseAbstractClass(TClass AClass);
[[noreturn]] void RaiseClassMismatch(TClass AClass, TClass ABase);
} // namespace Detail

// A class reference limited to TBase and its descendants ("class of TBase").
template <class TBase> class TClassOf {
public:
  TClassOf() = default;
  TClassOf(std::nullptr_t) {}
  TClassOf(TClass AClass) : FClass(AClass) {
    if (AClass && !AClass->InheritsFrom(TBase::ClassInfo())) Detail::RaiseClassMismatch(AClass, TBase::ClassInfo());
  }
  template <class T> static TClassOf Of() { return TClassOf(T::ClassInfo()); }

  TClass get() const { return FClass; }
  operator TClass() const { return FClass; }
  const TMetaClass* operator->() const { return FClass; }
  explicit operator bool() const { return FClass != nullptr; }

  // The virtual constructor: builds an instance of the referenced class.
  template <class... AArgs> TBase* Create(AArgs&&... AArgsList) const {
    if (!FClass->Factory()) Detail::RaiseAbstractClass(FClass);
    TObject* instance =
        Detail::TFactoryCall<typename TBase::TConstructor>::Call(FClass->Factory(), std::forward<AArgs>(AArgsList)...);
    return static_cast<TBase*>(instance);
  }

private:
  TClass FClass = nullptr;
};

// References to instances of a reflected class have the class's own record.
template <class T>
  requires std::is_base_of_v<TObject, T>
struct TTypeRecordOf<T*> {
  static PTypeInfo Get() { return T::ClassInfo()->ClassTypeRecord(); }
};

// Puts a class into the class registry of its module, so that it can be found by name.
struct TClassRegistration {
  explicit TClassRegistration(TClass AClass);
};

// Finds a registered class by name (case-insensitive); nil when none.
TClass FindClass(const std::string& AName);

} // namespace Tarvo

#define TARVO_CONCAT_(A, B) A##B
#define TARVO_CONCAT(A, B) TARVO_CONCAT_(A, B)

namespace Tarvo::Detail {
// Every reflected class declares, as a hidden friend, one overload of TarvoReflectedBase for
// itself. Overload resolution on a pointer to a class then picks its nearest reflected ancestor
// (the class itself is left out through ASelf), and on a pointer to a parent, the parent or its
// nearest reflected ancestor. The two agree exactly when the parent a class names is its direct
// base, or a helper between them such as TImplements<...>.
template <class AClass, class AParent>
concept CNamesDirectParent =
    std::is_same_v<decltype(TarvoReflectedBase(static_cast<AClass*>(nullptr), static_cast<AClass*>(nullptr))),
                   decltype(TarvoReflectedBase(static_cast<AParent*>(nullptr), static_cast<void*>(nullptr)))>;
} // namespace Tarvo::Detail

// Inside a class body: makes the class a reflected class with its own metaclass. The parent is the
// direct base, so that inherited:: calls reach it (it may be a TImplements<...>, commas and all).
// A class name or a parent that does not match the C++ class does not compile.
#define TARVO_CLASS(AClass, ...)                                                                                       \
public:                                                                                                                \
  using inherited = __VA_ARGS__;                                                                                       \
  static constexpr const char* TarvoClassName = #AClass;                                                               \
  static ::Tarvo::TClass ClassInfo();                                                                                  \
  ::Tarvo::TClass ClassType() const override { return ClassInfo(); }                                                   \
  template <class ASelf>                                                                                               \
    requires(!std::is_same_v<ASelf, AClass>)                                                                           \
  friend AClass* TarvoReflectedBase(AClass*, ASelf*);                                                                  \
                                                                                                                       \
private:                                                                                                               \
  void TarvoCheckClass() const {                                                                                       \
    static_assert(std::is_same_v<std::remove_cvref_t<decltype(*this)>, AClass>,                                        \
                  "TARVO_CLASS(" #AClass ", ...) stands in another class's body");                                     \
    static_assert(::Tarvo::Detail::CNamesDirectParent<AClass, inherited>,                                              \
                  "TARVO_CLASS(" #AClass ", " #__VA_ARGS__ "): the parent is not the class's direct base");            \
  }                                                                                                                    \
                                                                                                                       \
public:

// In the class's source file: defines the metaclass and registers the class. The class may be
// named with its namespace (TARVO_IMPLEMENT_CLASS(Acme::TThermostat)).
#define TARVO_IMPLEMENT_CLASS(...)                                                                                     \
  ::Tarvo::TClass __VA_ARGS__::ClassInfo() {                                                                           \
    static const ::Tarvo::TMetaClass LMetaClass(__VA_ARGS__::TarvoClassName, __VA_ARGS__::inherited::ClassInfo(),      \
                                                ::Tarvo::Detail::FactoryFor<__VA_ARGS__>());                           \
    return &LMetaClass;                                                                                                \
  }                                                                                                                    \
  static const ::Tarvo::TClassRegistration TARVO_CONCAT(TarvoClassRegistration, __COUNTER__)(__VA_ARGS__::ClassInfo());

#pragma GCC visibility pop
