#include "host/grid/GridView.h"

#include "host/grid/DropDownList.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QToolButton>
#include <QToolTip>
#include <QUndoStack>

#include "design/paint/EditorPaint.h"
#include "host/grid/DropDownList.h"
#include "host/grid/GridPaintObjects.h"

namespace Tarvo {

namespace {

constexpr int SplitterGrip = 3;  // pixels either side of the split line that grab it
constexpr int MinColumnWidth = 40;

} // namespace

TGridView::TGridView(QWidget* AParent)
    : QAbstractScrollArea(AParent), FUndo(new QUndoStack(this)), FEdit(new QLineEdit(viewport())),
      FListButton(new QToolButton(viewport())), FDialogButton(new QToolButton(viewport())) {
  TGridPaintObjects::Acquire();
  FMetrics.RowHeight = std::max(18, fontMetrics().height() + 4);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  verticalScrollBar()->setSingleStep(FMetrics.RowHeight);
  FEdit->hide();
  FEdit->setFrame(false);
  FEdit->installEventFilter(this);
  FListButton->setArrowType(Qt::DownArrow);
  FListButton->setFocusPolicy(Qt::NoFocus);
  FListButton->hide();
  connect(FListButton, &QToolButton::clicked, this, &TGridView::OpenList);
  FDialogButton->setText(QStringLiteral("…"));
  FDialogButton->setFocusPolicy(Qt::NoFocus);
  FDialogButton->hide();
  connect(FDialogButton, &QToolButton::clicked, this, &TGridView::RunDialog);
}

TGridView::~TGridView() {
  // Nothing is announced any more: the widgets that would hear it may be gone already.
  blockSignals(true);
  SetDesigner(nullptr);
  TGridPaintObjects::Release();
}

void TGridView::SetNameWidth(int AWidth) {
  FNameWidth = std::clamp(AWidth, MinColumnWidth, std::max(MinColumnWidth, viewport()->width() - MinColumnWidth));
  PlaceControls();
  viewport()->update();
}

void TGridView::SetCategoryView(Boolean AOn) {
  if (AOn == FRows.CategoryView()) return;
  CommitEdit();
  FRows.SetCategoryView(AOn);
  SelectionChanged();
}

void TGridView::SetSearchText(const String& AText) {
  FRows.SetSearch(AText);
  InvalidateLayout();
}

// ---- layout ----

void TGridView::InvalidateLayout() {
  FLayoutValid = false;
  viewport()->update();
  PlaceControls();
}

int TGridView::ExtraHeight(const TGridRow& ARow) const {
  int extra = ARow.RefusedMessage.empty() ? 0 : FMetrics.RowHeight;
  if (&ARow == FFormRow && FForm) extra += FForm->GetHeight();
  return extra;
}

void TGridView::Layout() {
  if (FLayoutValid) return;
  // Preparing rows on the way may hide some; the list is taken again until it holds still.
  const std::vector<TGridRow*>* shown = &FRows.Shown();
  FTops.assign(1, 0);
  FTops.reserve(shown->size() + 1);
  for (const TGridRow* row : *shown) FTops.push_back(FTops.back() + FMetrics.RowHeight + ExtraHeight(*row));
  FLayoutValid = true;
  verticalScrollBar()->setRange(0, std::max(0, FTops.back() - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
}

int TGridView::ContentHeight() {
  Layout();
  return FTops.back();
}

const std::vector<TGridRow*>& TGridView::PreparedShown(int AFirst, int ALast) {
  for (;;) {
    Layout();
    const std::vector<TGridRow*>& shown = FRows.Shown();
    Boolean stable = true;
    for (int i = std::max(0, AFirst); i < std::min<int>(ALast, int(shown.size())) && stable; ++i)
      stable = FRows.Prepare(*shown[i]);
    if (stable) return shown;
    FLayoutValid = false;
  }
}

int TGridView::IndexAt(int AY) {
  Layout();
  const int y = AY + verticalScrollBar()->value();
  const auto after = std::upper_bound(FTops.begin(), FTops.end(), y);
  const int index = int(after - FTops.begin()) - 1;
  return index >= 0 && index < int(FTops.size()) - 1 ? index : -1;
}

int TGridView::IndexOf(const TGridRow* ARow) {
  const std::vector<TGridRow*>& shown = FRows.Shown();
  const auto found = std::find(shown.begin(), shown.end(), ARow);
  return found == shown.end() ? -1 : int(found - shown.begin());
}

QRect TGridView::RowRect(const TGridRow& ARow) {
  Layout();
  const int index = IndexOf(&ARow);
  if (index < 0) return QRect();
  return QRect(0, FTops[index] - verticalScrollBar()->value(), viewport()->width(), FMetrics.RowHeight);
}

void TGridView::PlaceControls() {
  const Boolean onRow = FCurrent && IndexOf(FCurrent) >= 0;
  const QRect row = onRow ? RowRect(*FCurrent) : QRect();
  QRect value = TGridPainter::ValueCell(row, FNameWidth);
  int buttons = 0;
  for (auto [button, shown] : {std::pair{FDialogButton, onRow && Editable(*FCurrent) &&
                                                            Supports<IPropertyEditorDialog>(FCurrent->Editor)},
                               std::pair{FListButton, onRow && Editable(*FCurrent) &&
                                                          Supports<IPropertyEditorDropDownStringList>(FCurrent->Editor)}}) {
    button->setVisible(shown);
    if (!shown) continue;
    ++buttons;
    button->setGeometry(value.right() - buttons * FMetrics.ButtonWidth + 1, row.top(), FMetrics.ButtonWidth,
                        FMetrics.RowHeight - 1);
  }
  value.setRight(value.right() - buttons * FMetrics.ButtonWidth);
  if (FEditRow) {
    if (IndexOf(FEditRow) < 0) {
      CloseEdit();
    } else {
      FEdit->setGeometry(TGridPainter::EditRect(*FEditRow, value).adjusted(1, 1, 0, -1));
    }
  }
  if (FHostPanel && FHostedRow) FHostPanel->move(FHostPanel->x(), RowRect(*FHostedRow).top());
  if (FForm && FFormRow) {
    const QRect formRow = RowRect(*FFormRow);
    FForm->UpdateRect(TIGXRect(0, formRow.bottom() + 1 + (FFormRow->RefusedMessage.empty() ? 0 : FMetrics.RowHeight),
                               viewport()->width(), FForm->GetHeight()));
  }
}

// ---- painting ----

void TGridView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  const int first = std::max(0, IndexAt(0));
  const int top = verticalScrollBar()->value();
  // Enough rows for the height, as if none had a line under it.
  const int last = first + viewport()->height() / FMetrics.RowHeight + 2;
  const std::vector<TGridRow*>& shown = PreparedShown(first, last);
  TGridPainter rows(painter, palette(), FMetrics);
  for (int i = first; i < int(shown.size()) && FTops[i] - top < viewport()->height(); ++i) {
    TGridRow& row = *shown[i];
    const QRect line(0, FTops[i] - top, viewport()->width(), FMetrics.RowHeight);
    rows.PaintRow(row, line, FNameWidth, &row == FCurrent);
    if (!row.RefusedMessage.empty()) rows.PaintRefusal(row, line.translated(0, FMetrics.RowHeight));
  }
}

void TGridView::resizeEvent(QResizeEvent* AEvent) {
  QAbstractScrollArea::resizeEvent(AEvent);
  FLayoutValid = false;
  Layout();
  PlaceControls();
}

void TGridView::scrollContentsBy(int, int) {
  viewport()->update();
  PlaceControls();
}

// ---- mouse ----

void TGridView::mousePressEvent(QMouseEvent* AEvent) {
  const QPoint point = AEvent->position().toPoint();
  if (std::abs(point.x() - FNameWidth) <= SplitterGrip) {
    FDraggingSplitter = true;
    return;
  }
  const int index = IndexAt(point.y());
  if (index < 0) return;
  TGridRow* row = FRows.Shown()[index];
  const QRect line = RowRect(*row);
  if (!line.contains(point)) return; // the line of a refusal's message
  const QRect expander = TGridPainter::ExpanderRect(*row, line, FMetrics).adjusted(-2, -2, 2, 2);
  if (row->Expandable && (row->IsHeading || expander.contains(point))) {
    SetCurrent(row);
    if (row->Expanded) FRows.Collapse(*row);
    else FRows.Expand(*row);
    InvalidateLayout();
    return;
  }
  const Boolean wasCurrent = row == FCurrent;
  SetCurrent(row);
  if (FCurrent != row) return; // the edit of the row left was refused
  // A second click on a value edits it, unless the editor takes the click (a check box).
  FEditOnRelease = wasCurrent && point.x() > FNameWidth && !MouseToEditor(AEvent, true);
}

void TGridView::mouseMoveEvent(QMouseEvent* AEvent) {
  const QPoint point = AEvent->position().toPoint();
  if (FDraggingSplitter) {
    SetNameWidth(point.x());
    return;
  }
  viewport()->setCursor(std::abs(point.x() - FNameWidth) <= SplitterGrip ? Qt::SplitHCursor : Qt::ArrowCursor);
}

void TGridView::mouseReleaseEvent(QMouseEvent* AEvent) {
  if (std::exchange(FDraggingSplitter, false)) return;
  const Boolean editOnRelease = std::exchange(FEditOnRelease, false);
  if (AEvent->position().x() <= FNameWidth || !FCurrent || IndexAt(int(AEvent->position().y())) != IndexOf(FCurrent))
    return;
  if (!MouseToEditor(AEvent, false) && editOnRelease) StartEdit();
}

void TGridView::mouseDoubleClickEvent(QMouseEvent* AEvent) {
  const int index = IndexAt(int(AEvent->position().y()));
  if (index < 0) return;
  TGridRow* row = FRows.Shown()[index];
  if (row->Expandable && AEvent->position().x() < FNameWidth) {
    if (row->Expanded) FRows.Collapse(*row);
    else FRows.Expand(*row);
    InvalidateLayout();
  }
}

// ---- keyboard ----

void TGridView::Move(int ADelta) {
  const std::vector<TGridRow*>& shown = FRows.Shown();
  if (shown.empty()) return;
  const int index = FCurrent ? IndexOf(FCurrent) : -1;
  SetCurrent(shown[std::clamp(index < 0 ? 0 : index + ADelta, 0, int(shown.size()) - 1)]);
}

void TGridView::keyPressEvent(QKeyEvent* AEvent) {
  const int page = std::max(1, viewport()->height() / FMetrics.RowHeight - 1);
  if (AEvent->matches(QKeySequence::Undo)) return FUndo->undo();
  if (AEvent->matches(QKeySequence::Redo) || (AEvent->key() == Qt::Key_Y && AEvent->modifiers() == Qt::ControlModifier))
    return FUndo->redo();
  switch (AEvent->key()) {
    case Qt::Key_Up: return Move(-1);
    case Qt::Key_Down: return Move(1);
    case Qt::Key_PageUp: return Move(-page);
    case Qt::Key_PageDown: return Move(page);
    case Qt::Key_Home: return Move(-int(FRows.Shown().size()));
    case Qt::Key_End: return Move(int(FRows.Shown().size()));
    case Qt::Key_Left:
      if (FCurrent && FCurrent->Expanded) {
        FRows.Collapse(*FCurrent);
        InvalidateLayout();
      } else if (FCurrent && FCurrent->Parent) {
        SetCurrent(FCurrent->Parent);
      }
      return;
    case Qt::Key_Right:
      if (FCurrent && FCurrent->Expandable && !FCurrent->Expanded) {
        FRows.Expand(*FCurrent);
        InvalidateLayout();
      }
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter: return StartEdit();
    case Qt::Key_F4: return OpenList();
    case Qt::Key_Escape: return CancelEdit();
    default: break;
  }
  const QString text = AEvent->text();
  if (!text.isEmpty() && text[0].isPrint() && !(AEvent->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
    return StartEdit(&text);
  QAbstractScrollArea::keyPressEvent(AEvent);
}

// ---- hints ----

bool TGridView::viewportEvent(QEvent* AEvent) {
  if (AEvent->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(AEvent);
  const auto* help = static_cast<QHelpEvent*>(AEvent);
  const int index = IndexAt(help->pos().y());
  QString hint;
  if (index >= 0) {
    TGridRow& row = *FRows.Shown()[index];
    if (!row.RefusedMessage.empty()) hint = QString::fromStdString(row.RefusedMessage);
    else if (TRef<IPropertyEditorCustomHint> custom; help->pos().x() > FNameWidth && Supports(row.Editor, custom))
      hint = QString::fromStdString(custom->GetCustomHint());
    else hint = QString::fromStdString(help->pos().x() > FNameWidth ? row.Value : row.DisplayName);
  }
  if (hint.isEmpty()) QToolTip::hideText();
  else QToolTip::showText(help->globalPos(), hint, viewport());
  return true;
}

} // namespace Tarvo
