#pragma once
// The drop-down list of a row: the values its editor offers, each drawn by the editor when it
// draws its list rows, else as text. Picking a value (click, or Enter on the current one) emits
// Picked; Escape or a click elsewhere closes the list without a pick.

#include <QListWidget>

#include "design/paint/EditorPaint.h"

namespace Tarvo {

class TDropDownList : public QListWidget {
  Q_OBJECT
public:
  // AListDraw may be nil. The list is a popup window of its own, owned by AParent.
  TDropDownList(QWidget* AParent, const TRef<IStringArrayList>& AValues, const TRef<IPropertyEditorListDraw>& AListDraw,
                const String& ACurrent);
  // Places the list under ACell (global coordinates), as wide as the cell, at most AMaxRows high.
  void PlaceUnder(const QRect& ACell, int AMaxRows = 12);

signals:
  void Picked(const QString& AValue);

protected:
  void keyPressEvent(QKeyEvent* AEvent) override;

private:
  void Pick(QListWidgetItem* AItem);
};

} // namespace Tarvo
