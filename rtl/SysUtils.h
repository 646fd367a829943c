#pragma once
#pragma GCC visibility push(default)
// Text routines: comparison, trimming, integer and float conversions, Format. Routines whose
// output depends on separators read the process-wide FormatSettings unless given their own.

#include <concepts>
#include <initializer_list>
#include <string_view>
#include <type_traits>
#include <vector>

#include "rtl/Types.h"

namespace Tarvo {

struct TFormatSettings {
  char DecimalSeparator = '.';
  char ThousandSeparator = ',';
  char DateSeparator = '-';
  char TimeSeparator = ':';
  String ShortDateFormat = "yyyy-mm-dd";
  String LongTimeFormat = "hh:nn:ss";
  String ShortTimeFormat = "hh:nn";

  // The settings that never change; files and persisted values use them.
  static const TFormatSettings& Invariant();
};

// What every routine without a settings argument uses; a host may change it.
extern TFormatSettings FormatSettings;

// ---- Comparison and case ----

bool SameText(std::string_view A, std::string_view B);
// Equal for texts that SameText finds equal: the key of indexes that ignore case.
std::size_t HashText(std::string_view AText);
int CompareText(std::string_view A, std::string_view B);
int CompareStr(std::string_view A, std::string_view B);
String UpperCase(std::string_view AText);
String LowerCase(std::string_view AText);
// Drop bytes <= ' ' at either end.
String Trim(std::string_view AText);
// Letters, digits and underscores, not starting with a digit.
bool IsValidIdent(std::string_view AText);
String TrimLeft(std::string_view AText);
String TrimRight(std::string_view AText);
// The pieces between the separators, empty ones included; views into AText.
std::vector<std::string_view> SplitString(std::string_view AText, char ASeparator);

// ---- Integers ----

// Decimal with an optional sign, or "$"/"0x" and hex digits (a sign may precede them). Hex may
// spell the full unsigned bit pattern of the target; no blanks are allowed.
// One UTF-16 unit of the basic plane and its UTF-8 text; false for a text that is not exactly one
// such character.
String WideCharToUtf8(WideChar AChar);
bool Utf8ToWideChar(const String& AText, WideChar& AResult);

bool TryStrToInt(std::string_view AText, Integer& AResult);
bool TryStrToInt64(std::string_view AText, Int64& AResult);
bool TryStrToUInt64(std::string_view AText, UInt64& AResult);
Integer StrToInt(std::string_view AText); // raises EConvertError
Int64 StrToInt64(std::string_view AText);
Integer StrToIntDef(std::string_view AText, Integer ADefault);

String IntToStr(Int64 AValue);
String IntToStr(UInt64 AValue);
template <std::integral T>
  requires(!std::same_as<T, bool>)
String IntToStr(T AValue) {
  if constexpr (std::is_signed_v<T>) return IntToStr(static_cast<Int64>(AValue));
  else return IntToStr(static_cast<UInt64>(AValue));
}

// Upper-case hex of the bits of AValue's own width, zero-padded to at least ADigits.
String IntToHex(UInt64 AValue, Integer ADigits);
template <std::integral T>
  requires(!std::same_as<T, bool>)
String IntToHex(T AValue, Integer ADigits) {
  return IntToHex(static_cast<UInt64>(static_cast<std::make_unsigned_t<T>>(AValue)), ADigits);
}

// ---- Floats, currency, booleans ----

// General form: 15 significant digits for Extended and Double, 7 for Single.
String FloatToStr(Extended AValue);
String FloatToStr(Extended AValue, const TFormatSettings& ASettings);
String FloatToStr(Single AValue);
String FloatToStr(Single AValue, const TFormatSettings& ASettings);
// General form with APrecision significant digits.
String FloatToStrPrec(Extended AValue, int APrecision, const TFormatSettings& ASettings);
String CurrToStr(Currency AValue);
String CurrToStr(Currency AValue, const TFormatSettings& ASettings);

// Optional sign, digits with a decimal separator, optional exponent; blanks around are trimmed.
// "NAN", "INF" and "-INF", in any case, are the values FloatToStr writes so.
bool TryStrToFloat(std::string_view AText, Extended& AResult);
bool TryStrToFloat(std::string_view AText, Extended& AResult, const TFormatSettings& ASettings);
bool TryStrToFloat(std::string_view AText, Double& AResult);
bool TryStrToFloat(std::string_view AText, Double& AResult, const TFormatSettings& ASettings);
Extended StrToFloat(std::string_view AText); // raises EConvertError
Extended StrToFloat(std::string_view AText, const TFormatSettings& ASettings);
bool TryStrToCurr(std::string_view AText, Currency& AResult);
bool TryStrToCurr(std::string_view AText, Currency& AResult, const TFormatSettings& ASettings);

String BoolToStr(Boolean AValue, Boolean AUseBoolStrs = false);
// "True"/"False" in any case, or a number: zero is false.
bool TryStrToBool(std::string_view AText, Boolean& AResult);

// ---- Format ----

// One argument of Format. Text is viewed, not copied: an argument lives as long as the call.
class TFormatArg {
public:
  enum class TKind { Signed, Unsigned, Float, Text };

  template <std::integral T>
    requires(!std::same_as<T, bool> && !std::same_as<T, char>)
  TFormatArg(T AValue)
      : FKind(std::is_signed_v<T> ? TKind::Signed : TKind::Unsigned), FSize(sizeof(T)),
        FInteger(static_cast<UInt64>(AValue)) {}
  template <std::floating_point T> TFormatArg(T AValue) : FKind(TKind::Float), FFloat(AValue) {}
  TFormatArg(char AChar) : FKind(TKind::Text), FChar(AChar), FIsChar(true) {}
  TFormatArg(const char* AText) : FKind(TKind::Text), FText(AText ? AText : "") {}
  TFormatArg(std::string_view AText) : FKind(TKind::Text), FText(AText) {}
  TFormatArg(const String& AText) : FKind(TKind::Text), FText(AText) {}

  TKind Kind() const { return FKind; }
  // The value's bits as wide as its own type, for %u and %x.
  UInt64 Bits() const { return FSize >= sizeof(UInt64) ? FInteger : FInteger & ((UInt64(1) << FSize * 8) - 1); }
  Int64 AsSigned() const { return static_cast<Int64>(FInteger); }
  Extended AsFloat() const { return FFloat; }
  std::string_view AsText() const { return FIsChar ? std::string_view(&FChar, 1) : FText; }

private:
  TKind FKind;
  std::size_t FSize = sizeof(UInt64);
  UInt64 FInteger = 0;
  Extended FFloat = 0;
  std::string_view FText;
  char FChar = 0;
  bool FIsChar = false;
};

// Classic directives: "%" [index ":"] ["-"] [width] ["." precision] type, with the types
// d (signed), u (unsigned), x (upper-case hex), s (text), f (fixed, 2 decimals by default),
// g (general) and "%%". A directive that does not fit its argument raises EConvertError.
String Format(std::string_view AFormat, std::initializer_list<TFormatArg> AArgs);
String Format(std::string_view AFormat, std::initializer_list<TFormatArg> AArgs, const TFormatSettings& ASettings);

} // namespace Tarvo

#pragma GCC visibility pop
