#pragma once
// The components of a design as a tree: the root's components in their owner's order, each
// control under the window control it sits in. Items read "Name: ClassName".

#include <QTreeWidget>

#include <span>
#include <vector>

#include "runtime/Component.h"

namespace Tarvo {

class TComponentTree : public QTreeWidget {
  Q_OBJECT
public:
  explicit TComponentTree(QWidget* AParent = nullptr);

  // Builds the items anew from ARoot's components (nil: none). The selection is lost.
  void Rebuild(TComponent* ARoot);
  // The texts again, for a component renamed in the inspector.
  void RefreshTexts();
  // Whether the items stand for ARoot's components, no more and no fewer. Items are only
  // compared, never read: one may stand for a component that is gone.
  bool Shows(const TComponent* ARoot) const;

  // In tree order, whatever order they were clicked in.
  std::vector<TObject*> SelectedComponents() const;
  // Selects the items of the components there are items for, and no others, without a signal:
  // the caller is the one that decided the selection.
  void SelectComponents(std::span<TObject* const> AComponents);

  static TComponent* ComponentOf(const QTreeWidgetItem* AItem);
  QTreeWidgetItem* ItemOf(const TObject* AComponent) const;
};

} // namespace Tarvo
