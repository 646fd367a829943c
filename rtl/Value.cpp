#include "rtl/Value.h"

#include <atomic>
#include <cmath>
#include <cstdio>
#include <new>

#include "rtl/DateUtils.h"
#include "rtl/SysUtils.h"
#include "rtl/Variant.h"

namespace Tarvo {

// ---- Storage ----

struct TValue::TBox {
  static constexpr std::size_t HeaderSize = 32;
  std::atomic<int> RefCount{1};
  PTypeInfo Type;

  explicit TBox(PTypeInfo AType) : Type(AType) {}
  void* Data() { return reinterpret_cast<unsigned char*>(this) + HeaderSize; }
  static std::align_val_t Alignment(PTypeInfo AType) {
    return std::align_val_t(std::max<std::size_t>(16, AType->Ops->Align));
  }

  static TBox* Create(PTypeInfo AType, const void* ASource) {
    void* memory = ::operator new(HeaderSize + AType->Ops->Size, Alignment(AType));
    TBox* box = ::new (memory) TBox(AType);
    try {
      if (ASource) AType->Ops->CopyConstruct(box->Data(), ASource);
      else AType->Ops->Construct(box->Data());
    } catch (...) {
      box->~TBox();
      ::operator delete(memory, Alignment(AType));
      throw;
    }
    return box;
  }
  void AddRef() { RefCount.fetch_add(1, std::memory_order_relaxed); }
  void Release() {
    if (RefCount.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    const PTypeInfo type = Type;
    type->Ops->Destroy(Data());
    this->~TBox();
    ::operator delete(this, Alignment(type));
  }
};
static_assert(sizeof(std::atomic<int>) + sizeof(PTypeInfo) <= 32);

namespace {

bool StoredInline(PTypeInfo AType) {
  const TTypeOps* ops = AType->Ops;
  return ops->Trivial && ops->Size <= 16 && ops->Align <= 16;
}

template <class T> TValue MakeOf(PTypeInfo AType, const T& AData) { return TValue::Make(&AData, AType); }

// Writes an ordinal into a value of AType's representation.
TValue MakeOrdinal(PTypeInfo AType, Int64 AValue) {
  switch (AType->Ops->Size) {
  case 1:
    return MakeOf<std::uint8_t>(AType, static_cast<std::uint8_t>(AValue));
  case 2:
    return MakeOf<std::uint16_t>(AType, static_cast<std::uint16_t>(AValue));
  case 4:
    return MakeOf<std::uint32_t>(AType, static_cast<std::uint32_t>(AValue));
  default:
    return MakeOf<std::uint64_t>(AType, static_cast<std::uint64_t>(AValue));
  }
}

// Whether AValue (unsigned 64-bit when ASourceUnsigned64) lies within AType's declared range.
bool FitsOrdinal(PTypeInfo AType, Int64 AValue, bool ASourceUnsigned64) {
  const bool huge = ASourceUnsigned64 && AValue < 0; // above the signed 64-bit range
  if (AType->OrdType == otUQWord) return ASourceUnsigned64 || AValue >= 0;
  if (huge) return false;
  return AValue >= AType->OrdinalMin() && AValue <= AType->OrdinalMax();
}

TValue MakeFloat(PTypeInfo AType, Extended AValue) {
  switch (AType->FloatType) {
  case ftSingle:
    return MakeOf<Single>(AType, static_cast<Single>(AValue));
  case ftDouble:
    return MakeOf<Double>(AType, static_cast<Double>(AValue));
  case ftExtended:
    return MakeOf<Extended>(AType, AValue);
  case ftCurr:
    return MakeOf<Currency>(AType, Currency::FromDouble(AValue));
  case ftComp:
    return MakeOf<Int64>(AType, static_cast<Int64>(AValue));
  }
  return {};
}

// A float type holds the value: a finite value must not become infinite, and a currency or Comp
// value must stay in its 64-bit range, as an integer out of its type's range is refused.
bool FitsFloat(PTypeInfo AType, Extended AValue) {
  if (AType->FloatType == ftCurr) return Currency::Fits(AValue);
  if (!std::isfinite(AValue)) return true; // infinity and NaN stand for themselves
  switch (AType->FloatType) {
  case ftSingle:
    return std::isfinite(static_cast<Single>(AValue));
  case ftDouble:
    return std::isfinite(static_cast<Double>(AValue));
  case ftComp:
    return AValue >= -0x1p63L && AValue < 0x1p63L;
  case ftExtended:
  case ftCurr:
    return true;
  }
  return true;
}

bool IsIntegerKind(TTypeKind AKind) { return AKind == tkInteger || AKind == tkInt64; }
bool IsCharKind(TTypeKind AKind) { return AKind == tkChar || AKind == tkWChar; }

bool IsDateType(PTypeInfo AType) {
  return AType == &TypeInfo_TDateTime || AType == &TypeInfo_TDate || AType == &TypeInfo_TTime;
}

// One UTF-16 unit as UTF-8, and back; a wide character is one unit.
String AddressText(const void* AAddress) {
  char text[32];
  std::snprintf(text, sizeof text, "%p", AAddress);
  return text;
}

// Set bits as a 64-bit word (the first 64 elements) and back.
UInt64 SetBits(const TValue& AValue) {
  UInt64 bits = 0;
  std::memcpy(&bits, AValue.GetReferenceToRawData(), std::min<std::size_t>(AValue.GetDataSize(), sizeof bits));
  return bits;
}

String SetToString(const TValue& AValue) {
  const PTypeInfo element = AValue.GetTypeInfo()->CompType;
  const auto* bytes = static_cast<const unsigned char*>(AValue.GetReferenceToRawData());
  String text = "[";
  for (std::size_t bit = 0; bit < AValue.GetDataSize() * 8; ++bit) {
    if (!(bytes[bit / 8] >> (bit % 8) & 1)) continue;
    if (text.size() > 1) text += ',';
    const std::string_view name = element ? element->EnumName(Int64(bit)) : std::string_view();
    text += name.empty() ? std::to_string(bit) : String(name);
  }
  return text + "]";
}

bool SetFromString(PTypeInfo AType, const String& AText, TValue& AResult) {
  String body = Trim(AText);
  if (body.size() >= 2 && body.front() == '[' && body.back() == ']') body = body.substr(1, body.size() - 2);
  std::vector<unsigned char> bytes(AType->DataSize(), 0);
  if (!Trim(body).empty())
    for (const std::string_view part : SplitString(body, ',')) {
      const Int64 ordinal = AType->CompType ? AType->CompType->EnumValue(Trim(part)) : -1;
      if (ordinal < 0 || std::size_t(ordinal) >= bytes.size() * 8) return false;
      bytes[std::size_t(ordinal) / 8] |= static_cast<unsigned char>(1u << ordinal % 8);
    }
  AResult = TValue::Make(bytes.data(), AType);
  return true;
}

} // namespace

// ---- Construction ----

TValue::TValue(const TValue& AOther) noexcept : FTypeInfo(AOther.FTypeInfo), FBox(AOther.FBox) {
  std::memcpy(FInline, AOther.FInline, sizeof FInline);
  if (FBox) FBox->AddRef();
}

TValue::TValue(TValue&& AOther) noexcept : FTypeInfo(AOther.FTypeInfo), FBox(std::exchange(AOther.FBox, nullptr)) {
  std::memcpy(FInline, AOther.FInline, sizeof FInline);
  AOther.FTypeInfo = nullptr;
}

TValue& TValue::operator=(const TValue& AOther) noexcept {
  if (this != &AOther) {
    TValue copy(AOther);
    *this = std::move(copy);
  }
  return *this;
}

TValue& TValue::operator=(TValue&& AOther) noexcept {
  if (this != &AOther) {
    Reset();
    std::memcpy(FInline, AOther.FInline, sizeof FInline);
    FTypeInfo = std::exchange(AOther.FTypeInfo, nullptr);
    FBox = std::exchange(AOther.FBox, nullptr);
  }
  return *this;
}

TValue::~TValue() { Reset(); }

void TValue::Reset() noexcept {
  if (FBox) std::exchange(FBox, nullptr)->Release();
  FTypeInfo = nullptr;
}

TValue::TValue(TObject* AObject)
    : TValue(Make(&AObject,
                  AObject ? AObject->ClassType()->ClassTypeRecord() : TObject::ClassInfo()->ClassTypeRecord())) {}
TValue::TValue(const String& AText) : TValue(Make(&AText, &TypeInfo_String)) {}
TValue::TValue(const char* AText) : TValue(String(AText ? AText : "")) {}
TValue::TValue(Boolean AValue) : TValue(Make(&AValue, &TypeInfo_Boolean)) {}
TValue::TValue(Integer AValue) : TValue(Make(&AValue, &TypeInfo_Integer)) {}
TValue::TValue(Int64 AValue) : TValue(Make(&AValue, &TypeInfo_Int64)) {}
TValue::TValue(Double AValue) : TValue(Make(&AValue, &TypeInfo_Double)) {}
TValue::TValue(Extended AValue) : TValue(Make(&AValue, &TypeInfo_Extended)) {}

void TValue::Make(const void* AData, PTypeInfo ATypeInfo, TValue& AResult) { AResult = Make(AData, ATypeInfo); }

TValue TValue::Make(const void* AData, PTypeInfo ATypeInfo) {
  TValue result;
  if (!ATypeInfo) return result;
  TARVO_ASSERT(ATypeInfo->Ops != nullptr);
  if (StoredInline(ATypeInfo)) {
    if (AData) std::memcpy(result.FInline, AData, ATypeInfo->Ops->Size);
    else ATypeInfo->Ops->Construct(result.FInline);
  } else {
    result.FBox = TBox::Create(ATypeInfo, AData);
  }
  result.FTypeInfo = ATypeInfo;
  return result;
}

const void* TValue::BoxData() const { return FBox->Data(); }

void TValue::ExtractRawData(void* ADest) const {
  if (FTypeInfo) FTypeInfo->Ops->CopyConstruct(ADest, GetReferenceToRawData());
}

void TValue::ExtractRawDataNoCopy(void* ADest) const {
  if (FTypeInfo) std::memcpy(ADest, GetReferenceToRawData(), FTypeInfo->Ops->Size);
}

void TValue::RaiseInvalidCast(PTypeInfo ATarget) const {
  throw EInvalidCast(String("Invalid class typecast: cannot read a value of type ") +
                     (FTypeInfo ? FTypeInfo->Name : "(empty)") + " as " + (ATarget ? ATarget->Name : "(none)"));
}

// ---- Reading ----

bool TValue::ReadOrdinal(Int64& AResult) const {
  if (!IsOrdinal()) return false;
  const void* data = GetReferenceToRawData();
  const bool isSigned = !FTypeInfo->IsUnsigned();
  switch (FTypeInfo->Ops->Size) {
  case 1:
    AResult = isSigned ? Int64(*static_cast<const std::int8_t*>(data)) : Int64(*static_cast<const std::uint8_t*>(data));
    break;
  case 2:
    AResult =
        isSigned ? Int64(*static_cast<const std::int16_t*>(data)) : Int64(*static_cast<const std::uint16_t*>(data));
    break;
  case 4:
    AResult =
        isSigned ? Int64(*static_cast<const std::int32_t*>(data)) : Int64(*static_cast<const std::uint32_t*>(data));
    break;
  default:
    std::memcpy(&AResult, data, sizeof AResult);
    break;
  }
  return true;
}

bool TValue::ReadFloat(Extended& AResult) const {
  if (GetTypeKind() != tkFloat) return false;
  const void* data = GetReferenceToRawData();
  switch (FTypeInfo->FloatType) {
  case ftSingle:
    AResult = *static_cast<const Single*>(data);
    break;
  case ftDouble:
    AResult = *static_cast<const Double*>(data);
    break;
  case ftExtended:
    AResult = *static_cast<const Extended*>(data);
    break;
  case ftCurr:
    AResult = static_cast<const Currency*>(data)->ToExtended();
    break;
  case ftComp:
    AResult = Extended(*static_cast<const Int64*>(data));
    break;
  }
  return true;
}

bool TValue::ReadText(String& AResult) const {
  if (!FTypeInfo) AResult.clear();
  else if (FTypeInfo->IsString()) AResult = *static_cast<const String*>(GetReferenceToRawData());
  else if (FTypeInfo->Kind == tkChar) AResult = String(1, *static_cast<const AnsiChar*>(GetReferenceToRawData()));
  else if (FTypeInfo->Kind == tkWChar) AResult = WideCharToUtf8(*static_cast<const WideChar*>(GetReferenceToRawData()));
  else return false;
  return true;
}

TObject* TValue::AsObject() const {
  if (IsEmpty()) return nullptr;
  if (!IsObject()) RaiseInvalidCast(TObject::ClassInfo()->ClassTypeRecord());
  return *static_cast<TObject* const*>(GetReferenceToRawData());
}

TRef<IInterface> TValue::AsInterface() const {
  if (IsEmpty()) return nullptr;
  if (IsInterface()) return *static_cast<const TRef<IInterface>*>(GetReferenceToRawData());
  if (IsObject()) {
    TRef<IInterface> result;
    if (Supports(AsObject(), result)) return result;
  }
  RaiseInvalidCast(nullptr);
}

TClass TValue::AsClass() const {
  if (IsEmpty()) return nullptr;
  if (GetTypeKind() != tkClassRef) RaiseInvalidCast(&TypeInfo_TClass);
  return *static_cast<const TClass*>(GetReferenceToRawData());
}

Boolean TValue::AsBoolean() const {
  if (IsEmpty()) return false;
  if (FTypeInfo == &TypeInfo_Boolean) return *static_cast<const Boolean*>(GetReferenceToRawData());
  if (GetTypeKind() == tkVariant) return static_cast<const Variant*>(GetReferenceToRawData())->AsBoolean();
  RaiseInvalidCast(&TypeInfo_Boolean);
}

Int64 TValue::AsOrdinal() const {
  Int64 result = 0;
  if (IsEmpty() || ReadOrdinal(result)) return result;
  if (GetTypeKind() == tkVariant) return static_cast<const Variant*>(GetReferenceToRawData())->AsInt64();
  RaiseInvalidCast(&TypeInfo_Int64);
}

Integer TValue::AsInteger() const {
  const Int64 value = AsOrdinal();
  // A 32-bit unsigned value reads as its bit pattern, as a 32-bit read of the data would.
  if (value < INT32_MIN || value > Int64(UINT32_MAX) || (value < 0 && FTypeInfo && FTypeInfo->OrdType == otUQWord))
    RaiseInvalidCast(&TypeInfo_Integer);
  return static_cast<Integer>(static_cast<std::uint32_t>(value));
}

UInt64 TValue::AsUInt64() const { return static_cast<UInt64>(AsOrdinal()); }

Extended TValue::AsExtended() const {
  Extended result = 0;
  Int64 ordinal = 0;
  if (IsEmpty() || ReadFloat(result)) return result;
  if (IsIntegerKind(GetTypeKind()) && ReadOrdinal(ordinal))
    return FTypeInfo->OrdType == otUQWord ? Extended(UInt64(ordinal)) : Extended(ordinal);
  if (GetTypeKind() == tkVariant) return static_cast<const Variant*>(GetReferenceToRawData())->AsExtended();
  RaiseInvalidCast(&TypeInfo_Extended);
}

Currency TValue::AsCurrency() const {
  if (FTypeInfo == &TypeInfo_Currency) return *static_cast<const Currency*>(GetReferenceToRawData());
  return Currency::FromDouble(AsExtended());
}

String TValue::AsString() const {
  String result;
  if (ReadText(result)) return result;
  if (GetTypeKind() == tkVariant) return VarToStr(*static_cast<const Variant*>(GetReferenceToRawData()));
  RaiseInvalidCast(&TypeInfo_String);
}

Variant TValue::AsVariant() const {
  if (IsEmpty()) return Variant();
  const void* data = GetReferenceToRawData();
  switch (FTypeInfo->Kind) {
  case tkVariant:
    return *static_cast<const Variant*>(data);
  case tkEnumeration:
    if (FTypeInfo == &TypeInfo_Boolean) return Variant(AsBoolean());
    return Variant(static_cast<Integer>(AsOrdinal()));
  case tkInteger:
  case tkInt64:
    switch (FTypeInfo->OrdType) {
    case otSByte:
      return Variant(*static_cast<const ShortInt*>(data));
    case otUByte:
      return Variant(*static_cast<const Byte*>(data));
    case otSWord:
      return Variant(*static_cast<const SmallInt*>(data));
    case otUWord:
      return Variant(*static_cast<const Word*>(data));
    case otSLong:
      return Variant(*static_cast<const Integer*>(data));
    case otULong:
      return Variant(*static_cast<const Cardinal*>(data));
    case otSQWord:
      return Variant(*static_cast<const Int64*>(data));
    case otUQWord:
      return Variant(*static_cast<const UInt64*>(data));
    }
    break;
  case tkFloat:
    if (FTypeInfo->FloatType == ftCurr) return Variant(AsCurrency());
    if (FTypeInfo->FloatType == ftSingle) return Variant(*static_cast<const Single*>(data));
    if (IsDateType(FTypeInfo)) return Variant::FromDate(*static_cast<const TDateTime*>(data));
    return Variant(static_cast<Double>(AsExtended()));
  case tkClass:
    return Variant::FromDispatch(AsObject());
  default: {
    String text;
    if (ReadText(text)) return Variant(text);
  }
  }
  RaiseInvalidCast(&TypeInfo_Variant);
}

// ---- Text ----

String TValue::ToString() const {
  if (IsEmpty()) return String();
  const void* data = GetReferenceToRawData();
  String text;
  Int64 ordinal = 0;
  switch (FTypeInfo->Kind) {
  case tkInteger:
  case tkInt64:
    ReadOrdinal(ordinal);
    return FTypeInfo->OrdType == otUQWord ? IntToStr(UInt64(ordinal)) : IntToStr(ordinal);
  case tkEnumeration: {
    ReadOrdinal(ordinal);
    const std::string_view name = FTypeInfo->EnumName(ordinal);
    return name.empty() ? IntToStr(ordinal) : String(name);
  }
  case tkFloat:
    if (FTypeInfo == &TypeInfo_TDate) return DateToStr(*static_cast<const TDateTime*>(data));
    if (FTypeInfo == &TypeInfo_TTime) return TimeToStr(*static_cast<const TDateTime*>(data));
    if (FTypeInfo == &TypeInfo_TDateTime) return DateTimeToStr(*static_cast<const TDateTime*>(data));
    if (FTypeInfo->FloatType == ftCurr) return CurrToStr(AsCurrency());
    if (FTypeInfo->FloatType == ftSingle) return FloatToStr(*static_cast<const Single*>(data));
    return FloatToStr(AsExtended());
  case tkSet:
    return SetToString(*this);
  case tkVariant:
    return VarToStr(*static_cast<const Variant*>(data));
  case tkClass: {
    const TObject* object = AsObject();
    // The class alone: an address would differ on every run, and a row or a log shows this text.
    return object ? String("(") + object->ClassName() + ")" : String("nil");
  }
  case tkClassRef: {
    const TClass cls = AsClass();
    return cls ? String("(class '") + cls->ClassName() + "')" : String("nil");
  }
  case tkInterface: {
    const TRef<IInterface> intf = AsInterface();
    if (!intf) return "nil";
    const TObject* object = ObjectOf(intf);
    return object ? String("(") + object->ClassName() + ")" : String("(interface)");
  }
  case tkPointer:
    return "(pointer @ " + AddressText(*static_cast<void* const*>(data)) + ")";
  case tkMethod:
    if (FTypeInfo->IsAssigned && !FTypeInfo->IsAssigned(data)) return "nil";
    return String("(") + FTypeInfo->Name + ")";
  default:
    if (ReadText(text)) return text;
    return String("(") + FTypeInfo->Name + ")";
  }
}

// ---- Conversion ----

bool TValue::TryCast(PTypeInfo ATypeInfo, TValue& AResult, bool AEmptyAsAnyType) const {
  if (!ATypeInfo) return false;
  if (IsEmpty()) {
    const bool nilLike = ATypeInfo->Kind == tkClass || ATypeInfo->Kind == tkInterface ||
                         ATypeInfo->Kind == tkClassRef || ATypeInfo->Kind == tkPointer;
    if (!AEmptyAsAnyType && !nilLike) return false;
    AResult = Make(nullptr, ATypeInfo);
    return true;
  }
  const TTypeKind source = FTypeInfo->Kind;
  const TTypeKind target = ATypeInfo->Kind;
  // The same type, or another name for the same representation.
  if (FTypeInfo == ATypeInfo || (source == target && FTypeInfo->Ops == ATypeInfo->Ops && !IsIntegerKind(target) &&
                                 target != tkEnumeration && target != tkClass && target != tkInterface)) {
    AResult = Make(GetReferenceToRawData(), ATypeInfo);
    return true;
  }
  try {
    if (source == tkVariant && target != tkVariant) {
      const Variant& v = *static_cast<const Variant*>(GetReferenceToRawData());
      if (IsIntegerKind(target)) return TValue(v.AsInt64()).TryCast(ATypeInfo, AResult, AEmptyAsAnyType);
      if (target == tkFloat) return TValue(v.AsExtended()).TryCast(ATypeInfo, AResult, AEmptyAsAnyType);
      if (ATypeInfo == &TypeInfo_Boolean) return TValue(v.AsBoolean()).TryCast(ATypeInfo, AResult, AEmptyAsAnyType);
      if (ATypeInfo->IsString()) return TValue(VarToStr(v)).TryCast(ATypeInfo, AResult, AEmptyAsAnyType);
      return false;
    }
    switch (target) {
    case tkInteger:
    case tkInt64:
    case tkChar:
    case tkWChar: {
      Int64 ordinal = 0;
      const bool compatible = IsCharKind(target) ? IsCharKind(source) : IsIntegerKind(source);
      if (!compatible || !ReadOrdinal(ordinal) || !FitsOrdinal(ATypeInfo, ordinal, FTypeInfo->OrdType == otUQWord))
        return false;
      AResult = MakeOrdinal(ATypeInfo, ordinal);
      return true;
    }
    case tkEnumeration:
      // Enumerations convert only between records of the same values.
      if (source != tkEnumeration || FTypeInfo->Ops != ATypeInfo->Ops ||
          FTypeInfo->Names.data() != ATypeInfo->Names.data())
        return false;
      AResult = Make(GetReferenceToRawData(), ATypeInfo);
      return true;
    case tkFloat: {
      Extended value = 0;
      if (source != tkFloat && !IsIntegerKind(source)) return false;
      value = AsExtended();
      if (!FitsFloat(ATypeInfo, value)) return false;
      AResult = MakeFloat(ATypeInfo, value);
      return true;
    }
    case tkString:
    case tkLString:
    case tkWString:
    case tkUString: {
      String text;
      if (!ReadText(text)) return false;
      AResult = Make(&text, ATypeInfo);
      return true;
    }
    case tkVariant: {
      const Variant v = AsVariant();
      AResult = Make(&v, ATypeInfo);
      return true;
    }
    case tkClass: {
      TObject* object = source == tkClass ? AsObject() : nullptr;
      if (source != tkClass || (object && !object->InheritsFrom(ATypeInfo->ClassType))) return false;
      AResult = Make(&object, ATypeInfo);
      return true;
    }
    case tkInterface: {
      TRef<IInterface> intf = source == tkInterface || source == tkClass ? AsInterface() : nullptr;
      if (!intf) return false;
      void* obj = nullptr;
      if (intf->QueryInterface(ATypeInfo->Guid, &obj) != S_OK) return false;
      const TRef<IInterface> asked = TRef<IInterface>::Adopt(static_cast<IInterface*>(obj));
      AResult = Make(&asked, ATypeInfo);
      return true;
    }
    case tkSet:
      if (source != tkSet || FTypeInfo->CompType != ATypeInfo->CompType || GetDataSize() != ATypeInfo->DataSize())
        return false;
      AResult = Make(GetReferenceToRawData(), ATypeInfo);
      return true;
    default:
      return false;
    }
  } catch (const Exception&) {
    return false; // a variant or currency that does not convert
  }
}

TValue TValue::Cast(PTypeInfo ATypeInfo) const {
  TValue result;
  if (!TryCast(ATypeInfo, result)) RaiseInvalidCast(ATypeInfo);
  return result;
}

bool TValue::FromString(const String& AText) {
  if (IsEmpty()) return false;
  const PTypeInfo type = FTypeInfo;
  TValue parsed;
  switch (type->Kind) {
  case tkInteger:
  case tkInt64: {
    Int64 value = 0;
    if (!TryStrToInt64(AText, value) || !FitsOrdinal(type, value, false)) return false;
    parsed = MakeOrdinal(type, value);
    break;
  }
  case tkEnumeration: {
    Int64 ordinal = type->EnumValue(Trim(AText));
    if (ordinal < 0 && (!TryStrToInt64(AText, ordinal) || ordinal < type->MinValue || ordinal > type->MaxValue))
      return false;
    parsed = MakeOrdinal(type, ordinal);
    break;
  }
  case tkChar:
    if (AText.size() != 1) return false;
    parsed = MakeOrdinal(type, static_cast<unsigned char>(AText[0]));
    break;
  case tkWChar: {
    WideChar c = 0;
    if (!Utf8ToWideChar(AText, c)) return false;
    parsed = Make(&c, type);
    break;
  }
  case tkFloat: {
    TDateTime date = 0;
    Extended value = 0;
    Currency currency;
    if (type == &TypeInfo_TDate || type == &TypeInfo_TTime || type == &TypeInfo_TDateTime) {
      const bool ok = type == &TypeInfo_TDate   ? TryStrToDate(AText, date)
                      : type == &TypeInfo_TTime ? TryStrToTime(AText, date)
                                                : TryStrToDateTime(AText, date);
      if (!ok) return false;
      parsed = Make(&date, type);
    } else if (type->FloatType == ftCurr) {
      if (!TryStrToCurr(AText, currency)) return false;
      parsed = Make(&currency, type);
    } else {
      if (!TryStrToFloat(AText, value) || !FitsFloat(type, value)) return false;
      parsed = MakeFloat(type, value);
    }
    break;
  }
  case tkString:
  case tkLString:
  case tkWString:
  case tkUString:
    parsed = Make(&AText, type);
    break;
  case tkSet:
    if (!SetFromString(type, AText, parsed)) return false;
    break;
  case tkVariant: {
    const Variant text(AText);
    parsed = Make(&text, type);
    break;
  }
  default:
    throw EConvertError(String("Cannot convert text to a value of type ") + type->Name);
  }
  *this = std::move(parsed);
  return true;
}

Int64 TValue::AnyToInt64() const {
  Int64 result = 0;
  if (IsEmpty() || ReadOrdinal(result)) return result;
  switch (GetTypeKind()) {
  case tkSet:
    if (GetDataSize() <= sizeof(Int64)) return static_cast<Int64>(SetBits(*this));
    break;
  case tkClass:
  case tkClassRef:
  case tkPointer:
    return static_cast<Int64>(reinterpret_cast<std::uintptr_t>(*static_cast<void* const*>(GetReferenceToRawData())));
  default:
    break;
  }
  RaiseInvalidCast(&TypeInfo_Int64);
}

} // namespace Tarvo
