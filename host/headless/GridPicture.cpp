#include "host/headless/GridPicture.h"

#include <QApplication>
#include <QLineEdit>

#include "host/grid/GridView.h"
#include "host/grid/GridWidget.h"
#include "host/headless/RowModel.h"

namespace Tarvo {

namespace {

QPalette DarkPalette() {
  QPalette palette;
  const auto set = [&](QPalette::ColorRole ARole, QColor AColour, QColor ADisabled = QColor()) {
    palette.setColor(ARole, AColour);
    palette.setColor(QPalette::Disabled, ARole, ADisabled.isValid() ? ADisabled : AColour);
  };
  set(QPalette::Window, QColor(0x2D, 0x2D, 0x30));
  set(QPalette::WindowText, QColor(0xE8, 0xE8, 0xE8), QColor(0x80, 0x80, 0x80));
  set(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  set(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
  set(QPalette::Text, QColor(0xE8, 0xE8, 0xE8), QColor(0x80, 0x80, 0x80));
  set(QPalette::Button, QColor(0x33, 0x33, 0x37));
  set(QPalette::ButtonText, QColor(0xE8, 0xE8, 0xE8), QColor(0x80, 0x80, 0x80));
  set(QPalette::Highlight, QColor(0x26, 0x4F, 0x78));
  set(QPalette::HighlightedText, Qt::white);
  set(QPalette::PlaceholderText, QColor(0x8C, 0x8C, 0x8C));
  set(QPalette::Light, QColor(0x50, 0x50, 0x50));
  set(QPalette::Midlight, QColor(0x3C, 0x3C, 0x3C));
  set(QPalette::Mid, QColor(0x30, 0x30, 0x30));
  set(QPalette::Dark, QColor(0x20, 0x20, 0x20));
  return palette;
}

// The application's colours for as long as a picture is drawn: system colours of the package
// resolve through them too.
class TPaletteScope {
public:
  explicit TPaletteScope(Boolean ADark) : FSaved(QApplication::palette()) {
    if (ADark) QApplication::setPalette(DarkPalette());
  }
  ~TPaletteScope() { QApplication::setPalette(FSaved); }
  TPaletteScope(const TPaletteScope&) = delete;
  TPaletteScope& operator=(const TPaletteScope&) = delete;

private:
  QPalette FSaved;
};

void Save(QWidget& AWidget, const String& AFile) {
  if (!AWidget.grab().save(QString::fromStdString(AFile), "PNG"))
    throw EInspectError("cannot write the picture \"" + AFile + "\"");
}

} // namespace

void WriteGridPicture(const TRef<IDesigner>& ADesigner, const TInspectOptions& AOptions) {
  const TPaletteScope palette(AOptions.DarkPalette);
  TInspectorGrid grid;
  grid.SetCategoryView(AOptions.Categories);
  grid.SetSearchText(QString::fromStdString(AOptions.Filter));
  grid.SetDesigner(ADesigner);
  TGridView& view = *grid.View();
  TGridRows& rows = view.Rows();
  for (const String& path : AOptions.Expand) ExpandRow(rows, path);
  if (AOptions.ExpandAll) rows.ExpandAll(TRowModel::MaxExpandDepth);
  grid.resize(int(AOptions.Width), 200);
  grid.show();
  // The grid grows to show every row: the bar above the rows keeps its height.
  const int chrome = grid.height() - view.viewport()->height();
  grid.resize(int(AOptions.Width), chrome + view.ContentHeight());
  QApplication::processEvents();
  if (!AOptions.Values) return Save(grid, AOptions.Png);

  if (!view.SelectPath(*AOptions.Values)) throw EInspectError("no row \"" + *AOptions.Values + "\"");
  view.OpenList();
  TDropDownList* list = view.List();
  if (!list) throw EInspectError(*AOptions.Values + ": no list of values");
  list->resize(list->width(), list->sizeHintForRow(0) * list->count() + 2 * list->frameWidth());
  Save(*list, AOptions.Png);
  list->close();
}

} // namespace Tarvo
