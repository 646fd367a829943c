#pragma once
// The scrolling body of the inspector grid: rows painted by TGridPainter, the splitter between
// names and values, the keyboard and the mouse, and the editing of the current row (text edit,
// drop-down list, dialog button, clicks the editor takes, in-place form under the row, hosted
// control). Every write goes through Write, which keeps refusals in the row and records undo.

#include <QAbstractScrollArea>
#include <QPointer>

#include <functional>
#include <optional>

#include "design/paint/InplaceForm.h"
#include "design/paint/PropertyEditorHost.h"
#include "host/grid/DropDownList.h"
#include "host/grid/GridPainter.h"
#include "host/grid/GridRows.h"
#include "host/grid/MemberSnapshot.h"

class QLineEdit;
class QToolButton;
class QUndoStack;

namespace Tarvo {

class TGridView : public QAbstractScrollArea {
  Q_OBJECT
public:
  explicit TGridView(QWidget* AParent = nullptr);
  ~TGridView() override;

  void SetDesigner(const TRef<IDesigner>& ADesigner);
  TGridRows& Rows() { return FRows; }
  QUndoStack* UndoStack() const { return FUndo; }
  void SetCategoryView(Boolean AOn);
  void SetSearchText(const String& AText);
  const TGridMetrics& Metrics() const { return FMetrics; }
  int NameWidth() const { return FNameWidth; }
  void SetNameWidth(int AWidth);

  TGridRow* Current() const { return FCurrent; }
  // Makes ARow current (committing the edit of the row left) and scrolls it into view.
  void SetCurrent(TGridRow* ARow);
  // The row at a dotted path, expanding the rows on the way, made current; nil when none.
  TGridRow* SelectPath(const String& APath);
  // Where the row's line lies in the viewport; empty when it is not shown.
  QRect RowRect(const TGridRow& ARow);
  QRect ValueRect(const TGridRow& ARow) { return TGridPainter::ValueCell(RowRect(ARow), FNameWidth); }
  // The height of all shown rows, lines under them included.
  int ContentHeight();

  // Editing the current row. StartEdit opens the text edit (with AText typed, or the row's text);
  // a row whose editor shows a control of its own gets that instead.
  void StartEdit(const QString* AText = nullptr);
  // See TInspectorGrid::CommitEdit.
  Boolean CommitEdit();
  // Closes the edit without writing and forgets the row's refusal.
  void CancelEdit();
  QLineEdit* LineEdit() const { return FEditRow ? FEdit : nullptr; }
  void OpenList();
  TDropDownList* List() const { return FList; }
  void RunDialog();
  QToolButton* ListButton() const { return FListButton; }
  QToolButton* DialogButton() const { return FDialogButton; }
  // The in-place form open under the current row, nil when none.
  QWidget* InplaceForm() const { return FForm ? FForm->GetForm() : nullptr; }

  // Through the editor's conversion, with everything a write in the grid does: a refusal stays in
  // the row with AText, a text the editor drops is reported there too, and a change is one undo
  // step. True when it was written.
  Boolean WriteText(TGridRow& ARow, const String& AText);

  // Notices of the designer, and of the host objects the grid gives editors.
  void SelectionChanged();
  void ValuesModified();
  void EndEditFromEditor();
  // The host object the grid gave an editor says the control is done; a host the grid no longer
  // uses is ignored.
  void HostClosed(IPropertyEditorHost* AHost);
  // Where the hosted control's panel lies in the viewport; empty when none is open.
  QRect HostedRect() const { return FHostPanel ? FHostPanel->geometry() : QRect(); }

signals:
  void Message(const QString& AText);

protected:
  void paintEvent(QPaintEvent* AEvent) override;
  void resizeEvent(QResizeEvent* AEvent) override;
  void scrollContentsBy(int ADX, int ADY) override;
  void mousePressEvent(QMouseEvent* AEvent) override;
  void mouseMoveEvent(QMouseEvent* AEvent) override;
  void mouseReleaseEvent(QMouseEvent* AEvent) override;
  void mouseDoubleClickEvent(QMouseEvent* AEvent) override;
  void keyPressEvent(QKeyEvent* AEvent) override;
  bool viewportEvent(QEvent* AEvent) override;
  bool eventFilter(QObject* AObject, QEvent* AEvent) override;

private:
  // ---- layout ----
  void InvalidateLayout();
  void Layout();
  // The shown rows, each prepared; rows that turn out hidden are dropped first.
  const std::vector<TGridRow*>& PreparedShown(int AFirst, int ALast);
  int IndexAt(int AY);
  int IndexOf(const TGridRow* ARow);
  int ExtraHeight(const TGridRow& ARow) const;
  void PlaceControls();
  void Move(int ADelta);

  // ---- editing ----
  Boolean Write(TGridRow& ARow, const String& AText, const std::function<void()>& AWrite, Boolean AReportDropped);
  void Refuse(TGridRow& ARow, const String& AText, const String& AMessage);
  void CloseEdit();
  void OpenInplace();
  void CloseInplace();
  // Takes the hosted control's panel away, and the control with it.
  void CloseHosted();
  void BeginLongEdit(TGridRow& ARow);
  void EndLongEdit();
  TMemberSnapshot Snapshot(const TGridRow& ARow) const;
  void Record(const String& APath, const TMemberSnapshot& ABefore, const TMemberSnapshot& AAfter);
  // Prepares the row first: a row made current by its path may not have been shown yet.
  Boolean Editable(TGridRow& ARow);
  Boolean MouseToEditor(QMouseEvent* AEvent, Boolean ADown);

  TGridRows FRows;
  TGridMetrics FMetrics;
  QUndoStack* FUndo;
  TRef<ISelectionChange> FListener;
  Integer FModifiedNotices = 0;
  int FNameWidth = 140;
  Boolean FDraggingSplitter = false;
  Boolean FEditOnRelease = false;

  std::vector<int> FTops; // the top of each shown row, then the bottom of the last
  Boolean FLayoutValid = false;

  TGridRow* FCurrent = nullptr;
  QLineEdit* FEdit;
  TGridRow* FEditRow = nullptr;
  QToolButton* FListButton;
  QToolButton* FDialogButton;
  QPointer<TDropDownList> FList;
  TRef<IInplaceForm> FForm;
  TGridRow* FFormRow = nullptr;
  TRef<IPropertyEditorHost> FHost; // the host object of the open hosted control
  QPointer<QWidget> FHostPanel;
  TGridRow* FHostedRow = nullptr;
  // The values before an in-place form or a hosted control opened: everything it writes until it
  // closes is one change.
  std::optional<TMemberSnapshot> FLongEditBefore;
  String FLongEditPath;
  Integer FRebuilds = 0;
};

} // namespace Tarvo
