#include "host/grid/DropDownList.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "design/paint/PaintObjects.h"
#include "platform/GXGraphics.h"

namespace Tarvo {

namespace {

// Rows drawn and measured by the editor; the row's value is the item's text.
class TListDrawDelegate : public QStyledItemDelegate {
public:
  TListDrawDelegate(QObject* AParent, TRef<IPropertyEditorListDraw> AListDraw)
      : QStyledItemDelegate(AParent), FListDraw(std::move(AListDraw)), FPaintObjects(GetDesignPaintObjects()) {}

  void paint(QPainter* APainter, const QStyleOptionViewItem& AOption, const QModelIndex& AIndex) const override {
    const Boolean selected = AOption.state.testFlag(QStyle::State_Selected);
    const TRef<IItemObjectSet> sets = FPaintObjects->GetListSet();
    const TRef<IGXGraphics> graphics = New<TIGXGraphics>(*APainter);
    FListDraw->ListDrawValue(TValue(AIndex.data().toString().toStdString()), graphics, FPaintObjects,
                             selected ? sets->GetSelected() : sets->GetNone(), TIGXRect::FromQRectF(AOption.rect),
                             selected);
  }

  QSize sizeHint(const QStyleOptionViewItem& AOption, const QModelIndex& AIndex) const override {
    const QSize text = QStyledItemDelegate::sizeHint(AOption, AIndex);
    TIGXSize size{Single(text.width()), Single(text.height())};
    QImage scratch(1, 1, QImage::Format_ARGB32_Premultiplied);
    const TRef<IGXGraphics> graphics = New<TIGXGraphics>(scratch);
    FListDraw->ListGetSize(TValue(AIndex.data().toString().toStdString()), graphics, FPaintObjects,
                           FPaintObjects->GetListSet()->GetNone(), size);
    return QSize(std::max(text.width(), int(size.Width)), int(size.Height));
  }

private:
  TRef<IPropertyEditorListDraw> FListDraw;
  TRef<IPaintObjects> FPaintObjects;
};

} // namespace

TDropDownList::TDropDownList(QWidget* AParent, const TRef<IStringArrayList>& AValues,
                             const TRef<IPropertyEditorListDraw>& AListDraw, const String& ACurrent)
    : QListWidget(AParent) {
  setWindowFlags(Qt::Popup);
  setAttribute(Qt::WA_DeleteOnClose);
  if (AListDraw) setItemDelegate(new TListDrawDelegate(this, AListDraw));
  for (const String& value : AValues) {
    addItem(QString::fromStdString(value));
    if (value == ACurrent) setCurrentRow(count() - 1);
  }
  connect(this, &QListWidget::itemClicked, this, &TDropDownList::Pick);
}

void TDropDownList::Pick(QListWidgetItem* AItem) {
  const QString value = AItem->text();
  close();
  emit Picked(value);
}

void TDropDownList::PlaceUnder(const QRect& ACell, int AMaxRows) {
  int height = 2 * frameWidth();
  for (int i = 0; i < std::min(count(), AMaxRows); ++i) height += sizeHintForRow(i);
  setGeometry(ACell.left(), ACell.bottom() + 1, std::max(ACell.width(), sizeHintForColumn(0) + 24), height);
}

void TDropDownList::keyPressEvent(QKeyEvent* AEvent) {
  if ((AEvent->key() == Qt::Key_Return || AEvent->key() == Qt::Key_Enter) && currentItem()) {
    Pick(currentItem());
    return;
  }
  if (AEvent->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QListWidget::keyPressEvent(AEvent);
}

} // namespace Tarvo
