#include "host/grid/GridPaintObjects.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionButton>

namespace Tarvo {

namespace {

// The size of the box the Boolean editor leaves room for and takes clicks in.
constexpr int BoxSize = 13;

TRef<IGXBitmap> CheckBox(QStyle::StateFlag ACheck) {
  QImage image(BoxSize, BoxSize, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  QStyleOptionButton option;
  option.rect = QRect(0, 0, BoxSize, BoxSize);
  option.state = QStyle::State_Enabled | ACheck;
  option.palette = QApplication::palette();
  QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
  painter.end();
  return New<TIGXBitmap>(image);
}

Integer GUsers = 0;
TFunc<TRef<IPaintObjects>> GSavedHook;

} // namespace

TGridPaintObjects::TGridPaintObjects()
    : FPackage(New<TPaintObjects>()), FChecked(CheckBox(QStyle::State_On)), FUnchecked(CheckBox(QStyle::State_Off)),
      FGrayed(CheckBox(QStyle::State_NoChange)) {}

void TGridPaintObjects::Acquire() {
  if (GUsers++ > 0) return;
  GSavedHook = _GetDesignPaintObjects;
  // Made on first use: the style and palette are the application's by then.
  _GetDesignPaintObjects = [objects = TRef<IPaintObjects>()]() mutable {
    if (!objects) objects = New<TGridPaintObjects>();
    return objects;
  };
}

void TGridPaintObjects::Release() {
  if (--GUsers > 0) return;
  _GetDesignPaintObjects = std::move(GSavedHook);
  GSavedHook = nullptr;
}

} // namespace Tarvo
