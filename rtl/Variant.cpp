#include "rtl/Variant.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "rtl/DateUtils.h"
#include "rtl/Exceptions.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {

enum class TVarClass { Empty, Null, Ordinal, Boolean, Float, Currency, Date, Text, Pointer, Other };

struct TVarTypeRecord {
  TVarType Code;
  const char* Name;
  TVarClass Class;
  Int64 Min = 0; // ordinals only
  UInt64 Max = 0;
};

template <class T> constexpr TVarTypeRecord OrdinalRecord(TVarType ACode, const char* AName) {
  return {ACode, AName, TVarClass::Ordinal, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
}

constexpr TVarTypeRecord VarTypes[] = {
    {varEmpty, "Empty", TVarClass::Empty},
    {varNull, "Null", TVarClass::Null},
    OrdinalRecord<SmallInt>(varSmallint, "Smallint"),
    OrdinalRecord<Integer>(varInteger, "Integer"),
    {varSingle, "Single", TVarClass::Float},
    {varDouble, "Double", TVarClass::Float},
    {varCurrency, "Currency", TVarClass::Currency},
    {varDate, "Date", TVarClass::Date},
    {varOleStr, "OleStr", TVarClass::Text},
    {varDispatch, "Dispatch", TVarClass::Pointer},
    {varError, "Error", TVarClass::Other},
    {varBoolean, "Boolean", TVarClass::Boolean},
    {varVariant, "Variant", TVarClass::Other},
    {varUnknown, "Unknown", TVarClass::Pointer},
    OrdinalRecord<ShortInt>(varShortInt, "ShortInt"),
    OrdinalRecord<Byte>(varByte, "Byte"),
    OrdinalRecord<Word>(varWord, "Word"),
    OrdinalRecord<Cardinal>(varLongWord, "LongWord"),
    OrdinalRecord<Int64>(varInt64, "Int64"),
    OrdinalRecord<UInt64>(varUInt64, "UInt64"),
    {varString, "String", TVarClass::Text},
    {varUString, "UnicodeString", TVarClass::Text},
};

const TVarTypeRecord* FindVarType(TVarType ACode) {
  const auto* found = std::find_if(std::begin(VarTypes), std::end(VarTypes),
                                   [ACode](const TVarTypeRecord& r) { return r.Code == ACode; });
  return found == std::end(VarTypes) ? nullptr : found;
}

[[noreturn]] void RaiseCast(TVarType AFrom, TVarType ATo) {
  throw EVariantTypeCastError("Could not convert variant of type (" + VarTypeAsText(AFrom) + ") into type (" +
                              VarTypeAsText(ATo) + ")");
}

[[noreturn]] void RaiseOverflow(TVarType AFrom, TVarType ATo) {
  throw EVariantTypeCastError("Overflow while converting variant of type (" + VarTypeAsText(AFrom) + ") into type (" +
                              VarTypeAsText(ATo) + ")");
}

// An integer of either signedness: Value holds the bits of an unsigned 64-bit number when Unsigned.
struct TWideInt {
  Int64 Value = 0;
  bool Unsigned = false;

  bool FitsIn(const TVarTypeRecord& ARecord) const {
    if (Unsigned && Value < 0) return UInt64(Value) <= ARecord.Max;
    return Value >= ARecord.Min && (Value < 0 || UInt64(Value) <= ARecord.Max);
  }
};

constexpr Extended TwoPow63 = 9223372036854775808.0L;

} // namespace

// Reads a variant's data and converts it to the intermediate form of each target class.
class TVariantConverter {
public:
  static Variant Make(TVarType AVarType, Variant::TData AData) { return Variant(AVarType, std::move(AData)); }
  static Int64 Ordinal(const Variant& AValue) { return std::get<Int64>(AValue.FData); }
  static Double Float(const Variant& AValue) { return std::get<Double>(AValue.FData); }
  static void* Pointer(const Variant& AValue) { return std::get<void*>(AValue.FData); }
  static const String& Text(const Variant& AValue) { return std::get<String>(AValue.FData); }

  static TVarClass ClassOf(const Variant& AValue) {
    const TVarTypeRecord* record = FindVarType(AValue.VarType());
    return record ? record->Class : TVarClass::Other;
  }

  static TWideInt ToWideInt(const Variant& AValue, TVarType ATarget) {
    const TVarType source = AValue.VarType();
    switch (ClassOf(AValue)) {
    case TVarClass::Empty:
      return {};
    case TVarClass::Ordinal:
      return {Ordinal(AValue), source == varUInt64};
    case TVarClass::Boolean:
      return {Ordinal(AValue) ? -1 : 0};
    case TVarClass::Currency:
      return {Int64(std::nearbyint(Extended(Ordinal(AValue)) / Currency::Scale))};
    case TVarClass::Float:
    case TVarClass::Date:
      return Rounded(Float(AValue), source, ATarget);
    case TVarClass::Text: {
      const String& text = Text(AValue);
      Int64 signedValue = 0;
      UInt64 unsignedValue = 0;
      Extended floatValue = 0;
      // An unsigned target reads hex bit patterns as unsigned, any other target as signed.
      const bool preferUnsigned = ATarget == varUInt64;
      if (preferUnsigned && TryStrToUInt64(text, unsignedValue)) return {Int64(unsignedValue), true};
      if (TryStrToInt64(text, signedValue)) return {signedValue};
      if (TryStrToUInt64(text, unsignedValue)) return {Int64(unsignedValue), true};
      if (TryStrToFloat(text, floatValue)) return Rounded(floatValue, source, ATarget);
      break;
    }
    default:
      break;
    }
    RaiseCast(source, ATarget);
  }

  static Extended ToFloat(const Variant& AValue, TVarType ATarget) {
    switch (ClassOf(AValue)) {
    case TVarClass::Empty:
      return 0;
    case TVarClass::Ordinal:
      return AValue.VarType() == varUInt64 ? Extended(UInt64(Ordinal(AValue))) : Extended(Ordinal(AValue));
    case TVarClass::Boolean:
      return Ordinal(AValue) ? -1 : 0;
    case TVarClass::Currency:
      return Extended(Ordinal(AValue)) / Currency::Scale;
    case TVarClass::Float:
    case TVarClass::Date:
      return Float(AValue);
    case TVarClass::Text: {
      Extended result = 0;
      if (TryStrToFloat(Text(AValue), result)) return result;
      break;
    }
    default:
      break;
    }
    RaiseCast(AValue.VarType(), ATarget);
  }

  static TDateTime ToDate(const Variant& AValue) {
    if (ClassOf(AValue) != TVarClass::Text) return TDateTime(ToFloat(AValue, varDate));
    TDateTime result = 0;
    if (!TryStrToDateTime(Text(AValue), result) && !TryStrToTime(Text(AValue), result))
      RaiseCast(AValue.VarType(), varDate);
    return result;
  }

  static Currency ToCurrency(const Variant& AValue) {
    Currency result;
    switch (ClassOf(AValue)) {
    case TVarClass::Currency:
      return Currency::FromScaled(Ordinal(AValue));
    case TVarClass::Text:
      if (!TryStrToCurr(Text(AValue), result)) RaiseCast(AValue.VarType(), varCurrency);
      return result;
    default: {
      const Extended scaled = std::nearbyint(ToFloat(AValue, varCurrency) * Currency::Scale);
      if (!(scaled >= -TwoPow63 && scaled < TwoPow63)) RaiseOverflow(AValue.VarType(), varCurrency);
      return Currency::FromScaled(Int64(scaled));
    }
    }
  }

  static Boolean ToBoolean(const Variant& AValue) {
    Boolean result = false;
    switch (ClassOf(AValue)) {
    case TVarClass::Empty:
      return false;
    case TVarClass::Ordinal:
    case TVarClass::Boolean:
    case TVarClass::Currency:
      return Ordinal(AValue) != 0;
    case TVarClass::Float:
    case TVarClass::Date:
      return Float(AValue) != 0;
    case TVarClass::Text:
      if (TryStrToBool(Text(AValue), result)) return result;
      break;
    default:
      break;
    }
    RaiseCast(AValue.VarType(), varBoolean);
  }

  static String ToText(const Variant& AValue, TVarType ATarget) {
    const TVarType source = AValue.VarType();
    switch (ClassOf(AValue)) {
    case TVarClass::Empty:
      return String();
    case TVarClass::Ordinal:
      return source == varUInt64 ? IntToStr(UInt64(Ordinal(AValue))) : IntToStr(Ordinal(AValue));
    case TVarClass::Boolean:
      return BoolToStr(Ordinal(AValue) != 0, true);
    case TVarClass::Currency:
      return CurrToStr(Currency::FromScaled(Ordinal(AValue)));
    case TVarClass::Float:
      return source == varSingle ? FloatToStr(Single(Float(AValue))) : FloatToStr(Extended(Float(AValue)));
    case TVarClass::Date:
      try {
        return DateTimeToStr(Float(AValue));
      } catch (const EConvertError&) {}
      break; // outside the calendar
    case TVarClass::Text:
      return Text(AValue);
    default:
      break;
    }
    RaiseCast(source, ATarget);
  }

private:
  // Rounds half to even, as the classic conversions do.
  static TWideInt Rounded(Extended AValue, TVarType ASource, TVarType ATarget) {
    const Extended rounded = std::nearbyint(AValue);
    if (rounded >= -TwoPow63 && rounded < TwoPow63) return {Int64(rounded)};
    if (rounded >= 0 && rounded < 2 * TwoPow63) return {Int64(UInt64(rounded)), true};
    RaiseOverflow(ASource, ATarget);
  }
};

Variant Variant::Null() { return TVariantConverter::Make(varNull, std::monostate()); }
Variant Variant::FromDate(TDateTime AValue) { return TVariantConverter::Make(varDate, AValue); }
Variant Variant::FromDispatch(void* AObject) { return TVariantConverter::Make(varDispatch, AObject); }
Variant Variant::FromUnknown(void* AObject) { return TVariantConverter::Make(varUnknown, AObject); }

Variant VarCast(const Variant& ASource, TVarType AVarType) {
  using C = TVariantConverter;
  const TVarType source = ASource.VarType();
  if (source == AVarType) return ASource;
  const TVarTypeRecord* target = FindVarType(AVarType);
  if (!target) RaiseCast(source, AVarType);
  switch (target->Class) {
  case TVarClass::Empty:
    return Variant();
  case TVarClass::Null:
    return Variant::Null();
  case TVarClass::Ordinal: {
    const TWideInt value = C::ToWideInt(ASource, AVarType);
    if (!value.FitsIn(*target)) RaiseOverflow(source, AVarType);
    return C::Make(AVarType, value.Value);
  }
  case TVarClass::Boolean:
    return Variant(C::ToBoolean(ASource));
  case TVarClass::Float: {
    const Extended value = C::ToFloat(ASource, AVarType);
    const Extended limit =
        AVarType == varSingle ? std::numeric_limits<Single>::max() : std::numeric_limits<Double>::max();
    if (std::isfinite(value) && std::fabs(value) > limit) RaiseOverflow(source, AVarType);
    return C::Make(AVarType, AVarType == varSingle ? Double(Single(value)) : Double(value));
  }
  case TVarClass::Currency:
    return Variant(C::ToCurrency(ASource));
  case TVarClass::Date:
    return Variant::FromDate(C::ToDate(ASource));
  case TVarClass::Text:
    return C::Make(AVarType, C::ToText(ASource, AVarType));
  case TVarClass::Pointer:
    if (ASource.IsEmpty()) return C::Make(AVarType, static_cast<void*>(nullptr));
    break;
  case TVarClass::Other:
    break;
  }
  RaiseCast(source, AVarType);
}

Integer Variant::AsInteger() const { return Integer(TVariantConverter::Ordinal(VarCast(*this, varInteger))); }
Int64 Variant::AsInt64() const { return TVariantConverter::Ordinal(VarCast(*this, varInt64)); }
Double Variant::AsDouble() const { return TVariantConverter::Float(VarCast(*this, varDouble)); }
Extended Variant::AsExtended() const { return TVariantConverter::ToFloat(*this, varDouble); }
Boolean Variant::AsBoolean() const { return TVariantConverter::ToBoolean(*this); }
String Variant::AsString() const { return TVariantConverter::ToText(*this, varUString); }
Currency Variant::AsCurrency() const { return TVariantConverter::ToCurrency(*this); }
TDateTime Variant::AsDate() const { return TVariantConverter::ToDate(*this); }

void* Variant::AsPointer() const {
  if (IsEmpty()) return nullptr;
  if (FVarType != varDispatch && FVarType != varUnknown) RaiseCast(FVarType, varDispatch);
  return TVariantConverter::Pointer(*this);
}

String VarToStr(const Variant& AValue) { return VarToStrDef(AValue, String()); }

String VarToStrDef(const Variant& AValue, const String& ADefault) {
  return AValue.IsNull() ? ADefault : AValue.AsString();
}

String VarTypeAsText(TVarType AVarType) {
  const TVarType base = AVarType & varTypeMask;
  const TVarTypeRecord* record = FindVarType(base);
  String name = record ? String(record->Name) : "$" + IntToHex(base, 4);
  if (AVarType & varArray) name = "Array of " + name;
  if (AVarType & varByRef) name += " by reference";
  return name;
}

bool VarIsClear(const Variant& AValue) {
  return AValue.IsEmpty() ||
         ((AValue.VarType() == varDispatch || AValue.VarType() == varUnknown) && AValue.AsPointer() == nullptr);
}

} // namespace Tarvo
