#include "platform/GXTextLayout.h"

#include <QFontMetricsF>
#include <QStringList>

#include <array>

namespace Tarvo {

namespace {

constexpr qreal Unbounded = 1 << 20;

constexpr std::array<int, 3> HorizontalFlags = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
constexpr std::array<int, 3> VerticalFlags = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};

// An unbounded side keeps its near, middle or far edge where the caller put it.
void OpenUp(qreal& AStart, qreal& ASize, TIGXStringAlignment AAlignment) {
  if (ASize > 0) return;
  ASize = Unbounded;
  if (AAlignment == saCenter) AStart -= Unbounded / 2;
  else if (AAlignment == saFar) AStart -= Unbounded;
}

} // namespace

TGXTextLayout LayOutText(const String& AText, const QFont& AFont, QPaintDevice* ADevice, const TIGXRect& ARect,
                         IGXStringFormat* AFormat) {
  const Cardinal flags = AFormat ? AFormat->GetFormatFlags() : 0;
  const TIGXStringAlignment alignment = AFormat ? AFormat->GetAlignment() : saNear;
  const TIGXStringAlignment lineAlignment = AFormat ? AFormat->GetLineAlignment() : saNear;
  const TIGXStringTrimming trimming = AFormat ? AFormat->GetTrimming() : stNone;
  CheckEnumValue(alignment, saFar + 1, "TIGXStringAlignment");
  CheckEnumValue(lineAlignment, saFar + 1, "TIGXStringAlignment");
  CheckEnumValue(trimming, stEllipsisPath + 1, "TIGXStringTrimming");

  TGXTextLayout layout;
  qreal x = ARect.X, y = ARect.Y, width = ARect.Width, height = ARect.Height;
  OpenUp(x, width, alignment);
  OpenUp(y, height, lineAlignment);
  layout.Rect = QRectF(x, y, width, height);
  layout.Clip = !(flags & sfNoClip);
  const bool wrap = !(flags & sfNoWrap);
  // Clipping is the caller's, by the format.
  layout.Flags =
      HorizontalFlags[alignment] | VerticalFlags[lineAlignment] | Qt::TextDontClip | (wrap ? Qt::TextWordWrap : 0);
  layout.Text = QString::fromStdString(AText);

  if (!wrap && trimming >= stEllipsisCharacter) {
    const QFontMetricsF metrics(AFont, ADevice);
    const Qt::TextElideMode mode = trimming == stEllipsisPath ? Qt::ElideMiddle : Qt::ElideRight;
    QStringList lines = layout.Text.split(u'\n');
    for (QString& line : lines) line = metrics.elidedText(line, mode, width);
    layout.Text = lines.join(u'\n');
  }
  return layout;
}

} // namespace Tarvo
