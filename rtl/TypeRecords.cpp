#include "rtl/TypeRecords.h"

#include "rtl/Module.h"
#include "rtl/SysUtils.h"
#include "rtl/Variant.h"

namespace Tarvo {

namespace {
constexpr std::string_view BooleanNames[] = {"False", "True"};
} // namespace

constinit const TTypeInfo TypeInfo_Integer = OrdinalTypeRecord<Integer>("Integer");
constinit const TTypeInfo TypeInfo_Cardinal = OrdinalTypeRecord<Cardinal>("Cardinal");
constinit const TTypeInfo TypeInfo_ShortInt = OrdinalTypeRecord<ShortInt>("ShortInt");
constinit const TTypeInfo TypeInfo_SmallInt = OrdinalTypeRecord<SmallInt>("SmallInt");
constinit const TTypeInfo TypeInfo_Byte = OrdinalTypeRecord<Byte>("Byte");
constinit const TTypeInfo TypeInfo_Word = OrdinalTypeRecord<Word>("Word");
constinit const TTypeInfo TypeInfo_Int64 = OrdinalTypeRecord<Int64>("Int64");
constinit const TTypeInfo TypeInfo_UInt64 = OrdinalTypeRecord<UInt64>("UInt64", 0, -1);
constinit const TTypeInfo TypeInfo_NativeInt = OrdinalTypeRecord<NativeInt>("NativeInt");
constinit const TTypeInfo TypeInfo_Boolean = EnumTypeRecord<Boolean>("Boolean", BooleanNames);
// Characters are unsigned, whatever the signedness of char.
constinit const TTypeInfo TypeInfo_AnsiChar = OrdinalTypeRecord<std::uint8_t>("AnsiChar", 0, 255, tkChar);
constinit const TTypeInfo TypeInfo_WideChar = OrdinalTypeRecord<WideChar>("WideChar", 0, 65535, tkWChar);
constinit const TTypeInfo TypeInfo_Single = FloatTypeRecord<Single>("Single", ftSingle);
constinit const TTypeInfo TypeInfo_Double = FloatTypeRecord<Double>("Double", ftDouble);
constinit const TTypeInfo TypeInfo_Real = FloatTypeRecord<Real>("Real", ftDouble);
constinit const TTypeInfo TypeInfo_Extended = FloatTypeRecord<Extended>("Extended", ftExtended);
constinit const TTypeInfo TypeInfo_Currency = FloatTypeRecord<Currency>("Currency", ftCurr);
constinit const TTypeInfo TypeInfo_TDateTime = FloatTypeRecord<TDateTime>("TDateTime", ftDouble);
constinit const TTypeInfo TypeInfo_TDate = FloatTypeRecord<TDate>("TDate", ftDouble);
constinit const TTypeInfo TypeInfo_TTime = FloatTypeRecord<TTime>("TTime", ftDouble);
constinit const TTypeInfo TypeInfo_String = StringTypeRecord("string", tkUString);
constinit const TTypeInfo TypeInfo_AnsiString = StringTypeRecord("AnsiString", tkLString);
constinit const TTypeInfo TypeInfo_WideString = StringTypeRecord("WideString", tkWString);
constinit const TTypeInfo TypeInfo_ShortString = StringTypeRecord("ShortString", tkString);
const TTypeInfo TypeInfo_Variant = TypeRecordOfKind<Variant>("Variant", tkVariant);
constinit const TTypeInfo TypeInfo_TClass = TypeRecordOfKind<const TMetaClass*>("TClass", tkClassRef);
constinit const TTypeInfo TypeInfo_Pointer = TypeRecordOfKind<void*>("Pointer", tkPointer);

std::span<const PTypeInfo> BuiltinTypeRecords() {
  static const PTypeInfo records[] = {
      &TypeInfo_Integer,  &TypeInfo_Cardinal,   &TypeInfo_ShortInt,   &TypeInfo_SmallInt,    &TypeInfo_Byte,
      &TypeInfo_Word,     &TypeInfo_Int64,      &TypeInfo_UInt64,     &TypeInfo_NativeInt,   &TypeInfo_Boolean,
      &TypeInfo_AnsiChar, &TypeInfo_WideChar,   &TypeInfo_Single,     &TypeInfo_Double,      &TypeInfo_Real,
      &TypeInfo_Extended, &TypeInfo_Currency,   &TypeInfo_TDateTime,  &TypeInfo_TDate,       &TypeInfo_TTime,
      &TypeInfo_String,   &TypeInfo_AnsiString, &TypeInfo_WideString, &TypeInfo_ShortString, &TypeInfo_Variant,
      &TypeInfo_TClass,   &TypeInfo_Pointer};
  return records;
}

bool TTypeInfo::IsOrdinal() const {
  return Kind == tkInteger || Kind == tkChar || Kind == tkWChar || Kind == tkEnumeration || Kind == tkInt64;
}

Int64 TTypeInfo::OrdinalMin() const {
  if (Kind == tkInt64) return MinInt64Value;
  return IsUnsigned() ? Int64(std::uint32_t(MinValue)) : Int64(MinValue);
}

Int64 TTypeInfo::OrdinalMax() const {
  if (Kind == tkInt64) return MaxInt64Value;
  return IsUnsigned() ? Int64(std::uint32_t(MaxValue)) : Int64(MaxValue);
}

std::string_view TTypeInfo::EnumName(Int64 AOrdinal) const {
  const Int64 index = AOrdinal - MinValue;
  if (Kind != tkEnumeration || index < 0 || index >= Int64(Names.size())) return {};
  return Names[std::size_t(index)];
}

Int64 TTypeInfo::EnumValue(std::string_view AName) const {
  for (std::size_t i = 0; i < Names.size(); ++i)
    if (SameText(Names[i], AName)) return MinValue + Int64(i);
  return -1;
}

// By the address of the name: an executable may hold a copy of a library's record (a copy
// relocation), but the name it points to stays in the module that defined the record.
TModule* TTypeInfo::Module() const { return FindModule(Name); }

} // namespace Tarvo
