#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "rtl/DateUtils.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {
namespace {

using TStamp = std::array<Word, 7>; // year, month, day, hour, minute, second, millisecond

TStamp Decoded(TDateTime AValue) {
  TStamp s{};
  DecodeDateTime(AValue, s[0], s[1], s[2], s[3], s[4], s[5], s[6]);
  return s;
}

const char* const DateError = "Invalid argument to date encode";
const char* const TimeError = "Invalid argument to time encode";

// Encodes, decodes, formats and parses back to the second.
TEST(DateUtilsEncodeTest, RoundTrips) {
  const struct {
    const char* Name;
    TStamp S;
    TDateTime Serial;
    const char* Text;
  } rows[] = {
      {"day zero", {1899, 12, 30, 0, 0, 0, 0}, 0, "1899-12-30"},
      {"a month before day zero", {1899, 12, 1, 18, 0, 0, 0}, -29.75, "1899-12-01 18:00:00"},
      {"leap day of a century", {2000, 2, 29, 0, 0, 1, 0}, 36585 + 1.0 / 86400, "2000-02-29 00:00:01"},
      {"the first day", {1, 1, 1, 0, 0, 0, 0}, -693593, "0001-01-01"},
      {"last millisecond", {9999, 12, 31, 23, 59, 59, 999}, 2958465 + 86399999.0 / 86400000, "9999-12-31 23:59:59"}};
  ForEachRow(rows, [](const auto& r) {
    EXPECT_DOUBLE_EQ(EncodeDateTime(r.S[0], r.S[1], r.S[2], r.S[3], r.S[4], r.S[5], r.S[6]), r.Serial);
    EXPECT_EQ(Decoded(r.Serial), r.S);
    EXPECT_EQ(DateTimeToStr(r.Serial), r.Text);
    TStamp toTheSecond = r.S;
    toTheSecond[6] = 0;
    EXPECT_EQ(Decoded(StrToDateTime(r.Text)), toTheSecond);
  });
}

// Each part out of its range, and days that the calendar lacks, are refused by name.
TEST(DateUtilsEncodeTest, InvalidPartsRaise) {
  const struct {
    const char* Name;
    Word Year, Month, Day;
  } dates[] = {{"29 February of a century not divisible by 400", 1900, 2, 29},
               {"year 0", 0, 1, 1},
               {"year 10000", 10000, 1, 1},
               {"month 13", 2024, 13, 1},
               {"31 April", 2024, 4, 31},
               {"day 0", 2024, 1, 0}};
  TDateTime value = 0;
  ForEachRow(dates, [&](const auto& ADate) {
    EXPECT_FALSE(TryEncodeDate(ADate.Year, ADate.Month, ADate.Day, value));
    ExpectError([&] { EncodeDate(ADate.Year, ADate.Month, ADate.Day); }, DateError);
  });
  const struct {
    const char* Name;
    Word Hour, Minute, Second, Millisecond;
  } times[] = {{"hour 24", 24, 0, 0, 0}, {"minute 60", 0, 60, 0, 0}, {"second 60", 0, 0, 60, 0}};
  ForEachRow(times, [&](const auto& ATime) {
    EXPECT_FALSE(TryEncodeTime(ATime.Hour, ATime.Minute, ATime.Second, ATime.Millisecond, value));
    ExpectError([&] { EncodeTime(ATime.Hour, ATime.Minute, ATime.Second, ATime.Millisecond); }, TimeError);
  });
  ExpectError([] { EncodeDateTime(2024, 1, 1, 0, 0, 0, 1000); }, TimeError);
}

// Every millisecond decodes back, before day zero too; rounding carries over; out-of-calendar serials raise.
TEST(DateUtilsEncodeTest, DecodingRoundsAndChecksTheCalendar) {
  const TDateTime day = EncodeDate(2024, 2, 29);
  for (Word ms = 0; ms < 1000; ++ms) {
    ASSERT_EQ(MilliSecondOf(day + EncodeTime(12, 0, 0, ms)), ms);
    ASSERT_EQ(MilliSecondOf(EncodeDateTime(1850, 6, 1, 23, 59, 59, ms)), ms); // before day 0
  }
  // Before day 0 the fraction's absolute value is the time.
  EXPECT_EQ(Decoded(45351.9999999999), (TStamp{2024, 3, 1, 0, 0, 0, 0}));
  EXPECT_EQ(Decoded(-1.9999999999), (TStamp{1899, 12, 30, 0, 0, 0, 0}));
  EXPECT_EQ(Decoded(-0.25), (TStamp{1899, 12, 30, 6, 0, 0, 0}));
  for (TDateTime value : {-693594.0, 2958466.0, std::numeric_limits<double>::quiet_NaN(),
                          std::numeric_limits<double>::infinity(), 2958465.99999999999})
    ExpectError([value] { YearOf(value); }, "Invalid argument to date decode");
}

// Month lengths by the leap rule; each recode changes one part and checks the result.
TEST(DateUtilsPartsTest, DaysInMonthAndRecode) {
  const struct {
    const char* Name;
    Word Year, Month, Days;
  } months[] = {
      {"leap February", 2024, 2, 29},           {"common February", 2023, 2, 28}, {"century February", 1900, 2, 28},
      {"fourth-century February", 2000, 2, 29}, {"April", 2024, 4, 30},           {"December", 2024, 12, 31}};
  ForEachRow(months, [](const auto& r) {
    EXPECT_EQ(DaysInAMonth(r.Year, r.Month), r.Days);
    EXPECT_EQ(DaysInMonth(EncodeDate(r.Year, r.Month, 15)), r.Days);
  });
  EXPECT_THROW(DaysInAMonth(2024, 13), EAssertionFailed);
  EXPECT_FALSE(IsLeapYear(2100));

  const TDateTime base = EncodeDateTime(2024, 2, 29, 13, 45, 30, 123);
  const TDateTime early = EncodeDateTime(1850, 2, 28, 13, 45, 30, 123);
  const struct {
    const char* Name;
    TDateTime From;
    TDateTime (*Recode)(TDateTime, Word);
    Word Value;
    TStamp Expected;
  } rows[] = {{"second", base, RecodeSecond, 59, {2024, 2, 29, 13, 45, 59, 123}},
              {"minute", base, RecodeMinute, 0, {2024, 2, 29, 13, 0, 30, 123}},
              {"hour", base, RecodeHour, 23, {2024, 2, 29, 23, 45, 30, 123}},
              {"day", base, RecodeDay, 1, {2024, 2, 1, 13, 45, 30, 123}},
              {"month", base, RecodeMonth, 3, {2024, 3, 29, 13, 45, 30, 123}},
              {"year, leap to leap", base, RecodeYear, 2028, {2028, 2, 29, 13, 45, 30, 123}},
              {"year before day zero", early, RecodeYear, 1, {1, 2, 28, 13, 45, 30, 123}},
              {"millisecond before day zero", early, RecodeMilliSecond, 7, {1850, 2, 28, 13, 45, 30, 7}}};
  ForEachRow(rows, [](const auto& r) { EXPECT_EQ(Decoded(r.Recode(r.From, r.Value)), r.Expected); });
  ExpectError([&] { RecodeMilliSecond(base, 1000); }, TimeError);
  ExpectError([&] { RecodeYear(base, 2023); }, DateError); // no 2023-02-29
}

// Format letters in either case, other characters kept; the settings' separators and formats both ways.
TEST(DateUtilsTextTest, FormatAndSettings) {
  const TDateTime value = EncodeDateTime(2005, 3, 4, 5, 6, 7, 8);
  const struct {
    const char* Name;
    const char *Format, *Text;
  } formats[] = {{"short date", "yy/m/d", "05-3-4"},
                 {"short time", "h:n:s", "5:6:7"},
                 {"padded time", "hh:nn:ss.zzz", "05:06:07.008"},
                 {"upper-case letters, literal dots", "DD.MM.YYYY", "04.03.2005"},
                 {"other characters kept", "yyyy[T]hh z", "2005[T]05 8"}};
  ForEachRow(formats,
             [&](const auto& r) { EXPECT_EQ(FormatDateTime(r.Format, value, TFormatSettings::Invariant()), r.Text); });

  TFormatSettings settings;
  settings.DateSeparator = settings.TimeSeparator = '.';
  settings.ShortDateFormat = "dd/mm/yy";
  settings.LongTimeFormat = "hh:nn";
  const TDateTime leapDay = EncodeDateTime(2024, 2, 29, 9, 5, 0, 0);
  EXPECT_EQ(DateTimeToStr(leapDay, settings), "29.02.24 09.05");
  EXPECT_DOUBLE_EQ(StrToDateTime("29.2.24 9.05", settings), leapDay);
  TDateTime parsed = 0;
  EXPECT_FALSE(TryStrToDate("2024-02-29", parsed, settings));
}

// Unpadded parts, two-digit years around 50, fractions of a second and the 12-hour clock.
TEST(DateUtilsTextTest, AcceptedTexts) {
  const struct {
    const char* Name;
    TDateTime (*Parse)(std::string_view);
    const char* Text;
    TStamp Stamp;
  } rows[] = {{"unpadded date in blanks", StrToDate, " 2024-2-9 ", {2024, 2, 9}},
              {"two-digit year below 50", StrToDate, "49-01-01", {2049, 1, 1}},
              {"two-digit year from 50", StrToDate, "50-12-31", {1950, 12, 31}},
              {"single digits", StrToTime, "1:2:3", {1899, 12, 30, 1, 2, 3}},
              {"a fraction of a second", StrToTime, "12:00:00.5", {1899, 12, 30, 12, 0, 0, 500}},
              {"the last millisecond", StrToTime, "23:59:59.999", {1899, 12, 30, 23, 59, 59, 999}},
              {"half past midnight", StrToTime, "12:30 AM", {1899, 12, 30, 0, 30}},
              {"lower-case afternoon in blanks", StrToTime, " 1:05pm ", {1899, 12, 30, 13, 5}}};
  ForEachRow(rows, [](const auto& r) { EXPECT_EQ(Decoded(r.Parse(r.Text)), r.Stamp); });
  EXPECT_EQ(Decoded(StrToDateTime("2024-02-29 12:00:00.250")), (TStamp{2024, 2, 29, 12, 0, 0, 250}));
  EXPECT_DOUBLE_EQ(StrToDateTime("1899-12-29   06:00"), -1.25);
}

// Malformed and out-of-range texts fail, and the raising forms say which kind of value was wanted.
TEST(DateUtilsTextTest, RejectedTexts) {
  TDateTime value = 0;
  for (const char* text : {"2023-02-29", "abc", "", "2024-02", "024-01-01", "2024-1-1-1", "2024/01/01", "2024-001-01",
                           "2024-01-01x", "0000-01-01"})
    EXPECT_FALSE(TryStrToDate(text, value)) << text;
  for (const char* text : {"25:00", "24:00", "12:60", "12", "12:00:60", "13:00 PM", "0:30 AM", "12:00:00.1234",
                           "1:2:3:4", "12:00:00.", "abc", ""})
    EXPECT_FALSE(TryStrToTime(text, value)) << text;
  EXPECT_FALSE(TryStrToDateTime("2024-02-29 25:00", value));
  EXPECT_FALSE(TryStrToDateTime("12:00", value));
  ExpectError([] { StrToDate("2023-02-29"); }, "'2023-02-29' is not a valid date");
  ExpectError([] { StrToTime("25:00"); }, "'25:00' is not a valid time");
  ExpectError([] { StrToDateTime("x"); }, "'x' is not a valid date and time");
}

} // namespace
} // namespace Tarvo::Testing
