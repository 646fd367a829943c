#pragma once
#pragma GCC visibility push(default)
// Run-time type records: static, unique per type. Named types that share a C++ representation
// (TColor and Integer, TDate and Double) have records of their own. Ordinal records carry their
// declared limits as 32-bit fields, as the classic layout does: a Cardinal's maximum reads -1.

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "rtl/Guid.h"
#include "rtl/Types.h"

namespace Tarvo {

class TMetaClass;
class TModule;
class Variant;

enum TTypeKind : std::uint8_t {
  tkUnknown,
  tkInteger,
  tkChar,
  tkEnumeration,
  tkFloat,
  tkString,
  tkSet,
  tkClass,
  tkMethod,
  tkWChar,
  tkLString,
  tkWString,
  tkVariant,
  tkArray,
  tkRecord,
  tkInterface,
  tkInt64,
  tkDynArray,
  tkUString,
  tkClassRef,
  tkPointer,
  tkProcedure
};

// Width and signedness of an ordinal; the two 64-bit forms belong to tkInt64.
enum TOrdType : std::uint8_t { otSByte, otUByte, otSWord, otUWord, otSLong, otULong, otSQWord, otUQWord };
enum TFloatType : std::uint8_t { ftSingle, ftDouble, ftExtended, ftComp, ftCurr };

// How values of a type are copied and destroyed where they are held as raw storage.
struct TTypeOps {
  std::size_t Size;
  std::size_t Align;
  bool Trivial;
  void (*Construct)(void* AData);
  void (*CopyConstruct)(void* ADest, const void* ASource);
  void (*Destroy)(void* AData);
};

template <class T>
inline constexpr TTypeOps TypeOpsOf{
    sizeof(T),
    alignof(T),
    std::is_trivially_copyable_v<T>,
    [](void* AData) { ::new (AData) T(); },
    [](void* ADest, const void* ASource) { ::new (ADest) T(*static_cast<const T*>(ASource)); },
    [](void* AData) { static_cast<T*>(AData)->~T(); },
};

struct TTypeInfo;
using PTypeInfo = const TTypeInfo*;

struct TTypeInfo {
  TTypeKind Kind = tkUnknown;
  const char* Name = "";
  const TTypeOps* Ops = nullptr;
  // Ordinals, characters, enumerations.
  TOrdType OrdType = otSLong;
  Integer MinValue = 0;
  Integer MaxValue = 0;
  // tkInt64.
  Int64 MinInt64Value = 0;
  Int64 MaxInt64Value = 0;
  // Enumerations: the names in ordinal order, starting at MinValue.
  std::span<const std::string_view> Names;
  // Sets: the element type.
  PTypeInfo CompType = nullptr;
  // Floats.
  TFloatType FloatType = ftDouble;
  // Classes (tkClass) and class references (tkClassRef).
  const TMetaClass* ClassType = nullptr;
  // Interfaces.
  TGUID Guid{};
  PTypeInfo IntfParent = nullptr;
  // Method pointers (tkMethod): whether a handler is assigned.
  bool (*IsAssigned)(const void* AData) = nullptr;

  std::size_t DataSize() const { return Ops ? Ops->Size : 0; }
  bool IsOrdinal() const;
  bool IsUnsigned() const {
    return OrdType == otUByte || OrdType == otUWord || OrdType == otULong || OrdType == otUQWord;
  }
  // The declared limits widened to 64 bits with their signedness honoured.
  Int64 OrdinalMin() const;
  Int64 OrdinalMax() const; // for unsigned 64-bit types the bit pattern of the maximum
  // The name of an enumeration value, or empty when the ordinal lies outside.
  std::string_view EnumName(Int64 AOrdinal) const;
  // The ordinal of an enumeration name (case-insensitive), or -1.
  Int64 EnumValue(std::string_view AName) const;
  bool IsString() const { return Kind == tkString || Kind == tkLString || Kind == tkWString || Kind == tkUString; }
  TModule* Module() const;
};

// ---- Builders of records; constexpr so that records can be constant-initialised ----

template <class T> constexpr TOrdType OrdTypeOf() {
  constexpr bool s = std::is_signed_v<T>;
  if constexpr (sizeof(T) == 1) return s ? otSByte : otUByte;
  else if constexpr (sizeof(T) == 2) return s ? otSWord : otUWord;
  else if constexpr (sizeof(T) == 4) return s ? otSLong : otULong;
  else return s ? otSQWord : otUQWord;
}

// A record of the given kind over the representation T; the other builders start from it.
template <class T> constexpr TTypeInfo TypeRecordOfKind(const char* AName, TTypeKind AKind) {
  TTypeInfo r;
  r.Kind = AKind;
  r.Name = AName;
  r.Ops = &TypeOpsOf<T>;
  return r;
}

// An integer type (or a sub-range of one) with the representation T.
template <class T>
constexpr TTypeInfo OrdinalTypeRecord(const char* AName, Int64 AMin = std::numeric_limits<T>::min(),
                                      Int64 AMax = static_cast<Int64>(std::numeric_limits<T>::max()),
                                      TTypeKind AKind = sizeof(T) == 8 ? tkInt64 : tkInteger) {
  TTypeInfo r = TypeRecordOfKind<T>(AName, AKind);
  r.OrdType = OrdTypeOf<T>();
  if (AKind == tkInt64) {
    r.MinInt64Value = AMin;
    r.MaxInt64Value = AMax;
    r.MinValue = static_cast<Integer>(AMin);
    r.MaxValue = static_cast<Integer>(AMax);
  } else {
    r.MinValue = static_cast<Integer>(static_cast<std::uint32_t>(AMin));
    r.MaxValue = static_cast<Integer>(static_cast<std::uint32_t>(AMax));
  }
  return r;
}

template <class T> constexpr TTypeInfo FloatTypeRecord(const char* AName, TFloatType AFloatType) {
  TTypeInfo r = TypeRecordOfKind<T>(AName, tkFloat);
  r.FloatType = AFloatType;
  return r;
}

constexpr TTypeInfo StringTypeRecord(const char* AName, TTypeKind AKind) {
  return TypeRecordOfKind<String>(AName, AKind);
}

template <class E> constexpr TTypeInfo EnumTypeRecord(const char* AName, std::span<const std::string_view> ANames) {
  TTypeInfo r = TypeRecordOfKind<E>(AName, tkEnumeration);
  if constexpr (std::is_enum_v<E>) r.OrdType = OrdTypeOf<std::underlying_type_t<E>>();
  else r.OrdType = OrdTypeOf<E>();
  r.MinValue = 0;
  r.MaxValue = static_cast<Integer>(ANames.size()) - 1;
  r.Names = ANames;
  return r;
}

template <class S> constexpr TTypeInfo SetTypeRecord(const char* AName, PTypeInfo AElementType) {
  TTypeInfo r = TypeRecordOfKind<S>(AName, tkSet);
  r.OrdType = sizeof(S) == 1 ? otUByte : sizeof(S) == 2 ? otUWord : otULong;
  r.CompType = AElementType;
  return r;
}

// Splits the text of an enumerator list ("alNone, alTop") into names at compile time.
consteval std::size_t CountEnumNames(std::string_view AText) {
  std::size_t n = 1;
  for (char c : AText) n += c == ',';
  return n;
}
template <std::size_t N> consteval std::array<std::string_view, N> SplitEnumNames(std::string_view AText) {
  std::array<std::string_view, N> names{};
  std::size_t index = 0;
  while (index < N) {
    const std::size_t comma = AText.find(',');
    std::string_view part = AText.substr(0, comma);
    while (!part.empty() && part.front() == ' ') part.remove_prefix(1);
    while (!part.empty() && part.back() == ' ') part.remove_suffix(1);
    names[index++] = part;
    if (comma == std::string_view::npos) break;
    AText.remove_prefix(comma + 1);
  }
  return names;
}

// ---- From a C++ type to its record ----

// The record of a C++ type. Built-in types are specialised here; every other type names its
// record through a function TarvoTypeRecord(T*) in its own namespace, found by argument-dependent
// lookup, so that types of any namespace (a component module's own) can have records.
template <class T> struct TTypeRecordOf;
template <class T>
  requires requires(T* AType) {
    { TarvoTypeRecord(AType) } -> std::same_as<PTypeInfo>;
  }
struct TTypeRecordOf<T> {
  static PTypeInfo Get() { return TarvoTypeRecord(static_cast<T*>(nullptr)); }
};
template <class T> PTypeInfo TypeInfo() { return TTypeRecordOf<std::remove_cvref_t<T>>::Get(); }

// Declares the record of a class or enumeration type; use in the type's own namespace.
#define TARVO_DECLARE_TYPE_RECORD(AType, ARecord)                                                                      \
  extern const ::Tarvo::TTypeInfo ARecord;                                                                             \
  inline ::Tarvo::PTypeInfo TarvoTypeRecord(AType*) { return &ARecord; }

#define TARVO_BUILTIN_TYPE_RECORD(AType, ARecord)                                                                      \
  extern const ::Tarvo::TTypeInfo ARecord;                                                                             \
  template <> struct TTypeRecordOf<AType> {                                                                            \
    static ::Tarvo::PTypeInfo Get() { return &ARecord; }                                                               \
  };

// Built-in records. Records of named types without a C++ type of their own are reached by name.
TARVO_BUILTIN_TYPE_RECORD(Integer, TypeInfo_Integer)
TARVO_BUILTIN_TYPE_RECORD(Cardinal, TypeInfo_Cardinal)
TARVO_BUILTIN_TYPE_RECORD(ShortInt, TypeInfo_ShortInt)
TARVO_BUILTIN_TYPE_RECORD(SmallInt, TypeInfo_SmallInt)
TARVO_BUILTIN_TYPE_RECORD(Byte, TypeInfo_Byte)
TARVO_BUILTIN_TYPE_RECORD(Word, TypeInfo_Word)
TARVO_BUILTIN_TYPE_RECORD(Int64, TypeInfo_Int64)
TARVO_BUILTIN_TYPE_RECORD(UInt64, TypeInfo_UInt64)
TARVO_BUILTIN_TYPE_RECORD(Boolean, TypeInfo_Boolean)
TARVO_BUILTIN_TYPE_RECORD(AnsiChar, TypeInfo_AnsiChar)
TARVO_BUILTIN_TYPE_RECORD(WideChar, TypeInfo_WideChar)
TARVO_BUILTIN_TYPE_RECORD(Single, TypeInfo_Single)
TARVO_BUILTIN_TYPE_RECORD(Double, TypeInfo_Double)
TARVO_BUILTIN_TYPE_RECORD(Extended, TypeInfo_Extended)
TARVO_BUILTIN_TYPE_RECORD(Currency, TypeInfo_Currency)
TARVO_BUILTIN_TYPE_RECORD(String, TypeInfo_String)
TARVO_BUILTIN_TYPE_RECORD(Variant, TypeInfo_Variant)
TARVO_BUILTIN_TYPE_RECORD(const TMetaClass*, TypeInfo_TClass)
TARVO_BUILTIN_TYPE_RECORD(void*, TypeInfo_Pointer)
extern const TTypeInfo TypeInfo_NativeInt; // same C++ type as Int64 here
extern const TTypeInfo TypeInfo_Real;
extern const TTypeInfo TypeInfo_TDateTime;
extern const TTypeInfo TypeInfo_TDate;
extern const TTypeInfo TypeInfo_TTime;
extern const TTypeInfo TypeInfo_AnsiString;
extern const TTypeInfo TypeInfo_WideString;
extern const TTypeInfo TypeInfo_ShortString;

// Every built-in record, for lookups by name.
std::span<const PTypeInfo> BuiltinTypeRecords();

// ---- Enumerations and sets declared by the program ----

namespace Detail {
// The names of TARVO_ENUM must be plain identifiers: no initialiser, none left empty.
consteval bool IsPlainEnumList(std::string_view AText) {
  std::size_t start = 0;
  while (true) {
    const std::size_t comma = AText.find(',', start);
    std::string_view part = AText.substr(start, comma == std::string_view::npos ? AText.npos : comma - start);
    while (!part.empty() && (part.front() == ' ' || part.front() == '\n')) part.remove_prefix(1);
    while (!part.empty() && (part.back() == ' ' || part.back() == '\n')) part.remove_suffix(1);
    if (part.empty() || (part.front() >= '0' && part.front() <= '9')) return false;
    for (char c : part)
      if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_')) return false;
    if (comma == std::string_view::npos) return true;
    start = comma + 1;
  }
}
} // namespace Detail

// The number of values of an enumeration declared with TARVO_ENUM.
template <class E> struct TEnumTraits {
  static constexpr std::size_t Count = TarvoEnumCount(static_cast<E*>(nullptr));
};

// Declares an enumeration with its record, in any namespace: TARVO_ENUM(TAlign, alNone, alTop).
// The values are contiguous from 0 and their names are the identifiers as written; an
// initialiser or an empty name does not compile.
#define TARVO_ENUM(AName, ...)                                                                                         \
  enum AName : ::Tarvo::Byte { __VA_ARGS__ };                                                                          \
  static_assert(::Tarvo::Detail::IsPlainEnumList(#__VA_ARGS__),                                                        \
                "TARVO_ENUM(" #AName ", ...) takes plain names: no '=' initialiser, no empty name");                   \
  inline constexpr auto AName##_Names = ::Tarvo::SplitEnumNames<::Tarvo::CountEnumNames(#__VA_ARGS__)>(#__VA_ARGS__);  \
  constexpr std::size_t TarvoEnumCount(AName*) { return AName##_Names.size(); }                                        \
  TARVO_DECLARE_TYPE_RECORD(AName, TypeInfo_##AName)

// In one source file, in the enumeration's namespace: defines the record of an enumeration
// declared with TARVO_ENUM.
#define TARVO_IMPLEMENT_ENUM(AName)                                                                                    \
  constinit const ::Tarvo::TTypeInfo TypeInfo_##AName = ::Tarvo::EnumTypeRecord<AName>(#AName, AName##_Names);

} // namespace Tarvo

#pragma GCC visibility pop
