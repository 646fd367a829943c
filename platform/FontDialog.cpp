#include "platform/FontDialog.h"

#include <QFontDialog>

#include <algorithm>
#include <array>

#include "platform/ModalSeam.h"

namespace Tarvo {

namespace {

struct TStyleFlag {
  TFontStyle Style;
  bool (QFont::*Get)() const;
  void (QFont::*Set)(bool);
};

constexpr std::array<TStyleFlag, 4> StyleFlags{{{fsBold, &QFont::bold, &QFont::setBold},
                                                {fsItalic, &QFont::italic, &QFont::setItalic},
                                                {fsUnderline, &QFont::underline, &QFont::setUnderline},
                                                {fsStrikeOut, &QFont::strikeOut, &QFont::setStrikeOut}}};

QFont ToQFont(const TFont& AFont) {
  QFont font(QString::fromStdString(AFont.GetName()));
  font.setPointSize(std::max(1, AFont.GetSize()));
  for (const TStyleFlag& flag : StyleFlags) (font.*flag.Set)(AFont.GetStyle().Contains(flag.Style));
  return font;
}

void AssignQFont(TFont& AFont, const QFont& AChoice) {
  AFont.SetName(AChoice.family().toStdString());
  if (AChoice.pointSize() > 0) AFont.SetSize(AChoice.pointSize());
  TFontStyles style;
  for (const TStyleFlag& flag : StyleFlags)
    if ((AChoice.*flag.Get)()) style.Include(flag.Style);
  AFont.SetStyle(style);
}

} // namespace

Boolean ExecuteFontDialog(TFont& AFont) {
  QFontDialog dialog;
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  dialog.setCurrentFont(ToQFont(AFont));
  if (ExecuteModal(dialog) != QDialog::Accepted) return false;
  AssignQFont(AFont, dialog.selectedFont());
  return true;
}

} // namespace Tarvo
