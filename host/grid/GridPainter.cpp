#include "host/grid/GridPainter.h"

#include <QPainter>

#include "design/paint/EditorPaint.h"
#include "platform/GXGraphics.h"

namespace Tarvo {

const QColor TGridPainter::RefusalColor(0xD0, 0x20, 0x20);

namespace {

constexpr int TextMargin = 3;

void DrawText(QPainter& APainter, const QRect& ARect, const String& AText, const QFont& AFont, const QColor& AColor) {
  APainter.setFont(AFont);
  APainter.setPen(AColor);
  const QString text = QString::fromStdString(AText).replace('\n', ' ');
  APainter.drawText(ARect.adjusted(TextMargin, 0, -TextMargin, 0), Qt::AlignVCenter | Qt::AlignLeft,
                    APainter.fontMetrics().elidedText(text, Qt::ElideRight, ARect.width() - 2 * TextMargin));
}

} // namespace

TGridPainter::TGridPainter(QPainter& APainter, const QPalette& APalette, const TGridMetrics& AMetrics)
    : FPainter(APainter), FPalette(APalette), FMetrics(AMetrics), FPaintObjects(GetDesignPaintObjects()) {}

QRect TGridPainter::ValueCell(const QRect& ARowRect, int ANameWidth) {
  return QRect(ARowRect.left() + ANameWidth + 1, ARowRect.top(), ARowRect.width() - ANameWidth - 1, ARowRect.height());
}

QRect TGridPainter::ExpanderRect(const TGridRow& ARow, const QRect& ARowRect, const TGridMetrics& AMetrics) {
  const int left = ARowRect.left() + ARow.Depth * AMetrics.Indent + (AMetrics.Indent - AMetrics.Expander) / 2;
  return QRect(left, ARowRect.top() + (ARowRect.height() - AMetrics.Expander) / 2, AMetrics.Expander, AMetrics.Expander);
}

QRect TGridPainter::EditRect(TGridRow& ARow, const QRect& AValueCell) {
  TRef<IPropertyEditorDraw> draw;
  if (!Supports(ARow.Editor, draw)) return AValueCell;
  TIGXRect rect = TIGXRect::FromQRectF(AValueCell);
  draw->GetEditRectangle(rect);
  return rect.ToQRectF().toRect();
}

QColor TGridPainter::TextColor(const TGridRow& ARow) const {
  return FPalette.color(ARow.ReadOnly && !ARow.IsHeading ? QPalette::Disabled : QPalette::Active, QPalette::Text);
}

void TGridPainter::PaintRow(TGridRow& ARow, const QRect& ARect, int ANameWidth, Boolean ACurrent) {
  FPainter.fillRect(ARect, FPalette.color(ARow.IsHeading ? QPalette::Button : QPalette::Base));
  const QRect nameCell(ARect.left(), ARect.top(), ANameWidth, ARect.height());
  PaintName(ARow, nameCell, ACurrent);
  if (!ARow.IsHeading) {
    FPainter.setPen(FPalette.color(QPalette::Midlight));
    FPainter.drawLine(ARect.left() + ANameWidth, ARect.top(), ARect.left() + ANameWidth, ARect.bottom());
    PaintValue(ARow, ValueCell(ARect, ANameWidth));
  }
  FPainter.setPen(FPalette.color(QPalette::Midlight));
  FPainter.drawLine(ARect.left(), ARect.bottom(), ARect.right(), ARect.bottom());
}

void TGridPainter::PaintName(TGridRow& ARow, const QRect& ACell, Boolean ACurrent) {
  if (ACurrent) FPainter.fillRect(ACell, FPalette.color(QPalette::Highlight));
  if (ARow.Expandable) {
    const QRect box = ExpanderRect(ARow, ACell, FMetrics);
    FPainter.setPen(FPalette.color(ACurrent ? QPalette::HighlightedText : QPalette::Text));
    FPainter.drawRect(box.adjusted(0, 0, -1, -1));
    const int middle = box.top() + box.height() / 2;
    FPainter.drawLine(box.left() + 2, middle, box.right() - 2, middle);
    if (!ARow.Expanded) {
      const int centre = box.left() + box.width() / 2;
      FPainter.drawLine(centre, box.top() + 2, centre, box.bottom() - 2);
    }
  }
  const int textLeft = (ARow.Depth + 1) * FMetrics.Indent;
  const QRect text(ACell.left() + textLeft, ACell.top(), ACell.width() - textLeft, ACell.height());
  const TRef<IGXFont> font = ARow.IsHeading || !ARow.IsDefault ? FPaintObjects->GetModifiedFont() : FPaintObjects->GetFont();
  DrawText(FPainter, text, ARow.DisplayName, font->ToQFont(),
           ACurrent ? FPalette.color(QPalette::HighlightedText) : TextColor(ARow));
}

void TGridPainter::PaintValue(TGridRow& ARow, const QRect& ACell) {
  QRect textRect = ACell;
  Boolean defaultDraw = true;
  if (TRef<IPropertyEditorDraw> draw; Supports(ARow.Editor, draw)) {
    TIGXRect rect = TIGXRect::FromQRectF(ACell);
    {
      const TRef<IGXGraphics> graphics = New<TIGXGraphics>(FPainter);
      draw->DrawValue(graphics, FPaintObjects, FPaintObjects->GetListSet()->GetNone(), rect, defaultDraw);
    }
    textRect = rect.ToQRectF().toRect();
  }
  if (defaultDraw) {
    const String& text = ARow.RefusedText.empty() ? ARow.Value : ARow.RefusedText;
    const TRef<IGXFont> font = ARow.IsDefault ? FPaintObjects->GetFont() : FPaintObjects->GetModifiedFont();
    const QColor colour = ARow.Mixed ? FPalette.color(QPalette::PlaceholderText) : TextColor(ARow);
    DrawText(FPainter, textRect, text, font->ToQFont(), colour);
  }
  if (!ARow.RefusedMessage.empty()) {
    FPainter.setPen(QPen(RefusalColor, 1));
    FPainter.setBrush(Qt::NoBrush);
    FPainter.drawRect(ACell.adjusted(0, 0, -1, -1));
  }
}

void TGridPainter::PaintRefusal(const TGridRow& ARow, const QRect& ALine) {
  FPainter.fillRect(ALine, FPalette.color(QPalette::Base));
  DrawText(FPainter, ALine.adjusted((ARow.Depth + 1) * FMetrics.Indent, 0, 0, 0), ARow.RefusedMessage,
           FPaintObjects->GetFont()->ToQFont(), RefusalColor);
}

} // namespace Tarvo
