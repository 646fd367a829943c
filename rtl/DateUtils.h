#pragma once
#pragma GCC visibility push(default)
// TDateTime routines. Day 0 is 1899-12-30; before it, the integral part is the day and the
// fraction's absolute value the time (-1.25 is 1899-12-29 06:00). Years run from 1 to 9999.

#include "rtl/SysUtils.h"

namespace Tarvo {

// ---- Encoding and decoding (EConvertError on invalid parts) ----

bool TryEncodeDate(Word AYear, Word AMonth, Word ADay, TDateTime& AResult);
bool TryEncodeTime(Word AHour, Word AMinute, Word ASecond, Word AMilliSecond, TDateTime& AResult);
bool TryEncodeDateTime(Word AYear, Word AMonth, Word ADay, Word AHour, Word AMinute, Word ASecond, Word AMilliSecond,
                       TDateTime& AResult);
TDateTime EncodeDate(Word AYear, Word AMonth, Word ADay);
TDateTime EncodeTime(Word AHour, Word AMinute, Word ASecond, Word AMilliSecond);
TDateTime EncodeDateTime(Word AYear, Word AMonth, Word ADay, Word AHour, Word AMinute, Word ASecond, Word AMilliSecond);
// The time is rounded to the nearest millisecond first, so a day may carry over.
void DecodeDate(TDateTime ADate, Word& AYear, Word& AMonth, Word& ADay);
void DecodeTime(TDateTime ATime, Word& AHour, Word& AMinute, Word& ASecond, Word& AMilliSecond);
void DecodeDateTime(TDateTime ADateTime, Word& AYear, Word& AMonth, Word& ADay, Word& AHour, Word& AMinute,
                    Word& ASecond, Word& AMilliSecond);

// ---- Parts ----

bool IsLeapYear(Word AYear);
Word DaysInAMonth(Word AYear, Word AMonth);
Word DaysInMonth(TDateTime ADateTime);
Word YearOf(TDateTime ADateTime);
Word MonthOf(TDateTime ADateTime);
Word DayOf(TDateTime ADateTime);
Word HourOf(TDateTime ADateTime);
Word MinuteOf(TDateTime ADateTime);
Word SecondOf(TDateTime ADateTime);
Word MilliSecondOf(TDateTime ADateTime);
// Replace one part and keep the others; a result that is no valid date raises EConvertError.
TDateTime RecodeYear(TDateTime ADateTime, Word AYear);
TDateTime RecodeMonth(TDateTime ADateTime, Word AMonth);
TDateTime RecodeDay(TDateTime ADateTime, Word ADay);
TDateTime RecodeHour(TDateTime ADateTime, Word AHour);
TDateTime RecodeMinute(TDateTime ADateTime, Word AMinute);
TDateTime RecodeSecond(TDateTime ADateTime, Word ASecond);
TDateTime RecodeMilliSecond(TDateTime ADateTime, Word AMilliSecond);

// ---- Text ----

// Tokens yyyy yy m mm d dd h hh n nn s ss z zzz (any case); '/' writes the date separator, ':'
// the time separator, anything else is copied.
String FormatDateTime(std::string_view AFormat, TDateTime ADateTime, const TFormatSettings& ASettings);
String DateToStr(TDateTime ADate);
String DateToStr(TDateTime ADate, const TFormatSettings& ASettings);
String TimeToStr(TDateTime ATime);
String TimeToStr(TDateTime ATime, const TFormatSettings& ASettings);
// The date, then the time unless it is exactly midnight.
String DateTimeToStr(TDateTime ADateTime);
String DateTimeToStr(TDateTime ADateTime, const TFormatSettings& ASettings);

// Dates follow the y/m/d order of ShortDateFormat with DateSeparator between the fields; two-digit
// years fall in 1950..2049. Times are h:n[:s[.zzz]] with an optional AM/PM. Blanks around are
// allowed; a date and a time are separated by blanks.
bool TryStrToDate(std::string_view AText, TDateTime& AResult);
bool TryStrToDate(std::string_view AText, TDateTime& AResult, const TFormatSettings& ASettings);
bool TryStrToTime(std::string_view AText, TDateTime& AResult);
bool TryStrToTime(std::string_view AText, TDateTime& AResult, const TFormatSettings& ASettings);
bool TryStrToDateTime(std::string_view AText, TDateTime& AResult);
bool TryStrToDateTime(std::string_view AText, TDateTime& AResult, const TFormatSettings& ASettings);
TDateTime StrToDate(std::string_view AText); // raise EConvertError
TDateTime StrToDate(std::string_view AText, const TFormatSettings& ASettings);
TDateTime StrToTime(std::string_view AText);
TDateTime StrToTime(std::string_view AText, const TFormatSettings& ASettings);
TDateTime StrToDateTime(std::string_view AText);
TDateTime StrToDateTime(std::string_view AText, const TFormatSettings& ASettings);

} // namespace Tarvo

#pragma GCC visibility pop
