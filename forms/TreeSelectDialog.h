#pragma once
// The dialog that picks one value among values that carry categories: a tree of the categories
// with the values under them, or a flat list of the values, narrowed by words typed above it.
// The tree is rebuilt from its model nodes at every change of filter or mode, and keeps which
// categories were open and which value was selected.

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

#include "containers/Dictionary.h"
#include "design/CategorizedValues.h"
#include "forms/TreeViewFiterUtils.h"

namespace Tarvo {

class TTarvoTreeSelectDialogForm : public QDialog {
public:
  // What a model node of this dialog carries. A category's node has an empty name.
  struct TNodeData {
    String Name;
    // Nil for none.
    TRef<IGXImage> Image;
  };
  using TNode = ITreeViewNodeData<TNodeData>;
  using TNodeList = TNode::TNodeList;

  static constexpr int ClientWidth = 352;
  static constexpr int ClientHeight = 348;

  // Shown centred on AParent, the owner's window.
  explicit TTarvoTreeSelectDialogForm(QWidget* AParent = nullptr);
  ~TTarvoTreeSelectDialogForm() override;

  void SetCaller(const TRef<IPropertyEditorDropDownCategorizedStringList>& ACaller) { FCaller = ACaller; }
  // Adds a node for each value: under each of its categories, or at the top level when it has none.
  void SetList(const TRef<ICategorizedValueList>& AList);
  // Shows the values under ACaption, sorted by name when ASort, with the last value named ADefault
  // in any case selected; true when closed with OK.
  Boolean Execute(const String& ACaption, const String& ADefault, Boolean ASort);
  // The selected value's name; empty when nothing or a category is selected.
  String GetSelection() const;
  // Rebuilds the tree for the filter and the mode, keeping the state of the nodes shown before.
  void RefreshTreeView();

  QWidget* TopPanel;
  QLabel* FilterLabel;
  QLineEdit* FilterEdit;
  QToolButton* FilterSpeedButton;
  QToolButton* ExpandButton;
  QToolButton* CollapseButton;
  // Down: the tree of categories; up: the values alone, each once.
  QToolButton* CategorizedSpeedButton;
  QTreeWidget* TreeView;
  QWidget* BottomPanel;
  QPushButton* OKButton;
  QPushButton* CancelButton;

protected:
  bool eventFilter(QObject* AWatched, QEvent* AEvent) override;

private:
  friend class TTreeSelectItemDelegate;
  struct TRefreshPass;

  void AddToCategory(TClassCategoryClass ACategory, const TRef<TNode>& ANode);
  // Adds items for those of ANodes that pass the filter; answers whether it added any.
  Boolean AddNodes(TRefreshPass& APass, QTreeWidgetItem* AParent, const TRef<TNodeList>& ANodes);
  QTreeWidgetItem* AddItem(QTreeWidgetItem* AParent, const TRef<TNode>& ANode);
  // Gives a new item its node's expansion and selection.
  void RestoreItem(TRefreshPass& APass, QTreeWidgetItem* AItem, const TRef<TNode>& ANode, Boolean AMatched);
  QTreeWidgetItem* SelectedItem() const;
  static TNode* NodeOf(const QTreeWidgetItem* AItem);
  static void SortNodes(const TRef<TNodeList>& ANodes);

  void FilterEditChange();
  void FilterSpeedButtonClick();
  void CategorizedSpeedButtonClick() { RefreshTreeView(); }
  void TreeViewChange();
  void TreeViewDblClick();

  TRef<IPropertyEditorDropDownCategorizedStringList> FCaller;
  TRef<TNodeList> FNodes;
  TRef<IDictionary<TClass, TRef<TNodeList>>> FCategoryNodes;
  String FDefaultName;
  Boolean FSort = false;
  Boolean FLastClickOnNode = false;
};

// Compiled once, in forms/instances/TreeNodeLists.cpp: the dialog's unit stays light.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<TTarvoTreeSelectDialogForm::TNode>)
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<TTarvoTreeSelectDialogForm::TNodeList>)

} // namespace Tarvo
