#include "rtl/DateUtils.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

constexpr Int64 MSecsPerDay = 86400000;
constexpr Int64 DaysBefore1970 = 25569;  // from 1899-12-30 to 1970-01-01
constexpr Int64 FirstDay = -693593;      // 0001-01-01
constexpr Int64 LastDay = 2958465;       // 9999-12-31
constexpr int TwoDigitYearWindow = 1950; // two-digit years fall in 1950..2049

enum TPart { dpYear, dpMonth, dpDay, dpHour, dpMinute, dpSecond, dpMilliSecond, dpCount };
using TParts = std::array<Word, dpCount>;

// Days since 1970-01-01 of a proleptic Gregorian date, and back (era arithmetic, 400-year cycles).
Int64 DaysFromCivil(Int64 AYear, unsigned AMonth, unsigned ADay) {
  AYear -= AMonth <= 2;
  const Int64 era = (AYear >= 0 ? AYear : AYear - 399) / 400;
  const unsigned yearOfEra = unsigned(AYear - era * 400);
  const unsigned dayOfYear = (153 * (AMonth > 2 ? AMonth - 3 : AMonth + 9) + 2) / 5 + ADay - 1;
  const unsigned dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + Int64(dayOfEra) - 719468;
}

void CivilFromDays(Int64 ADays, TParts& AParts) {
  ADays += 719468;
  const Int64 era = (ADays >= 0 ? ADays : ADays - 146096) / 146097;
  const unsigned dayOfEra = unsigned(ADays - era * 146097);
  const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const unsigned shiftedMonth = (5 * dayOfYear + 2) / 153;
  const unsigned month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
  AParts[dpYear] = Word(Int64(yearOfEra) + era * 400 + (month <= 2));
  AParts[dpMonth] = Word(month);
  AParts[dpDay] = Word(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
}

// The day and the millisecond of the day, the time rounded first so that a day may carry over.
TParts Split(TDateTime AValue) {
  const double dayPart = std::trunc(AValue);
  if (!(dayPart >= double(FirstDay) && dayPart <= double(LastDay)))
    throw EConvertError("Invalid argument to date decode");
  Int64 day = Int64(dayPart);
  Int64 ms = std::llround(std::fabs(AValue - dayPart) * double(MSecsPerDay));
  if (ms >= MSecsPerDay) {
    ms -= MSecsPerDay;
    ++day;
  }
  if (day > LastDay) throw EConvertError("Invalid argument to date decode");
  TParts parts{};
  CivilFromDays(day - DaysBefore1970, parts);
  parts[dpHour] = Word(ms / 3600000);
  parts[dpMinute] = Word(ms / 60000 % 60);
  parts[dpSecond] = Word(ms / 1000 % 60);
  parts[dpMilliSecond] = Word(ms % 1000);
  return parts;
}

// Before day 0 the time counts away from zero.
TDateTime Combine(TDateTime ADate, TDateTime ATime) { return ADate >= 0 ? ADate + ATime : ADate - ATime; }

TDateTime Join(const TParts& AParts) {
  TDateTime date = 0;
  TDateTime time = 0;
  if (!TryEncodeDate(AParts[dpYear], AParts[dpMonth], AParts[dpDay], date))
    throw EConvertError("Invalid argument to date encode");
  if (!TryEncodeTime(AParts[dpHour], AParts[dpMinute], AParts[dpSecond], AParts[dpMilliSecond], time))
    throw EConvertError("Invalid argument to time encode");
  return Combine(date, time);
}

TDateTime Recode(TDateTime ADateTime, TPart APart, Word AValue) {
  TParts parts = Split(ADateTime);
  parts[APart] = AValue;
  return Join(parts);
}

bool IsDigit(char AChar) { return AChar >= '0' && AChar <= '9'; }

// A field of 1 to AMaxDigits digits.
std::optional<Word> Field(std::string_view AText, std::size_t AMaxDigits) {
  if (AText.empty() || AText.size() > AMaxDigits || !std::all_of(AText.begin(), AText.end(), IsDigit))
    return std::nullopt;
  Word value = 0;
  for (char c : AText) value = Word(value * 10 + (c - '0'));
  return value;
}

String Padded(Word AValue, std::size_t AWidth) {
  String text = std::to_string(AValue);
  return text.size() < AWidth ? String(AWidth - text.size(), '0') + text : text;
}

// Removes a trailing AM/PM; the result is 0 for none, 1 for AM, 2 for PM.
int TakeMeridiem(std::string_view& AText) {
  if (AText.size() < 2) return 0;
  const std::string_view suffix = AText.substr(AText.size() - 2);
  const int meridiem = SameText(suffix, "AM") ? 1 : SameText(suffix, "PM") ? 2 : 0;
  if (meridiem) {
    AText.remove_suffix(2);
    while (!AText.empty() && AText.back() == ' ') AText.remove_suffix(1);
  }
  return meridiem;
}

} // namespace

// ---- Encoding and decoding ----

bool IsLeapYear(Word AYear) { return AYear % 4 == 0 && (AYear % 100 != 0 || AYear % 400 == 0); }

Word DaysInAMonth(Word AYear, Word AMonth) {
  static constexpr Word Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  TARVO_ASSERT(AMonth >= 1 && AMonth <= 12);
  return Days[AMonth - 1] + (AMonth == 2 && IsLeapYear(AYear));
}

bool TryEncodeDate(Word AYear, Word AMonth, Word ADay, TDateTime& AResult) {
  if (AYear < 1 || AYear > 9999 || AMonth < 1 || AMonth > 12 || ADay < 1 || ADay > DaysInAMonth(AYear, AMonth))
    return false;
  AResult = TDateTime(DaysFromCivil(AYear, AMonth, ADay) + DaysBefore1970);
  return true;
}

bool TryEncodeTime(Word AHour, Word AMinute, Word ASecond, Word AMilliSecond, TDateTime& AResult) {
  if (AHour > 23 || AMinute > 59 || ASecond > 59 || AMilliSecond > 999) return false;
  const Int64 ms = ((Int64(AHour) * 60 + AMinute) * 60 + ASecond) * 1000 + AMilliSecond;
  AResult = TDateTime(ms) / TDateTime(MSecsPerDay);
  return true;
}

bool TryEncodeDateTime(Word AYear, Word AMonth, Word ADay, Word AHour, Word AMinute, Word ASecond, Word AMilliSecond,
                       TDateTime& AResult) {
  TDateTime date = 0;
  TDateTime time = 0;
  if (!TryEncodeDate(AYear, AMonth, ADay, date) || !TryEncodeTime(AHour, AMinute, ASecond, AMilliSecond, time))
    return false;
  AResult = Combine(date, time);
  return true;
}

TDateTime EncodeDate(Word AYear, Word AMonth, Word ADay) { return Join({AYear, AMonth, ADay, 0, 0, 0, 0}); }

TDateTime EncodeTime(Word AHour, Word AMinute, Word ASecond, Word AMilliSecond) {
  TDateTime result = 0;
  if (!TryEncodeTime(AHour, AMinute, ASecond, AMilliSecond, result))
    throw EConvertError("Invalid argument to time encode");
  return result;
}

TDateTime EncodeDateTime(Word AYear, Word AMonth, Word ADay, Word AHour, Word AMinute, Word ASecond,
                         Word AMilliSecond) {
  return Join({AYear, AMonth, ADay, AHour, AMinute, ASecond, AMilliSecond});
}

void DecodeDate(TDateTime ADate, Word& AYear, Word& AMonth, Word& ADay) {
  const TParts parts = Split(ADate);
  AYear = parts[dpYear];
  AMonth = parts[dpMonth];
  ADay = parts[dpDay];
}

void DecodeTime(TDateTime ATime, Word& AHour, Word& AMinute, Word& ASecond, Word& AMilliSecond) {
  const TParts parts = Split(ATime);
  AHour = parts[dpHour];
  AMinute = parts[dpMinute];
  ASecond = parts[dpSecond];
  AMilliSecond = parts[dpMilliSecond];
}

void DecodeDateTime(TDateTime ADateTime, Word& AYear, Word& AMonth, Word& ADay, Word& AHour, Word& AMinute,
                    Word& ASecond, Word& AMilliSecond) {
  const TParts parts = Split(ADateTime);
  AYear = parts[dpYear];
  AMonth = parts[dpMonth];
  ADay = parts[dpDay];
  AHour = parts[dpHour];
  AMinute = parts[dpMinute];
  ASecond = parts[dpSecond];
  AMilliSecond = parts[dpMilliSecond];
}

// ---- Parts ----

Word DaysInMonth(TDateTime ADateTime) {
  const TParts parts = Split(ADateTime);
  return DaysInAMonth(parts[dpYear], parts[dpMonth]);
}

Word YearOf(TDateTime ADateTime) { return Split(ADateTime)[dpYear]; }
Word MonthOf(TDateTime ADateTime) { return Split(ADateTime)[dpMonth]; }
Word DayOf(TDateTime ADateTime) { return Split(ADateTime)[dpDay]; }
Word HourOf(TDateTime ADateTime) { return Split(ADateTime)[dpHour]; }
Word MinuteOf(TDateTime ADateTime) { return Split(ADateTime)[dpMinute]; }
Word SecondOf(TDateTime ADateTime) { return Split(ADateTime)[dpSecond]; }
Word MilliSecondOf(TDateTime ADateTime) { return Split(ADateTime)[dpMilliSecond]; }

TDateTime RecodeYear(TDateTime ADateTime, Word AYear) { return Recode(ADateTime, dpYear, AYear); }
TDateTime RecodeMonth(TDateTime ADateTime, Word AMonth) { return Recode(ADateTime, dpMonth, AMonth); }
TDateTime RecodeDay(TDateTime ADateTime, Word ADay) { return Recode(ADateTime, dpDay, ADay); }
TDateTime RecodeHour(TDateTime ADateTime, Word AHour) { return Recode(ADateTime, dpHour, AHour); }
TDateTime RecodeMinute(TDateTime ADateTime, Word AMinute) { return Recode(ADateTime, dpMinute, AMinute); }
TDateTime RecodeSecond(TDateTime ADateTime, Word ASecond) { return Recode(ADateTime, dpSecond, ASecond); }
TDateTime RecodeMilliSecond(TDateTime ADateTime, Word AMilliSecond) {
  return Recode(ADateTime, dpMilliSecond, AMilliSecond);
}

// ---- Formatting ----

String FormatDateTime(std::string_view AFormat, TDateTime ADateTime, const TFormatSettings& ASettings) {
  // Tokens of at most MaxRun letters; a run of Long or more writes LongWidth digits.
  struct TToken {
    char Letter;
    TPart Part;
    std::size_t MaxRun, Long, ShortWidth, LongWidth;
  };
  static constexpr TToken Tokens[] = {{'y', dpYear, 4, 3, 2, 4},       {'m', dpMonth, 2, 2, 1, 2},
                                      {'d', dpDay, 2, 2, 1, 2},        {'h', dpHour, 2, 2, 1, 2},
                                      {'n', dpMinute, 2, 2, 1, 2},     {'s', dpSecond, 2, 2, 1, 2},
                                      {'z', dpMilliSecond, 3, 3, 1, 3}};
  const TParts parts = Split(ADateTime);
  const String format = LowerCase(AFormat);
  String result;
  for (std::size_t i = 0; i < format.size();) {
    const char c = format[i];
    const TToken* token =
        std::find_if(std::begin(Tokens), std::end(Tokens), [c](const TToken& t) { return t.Letter == c; });
    if (token == std::end(Tokens)) {
      result += c == '/' ? ASettings.DateSeparator : c == ':' ? ASettings.TimeSeparator : AFormat[i];
      ++i;
      continue;
    }
    std::size_t run = 0;
    while (i + run < format.size() && format[i + run] == c && run < token->MaxRun) ++run;
    const bool isLong = run >= token->Long;
    // A short year is its last two digits; a short millisecond run is a single 'z'.
    if (!isLong && token->Part == dpMilliSecond) run = 1;
    const Word value = token->Part == dpYear && !isLong ? Word(parts[dpYear] % 100) : parts[token->Part];
    result += Padded(value, isLong ? token->LongWidth : token->ShortWidth);
    i += run;
  }
  return result;
}

String DateToStr(TDateTime ADate, const TFormatSettings& ASettings) {
  return FormatDateTime(ASettings.ShortDateFormat, ADate, ASettings);
}
String DateToStr(TDateTime ADate) { return DateToStr(ADate, FormatSettings); }

String TimeToStr(TDateTime ATime, const TFormatSettings& ASettings) {
  return FormatDateTime(ASettings.LongTimeFormat, ATime, ASettings);
}
String TimeToStr(TDateTime ATime) { return TimeToStr(ATime, FormatSettings); }

String DateTimeToStr(TDateTime ADateTime, const TFormatSettings& ASettings) {
  const TParts parts = Split(ADateTime);
  const bool midnight = std::all_of(parts.begin() + dpHour, parts.end(), [](Word w) { return w == 0; });
  const String date = DateToStr(ADateTime, ASettings);
  return midnight ? date : date + " " + TimeToStr(ADateTime, ASettings);
}
String DateTimeToStr(TDateTime ADateTime) { return DateTimeToStr(ADateTime, FormatSettings); }

// ---- Parsing ----

bool TryStrToDate(std::string_view AText, TDateTime& AResult, const TFormatSettings& ASettings) {
  // The fields in the order the short date format names them.
  const String format = LowerCase(ASettings.ShortDateFormat);
  std::array<char, 3> order = {'y', 'm', 'd'};
  std::sort(order.begin(), order.end(), [&format](char a, char b) { return format.find(a) < format.find(b); });
  const String text = Trim(AText);
  const std::vector<std::string_view> fields = SplitString(text, ASettings.DateSeparator);
  if (fields.size() != order.size()) return false;
  TParts parts{};
  for (std::size_t i = 0; i < order.size(); ++i) {
    const std::string_view field = fields[i];
    const std::optional<Word> value = Field(field, order[i] == 'y' ? 4 : 2);
    if (!value) return false;
    switch (order[i]) {
    case 'y':
      if (field.size() == 2) parts[dpYear] = Word((*value + 100 - TwoDigitYearWindow % 100) % 100 + TwoDigitYearWindow);
      else if (field.size() == 4) parts[dpYear] = *value;
      else return false;
      break;
    case 'm':
      parts[dpMonth] = *value;
      break;
    default:
      parts[dpDay] = *value;
      break;
    }
  }
  return TryEncodeDate(parts[dpYear], parts[dpMonth], parts[dpDay], AResult);
}
bool TryStrToDate(std::string_view AText, TDateTime& AResult) { return TryStrToDate(AText, AResult, FormatSettings); }

bool TryStrToTime(std::string_view AText, TDateTime& AResult, const TFormatSettings& ASettings) {
  const String trimmed = Trim(AText);
  std::string_view text = trimmed;
  const int meridiem = TakeMeridiem(text);
  std::vector<std::string_view> fields = SplitString(text, ASettings.TimeSeparator);
  if (fields.size() < 2 || fields.size() > 3) return false;
  // Milliseconds are a fraction of the second: ".5" is 500.
  Word ms = 0;
  if (fields.size() == 3) {
    std::string_view& seconds = fields[2];
    const std::size_t point = seconds.find_first_of(String{'.', ASettings.DecimalSeparator});
    if (point != std::string_view::npos) {
      const std::string_view fraction = seconds.substr(point + 1);
      const std::optional<Word> value = Field(fraction, 3);
      if (!value) return false;
      ms = *value;
      for (std::size_t digits = fraction.size(); digits < 3; ++digits) ms = Word(ms * 10);
      seconds = seconds.substr(0, point);
    }
  }
  const std::optional<Word> hour = Field(fields[0], 2);
  const std::optional<Word> minute = Field(fields[1], 2);
  const std::optional<Word> second = fields.size() == 3 ? Field(fields[2], 2) : Word(0);
  if (!hour || !minute || !second) return false;
  Word h = *hour;
  if (meridiem) {
    if (h < 1 || h > 12) return false;
    h = Word(h % 12 + (meridiem == 2 ? 12 : 0));
  }
  return TryEncodeTime(h, *minute, *second, ms, AResult);
}
bool TryStrToTime(std::string_view AText, TDateTime& AResult) { return TryStrToTime(AText, AResult, FormatSettings); }

bool TryStrToDateTime(std::string_view AText, TDateTime& AResult, const TFormatSettings& ASettings) {
  const String text = Trim(AText);
  const std::size_t blank = text.find(' ');
  TDateTime date = 0;
  TDateTime time = 0;
  if (!TryStrToDate(std::string_view(text).substr(0, blank), date, ASettings)) return false;
  if (blank != String::npos && !TryStrToTime(std::string_view(text).substr(blank), time, ASettings)) return false;
  AResult = Combine(date, time);
  return true;
}
bool TryStrToDateTime(std::string_view AText, TDateTime& AResult) {
  return TryStrToDateTime(AText, AResult, FormatSettings);
}

namespace {

using TTryParse = bool (*)(std::string_view, TDateTime&, const TFormatSettings&);

TDateTime ParseOrRaise(TTryParse AParse, std::string_view AText, const TFormatSettings& ASettings, const char* AWhat) {
  TDateTime result = 0;
  if (!AParse(AText, result, ASettings)) throw EConvertError(Format("'%s' is not a valid %s", {AText, AWhat}));
  return result;
}

} // namespace

TDateTime StrToDate(std::string_view AText, const TFormatSettings& ASettings) {
  return ParseOrRaise(TryStrToDate, AText, ASettings, "date");
}
TDateTime StrToDate(std::string_view AText) { return StrToDate(AText, FormatSettings); }
TDateTime StrToTime(std::string_view AText, const TFormatSettings& ASettings) {
  return ParseOrRaise(TryStrToTime, AText, ASettings, "time");
}
TDateTime StrToTime(std::string_view AText) { return StrToTime(AText, FormatSettings); }
TDateTime StrToDateTime(std::string_view AText, const TFormatSettings& ASettings) {
  return ParseOrRaise(TryStrToDateTime, AText, ASettings, "date and time");
}
TDateTime StrToDateTime(std::string_view AText) { return StrToDateTime(AText, FormatSettings); }

} // namespace Tarvo
