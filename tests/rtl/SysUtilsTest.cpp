#include <gtest/gtest.h>

#include <cmath>
#include <cfloat>
#include <limits>

#include "rtl/SysUtils.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {
namespace {

TFormatSettings CommaSettings() {
  TFormatSettings settings;
  settings.DecimalSeparator = ',';
  return settings;
}

// A text that parses and the value it yields.
template <class T> struct TParsed {
  const char* Name;
  const char* Text;
  T Value;
};

// Runs ATry on each text: the accepted ones yield their values, the rejected ones fail.
template <class T, class TTry>
void ExpectParses(TTry ATry, std::initializer_list<TParsed<T>> AAccepted,
                  std::initializer_list<const char*> ARejected) {
  ForEachRow(AAccepted, [&](const TParsed<T>& ARow) {
    T value{};
    EXPECT_TRUE(ATry(ARow.Text, value));
    EXPECT_EQ(value, ARow.Value);
  });
  for (const char* text : ARejected) {
    T value{};
    EXPECT_FALSE(ATry(text, value)) << text;
  }
}

// Case folding and comparison touch ASCII only; control characters count as blanks.
TEST(SysUtilsTextTest, ComparisonCaseAndTrim) {
  EXPECT_TRUE(SameText("TObject", "tobject"));
  EXPECT_FALSE(SameText("\xC3\xA9", "\xC3\x89")); // bytes above 127 are not folded
  // The hash of indexes that ignore case folds as SameText does.
  EXPECT_EQ(HashText("Scope_1"), HashText("sCOPE_1"));
  EXPECT_NE(HashText("\xC3\xA9"), HashText("\xC3\x89"));
  EXPECT_LT(CompareText("ab", "ABC"), 0);
  EXPECT_GT(CompareText("\xC3\xA9", "z"), 0); // unsigned bytes
  EXPECT_LT(CompareStr("B", "a"), 0);         // ordinal: upper case first
  EXPECT_GT(CompareStr("\x80", "a"), 0);
  EXPECT_EQ(UpperCase("mIx\xC3\xA9-z1"), "MIX\xC3\xA9-Z1");
  const String text = "\t \x01 a b\r\n"; // control characters are blanks, UTF-8 bytes are not
  EXPECT_EQ(TrimLeft(text), "a b\r\n");
  EXPECT_EQ(TrimRight(text), "\t \x01 a b");
  EXPECT_EQ(Trim("\xC2\xA0x"), "\xC2\xA0x");
}

// Signs, both hexadecimal prefixes and the limits of each width; nothing around the digits.
TEST(SysUtilsIntegerTest, TextToInteger) {
  ExpectParses<Integer>([](const char* AText, Integer& AValue) { return TryStrToInt(AText, AValue); },
                        {{"negative zero", "-0", 0},
                         {"a plus sign", "+17", 17},
                         {"dollar hexadecimal in lower case", "$1f", 31},
                         {"negative 0x hexadecimal", "-0x10", -16},
                         {"all 32 bits in hexadecimal", "$FFFFFFFF", -1},
                         {"the sign bit in hexadecimal", "$80000000", INT32_MIN},
                         {"the largest integer", "2147483647", INT32_MAX},
                         {"the lowest integer", "-2147483648", INT32_MIN}},
                        {"2147483648", "-2147483649", "$100000000", "99999999999999999999", "", " 1", "1 ", "12a", "-",
                         "$", "0x", "$G", "1.0", "--1"});
  ExpectParses<Int64>([](const char* AText, Int64& AValue) { return TryStrToInt64(AText, AValue); },
                      {{"the lowest", "-9223372036854775808", INT64_MIN},
                       {"32 bits in hexadecimal stay positive", "$FFFFFFFF", 4294967295},
                       {"the sign bit in hexadecimal", "0x8000000000000000", INT64_MIN}},
                      {"9223372036854775808", "$10000000000000000"});
  ExpectParses<UInt64>([](const char* AText, UInt64& AValue) { return TryStrToUInt64(AText, AValue); },
                       {{"the largest unsigned", "18446744073709551615", UINT64_MAX}}, {"18446744073709551616", "-1"});
  ExpectError([] { StrToInt("12a"); }, "'12a' is not a valid integer value");
  ExpectError([] { StrToInt64(""); }, "'' is not a valid integer value");
  EXPECT_EQ(StrToIntDef("x", -3), -3);
}

// Hexadecimal shows the bits of the argument's own width.
TEST(SysUtilsIntegerTest, IntegersToText) {
  EXPECT_EQ(IntToStr(INT64_MIN), "-9223372036854775808");
  EXPECT_EQ(IntToStr(UINT64_MAX), "18446744073709551615");
  EXPECT_EQ(IntToHex(Byte(10), 4), "000A");
  EXPECT_EQ(IntToHex(-1, 2), "FFFFFFFF");
  EXPECT_EQ(IntToHex(SmallInt(-2), 0), "FFFE");
  EXPECT_EQ(IntToHex(0, 0), "0");
}

// Fifteen significant digits (seven for a single); exponents past them and below 1E-5.
TEST(SysUtilsFloatTest, FloatToStrGeneralForm) {
  const Extended inf = std::numeric_limits<Extended>::infinity();
  const struct {
    const char* Name;
    Single Value;
    const char* Text;
  } singles[] = {{"a tenth in single precision", 0.1f, "0.1"},
                 {"the largest single", FLT_MAX, "3.402823E38"},
                 {"seven integer digits", 1234567, "1234567"},
                 {"eight integer digits turn exponential", 12345678, "1.234568E7"}};
  ForEachRow(singles, [](const auto& ARow) { EXPECT_EQ(FloatToStr(ARow.Value), ARow.Text); });
  const struct {
    const char* Name;
    Extended Value;
    const char* Text;
  } rows[] = {{"a single's tenth widened", Extended(0.1f), "0.100000001490116"},
              {"a third keeps fifteen digits", 1.0L / 3, "0.333333333333333"},
              {"the largest double", DBL_MAX, "1.79769313486232E308"},
              {"the smallest plain fraction", 0.00001L, "0.00001"},
              {"below it, exponential", 0.0000099L, "9.9E-6"},
              {"fifteen integer digits", 1e14L, "100000000000000"},
              {"sixteen integer digits turn exponential", 1e15L, "1E15"},
              {"rounding up to sixteen digits", 999999999999999.9L, "1E15"},
              {"negative zero", -0.0L, "0"},
              {"negative infinity", -inf, "-INF"},
              {"not a number", std::numeric_limits<Extended>::quiet_NaN(), "NAN"}};
  ForEachRow(rows, [](const auto& ARow) { EXPECT_EQ(FloatToStr(ARow.Value), ARow.Text); });
}

// Given settings win; without them the global ones are read at each call.
TEST(SysUtilsFloatTest, SeparatorComesFromTheSettings) {
  const TFormatSettings comma = CommaSettings();
  EXPECT_EQ(FloatToStr(1.5e-7L, comma), "1,5E-7");
  EXPECT_EQ(CurrToStr(Currency::FromScaled(15000), comma), "1,5");
  const TFormatSettings saved = FormatSettings;
  FormatSettings.DecimalSeparator = ',';
  EXPECT_EQ(FloatToStr(0.25f), "0,25");
  Extended value = 0;
  EXPECT_TRUE(TryStrToFloat("0,25", value));
  FormatSettings = saved;
  EXPECT_EQ(FloatToStr(0.25f), "0.25");
}

// Floats, currencies and booleans from text, with the range of the target type.
TEST(SysUtilsFloatTest, TextToNumbers) {
  ExpectParses<Extended>(
      [](const char* AText, Extended& AValue) { return TryStrToFloat(AText, AValue, TFormatSettings::Invariant()); },
      {{"blanks around", " 1.5 ", 1.5L},
       {"no integer digits", "+.5", 0.5L},
       {"no fraction digits", "5.", 5},
       {"a signed exponent", "7e+1", 70},
       {"infinity as FloatToStr writes it", "-inf", -std::numeric_limits<Extended>::infinity()}},
      {"", ".", "1e", "e5", "1.2.3", "1,5", "1 2", "infinity", "1e99999"});
  Double narrow = 0;
  EXPECT_TRUE(TryStrToFloat("NAN", narrow) && std::isnan(narrow));
  EXPECT_FALSE(TryStrToFloat("1e400", narrow)); // fits Extended, not Double
  EXPECT_TRUE(TryStrToFloat("1,25", narrow, CommaSettings()));
  EXPECT_EQ(narrow, 1.25);
  ExpectError([] { StrToFloat("1.x"); }, "'1.x' is not a valid floating point value");

  const struct {
    const char* Name;
    Int64 Scaled;
    const char* Text;
  } currencies[] = {{"a whole number", 20000, "2"},
                    {"the smallest step below zero", -1, "-0.0001"},
                    {"all four places", 123456789, "12345.6789"},
                    {"the lowest currency", INT64_MIN, "-922337203685477.5808"}};
  ForEachRow(currencies, [](const auto& ARow) { EXPECT_EQ(CurrToStr(Currency::FromScaled(ARow.Scaled)), ARow.Text); });
  ExpectParses<Currency>([](const char* AText, Currency& AValue) { return TryStrToCurr(AText, AValue); },
                         {{"rounded to four places", "1.23456", Currency::FromScaled(12346)}}, {"1e30"});

  EXPECT_EQ(BoolToStr(true, true) + BoolToStr(false, true) + BoolToStr(true) + BoolToStr(false), "TrueFalse-10");
  const struct {
    const char* Name;
    const char* Text;
    bool Ok, Value;
  } booleans[] = {{"a name in upper case", "FALSE", true, false}, {"minus one", "-1", true, true},
                  {"a zero float", "0.0", true, false},           {"any other number in blanks", " 2 ", true, true},
                  {"another word", "yes", false, false},          {"nothing", "", false, false}};
  ForEachRow(booleans, [](const auto& ARow) {
    Boolean value = !ARow.Value;
    EXPECT_EQ(TryStrToBool(ARow.Text, value), ARow.Ok);
    if (ARow.Ok) {
      EXPECT_EQ(value, ARow.Value);
    }
  });
}

// Each directive with its width, precision and index; mismatched arguments are named errors.
TEST(SysUtilsFormatTest, Directives) {
  const struct {
    const char* Name;
    String Actual;
    const char* Expected;
  } rows[] = {
      {"a text, a character and a percent sign", Format("%s%s 100%%", {String("a"), 'b'}), "ab 100%"},
      {"the widest integers", Format("%d|%d|%u", {INT64_MIN, UINT64_MAX, Byte(7)}),
       "-9223372036854775808|18446744073709551615|7"},
      {"unsigned of negatives, in their own width", Format("%u %x", {-1, SmallInt(-1)}), "4294967295 FFFF"},
      {"hexadecimal with precision", Format("%x %.4x %X", {255, 10, Int64(-1)}), "FF 000A FFFFFFFFFFFFFFFF"},
      {"integer widths and precisions", Format("[%5d][%-5d][%.3d][%6.3d]", {42, 42, -7, 7}),
       "[   42][42   ][-007][   007]"},
      {"text widths and precision", Format("[%4s][%-4s][%.2s]", {"ab", "ab", "abcdef"}), "[  ab][ab  ][ab]"},
      {"fixed floats", Format("%f %.3f %.0f", {2.0, 3.14159, 2.5}), "2.00 3.142 2"},
      {"general floats", Format("%g %.3g %g", {0.1, 2.0 / 3, 1e20}), "0.1 0.667 1E20"},
      {"argument indexes", Format("%1:s %0:s %s", {"a", "b"}), "b a b"},
      {"the settings' decimal separator", Format("%.1f", {1.25}, CommaSettings()), "1,2"},
      {"extra arguments are ignored", Format("%d", {1, 2}), "1"},
  };
  ForEachRow(rows, [](const auto& ARow) { EXPECT_EQ(ARow.Actual, ARow.Expected); });

  const struct {
    const char* Name;
    String Format;
    TFormatArg Argument;
  } refused[] = {{"a text for an integer", "%d", "x"},   {"an integer for a text", "%s", 1},
                 {"a float for hexadecimal", "%x", 1.5}, {"an integer for a float", "%f", 1},
                 {"an unknown directive", "%q", 1},      {"a lone percent sign", "50%", 1}};
  ForEachRow(refused, [](const auto& ARow) {
    ExpectError([&] { Format(ARow.Format, {ARow.Argument}); },
                "Format '" + ARow.Format + "' invalid or incompatible with argument");
  });
  ExpectError([] { Format("%d and %d", {1}); }, "No argument for format '%d and %d'");
  ExpectError([] { Format("%3:d", {1}); }, "No argument for format '%3:d'");
}

} // namespace
} // namespace Tarvo::Testing
