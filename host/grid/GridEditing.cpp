// The editing half of TGridView: the text edit, the list, the dialog, clicks, in-place forms and
// hosted controls of the current row, and the one way every one of them writes.

#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolButton>
#include <QUndoStack>

#include "design/paint/PropertyEditorHost.h"
#include "host/grid/DropDownList.h"
#include "host/grid/GridView.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {

// What an editor is given to tell the grid about its row. It holds the grid weakly: an editor may
// keep it longer than the grid lives.
class TRowUIUpdate : public TImplements<TInterfacedObject, IMemberUIUpdate> {
public:
  explicit TRowUIUpdate(TGridView* AView) : FView(AView) {}
  void EndEdit() override {
    if (FView) FView->EndEditFromEditor();
  }
  void Invalidate() override {
    if (FView) FView->viewport()->update();
  }
  void Refresh(Boolean AReadValues) override {
    if (!FView) return;
    if (AReadValues) FView->Rows().ValuesChanged();
    FView->viewport()->update();
  }
  QWidget* GetControl() override { return FView ? FView->viewport() : nullptr; }

private:
  QPointer<TGridView> FView;
};

// The place a hosted control goes: a panel of the grid's over the row's value and below it. The
// grid takes the panel away, and the control in it, when the row is left; a host the editor
// closes after that is no longer the grid's current one and changes nothing.
class TGridHost : public TImplements<TInterfacedObject, IPropertyEditorHost> {
public:
  TGridHost(TGridView* AView, QWidget* APanel) : FView(AView), FPanel(APanel) {}
  QWidget* GetParentControl() override { return FPanel; }
  TIGXRect GetBounds() override { return FPanel ? TIGXRect(0, 0, FPanel->width(), FPanel->height()) : TIGXRect(); }
  void CloseHosted() override {
    if (FView) FView->HostClosed(this);
  }

private:
  QPointer<TGridView> FView;
  QPointer<QWidget> FPanel;
};

// The height a hosted control gets: a month calendar fits.
constexpr int HostedHeight = 190;
constexpr int HostedMinWidth = 230;

String TopMemberName(const TGridRow& ARow) {
  const TGridRow* row = &ARow;
  while (row->Parent && !row->Parent->IsHeading) row = row->Parent;
  return row->Member ? row->Member->GetName() : row->Name;
}

} // namespace

void TGridView::SetDesigner(const TRef<IDesigner>& ADesigner) {
  if (FRows.Designer() && FListener) FRows.Designer()->RemoveSelectionChangeNotify(FListener);
  FListener = nullptr;
  FRows.SetDesigner(ADesigner);
  if (ADesigner) {
    FListener = New<TSelectionChangeNotifier>()
                    ->SetOnSelectionChangingBegin([this] { CommitEdit(); })
                    ->SetOnResetObjectInspector([this] { SelectionChanged(); })
                    ->SetOnSelectionChanged([this] { SelectionChanged(); })
                    ->SetOnModified([this] { ValuesModified(); })
                    ->SetOnRefreshView([this] { ValuesModified(); });
    ADesigner->AddSelectionChangeNotify(FListener);
  }
  SelectionChanged();
}

// ---- notices ----

void TGridView::SelectionChanged() {
  if (FEditRow && FEdit->text().toStdString() != FEditRow->Value)
    emit Message(QString::fromStdString("\"" + FEdit->text().toStdString() + "\" was not written to " +
                                        FEditRow->Path() + ": the selection changed while it was being typed"));
  const String current = FCurrent ? FCurrent->Path() : String();
  CloseEdit();
  CloseInplace();
  CloseHosted();
  FCurrent = nullptr;
  ++FRebuilds;
  FRows.Rebuild();
  FLayoutValid = false;
  for (TGridRow* row : FRows.Shown())
    if (!current.empty() && SameText(row->Path(), current)) FCurrent = row;
  OpenInplace();
  InvalidateLayout();
}

void TGridView::ValuesModified() {
  ++FModifiedNotices;
  FRows.ValuesChanged();
  viewport()->update();
}

void TGridView::EndEditFromEditor() {
  CloseEdit();
  if (FForm && !FForm->GetForm()) CloseInplace();
  FRows.ValuesChanged();
  viewport()->update();
}

void TGridView::HostClosed(IPropertyEditorHost* AHost) {
  if (!FHost || AHost != FHost.get()) return;
  CloseHosted();
}

void TGridView::CloseHosted() {
  if (!FHost) return;
  FHost = nullptr;
  if (FHostPanel) {
    FHostPanel->hide();
    FHostPanel->deleteLater(); // the control may be reporting the event that closes it
  }
  FHostedRow = nullptr;
  EndLongEdit();
  FRows.ValuesChanged();
  viewport()->update();
  setFocus();
}

// ---- the current row ----

Boolean TGridView::Editable(TGridRow& ARow) { return FRows.Prepare(ARow) && ARow.Property && !ARow.ReadOnly; }

void TGridView::SetCurrent(TGridRow* ARow) {
  if (ARow == FCurrent) return;
  if (!CommitEdit()) return;
  CloseInplace();
  CloseHosted();
  FCurrent = ARow;
  if (FCurrent) {
    if (FRows.Prepare(*FCurrent)) FCurrent->Editor->GetInstance()->Activate();
    Layout();
    const int index = IndexOf(FCurrent);
    if (index >= 0) {
      QScrollBar* bar = verticalScrollBar();
      if (FTops[index] < bar->value()) bar->setValue(FTops[index]);
      else if (FTops[index + 1] > bar->value() + viewport()->height())
        bar->setValue(FTops[index + 1] - viewport()->height());
    }
    OpenInplace();
  }
  PlaceControls();
  viewport()->update();
}

TGridRow* TGridView::SelectPath(const String& APath) {
  TGridRow* row = FRows.Find(APath);
  FLayoutValid = false;
  if (row) SetCurrent(row);
  return row == FCurrent ? row : nullptr;
}

// ---- text edit ----

void TGridView::StartEdit(const QString* AText) {
  if (!FCurrent || !Editable(*FCurrent)) return;
  if (TRef<IPropertyEditorHosted> hosted; Supports(FCurrent->Editor, hosted)) {
    if (FHostedRow) return;
    FHostedRow = FCurrent;
    BeginLongEdit(*FCurrent);
    const QRect value = ValueRect(*FCurrent);
    const int width = std::max(value.width(), HostedMinWidth);
    FHostPanel = new QWidget(viewport());
    FHostPanel->setGeometry(std::max(0, value.right() + 1 - width), value.top(), width, HostedHeight);
    FHostPanel->show();
    const TRef<IPropertyEditorHost> host = New<TGridHost>(this, FHostPanel);
    FHost = host;
    hosted->ShowHosted(host);
    return;
  }
  FEditRow = FCurrent;
  const String& text = FCurrent->RefusedText.empty() ? FCurrent->Value : FCurrent->RefusedText;
  FEdit->setText(AText ? *AText : QString::fromStdString(text));
  if (!AText) FEdit->selectAll();
  FEdit->setFont(font());
  PlaceControls();
  FEdit->show();
  FEdit->setFocus();
}

Boolean TGridView::CommitEdit() {
  if (!FEditRow) return true;
  TGridRow& row = *FEditRow;
  const String text = FEdit->text().toStdString();
  if (text == row.Value && row.RefusedMessage.empty()) {
    CloseEdit();
    return true;
  }
  if (!WriteText(row, text)) return false;
  CloseEdit();
  return true;
}

void TGridView::CancelEdit() {
  TGridRow* row = FEditRow ? FEditRow : FCurrent;
  if (row) {
    row->RefusedText.clear();
    row->RefusedMessage.clear();
  }
  CloseEdit();
  InvalidateLayout();
}

void TGridView::CloseEdit() {
  if (!FEditRow) return;
  FEditRow = nullptr;
  const Boolean hadFocus = FEdit->hasFocus();
  FEdit->hide();
  if (hadFocus) setFocus();
}

bool TGridView::eventFilter(QObject* AObject, QEvent* AEvent) {
  if (AObject != FEdit || !FEditRow) return QAbstractScrollArea::eventFilter(AObject, AEvent);
  if (AEvent->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(AEvent);
    if (key->key() == Qt::Key_Escape) {
      CancelEdit();
      return true;
    }
    // Consumed here: passed on, the key would open the edit again.
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      CommitEdit();
      return true;
    }
    if (key->key() == Qt::Key_F4) {
      OpenList();
      return true;
    }
    if ((key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) && CommitEdit()) {
      Move(key->key() == Qt::Key_Up ? -1 : 1);
      return true;
    }
  } else if (AEvent->type() == QEvent::FocusOut &&
             static_cast<QFocusEvent*>(AEvent)->reason() != Qt::PopupFocusReason) {
    CommitEdit();
  }
  return QAbstractScrollArea::eventFilter(AObject, AEvent);
}

// ---- list, dialog, clicks ----

void TGridView::OpenList() {
  TRef<IPropertyEditorDropDownStringList> list;
  if (!FCurrent || !Editable(*FCurrent) || !Supports(FCurrent->Editor, list)) return;
  TRef<IPropertyEditorListDraw> listDraw;
  Supports(FCurrent->Editor, listDraw);
  TGridRow* row = FCurrent;
  FList = new TDropDownList(this, list->GetStringListValues(), listDraw, row->Value);
  connect(FList, &TDropDownList::Picked, this, [this, row](const QString& AValue) {
    if (row != FCurrent) return; // the rows were made anew meanwhile
    CloseEdit();
    WriteText(*row, AValue.toStdString());
  });
  const QRect cell = ValueRect(*row);
  FList->PlaceUnder(QRect(viewport()->mapToGlobal(cell.topLeft()), cell.size()));
  FList->show();
  FList->setFocus();
}

void TGridView::RunDialog() {
  TRef<IPropertyEditorDialog> dialog;
  if (!FCurrent || !Editable(*FCurrent) || !Supports(FCurrent->Editor, dialog)) return;
  CloseEdit();
  Write(*FCurrent, String(), [&] { dialog->Execute(this); }, false);
}

Boolean TGridView::MouseToEditor(QMouseEvent* AEvent, Boolean ADown) {
  TRef<IPropertyEditorMouse> mouse;
  if (!FCurrent || !Editable(*FCurrent) || !Supports(FCurrent->Editor, mouse)) return false;
  const QPoint point = AEvent->position().toPoint();
  const TIGXRect cell = TIGXRect::FromQRectF(ValueRect(*FCurrent));
  const TRef<IMemberUIUpdate> update = New<TRowUIUpdate>(this);
  const TMouseButton button = AEvent->button() == Qt::RightButton ? mbRight
                              : AEvent->button() == Qt::MiddleButton ? mbMiddle
                                                                     : mbLeft;
  Boolean handled = false;
  if (ADown) {
    mouse->ValueMouseDown(button, TShiftState(), point.x(), point.y(), update, cell, handled);
  } else {
    Write(*FCurrent, String(), [&] { mouse->ValueMouseUp(button, TShiftState(), point.x(), point.y(), update, cell, handled); },
          false);
  }
  return handled;
}

// ---- in-place forms ----

void TGridView::OpenInplace() {
  TRef<IPropertyEditorInplace> inplace;
  if (FForm || !FCurrent || !Editable(*FCurrent) || !Supports(FCurrent->Editor, inplace)) return;
  BeginLongEdit(*FCurrent);
  Layout();
  const QRect row = RowRect(*FCurrent);
  FFormRow = FCurrent;
  FForm = inplace->GetInplaceForm(viewport(), GetDesignPaintObjects(), New<TRowUIUpdate>(this),
                                  TIGXRect(0, row.bottom() + 1, viewport()->width(), 0));
  InvalidateLayout();
}

void TGridView::CloseInplace() {
  if (!FForm) return;
  if (TRef<IPropertyEditorInplace> inplace; FFormRow && Supports(FFormRow->Editor, inplace)) inplace->DropForm(FForm);
  FForm = nullptr; // the handle takes the form with it
  FFormRow = nullptr;
  EndLongEdit();
  InvalidateLayout();
}

// ---- writing ----

TMemberSnapshot TGridView::Snapshot(const TGridRow& ARow) const {
  return TMemberSnapshot(FRows.Designer()->GetSelection(), TopMemberName(ARow));
}

void TGridView::BeginLongEdit(TGridRow& ARow) {
  FLongEditBefore = Snapshot(ARow);
  FLongEditPath = ARow.Path();
}

void TGridView::EndLongEdit() {
  if (!FLongEditBefore) return;
  Record(FLongEditPath, *FLongEditBefore, FLongEditBefore->Retake());
  FLongEditBefore.reset();
}

void TGridView::Record(const String& APath, const TMemberSnapshot& ABefore, const TMemberSnapshot& AAfter) {
  const String& path = APath;
  if (ABefore.ObjectsReplaced(AAfter)) {
    // The object the member held before is gone: no step before this one can be undone either.
    FUndo->clear();
    emit Message(QString::fromStdString(path + " now holds a new object: the changes before can't be undone"));
  } else if (ABefore.Differs(AAfter)) {
    FUndo->push(NewMemberChangeCommand(QString::fromStdString("Change " + path), FRows.Designer(), ABefore, AAfter));
  }
}

Boolean TGridView::WriteText(TGridRow& ARow, const String& AText) {
  return Write(ARow, AText, [&] { ARow.Property->SetStringValue(AText); }, true);
}

Boolean TGridView::Write(TGridRow& ARow, const String& AText, const std::function<void()>& AWrite,
                         Boolean AReportDropped) {
  if (!ARow.Property) return false;
  const TMemberSnapshot before = Snapshot(ARow);
  const String path = ARow.Path();
  const Integer notices = FModifiedNotices;
  const Integer rebuilds = FRebuilds;
  String refusal;
  try {
    AWrite();
  } catch (const Exception& error) {
    refusal = error.Message();
  }
  const TMemberSnapshot after = before.Retake();
  Record(path, before, after);
  // A member may ask for the inspector to be made anew, and the rows under a member were made
  // for the object it held: either way ARow is gone.
  if (FRebuilds == rebuilds && before.ObjectsReplaced(after)) SelectionChanged();
  if (FRebuilds != rebuilds) {
    if (!refusal.empty()) emit Message(QString::fromStdString(path + ": " + refusal));
    return refusal.empty();
  }
  if (refusal.empty() && AReportDropped && FModifiedNotices == notices)
    refusal = "\"" + AText + "\" was not accepted";
  if (!refusal.empty()) {
    Refuse(ARow, AText, refusal);
    return false;
  }
  ARow.RefusedText.clear();
  ARow.RefusedMessage.clear();
  InvalidateLayout();
  return true;
}

void TGridView::Refuse(TGridRow& ARow, const String& AText, const String& AMessage) {
  ARow.RefusedText = AText;
  ARow.RefusedMessage = AMessage;
  InvalidateLayout();
}

} // namespace Tarvo
