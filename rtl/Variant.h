#pragma once
#pragma GCC visibility push(default)
// Variant: a value tagged with one of the classic variant type codes. Every string code holds
// UTF-8 text; Dispatch and Unknown hold an opaque pointer that the variant never owns.

#include <variant>

#include "rtl/Types.h"

namespace Tarvo {

using TVarType = std::uint16_t;

inline constexpr TVarType varEmpty = 0x0000;
inline constexpr TVarType varNull = 0x0001;
inline constexpr TVarType varSmallint = 0x0002;
inline constexpr TVarType varInteger = 0x0003;
inline constexpr TVarType varSingle = 0x0004;
inline constexpr TVarType varDouble = 0x0005;
inline constexpr TVarType varCurrency = 0x0006;
inline constexpr TVarType varDate = 0x0007;
inline constexpr TVarType varOleStr = 0x0008;
inline constexpr TVarType varDispatch = 0x0009;
inline constexpr TVarType varError = 0x000A;
inline constexpr TVarType varBoolean = 0x000B;
inline constexpr TVarType varVariant = 0x000C;
inline constexpr TVarType varUnknown = 0x000D;
inline constexpr TVarType varShortInt = 0x0010;
inline constexpr TVarType varByte = 0x0011;
inline constexpr TVarType varWord = 0x0012;
inline constexpr TVarType varLongWord = 0x0013;
inline constexpr TVarType varInt64 = 0x0014;
inline constexpr TVarType varUInt64 = 0x0015;
inline constexpr TVarType varString = 0x0100;
inline constexpr TVarType varUString = 0x0102;
inline constexpr TVarType varTypeMask = 0x0FFF;
inline constexpr TVarType varArray = 0x2000;
inline constexpr TVarType varByRef = 0x4000;

class Variant {
public:
  Variant() = default; // Unassigned
  Variant(bool AValue) : FVarType(varBoolean), FData(Int64(AValue)) {}
  Variant(ShortInt AValue) : FVarType(varShortInt), FData(Int64(AValue)) {}
  Variant(Byte AValue) : FVarType(varByte), FData(Int64(AValue)) {}
  Variant(SmallInt AValue) : FVarType(varSmallint), FData(Int64(AValue)) {}
  Variant(Word AValue) : FVarType(varWord), FData(Int64(AValue)) {}
  Variant(Integer AValue) : FVarType(varInteger), FData(Int64(AValue)) {}
  Variant(Cardinal AValue) : FVarType(varLongWord), FData(Int64(AValue)) {}
  Variant(Int64 AValue) : FVarType(varInt64), FData(AValue) {}
  Variant(UInt64 AValue) : FVarType(varUInt64), FData(static_cast<Int64>(AValue)) {}
  Variant(Single AValue) : FVarType(varSingle), FData(Double(AValue)) {}
  Variant(Double AValue) : FVarType(varDouble), FData(AValue) {}
  Variant(Currency AValue) : FVarType(varCurrency), FData(AValue.Scaled) {}
  Variant(String AText) : FVarType(varUString), FData(std::move(AText)) {}
  Variant(const char* AText) : Variant(String(AText ? AText : "")) {}

  static Variant Null();
  static Variant FromDate(TDateTime AValue);
  static Variant FromDispatch(void* AObject);
  static Variant FromUnknown(void* AObject);

  TVarType VarType() const { return FVarType; }
  bool IsEmpty() const { return FVarType == varEmpty; }
  bool IsNull() const { return FVarType == varNull; }

  // Conversions as VarCast makes them; EVariantTypeCastError when there is none.
  Integer AsInteger() const;
  Int64 AsInt64() const;
  Double AsDouble() const;
  Extended AsExtended() const;
  Boolean AsBoolean() const;
  String AsString() const;
  Currency AsCurrency() const;
  TDateTime AsDate() const;
  // The pointer of a Dispatch or Unknown variant; nullptr for Unassigned.
  void* AsPointer() const;

  // The same code and the same value; no conversion is made.
  friend bool operator==(const Variant& A, const Variant& B) = default;

private:
  friend class TVariantConverter;
  // Ordinals, booleans and currency in Int64 (unsigned codes as their bits), floats and dates
  // in Double, pointers, text.
  using TData = std::variant<std::monostate, Int64, Double, void*, String>;
  Variant(TVarType AVarType, TData AData) : FVarType(AVarType), FData(std::move(AData)) {}

  TVarType FVarType = varEmpty;
  TData FData;
};

Variant VarCast(const Variant& ASource, TVarType AVarType);
String VarToStr(const Variant& AValue);                            // Null gives ""
String VarToStrDef(const Variant& AValue, const String& ADefault); // Null gives ADefault
String VarTypeAsText(TVarType AVarType);
inline bool VarIsNull(const Variant& AValue) { return AValue.IsNull(); }
inline bool VarIsEmpty(const Variant& AValue) { return AValue.IsEmpty(); }
// Unassigned, or a Dispatch or Unknown variant that holds no object.
bool VarIsClear(const Variant& AValue);

} // namespace Tarvo

#pragma GCC visibility pop
