#include "platform/LocaleSettings.h"

#include <QLocale>

namespace Tarvo {

namespace {

// A separator as one byte; one beyond Latin-1 (a narrow no-break space) as a blank.
char Latin1(QChar ACharacter) { return ACharacter.toLatin1() ? ACharacter.toLatin1() : ' '; }

// A date or time pattern of the platform ("dd.MM.yy", "M/d/yy", "HH:mm") as our tokens: the
// fields in their order with APlaceholder between them, and the first separator the pattern uses.
String Pattern(const QString& APattern, char APlaceholder, char& ASeparator) {
  String result;
  Boolean fieldSeen = false, separatorSeen = false;
  for (qsizetype i = 0; i < APattern.size();) {
    const QChar letter = APattern[i];
    qsizetype run = 1;
    while (i + run < APattern.size() && APattern[i + run] == letter) ++run;
    i += run;
    if (!letter.isLetter()) {
      if (fieldSeen && !separatorSeen) ASeparator = Latin1(letter), separatorSeen = true;
      continue;
    }
    fieldSeen = true;
    const String field = letter == 'y'   ? "yyyy"
                         : letter == 'M' ? String(std::min<qsizetype>(run, 2), 'm')
                         : letter == 'd' ? String(std::min<qsizetype>(run, 2), 'd')
                                         : String();
    if (field.empty()) continue; // weekday names, eras, AM/PM: not part of the order
    if (!result.empty()) result += APlaceholder;
    result += field;
  }
  return result;
}

} // namespace

bool TryFormatSettingsOf(const String& ALocaleName, TFormatSettings& AResult) {
  const QLocale locale(QString::fromStdString(ALocaleName));
  if (locale.language() == QLocale::C && ALocaleName != "C") return false;
  TFormatSettings settings = TFormatSettings::Invariant();
  settings.DecimalSeparator = Latin1(locale.decimalPoint().at(0));
  settings.ThousandSeparator = Latin1(locale.groupSeparator().at(0));
  settings.ShortDateFormat = Pattern(locale.dateFormat(QLocale::ShortFormat), '/', settings.DateSeparator);
  char timeSeparator = settings.TimeSeparator;
  Pattern(locale.timeFormat(QLocale::ShortFormat), ':', timeSeparator);
  settings.TimeSeparator = timeSeparator;
  AResult = settings;
  return true;
}

} // namespace Tarvo
