#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "rtl/DateUtils.h"
#include "rtl/Exceptions.h"

namespace Tarvo {
namespace {

using TStamp = std::array<Word, 7>; // year, month, day, hour, minute, second, millisecond

TStamp Decoded(TDateTime AValue) {
  TStamp s{};
  DecodeDateTime(AValue, s[0], s[1], s[2], s[3], s[4], s[5], s[6]);
  return s;
}

TDateTime Encoded(const TStamp& s) { return EncodeDateTime(s[0], s[1], s[2], s[3], s[4], s[5], s[6]); }

template <class F> void ExpectConvertError(F AAction, const String& AMessage) {
  try {
    AAction();
    ADD_FAILURE() << "no EConvertError, expected: " << AMessage;
  } catch (const EConvertError& e) {
    EXPECT_EQ(e.Message(), AMessage);
  }
}

// Encodes, decodes, formats and parses back to the second.
TEST(DateUtilsEncodeTest, RoundTrips) {
  const struct {
    TStamp Stamp;
    TDateTime Serial;
    const char* Text;
  } rows[] = {{{1899, 12, 30, 0, 0, 0, 0}, 0, "1899-12-30"},
              {{1899, 12, 29, 6, 0, 0, 0}, -1.25, "1899-12-29 06:00:00"},
              {{1899, 12, 30, 12, 0, 0, 0}, 0.5, "1899-12-30 12:00:00"},
              {{1899, 12, 1, 18, 0, 0, 0}, -29.75, "1899-12-01 18:00:00"},
              {{1970, 1, 1, 0, 0, 0, 0}, 25569, "1970-01-01"},
              {{2024, 2, 29, 12, 0, 0, 0}, 45351.5, "2024-02-29 12:00:00"},
              {{2000, 2, 29, 0, 0, 1, 0}, 36585 + 1.0 / 86400, "2000-02-29 00:00:01"},
              {{1, 1, 1, 0, 0, 0, 0}, -693593, "0001-01-01"},
              {{9999, 12, 31, 23, 59, 59, 999}, 2958465 + 86399999.0 / 86400000, "9999-12-31 23:59:59"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Text);
    EXPECT_DOUBLE_EQ(Encoded(row.Stamp), row.Serial);
    EXPECT_EQ(Decoded(row.Serial), row.Stamp);
    EXPECT_EQ(DateTimeToStr(row.Serial), row.Text);
    TDateTime parsed = 0;
    ASSERT_TRUE(TryStrToDateTime(row.Text, parsed));
    TStamp toTheSecond = row.Stamp;
    toTheSecond[6] = 0;
    EXPECT_EQ(Decoded(parsed), toTheSecond);
  }
}

TEST(DateUtilsEncodeTest, InvalidPartsRaise) {
  const std::array<Word, 3> dates[] = {{2023, 2, 29}, {1900, 2, 29}, {0, 1, 1},    {10000, 1, 1},
                                       {2024, 13, 1}, {2024, 0, 1},  {2024, 4, 31}, {2024, 1, 0}};
  for (const auto& d : dates) {
    TDateTime value = 0;
    EXPECT_FALSE(TryEncodeDate(d[0], d[1], d[2], value)) << d[0] << "-" << d[1] << "-" << d[2];
    ExpectConvertError([&] { EncodeDate(d[0], d[1], d[2]); }, "Invalid argument to date encode");
  }
  const std::array<Word, 4> times[] = {{24, 0, 0, 0}, {0, 60, 0, 0}, {0, 0, 60, 0}, {0, 0, 0, 1000}};
  for (const auto& t : times) {
    TDateTime value = 0;
    EXPECT_FALSE(TryEncodeTime(t[0], t[1], t[2], t[3], value));
    ExpectConvertError([&] { EncodeTime(t[0], t[1], t[2], t[3]); }, "Invalid argument to time encode");
  }
  ExpectConvertError([] { EncodeDateTime(2024, 1, 1, 0, 0, 0, 1000); }, "Invalid argument to time encode");
}

TEST(DateUtilsEncodeTest, EveryMillisecondSurvivesDecoding) {
  const TDateTime day = EncodeDate(2024, 2, 29);
  for (Word ms = 0; ms < 1000; ++ms) {
    ASSERT_EQ(MilliSecondOf(day + EncodeTime(12, 0, 0, ms)), ms);
    ASSERT_EQ(MilliSecondOf(EncodeDateTime(1850, 6, 1, 23, 59, 59, ms)), ms); // before day 0
  }
}

TEST(DateUtilsEncodeTest, RoundingCarriesIntoTheNextDay) {
  EXPECT_EQ(Decoded(45351.9999999999), (TStamp{2024, 3, 1, 0, 0, 0, 0}));
  EXPECT_EQ(Decoded(-1.9999999999), (TStamp{1899, 12, 30, 0, 0, 0, 0}));
  EXPECT_EQ(Decoded(-0.25), (TStamp{1899, 12, 30, 6, 0, 0, 0})); // the fraction's absolute value
}

TEST(DateUtilsEncodeTest, ValuesOutsideTheCalendarRaise) {
  const TDateTime outside[] = {-693594, 2958466, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity(), 2958465.99999999999};
  for (TDateTime value : outside)
    ExpectConvertError([value] { YearOf(value); }, "Invalid argument to date decode");
}

TEST(DateUtilsPartsTest, DaysInMonth) {
  struct Row {
    Word Year, Month, Days;
  };
  const Row rows[] = {{2024, 2, 29}, {2023, 2, 28}, {1900, 2, 28}, {2000, 2, 29},
                      {2024, 1, 31}, {2024, 4, 30}, {2024, 12, 31}};
  for (const Row& r : rows) {
    EXPECT_EQ(DaysInAMonth(r.Year, r.Month), r.Days) << r.Year << "-" << r.Month;
    EXPECT_EQ(DaysInMonth(EncodeDate(r.Year, r.Month, 15)), r.Days);
  }
  EXPECT_THROW(DaysInAMonth(2024, 13), EAssertionFailed);
  EXPECT_TRUE(IsLeapYear(2000));
  EXPECT_FALSE(IsLeapYear(2100));
}

TEST(DateUtilsPartsTest, RecodeReplacesOnePart) {
  const TDateTime base = EncodeDateTime(2024, 2, 29, 13, 45, 30, 123);
  const TDateTime early = EncodeDateTime(1850, 2, 28, 13, 45, 30, 123);
  using TRecode = TDateTime (*)(TDateTime, Word);
  struct Row {
    TDateTime From;
    TRecode Recode;
    Word Value;
    TStamp Expected;
  };
  const Row rows[] = {{base, RecodeMilliSecond, 999, {2024, 2, 29, 13, 45, 30, 999}},
                      {base, RecodeMilliSecond, 0, {2024, 2, 29, 13, 45, 30, 0}},
                      {base, RecodeSecond, 59, {2024, 2, 29, 13, 45, 59, 123}},
                      {base, RecodeMinute, 0, {2024, 2, 29, 13, 0, 30, 123}},
                      {base, RecodeHour, 23, {2024, 2, 29, 23, 45, 30, 123}},
                      {base, RecodeDay, 1, {2024, 2, 1, 13, 45, 30, 123}},
                      {base, RecodeMonth, 3, {2024, 3, 29, 13, 45, 30, 123}},
                      {base, RecodeYear, 2028, {2028, 2, 29, 13, 45, 30, 123}},
                      {early, RecodeYear, 1, {1, 2, 28, 13, 45, 30, 123}},
                      {early, RecodeMilliSecond, 7, {1850, 2, 28, 13, 45, 30, 7}}, // before day 0
                      {early, RecodeHour, 0, {1850, 2, 28, 0, 45, 30, 123}}};
  for (const Row& r : rows) EXPECT_EQ(Decoded(r.Recode(r.From, r.Value)), r.Expected);
  ExpectConvertError([&] { RecodeMilliSecond(base, 1000); }, "Invalid argument to time encode");
  ExpectConvertError([&] { RecodeHour(base, 24); }, "Invalid argument to time encode");
  ExpectConvertError([&] { RecodeYear(base, 2023); }, "Invalid argument to date encode"); // no 2023-02-29
  ExpectConvertError([&] { RecodeDay(base, 30); }, "Invalid argument to date encode");
}

TEST(DateUtilsTextTest, FormatTokens) {
  const TDateTime value = EncodeDateTime(2005, 3, 4, 5, 6, 7, 8);
  const TFormatSettings& invariant = TFormatSettings::Invariant();
  const std::pair<const char*, const char*> rows[] = {
      {"yyyy-mm-dd", "2005-03-04"}, {"yy/m/d", "05-3-4"},          {"h:n:s", "5:6:7"},
      {"hh:nn:ss.zzz", "05:06:07.008"}, {"z", "8"},                {"YYYY MM DD", "2005 03 04"},
      {"dd.mm.yyyy", "04.03.2005"}, {"yyyy[T]hh", "2005[T]05"},
  };
  for (const auto& [format, text] : rows) EXPECT_EQ(FormatDateTime(format, value, invariant), text) << format;
}

TEST(DateUtilsTextTest, SettingsDriveTextBothWays) {
  TFormatSettings settings;
  settings.DateSeparator = '.';
  settings.TimeSeparator = '.';
  settings.ShortDateFormat = "dd/mm/yy";
  settings.LongTimeFormat = "hh:nn";
  const TDateTime value = EncodeDateTime(2024, 2, 29, 9, 5, 0, 0);
  EXPECT_EQ(DateToStr(value, settings), "29.02.24");
  EXPECT_EQ(TimeToStr(value, settings), "09.05");
  EXPECT_EQ(DateTimeToStr(value, settings), "29.02.24 09.05");
  TDateTime parsed = 0;
  ASSERT_TRUE(TryStrToDateTime("29.2.24 9.05", parsed, settings));
  EXPECT_DOUBLE_EQ(parsed, value);
  EXPECT_FALSE(TryStrToDate("2024-02-29", parsed, settings));
}

TEST(DateUtilsTextTest, AcceptedTexts) {
  struct Row {
    const char* Text;
    TStamp Expected;
  };
  const Row dates[] = {{"2024-02-29", {2024, 2, 29}}, {" 2024-2-9 ", {2024, 2, 9}}, {"49-01-01", {2049, 1, 1}},
                       {"50-12-31", {1950, 12, 31}},  {"0001-01-01", {1, 1, 1}}};
  for (const Row& r : dates) EXPECT_EQ(Decoded(StrToDate(r.Text)), r.Expected) << r.Text;
  const Row times[] = {{"12:00", {1899, 12, 30, 12}},
                       {"1:2:3", {1899, 12, 30, 1, 2, 3}},
                       {"12:00:00.250", {1899, 12, 30, 12, 0, 0, 250}},
                       {"12:00:00.5", {1899, 12, 30, 12, 0, 0, 500}},
                       {"23:59:59.999", {1899, 12, 30, 23, 59, 59, 999}},
                       {"12:30 AM", {1899, 12, 30, 0, 30}},
                       {"12:30 PM", {1899, 12, 30, 12, 30}},
                       {" 1:05pm ", {1899, 12, 30, 13, 5}}};
  for (const Row& r : times) EXPECT_EQ(Decoded(StrToTime(r.Text)), r.Expected) << r.Text;
  const Row dateTimes[] = {{"2024-02-29 12:00:00.250", {2024, 2, 29, 12, 0, 0, 250}},
                           {"1899-12-29   06:00", {1899, 12, 29, 6}},
                           {"2024-02-29", {2024, 2, 29}}};
  for (const Row& r : dateTimes) EXPECT_EQ(Decoded(StrToDateTime(r.Text)), r.Expected) << r.Text;
  EXPECT_DOUBLE_EQ(StrToDateTime("1899-12-29 06:00"), -1.25);
}

TEST(DateUtilsTextTest, RejectedTexts) {
  const char* dates[] = {"2023-02-29", "abc", "", "2024-02", "024-01-01", "2024-1-1-1", "2024/01/01", "2024-001-01",
                         "2024-01-01x", "0000-01-01"};
  TDateTime value = 0;
  for (const char* text : dates) EXPECT_FALSE(TryStrToDate(text, value)) << text;
  const char* times[] = {"25:00", "24:00", "12:60", "12", "12:00:60", "13:00 PM", "0:30 AM", "12:00:00.1234", "1:2:3:4",
                         "12:00:00.", "abc", ""};
  for (const char* text : times) EXPECT_FALSE(TryStrToTime(text, value)) << text;
  EXPECT_FALSE(TryStrToDateTime("2024-02-29 25:00", value));
  EXPECT_FALSE(TryStrToDateTime("12:00", value));
  ExpectConvertError([] { StrToDate("2023-02-29"); }, "'2023-02-29' is not a valid date");
  ExpectConvertError([] { StrToTime("25:00"); }, "'25:00' is not a valid time");
  ExpectConvertError([] { StrToDateTime("x"); }, "'x' is not a valid date and time");
}

} // namespace
} // namespace Tarvo
