// The float, date and time text routines: what the system writes, it reads back to a value that
// writes the same text again, under the invariant settings, the settings of a design file and
// settings with a decimal comma. Texts of any bytes are read without a fault.

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "rtl/DateUtils.h"
#include "rtl/SysUtils.h"

using namespace Tarvo;

namespace {

void Expect(bool ACondition, const char* AWhat, const String& AText) {
  if (ACondition) return;
  std::fprintf(stderr, "%s: \"%s\"\n", AWhat, AText.c_str());
  std::abort();
}

TFormatSettings Settings(uint8_t AChoice) {
  TFormatSettings settings = TFormatSettings::Invariant();
  if (AChoice % 3 == 1) settings.LongTimeFormat = "hh:nn:ss.zzz";
  if (AChoice % 3 == 2) {
    settings.DecimalSeparator = ',';
    settings.ThousandSeparator = '.';
    settings.DateSeparator = '.';
    settings.ShortDateFormat = "dd.mm.yyyy";
  }
  return settings;
}

// How far apart two values lie: for moments in time, not as numbers, since before day 0 the
// fraction counts away from zero (-1.75 is 18:00 of the day -1, which follows -2.25).
long double Distance(Extended A, Extended B) { return std::fabs(A - B); }
long double Distance(Single A, Single B) { return std::fabs(A - B); }
long double Moment(TDateTime AValue) {
  const long double day = std::trunc(AValue);
  return day + std::fabs(AValue - day);
}
long double Distance(TDateTime A, TDateTime B) { return std::fabs(Moment(A) - Moment(B)); }

// AWrite(AValue) reads back with ARead to a value no further from AValue than the text's
// precision (AMaxDifference), and that value's own text reads back to it exactly.
template <class T, class W, class R>
void ExpectReadBack(T AValue, W AWrite, R ARead, const TFormatSettings& ASettings, const char* AWhat,
                    long double AMaxDifference) {
  const String written = AWrite(AValue, ASettings);
  T read{};
  Expect(ARead(written, read, ASettings), AWhat, written);
  Expect(Distance(read, AValue) <= AMaxDifference, AWhat, written + "\" read too far off");
  const String again = AWrite(read, ASettings);
  T readAgain{};
  Expect(ARead(again, readAgain, ASettings) && readAgain == read, AWhat,
         written + "\" read and written as \"" + again + "\", which reads otherwise");
}

using TSettings = const TFormatSettings&;
const auto WriteExtended = [](Extended AValue, TSettings ASettings) { return FloatToStr(AValue, ASettings); };
const auto WriteSingle = [](Single AValue, TSettings ASettings) { return FloatToStr(AValue, ASettings); };
const auto ReadExtended = [](std::string_view AText, Extended& AValue, TSettings ASettings) {
  return TryStrToFloat(AText, AValue, ASettings);
};
const auto ReadSingle = [](std::string_view AText, Single& AValue, TSettings ASettings) {
  Extended value;
  if (!TryStrToFloat(AText, value, ASettings)) return false;
  AValue = Single(value);
  return true;
};
const auto WriteMoment = [](TDateTime AValue, TSettings ASettings) { return DateTimeToStr(AValue, ASettings); };
const auto WriteDate = [](TDateTime AValue, TSettings ASettings) { return DateToStr(AValue, ASettings); };
const auto WriteTime = [](TDateTime AValue, TSettings ASettings) { return TimeToStr(AValue, ASettings); };
const auto ReadMoment = [](std::string_view AText, TDateTime& AValue, TSettings ASettings) {
  return TryStrToDateTime(AText, AValue, ASettings);
};
const auto ReadDate = [](std::string_view AText, TDateTime& AValue, TSettings ASettings) {
  return TryStrToDate(AText, AValue, ASettings);
};
const auto ReadTime = [](std::string_view AText, TDateTime& AValue, TSettings ASettings) {
  return TryStrToTime(AText, AValue, ASettings);
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* AData, size_t ASize) {
  if (ASize < 17) return 0;
  const TFormatSettings settings = Settings(AData[0]);
  double number;
  std::memcpy(&number, AData + 1, sizeof number);
  uint64_t bits;
  std::memcpy(&bits, AData + 9, sizeof bits);
  const std::string_view text(reinterpret_cast<const char*>(AData + 17), ASize - 17);

  if (std::isfinite(number)) {
    ExpectReadBack(Extended(number), WriteExtended, ReadExtended, settings, "a float's text does not read back",
                   std::fabs(number) * 1e-14L);
    if (std::fabs(number) < 3e38)
      ExpectReadBack(Single(number), WriteSingle, ReadSingle, settings, "a single's text does not read back",
                     std::fabs(Single(number)) * 1e-6L);
  }
  // A moment between 0001-01-01 and 9999-12-31 23:59:58 (later ones round into the year 10000).
  const double first = -693593, last = 2958465 + 86398.0 / 86400;
  const TDateTime moment = first + (last - first) * (double(bits >> 11) / double(uint64_t(1) << 53));
  const long double second = 1.0L / 86400;
  ExpectReadBack(moment, WriteMoment, ReadMoment, settings, "a moment's text does not read back", second * 1.001L);
  ExpectReadBack(moment, WriteDate, ReadDate, settings, "a date's text does not read back", 1.0L);
  // A time's text has no date: only its own read back is compared.
  ExpectReadBack(moment, WriteTime, ReadTime, settings, "a time's text does not read back", HUGE_VALL);

  // Any text: read or refused; what is read writes a text that reads back to the same value.
  Extended value;
  if (TryStrToFloat(text, value, settings) && std::isfinite(value)) {
    Extended again;
    Expect(TryStrToFloat(FloatToStrPrec(value, 21, settings), again, settings), "a float read is not written back",
           String(text));
  }
  TDateTime readMoment;
  if (TryStrToDateTime(text, readMoment, settings))
    Expect(TryStrToDateTime(DateTimeToStr(readMoment, settings), readMoment, settings),
           "a moment read is not written back", String(text));
  return 0;
}
