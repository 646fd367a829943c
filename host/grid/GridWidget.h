#pragma once
// TInspectorGrid: the object inspector of a host. It shows the members of a designer's selection
// as the package decides them (rows, texts, drawing, lists, dialogs, in-place forms) and edits
// them. What it adds as a host: a refused value stays in its row with the reason under it, an
// edit in progress is committed before the selection changes, every change over the whole
// selection is one undo step, and expanded rows are remembered per component class.

#include <QWidget>

#include "design/Designer.h"

class QLineEdit;
class QToolButton;
class QUndoStack;

namespace Tarvo {

class TGridView;

class TInspectorGrid : public QWidget {
  Q_OBJECT
public:
  explicit TInspectorGrid(QWidget* AParent = nullptr);
  ~TInspectorGrid() override;

  // The designer whose selection the grid shows; the grid listens to its notices until another
  // is set or the grid goes. Nil leaves the grid empty.
  void SetDesigner(const TRef<IDesigner>& ADesigner);
  // Ends the text edit in progress. True when nothing is left open: there was no edit, or it was
  // written. False when the value was refused: the row shows why and keeps the typed text. A host
  // calls it before it changes the selection and keeps the selection when it answers false.
  bool CommitEdit();
  // One command for each change; its undo and redo write every object the change wrote.
  QUndoStack* UndoStack() const;
  // Forgets the changes that can't be undone any more (the design was replaced).
  void ClearUndo();

  // Rows under their category headings instead of in one alphabetical list.
  void SetCategoryView(bool AOn);
  // Only rows that match every word of the text, and the rows above them.
  void SetSearchText(const QString& AText);

  TGridView* View() const { return FView; }
  QLineEdit* SearchBox() const { return FSearch; }

signals:
  // Something the user should know that has no row to show it in (a text dropped by a selection
  // change that happened while it was being typed, a change that can't be undone).
  void Message(const QString& AText);

private:
  TGridView* FView;
  QLineEdit* FSearch;
  QToolButton* FCategoryButton;
};

} // namespace Tarvo
