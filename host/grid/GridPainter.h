#pragma once
// How a row of the grid looks: the name with its indentation and expander, the value drawn by
// its editor or as text, bold when it differs from the default, grey when it can't be changed,
// muted when the selected objects differ, and a refused value framed in red with the reason under
// it. The window and the tool's pictures paint through this one class.

#include <QPalette>
#include <QRect>

#include "design/paint/PaintObjects.h"
#include "host/grid/GridRows.h"

class QPainter;

namespace Tarvo {

struct TGridMetrics {
  int RowHeight = 18;
  int Indent = 14;   // a level of nesting
  int Expander = 9;  // the side of the plus and minus box
  int ButtonWidth = 18;
};

class TGridPainter {
public:
  TGridPainter(QPainter& APainter, const QPalette& APalette, const TGridMetrics& AMetrics);

  // ARect is the row's line, without the line of a refusal's message under it.
  void PaintRow(TGridRow& ARow, const QRect& ARect, int ANameWidth, Boolean ACurrent);
  // The line under a refused row.
  void PaintRefusal(const TGridRow& ARow, const QRect& ALine);
  // The value cell of a row's line, and the part of it a text edit takes.
  static QRect ValueCell(const QRect& ARowRect, int ANameWidth);
  static QRect EditRect(TGridRow& ARow, const QRect& AValueCell);
  // The plus or minus box of an expandable row.
  static QRect ExpanderRect(const TGridRow& ARow, const QRect& ARowRect, const TGridMetrics& AMetrics);

  static const QColor RefusalColor;

private:
  void PaintName(TGridRow& ARow, const QRect& ACell, Boolean ACurrent);
  void PaintValue(TGridRow& ARow, const QRect& ACell);
  QColor TextColor(const TGridRow& ARow) const;

  QPainter& FPainter;
  const QPalette& FPalette;
  const TGridMetrics& FMetrics;
  TRef<IPaintObjects> FPaintObjects;
};

} // namespace Tarvo
