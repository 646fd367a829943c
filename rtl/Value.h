#pragma once
#pragma GCC visibility push(default)
// TValue: the tagged value between reflection and editors. A type record and the data of any
// type, or nothing. Small plain data lives inline; anything else lives in a shared, immutable
// box, so copying a value never copies a string.

#include <cstring>
#include <type_traits>

#include "rtl/InterfacedObject.h"
#include "rtl/TypeRecords.h"

namespace Tarvo {

class Variant;

template <class T> struct TIsInterfaceRef : std::false_type {};
template <class I> struct TIsInterfaceRef<TRef<I>> : std::true_type {};

// Interface references have records of kind tkInterface that carry the IID; every interface
// value is held as a TRef<IInterface>, whatever interface it was made from.
template <class I> struct TTypeRecordOf<TRef<I>> {
  static PTypeInfo Get() {
    static const TTypeInfo record = [] {
      TTypeInfo r = TypeRecordOfKind<TRef<IInterface>>(I::InterfaceName, tkInterface);
      r.Guid = I::IID;
      if constexpr (!std::is_void_v<typename I::TParentInterface>)
        r.IntfParent = TypeInfo<TRef<typename I::TParentInterface>>();
      return r;
    }();
    return &record;
  }
};

class TValue {
public:
  TValue() noexcept = default;
  TValue(const TValue& AOther) noexcept;
  TValue(TValue&& AOther) noexcept;
  TValue& operator=(const TValue& AOther) noexcept;
  TValue& operator=(TValue&& AOther) noexcept;
  ~TValue();

  // Implicit builds from the common forms.
  TValue(TObject* AObject);
  TValue(const String& AText);
  TValue(const char* AText);
  TValue(Boolean AValue);
  TValue(Integer AValue);
  TValue(Int64 AValue);
  TValue(Double AValue);
  TValue(Extended AValue);

  static TValue GetEmpty() { return TValue(); }
  // Builds a value of ATypeInfo from raw data of that type's representation.
  static void Make(const void* AData, PTypeInfo ATypeInfo, TValue& AResult);
  static TValue Make(const void* AData, PTypeInfo ATypeInfo);
  // A value of the default record of T, or of a named record that T represents.
  template <class T> static TValue From(const T& AValue, PTypeInfo ATypeInfo = TypeInfo<T>()) {
    static_assert(!std::is_same_v<T, TValue>);
    if constexpr (TIsInterfaceRef<T>::value) return FromInterface(AValue, ATypeInfo);
    else return Make(&AValue, ATypeInfo);
  }
  // A value of an interface type; the record carries the interface's identifier.
  template <class I> static TValue FromInterface(const TRef<I>& AIntf, PTypeInfo ATypeInfo) {
    TRef<IInterface> intf = AIntf;
    return Make(&intf, ATypeInfo);
  }

  bool IsEmpty() const { return FTypeInfo == nullptr; }
  PTypeInfo GetTypeInfo() const { return FTypeInfo; }
  TTypeKind GetTypeKind() const { return FTypeInfo ? FTypeInfo->Kind : tkUnknown; }
  std::size_t GetDataSize() const { return FTypeInfo ? FTypeInfo->DataSize() : 0; }

  // The data in the representation of the value's type.
  const void* GetReferenceToRawData() const { return FBox ? BoxData() : FInline; }
  // Copies the data into ADest as a new object of the type (ADest holds no live object).
  void ExtractRawData(void* ADest) const;
  // Copies the bytes only; for plain data such as set bits.
  void ExtractRawDataNoCopy(void* ADest) const;

  bool IsObject() const { return GetTypeKind() == tkClass; }
  bool IsOrdinal() const { return FTypeInfo && FTypeInfo->IsOrdinal(); }
  bool IsInterface() const { return GetTypeKind() == tkInterface; }

  TObject* AsObject() const;
  TRef<IInterface> AsInterface() const;
  TClass AsClass() const;
  Boolean AsBoolean() const;
  Integer AsInteger() const;
  Int64 AsOrdinal() const;
  Int64 AsInt64() const { return AsOrdinal(); }
  UInt64 AsUInt64() const;
  Extended AsExtended() const;
  Currency AsCurrency() const;
  String AsString() const;
  Variant AsVariant() const;
  // Reads as T, converting through TryCast when the value's type is not T's own.
  template <class T> T AsType() const {
    T result{};
    if (!TryAsType(result)) RaiseInvalidCast(TypeInfo<T>());
    return result;
  }
  template <class T> bool TryAsType(T& AResult) const {
    if (IsEmpty()) {
      AResult = T{};
      return true;
    }
    TValue cast;
    if (!TryCast(TypeInfo<T>(), cast)) return false;
    if constexpr (TIsInterfaceRef<T>::value) AResult = QueryAs<typename T::element_type>(cast.AsInterface());
    else AResult = *static_cast<const T*>(cast.GetReferenceToRawData());
    return true;
  }

  // The value's text; the empty value gives the empty string.
  String ToString() const;

  // Conversion to ATypeInfo that reports failure by false. The empty value converts to the
  // default of any type when AEmptyAsAnyType is true.
  bool TryCast(PTypeInfo ATypeInfo, TValue& AResult, bool AEmptyAsAnyType = true) const;
  TValue Cast(PTypeInfo ATypeInfo) const; // raises EInvalidCast

  // Parses AText into the value's own type, which it keeps: false when the text does not fit.
  // Raises EConvertError for types that have no text form (objects, interfaces, records).
  bool FromString(const String& AText);
  // Any ordinal, a set of up to 8 bytes, or a reference, read as a 64-bit integer.
  Int64 AnyToInt64() const;

private:
  struct TBox;
  [[noreturn]] void RaiseInvalidCast(PTypeInfo ATarget) const;
  const void* BoxData() const;
  bool ReadOrdinal(Int64& AResult) const;
  bool ReadFloat(Extended& AResult) const;
  bool ReadText(String& AResult) const;
  void Reset() noexcept;

  alignas(16) unsigned char FInline[16]{};
  PTypeInfo FTypeInfo = nullptr;
  TBox* FBox = nullptr;
};

} // namespace Tarvo

#pragma GCC visibility pop
