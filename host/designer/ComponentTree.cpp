#include "host/designer/ComponentTree.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <set>

#include "runtime/Controls.h"

namespace Tarvo {

namespace {

QString ItemText(const TComponent* AComponent) {
  return QString::fromStdString(AComponent->GetName()) + QStringLiteral(": ") + AComponent->ClassName();
}

QTreeWidgetItem* NewItem(TComponent* AComponent) {
  auto* item = new QTreeWidgetItem({ItemText(AComponent)});
  item->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(AComponent)));
  return item;
}

// The control's children, each with its own, in the parent's order.
void AddChildren(QTreeWidgetItem* AItem, TComponent* AComponent) {
  auto* container = dynamic_cast<TWinControl*>(AComponent);
  if (!container) return;
  for (Integer i = 0; i < container->ControlCount(); ++i) {
    TControl* child = container->Controls(i);
    QTreeWidgetItem* item = NewItem(child);
    AItem->addChild(item);
    AddChildren(item, child);
  }
}

} // namespace

TComponentTree::TComponentTree(QWidget* AParent) : QTreeWidget(AParent) {
  setHeaderHidden(true);
  setColumnCount(1);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setUniformRowHeights(true);
}

void TComponentTree::Rebuild(TComponent* ARoot) {
  const QSignalBlocker quiet(this);
  clear();
  if (!ARoot) return;
  for (Integer i = 0; i < ARoot->ComponentCount(); ++i) {
    TComponent* component = ARoot->Components(i);
    // A control with a parent shows under it instead.
    if (auto* control = dynamic_cast<TControl*>(component); control && control->GetParent()) continue;
    QTreeWidgetItem* item = NewItem(component);
    addTopLevelItem(item);
    AddChildren(item, component);
  }
  expandAll();
}

void TComponentTree::RefreshTexts() {
  for (QTreeWidgetItemIterator it(this); *it; ++it) (*it)->setText(0, ItemText(ComponentOf(*it)));
}

bool TComponentTree::Shows(const TComponent* ARoot) const {
  std::set<const TComponent*> components;
  for (Integer i = 0; i < ARoot->ComponentCount(); ++i) components.insert(ARoot->Components(i));
  std::size_t items = 0;
  for (QTreeWidgetItemIterator it(const_cast<TComponentTree*>(this)); *it; ++it, ++items)
    if (!components.contains(ComponentOf(*it))) return false;
  return items == components.size();
}

std::vector<TObject*> TComponentTree::SelectedComponents() const {
  std::vector<TObject*> result;
  for (QTreeWidgetItemIterator it(const_cast<TComponentTree*>(this), QTreeWidgetItemIterator::Selected); *it; ++it)
    result.push_back(ComponentOf(*it));
  return result;
}

void TComponentTree::SelectComponents(std::span<TObject* const> AComponents) {
  const QSignalBlocker quiet(this);
  QTreeWidgetItem* current = nullptr;
  for (QTreeWidgetItemIterator it(this); *it; ++it) {
    const bool selected = std::ranges::find(AComponents, ComponentOf(*it)) != AComponents.end();
    (*it)->setSelected(selected);
    if (selected && !current) current = *it;
  }
  if (current) {
    // Moving the current item would select it alone; the selection is already in place.
    selectionModel()->setCurrentIndex(indexFromItem(current), QItemSelectionModel::NoUpdate);
    scrollToItem(current);
  }
}

TComponent* TComponentTree::ComponentOf(const QTreeWidgetItem* AItem) {
  return static_cast<TComponent*>(AItem->data(0, Qt::UserRole).value<void*>());
}

QTreeWidgetItem* TComponentTree::ItemOf(const TObject* AComponent) const {
  for (QTreeWidgetItemIterator it(const_cast<TComponentTree*>(this)); *it; ++it)
    if (ComponentOf(*it) == AComponent) return *it;
  return nullptr;
}

} // namespace Tarvo
