#include "platform/OpenFileDialog.h"

#include <QFileDialog>
#include <QRegularExpression>

#include "platform/ModalSeam.h"

namespace Tarvo {

namespace {

QStringList SplitPatterns(QStringView APatterns) {
  static const QRegularExpression separators(QStringLiteral("[;\\s]+"));
  QStringList patterns = APatterns.toString().split(separators, Qt::SkipEmptyParts);
  if (patterns.isEmpty()) patterns.append(QStringLiteral("*"));
  return patterns;
}

// ADescription without a closing "(...)" that names APatterns; Qt reads patterns separated by
// blanks only, so such a group is written again rather than kept as it stands.
QString WithoutNamedPatterns(const QString& ADescription, const QStringList& APatterns) {
  const QString description = ADescription.trimmed();
  const qsizetype open = description.lastIndexOf(u'(');
  if (open < 0 || !description.endsWith(u')')) return description;
  const QStringView named = QStringView(description).mid(open + 1, description.size() - open - 2);
  return SplitPatterns(named) == APatterns ? description.left(open).trimmed() : description;
}

QString NameFilter(const QString& ADescription, const QString& APatterns) {
  const QStringList patterns = SplitPatterns(APatterns);
  const QString description = WithoutNamedPatterns(ADescription, patterns);
  const QString list = patterns.join(u' ');
  return description.isEmpty() ? list : QStringLiteral("%1 (%2)").arg(description, list);
}

} // namespace

QStringList FileDialogNameFilters(const String& AFilter) {
  const QStringList parts = QString::fromStdString(AFilter).split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    const QString patterns = i + 1 < parts.size() ? parts[i + 1] : QString();
    // The empty part after a closing "|" is no filter.
    if (parts[i].trimmed().isEmpty() && patterns.trimmed().isEmpty()) continue;
    filters.append(NameFilter(parts[i], patterns));
  }
  return filters;
}

Boolean ExecuteOpenFileDialog(const String& AFilter, const String& ADefaultExt, String& AFileName) {
  QFileDialog dialog;
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  const QStringList filters = FileDialogNameFilters(AFilter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  QString suffix = QString::fromStdString(ADefaultExt);
  if (suffix.startsWith(u'.')) suffix.remove(0, 1);
  dialog.setDefaultSuffix(suffix);
  if (ExecuteModal(dialog) != QDialog::Accepted) return false;
  const QStringList files = dialog.selectedFiles();
  if (files.isEmpty()) return false;
  AFileName = files.first().toStdString();
  return true;
}

} // namespace Tarvo
