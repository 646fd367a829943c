#include "host/grid/GridWidget.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

#include "host/grid/GridView.h"

namespace Tarvo {

TInspectorGrid::TInspectorGrid(QWidget* AParent)
    : QWidget(AParent), FView(new TGridView(this)), FSearch(new QLineEdit(this)), FCategoryButton(new QToolButton(this)) {
  FSearch->setPlaceholderText(tr("Search"));
  FSearch->setClearButtonEnabled(true);
  FCategoryButton->setText(tr("Categories"));
  FCategoryButton->setCheckable(true);
  FCategoryButton->setToolTip(tr("Rows under their categories"));
  auto* bar = new QHBoxLayout;
  bar->setContentsMargins(0, 0, 0, 0);
  bar->addWidget(FCategoryButton);
  bar->addWidget(FSearch, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addLayout(bar);
  layout->addWidget(FView, 1);
  connect(FSearch, &QLineEdit::textChanged, this, [this](const QString& AText) { FView->SetSearchText(AText.toStdString()); });
  connect(FCategoryButton, &QToolButton::toggled, this, [this](bool AOn) { FView->SetCategoryView(AOn); });
  connect(FView, &TGridView::Message, this, &TInspectorGrid::Message);
  setFocusProxy(FView);
}

TInspectorGrid::~TInspectorGrid() = default;

void TInspectorGrid::SetDesigner(const TRef<IDesigner>& ADesigner) { FView->SetDesigner(ADesigner); }

bool TInspectorGrid::CommitEdit() { return FView->CommitEdit(); }

QUndoStack* TInspectorGrid::UndoStack() const { return FView->UndoStack(); }

void TInspectorGrid::ClearUndo() { FView->UndoStack()->clear(); }

void TInspectorGrid::SetCategoryView(bool AOn) { FCategoryButton->setChecked(AOn); }

void TInspectorGrid::SetSearchText(const QString& AText) { FSearch->setText(AText); }

} // namespace Tarvo
