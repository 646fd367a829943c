#include "platform/GXFonts.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "rtl/Exceptions.h"

namespace Tarvo {

TIGXFont::TIGXFont(String AFamily, Single ASize, TIGXFontStyle AStyle, TIGXFontUnit AUnit)
    : FFamily(std::move(AFamily)), FSize(ASize), FStyle(AStyle), FUnit(AUnit) {
  if (!(ASize > 0)) throw EArgumentOutOfRangeException("Font size must be positive, not " + std::to_string(ASize));
}

QFont TIGXFont::ToQFont() {
  QFont font(QString::fromStdString(FFamily));
  if (FUnit == fuPixel) font.setPixelSize(std::max(1, int(std::lround(FSize))));
  else font.setPointSizeF(FSize);
  font.setBold(FStyle & gfsBold);
  font.setItalic(FStyle & gfsItalic);
  font.setUnderline(FStyle & gfsUnderline);
  font.setStrikeOut(FStyle & gfsStrikeout);
  return font;
}

} // namespace Tarvo
