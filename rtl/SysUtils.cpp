#include "rtl/SysUtils.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "rtl/Exceptions.h"

namespace Tarvo {

const TFormatSettings& TFormatSettings::Invariant() {
  static const TFormatSettings settings;
  return settings;
}

TFormatSettings FormatSettings;

// ---- Comparison and case ----

namespace {

char LowerChar(char AChar) { return AChar >= 'A' && AChar <= 'Z' ? char(AChar - 'A' + 'a') : AChar; }
char UpperChar(char AChar) { return AChar >= 'a' && AChar <= 'z' ? char(AChar - 'a' + 'A') : AChar; }
bool IsBlank(char AChar) { return static_cast<unsigned char>(AChar) <= ' '; }
bool IsDigit(char AChar) { return AChar >= '0' && AChar <= '9'; }

} // namespace

bool SameText(std::string_view A, std::string_view B) { return A.size() == B.size() && CompareText(A, B) == 0; }

std::size_t HashText(std::string_view AText) {
  // FNV-1a over the bytes as CompareText sees them.
  std::size_t hash = 14695981039346656037ULL;
  for (const char c : AText) hash = (hash ^ static_cast<unsigned char>(LowerChar(c))) * 1099511628211ULL;
  return hash;
}

int CompareText(std::string_view A, std::string_view B) {
  const std::size_t n = std::min(A.size(), B.size());
  for (std::size_t i = 0; i < n; ++i) {
    const int a = static_cast<unsigned char>(LowerChar(A[i]));
    const int b = static_cast<unsigned char>(LowerChar(B[i]));
    if (a != b) return a - b;
  }
  return A.size() < B.size() ? -1 : A.size() > B.size() ? 1 : 0;
}

int CompareStr(std::string_view A, std::string_view B) { return A.compare(B); }

String UpperCase(std::string_view AText) {
  String result(AText);
  std::transform(result.begin(), result.end(), result.begin(), UpperChar);
  return result;
}

String LowerCase(std::string_view AText) {
  String result(AText);
  std::transform(result.begin(), result.end(), result.begin(), LowerChar);
  return result;
}

String TrimLeft(std::string_view AText) {
  while (!AText.empty() && IsBlank(AText.front())) AText.remove_prefix(1);
  return String(AText);
}

String TrimRight(std::string_view AText) {
  while (!AText.empty() && IsBlank(AText.back())) AText.remove_suffix(1);
  return String(AText);
}

bool IsValidIdent(std::string_view AText) {
  const auto isAlpha = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; };
  if (AText.empty() || !isAlpha(AText.front())) return false;
  return std::all_of(AText.begin(), AText.end(), [&](char c) { return isAlpha(c) || (c >= '0' && c <= '9'); });
}

String Trim(std::string_view AText) { return TrimLeft(TrimRight(AText)); }

std::vector<std::string_view> SplitString(std::string_view AText, char ASeparator) {
  std::vector<std::string_view> parts;
  for (std::size_t start = 0;;) {
    const std::size_t end = AText.find(ASeparator, start);
    parts.push_back(AText.substr(start, end - start));
    if (end == std::string_view::npos) return parts;
    start = end + 1;
  }
}

// ---- Integers ----

namespace {

struct TIntegerText {
  bool Negative = false;
  bool Hex = false;
  UInt64 Magnitude = 0;
};

unsigned DigitValue(char AChar) {
  if (IsDigit(AChar)) return unsigned(AChar - '0');
  const char c = LowerChar(AChar);
  return c >= 'a' && c <= 'f' ? unsigned(c - 'a' + 10) : 99;
}

// Sign, base and magnitude; false when the text is not an integer or exceeds 64 bits.
bool ScanInteger(std::string_view AText, TIntegerText& AResult) {
  std::size_t i = 0;
  const std::size_t n = AText.size();
  if (i < n && (AText[i] == '+' || AText[i] == '-')) AResult.Negative = AText[i++] == '-';
  if (i < n && AText[i] == '$') {
    AResult.Hex = true;
    ++i;
  } else if (n - i >= 2 && AText[i] == '0' && (AText[i + 1] == 'x' || AText[i + 1] == 'X')) {
    AResult.Hex = true;
    i += 2;
  }
  if (i == n) return false;
  const unsigned base = AResult.Hex ? 16 : 10;
  for (; i < n; ++i) {
    const unsigned digit = DigitValue(AText[i]);
    if (digit >= base || AResult.Magnitude > (std::numeric_limits<UInt64>::max() - digit) / base) return false;
    AResult.Magnitude = AResult.Magnitude * base + digit;
  }
  return true;
}

// Decimal must fit T's range; hex may fill T's bits, so "$FFFFFFFF" is -1 for a 32-bit T.
template <class T> bool TryParseInteger(std::string_view AText, T& AResult) {
  using U = std::make_unsigned_t<T>;
  TIntegerText text;
  if (!ScanInteger(AText, text)) return false;
  if (std::is_unsigned_v<T> && text.Negative && text.Magnitude != 0) return false;
  const UInt64 limit = text.Hex || std::is_unsigned_v<T>
                           ? std::numeric_limits<U>::max()
                           : UInt64(std::numeric_limits<T>::max()) + (text.Negative ? 1 : 0);
  if (text.Magnitude > limit) return false;
  const U bits = static_cast<U>(text.Magnitude);
  AResult = static_cast<T>(text.Negative ? U(0) - bits : bits);
  return true;
}

[[noreturn]] void RaiseNotInteger(std::string_view AText) {
  throw EConvertError(Format("'%s' is not a valid integer value", {AText}));
}

} // namespace

bool TryStrToInt(std::string_view AText, Integer& AResult) { return TryParseInteger(AText, AResult); }
bool TryStrToInt64(std::string_view AText, Int64& AResult) { return TryParseInteger(AText, AResult); }
bool TryStrToUInt64(std::string_view AText, UInt64& AResult) { return TryParseInteger(AText, AResult); }

Integer StrToInt(std::string_view AText) {
  Integer result = 0;
  if (!TryStrToInt(AText, result)) RaiseNotInteger(AText);
  return result;
}

Int64 StrToInt64(std::string_view AText) {
  Int64 result = 0;
  if (!TryStrToInt64(AText, result)) RaiseNotInteger(AText);
  return result;
}

Integer StrToIntDef(std::string_view AText, Integer ADefault) {
  Integer result = 0;
  return TryStrToInt(AText, result) ? result : ADefault;
}

String WideCharToUtf8(WideChar AChar) {
  const unsigned c = AChar;
  String s;
  if (c < 0x80) s += char(c);
  else if (c < 0x800) {
    s += char(0xC0 | c >> 6);
    s += char(0x80 | (c & 0x3F));
  } else {
    s += char(0xE0 | c >> 12);
    s += char(0x80 | (c >> 6 & 0x3F));
    s += char(0x80 | (c & 0x3F));
  }
  return s;
}

bool Utf8ToWideChar(const String& AText, WideChar& AResult) {
  const auto* p = reinterpret_cast<const unsigned char*>(AText.data());
  const std::size_t n = AText.size();
  if (n == 1 && p[0] < 0x80) AResult = p[0];
  else if (n == 2 && (p[0] & 0xE0) == 0xC0 && (p[1] & 0xC0) == 0x80)
    AResult = WideChar((p[0] & 0x1F) << 6 | (p[1] & 0x3F));
  else if (n == 3 && (p[0] & 0xF0) == 0xE0 && (p[1] & 0xC0) == 0x80 && (p[2] & 0xC0) == 0x80)
    AResult = WideChar((p[0] & 0x0F) << 12 | (p[1] & 0x3F) << 6 | (p[2] & 0x3F));
  else return false;
  return true;
}

String IntToStr(Int64 AValue) { return std::to_string(AValue); }
String IntToStr(UInt64 AValue) { return std::to_string(AValue); }

String IntToHex(UInt64 AValue, Integer ADigits) {
  static constexpr char Digits[] = "0123456789ABCDEF";
  String result;
  do {
    result.insert(result.begin(), Digits[AValue & 15]);
    AValue >>= 4;
  } while (AValue != 0);
  if (ADigits > Integer(result.size())) result.insert(0, std::size_t(ADigits) - result.size(), '0');
  return result;
}

// ---- Floats, currency, booleans ----

namespace {

constexpr int ExtendedPrecision = 15;
constexpr int SinglePrecision = 7;
// Fixed notation is used from 1E-5 upwards.
constexpr int LowestFixedExponent = -5;

std::optional<String> NonFiniteText(Extended AValue) {
  if (std::isnan(AValue)) return "NAN";
  if (std::isinf(AValue)) return AValue < 0 ? "-INF" : "INF";
  return std::nullopt;
}

} // namespace

String FloatToStrPrec(Extended AValue, int APrecision, const TFormatSettings& ASettings) {
  if (auto text = NonFiniteText(AValue)) return *text;
  if (AValue == 0) return "0";
  APrecision = std::clamp(APrecision, 1, 20);
  // The rounded digits and decimal exponent, as "-d.ddde+XX".
  char buffer[64];
  const auto written =
      std::to_chars(buffer, buffer + sizeof buffer, AValue, std::chars_format::scientific, APrecision - 1);
  const std::string_view scientific(buffer, std::size_t(written.ptr - buffer));
  const std::size_t e = scientific.find('e');
  String digits;
  for (char c : scientific.substr(0, e))
    if (IsDigit(c)) digits += c;
  int exponent = 0;
  std::string_view exponentText = scientific.substr(e + 1);
  if (exponentText.front() == '+') exponentText.remove_prefix(1);
  std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();

  String result = AValue < 0 ? "-" : "";
  if (exponent >= APrecision || exponent < LowestFixedExponent) {
    result += digits.front();
    if (digits.size() > 1) result += ASettings.DecimalSeparator + digits.substr(1);
    return result + "E" + std::to_string(exponent);
  }
  if (exponent < 0) return result + "0" + ASettings.DecimalSeparator + String(std::size_t(-exponent - 1), '0') + digits;
  const std::size_t integral = std::size_t(exponent) + 1;
  if (digits.size() <= integral) return result + digits + String(integral - digits.size(), '0');
  return result + digits.substr(0, integral) + ASettings.DecimalSeparator + digits.substr(integral);
}

String FloatToStr(Extended AValue) { return FloatToStrPrec(AValue, ExtendedPrecision, FormatSettings); }
String FloatToStr(Extended AValue, const TFormatSettings& ASettings) {
  return FloatToStrPrec(AValue, ExtendedPrecision, ASettings);
}
String FloatToStr(Single AValue) { return FloatToStrPrec(AValue, SinglePrecision, FormatSettings); }
String FloatToStr(Single AValue, const TFormatSettings& ASettings) {
  return FloatToStrPrec(AValue, SinglePrecision, ASettings);
}

String CurrToStr(Currency AValue) { return CurrToStr(AValue, FormatSettings); }

String CurrToStr(Currency AValue, const TFormatSettings& ASettings) {
  const bool negative = AValue.Scaled < 0;
  const UInt64 magnitude = negative ? UInt64(0) - UInt64(AValue.Scaled) : UInt64(AValue.Scaled);
  String result = (negative ? "-" : "") + IntToStr(magnitude / Currency::Scale);
  String fraction = std::to_string(magnitude % Currency::Scale + Currency::Scale).substr(1);
  while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  return fraction.empty() ? result : result + ASettings.DecimalSeparator + fraction;
}

bool TryStrToFloat(std::string_view AText, Extended& AResult, const TFormatSettings& ASettings) {
  const String text = Trim(AText);
  // What FloatToStr writes for the values that have no digits.
  for (const Extended special : {std::numeric_limits<Extended>::quiet_NaN(), std::numeric_limits<Extended>::infinity(),
                                 -std::numeric_limits<Extended>::infinity()})
    if (SameText(text, *NonFiniteText(special))) return AResult = special, true;
  const std::size_t n = text.size();
  std::size_t i = 0;
  const bool negative = i < n && text[i] == '-';
  if (i < n && (text[i] == '-' || text[i] == '+')) ++i;
  // Rebuilt in the one form from_chars reads, whatever the separator.
  String plain;
  std::size_t digits = 0;
  auto takeDigits = [&] {
    for (; i < n && IsDigit(text[i]); ++i, ++digits) plain += text[i];
  };
  takeDigits();
  if (i < n && text[i] == ASettings.DecimalSeparator) {
    plain += '.';
    ++i;
    takeDigits();
  }
  if (digits == 0) return false;
  if (i < n && (text[i] == 'e' || text[i] == 'E')) {
    plain += 'e';
    if (++i < n && (text[i] == '-' || text[i] == '+')) {
      if (text[i] == '-') plain += '-';
      ++i;
    }
    digits = 0;
    takeDigits();
    if (digits == 0) return false;
  }
  if (i != n) return false;
  Extended value = 0;
  const auto parsed = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (parsed.ec != std::errc() || parsed.ptr != plain.data() + plain.size()) return false;
  AResult = negative ? -value : value;
  return true;
}

bool TryStrToFloat(std::string_view AText, Extended& AResult) { return TryStrToFloat(AText, AResult, FormatSettings); }

bool TryStrToFloat(std::string_view AText, Double& AResult, const TFormatSettings& ASettings) {
  Extended value = 0;
  if (!TryStrToFloat(AText, value, ASettings) || std::fabs(value) > std::numeric_limits<Double>::max()) return false;
  AResult = static_cast<Double>(value);
  return true;
}

bool TryStrToFloat(std::string_view AText, Double& AResult) { return TryStrToFloat(AText, AResult, FormatSettings); }

Extended StrToFloat(std::string_view AText, const TFormatSettings& ASettings) {
  Extended result = 0;
  if (!TryStrToFloat(AText, result, ASettings))
    throw EConvertError(Format("'%s' is not a valid floating point value", {AText}));
  return result;
}

Extended StrToFloat(std::string_view AText) { return StrToFloat(AText, FormatSettings); }

bool TryStrToCurr(std::string_view AText, Currency& AResult, const TFormatSettings& ASettings) {
  Extended value = 0;
  if (!TryStrToFloat(AText, value, ASettings)) return false;
  const Extended scaled = std::nearbyint(value * Currency::Scale);
  if (!(scaled >= -9.2233720368547758e18L && scaled < 9.2233720368547758e18L)) return false;
  AResult = Currency::FromScaled(static_cast<Int64>(scaled));
  return true;
}

bool TryStrToCurr(std::string_view AText, Currency& AResult) { return TryStrToCurr(AText, AResult, FormatSettings); }

String BoolToStr(Boolean AValue, Boolean AUseBoolStrs) {
  if (AUseBoolStrs) return AValue ? "True" : "False";
  return AValue ? "-1" : "0";
}

bool TryStrToBool(std::string_view AText, Boolean& AResult) {
  const String text = Trim(AText);
  Extended number = 0;
  if (SameText(text, "True")) AResult = true;
  else if (SameText(text, "False")) AResult = false;
  else if (TryStrToFloat(text, number, TFormatSettings::Invariant())) AResult = number != 0;
  else return false;
  return true;
}

// ---- Format ----

namespace {

class TFormatter {
public:
  TFormatter(std::string_view AFormat, std::initializer_list<TFormatArg> AArgs, const TFormatSettings& ASettings)
      : FFormat(AFormat), FArgs(AArgs), FSettings(ASettings) {}

  String Run() {
    while (FPos < FFormat.size()) {
      const char c = FFormat[FPos++];
      if (c != '%') FResult += c;
      else if (FPos < FFormat.size() && FFormat[FPos] == '%') FResult += FFormat[FPos++];
      else Directive();
    }
    return FResult;
  }

private:
  std::optional<std::size_t> Number() {
    std::optional<std::size_t> result;
    for (; FPos < FFormat.size() && IsDigit(FFormat[FPos]); ++FPos)
      result = result.value_or(0) * 10 + std::size_t(FFormat[FPos] - '0');
    return result;
  }

  [[noreturn]] void RaiseInvalid() const {
    throw EConvertError("Format '" + String(FFormat) + "' invalid or incompatible with argument");
  }

  void Directive() {
    std::optional<std::size_t> width = Number();
    if (width && FPos < FFormat.size() && FFormat[FPos] == ':') {
      FNextArg = *width;
      width.reset();
      ++FPos;
    }
    bool leftAlign = false;
    if (!width && FPos < FFormat.size() && FFormat[FPos] == '-') {
      leftAlign = true;
      ++FPos;
    }
    if (!width) width = Number();
    std::optional<std::size_t> precision;
    if (FPos < FFormat.size() && FFormat[FPos] == '.') {
      ++FPos;
      precision = Number();
    }
    if (FPos >= FFormat.size()) RaiseInvalid();
    const char type = LowerChar(FFormat[FPos++]);
    if (FNextArg >= FArgs.size()) throw EConvertError("No argument for format '" + String(FFormat) + "'");
    String text = Convert(type, FArgs.begin()[FNextArg++], precision);
    if (width && *width > text.size()) text.insert(leftAlign ? text.size() : 0, *width - text.size(), ' ');
    FResult += text;
  }

  String Convert(char AType, const TFormatArg& AArg, std::optional<std::size_t> APrecision) const {
    using TKind = TFormatArg::TKind;
    const bool integral = AArg.Kind() == TKind::Signed || AArg.Kind() == TKind::Unsigned;
    switch (AType) {
    case 'd':
      if (!integral) break;
      return AArg.Kind() == TKind::Signed
                 ? MinDigits(AArg.AsSigned() < 0, IntToStr(UnsignedAbs(AArg.AsSigned())), APrecision)
                 : MinDigits(false, IntToStr(AArg.Bits()), APrecision);
    case 'u':
      if (!integral) break;
      return MinDigits(false, IntToStr(AArg.Bits()), APrecision);
    case 'x':
      if (!integral) break;
      return IntToHex(AArg.Bits(), Integer(APrecision.value_or(0)));
    case 's':
      if (AArg.Kind() != TKind::Text) break;
      return String(AArg.AsText().substr(0, APrecision.value_or(String::npos)));
    case 'f':
      if (AArg.Kind() != TKind::Float) break;
      return Fixed(AArg.AsFloat(), std::min<std::size_t>(APrecision.value_or(2), 64));
    case 'g':
      if (AArg.Kind() != TKind::Float) break;
      return FloatToStrPrec(AArg.AsFloat(), int(std::min<std::size_t>(APrecision.value_or(ExtendedPrecision), 20)),
                            FSettings);
    default:
      break;
    }
    RaiseInvalid();
  }

  static UInt64 UnsignedAbs(Int64 AValue) { return AValue < 0 ? UInt64(0) - UInt64(AValue) : UInt64(AValue); }

  static String MinDigits(bool ANegative, String ADigits, std::optional<std::size_t> APrecision) {
    if (APrecision && *APrecision > ADigits.size()) ADigits.insert(0, *APrecision - ADigits.size(), '0');
    return ANegative ? "-" + ADigits : ADigits;
  }

  String Fixed(Extended AValue, std::size_t ADecimals) const {
    if (auto text = NonFiniteText(AValue)) return *text;
    // Room for the largest Extended written out in full.
    String text(5100, '\0');
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), AValue, std::chars_format::fixed, int(ADecimals));
    text.resize(std::size_t(written.ptr - text.data()));
    std::replace(text.begin(), text.end(), '.', FSettings.DecimalSeparator);
    return text;
  }

  std::string_view FFormat;
  std::initializer_list<TFormatArg> FArgs;
  const TFormatSettings& FSettings;
  std::size_t FPos = 0;
  std::size_t FNextArg = 0;
  String FResult;
};

} // namespace

String Format(std::string_view AFormat, std::initializer_list<TFormatArg> AArgs, const TFormatSettings& ASettings) {
  return TFormatter(AFormat, AArgs, ASettings).Run();
}

String Format(std::string_view AFormat, std::initializer_list<TFormatArg> AArgs) {
  return Format(AFormat, AArgs, FormatSettings);
}

} // namespace Tarvo
