#include "forms/ListSelectDialog.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <cmath>

#include "forms/SelectDialogLayout.h"
#include "platform/ModalSeam.h"

namespace Tarvo {

// ---- TKBListBoxItems ----

void TKBListBoxItems::Add(const String& AValue) {
  FItems.append(QString::fromStdString(AValue));
  Changed();
}

void TKBListBoxItems::Assign(const TRef<IStringArrayList>& AValues) {
  FItems.clear();
  if (AValues)
    for (const String& value : AValues) FItems.append(QString::fromStdString(value));
  Changed();
}

void TKBListBoxItems::Clear() {
  FItems.clear();
  Changed();
}

void TKBListBoxItems::Changed() {
  QListWidget* box = FOwner->ListBox;
  box->setUpdatesEnabled(false);
  box->clear();
  box->addItems(FItems);
  box->setUpdatesEnabled(true);
}

// ---- The rows' delegate ----

// Sends the list box's measuring and painting to the form, by the mode its caller chose.
class TListSelectItemDelegate : public QStyledItemDelegate {
public:
  explicit TListSelectItemDelegate(TTarvoListSelectDialogForm* AForm) : QStyledItemDelegate(AForm), FForm(AForm) {}

  QSize sizeHint(const QStyleOptionViewItem& AOption, const QModelIndex& AIndex) const override {
    Integer height = FForm->TextRowHeight();
    if (FForm->FListDraw) FForm->MeasureItem(AIndex.row(), height);
    return {QStyledItemDelegate::sizeHint(AOption, AIndex).width(), height};
  }

  void paint(QPainter* APainter, const QStyleOptionViewItem& AOption, const QModelIndex& AIndex) const override {
    if (FForm->FListDraw) FForm->DrawItem(*APainter, AIndex.row(), AOption.rect, AOption.state);
    else FForm->DefaultDrawItem(*APainter, AIndex.row(), AOption.rect, AOption.state);
  }

private:
  TTarvoListSelectDialogForm* FForm;
};

// ---- TTarvoListSelectDialogForm ----

TTarvoListSelectDialogForm::TTarvoListSelectDialogForm(QWidget* AParent)
    : QDialog(AParent), TopPanel(new QWidget(this)), FilterLabel(new QLabel(QStringLiteral("&Filter:"), TopPanel)),
      FilterEdit(new QLineEdit(TopPanel)), ClearButton(new QToolButton(TopPanel)), ListBox(new QListWidget(this)),
      BottomPanel(new QWidget(this)), OKButton(new QPushButton(QStringLiteral("OK"), BottomPanel)),
      CancelButton(new QPushButton(QStringLiteral("Cancel"), BottomPanel)),
      FKBListBoxItems(std::make_unique<TKBListBoxItems>(this)) {
  TopPanel->setFixedHeight(33);
  FilterLabel->setBuddy(FilterEdit);
  ClearButton->setAutoRaise(true);
  ClearButton->setFixedSize(23, 23);
  ClearButton->setToolTip(QStringLiteral("Clear"));
  ClearButton->setIcon(style()->standardIcon(QStyle::SP_LineEditClearButton));
  ClearButton->setEnabled(false);
  auto* top = new QHBoxLayout(TopPanel);
  top->setContentsMargins(8, 5, 8, 5);
  top->addWidget(FilterLabel);
  top->addWidget(FilterEdit, 1);
  top->addWidget(ClearButton);

  ListBox->setSelectionMode(QAbstractItemView::SingleSelection);
  ListBox->setItemDelegate(new TListSelectItemDelegate(this));
  ListBox->setUniformItemSizes(true);

  LayOutSelectDialog(*this, TopPanel, ListBox, BottomPanel, OKButton, CancelButton);

  connect(FilterEdit, &QLineEdit::textChanged, this, [this] { FilterEditChange(); });
  connect(ClearButton, &QToolButton::clicked, this, [this] { ClearButtonClick(); });
  connect(ListBox, &QListWidget::itemDoubleClicked, this, [this] { ListBoxDblClick(); });
  connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);

  // A dialog with a parent is centred on the parent's window as it is shown.
  resize(ClientWidth, ClientHeight);
}

TTarvoListSelectDialogForm::~TTarvoListSelectDialogForm() = default;

void TTarvoListSelectDialogForm::SetCaller(const TRef<IPropertyEditorDropDownStringList>& ACaller) {
  FCaller = ACaller;
  Supports<IPropertyEditorListDraw>(FCaller, FListDraw);
  // Measured rows may differ in height; plain rows never do.
  ListBox->setUniformItemSizes(!FListDraw);
}

void TTarvoListSelectDialogForm::SetKBListBoxItems(const TRef<IStringArrayList>& AItems) {
  FKBListBoxItems->Assign(AItems);
}

Boolean TTarvoListSelectDialogForm::Execute(const String& ADefault) {
  ListBox->setCurrentRow(0);
  const QListWidgetItem* defaultItem = FDefaultIndex == -1 ? nullptr : ListBox->item(FDefaultIndex);
  FDefaultText = defaultItem ? defaultItem->text().toStdString() : String();

  const QString wanted = QString::fromStdString(ADefault).toUpper();
  for (int row = 0; row < ListBox->count(); ++row)
    if (ListBox->item(row)->text().toUpper() == wanted) {
      ListBox->setCurrentRow(row);
      break;
    }
  return ExecuteModal(*this) == QDialog::Accepted;
}

Boolean TTarvoListSelectDialogForm::Execute(const String& ACaption, const String& ADefault) {
  setWindowTitle(QString::fromStdString(ACaption));
  return Execute(ADefault);
}

String TTarvoListSelectDialogForm::GetSelection() const {
  const QList<QListWidgetItem*> selected = ListBox->selectedItems();
  return selected.isEmpty() ? String() : selected.first()->text().toStdString();
}

void TTarvoListSelectDialogForm::FilterEditChange() {
  ClearButton->setEnabled(!FilterEdit->text().isEmpty());
  ListBox->setUpdatesEnabled(false);
  ListBox->clear();
  PopulateListBox(FilterEdit->text().toStdString());
  ListBox->setUpdatesEnabled(true);
}

void TTarvoListSelectDialogForm::PopulateListBox(const String& AFilter) {
  const QString filter = QString::fromStdString(AFilter).toLower();
  for (const QString& text : FKBListBoxItems->Texts())
    if (filter.isEmpty() || text.toLower().contains(filter)) ListBox->addItem(text);
}

void TTarvoListSelectDialogForm::ClearButtonClick() { FilterEdit->clear(); }

void TTarvoListSelectDialogForm::ListBoxDblClick() {
  if (!ListBox->selectedItems().isEmpty()) accept();
}

Integer TTarvoListSelectDialogForm::TextRowHeight() const {
  return QFontMetrics(ListBox->font()).size(Qt::TextSingleLine, QStringLiteral("Hg")).height();
}

void TTarvoListSelectDialogForm::MeasureItem(Integer AIndex, Integer& AHeight) {
  // Measuring happens outside a paint event, where the list itself cannot be painted on: the
  // editor measures on a scratch surface in the list's font.
  QImage surface(1, 1, QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&surface);
  painter.setFont(ListBox->font());
  TIGXSize size{Single(ListBox->viewport()->width()), Single(AHeight)};
  {
    const TRef<IGXGraphics> graphics = New<TIGXGraphics>(painter);
    FListDraw->ListGetSize(TValue(ListBox->item(AIndex)->text().toStdString()), graphics, GetDesignPaintObjects(),
                           GetDesignPaintObjects()->GetListSet()->GetNone(), size);
  }
  AHeight = Integer(std::ceil(size.Height));
}

void TTarvoListSelectDialogForm::DrawItem(QPainter& APainter, Integer AIndex, const QRect& ARect,
                                          QStyle::State AState) {
  const Boolean selected = AState.testFlag(QStyle::State_Selected);
  const TRef<IPaintObjects> paintObjects = GetDesignPaintObjects();
  const TRef<IItemObjectSet> listSet = paintObjects->GetListSet();
  const TRef<IGXGraphics> graphics = New<TIGXGraphics>(APainter);
  FListDraw->ListDrawValue(TValue(ListBox->item(AIndex)->text().toStdString()), graphics, paintObjects,
                           selected ? listSet->GetSelected() : listSet->GetNone(),
                           TIGXRect(ARect.x(), ARect.y(), ARect.width(), ARect.height()), selected);
}

void TTarvoListSelectDialogForm::DefaultDrawItem(QPainter& APainter, Integer AIndex, const QRect& ARect,
                                                 QStyle::State AState) {
  const QString text = ListBox->item(AIndex)->text();
  const QPalette& palette = ListBox->palette();
  const QPalette::ColorGroup group = AState.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  const Boolean selected = AState.testFlag(QStyle::State_Selected);
  APainter.save();
  APainter.fillRect(ARect, palette.brush(group, selected ? QPalette::Highlight : QPalette::Base));
  APainter.setPen(palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
  QFont font = ListBox->font();
  font.setBold(text.toStdString() == FDefaultText);
  APainter.setFont(font);
  APainter.drawText(ARect, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text);
  APainter.restore();
}

} // namespace Tarvo
