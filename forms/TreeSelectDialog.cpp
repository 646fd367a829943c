#include "forms/TreeSelectDialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <set>

#include "design/MemberFilter.h"
#include "forms/SelectDialogLayout.h"
#include "platform/GXGraphics.h"
#include "platform/ModalSeam.h"

namespace Tarvo {

// ---- The items' delegate ----

// Window-text colour, the value's icon left of its text, and the default value in bold.
class TTreeSelectItemDelegate : public QStyledItemDelegate {
public:
  static constexpr int IconSize = 16;

  explicit TTreeSelectItemDelegate(TTarvoTreeSelectDialogForm* AForm) : QStyledItemDelegate(AForm), FForm(AForm) {}

  void paint(QPainter* APainter, const QStyleOptionViewItem& AOption, const QModelIndex& AIndex) const override {
    QStyleOptionViewItem option = AOption;
    initStyleOption(&option, AIndex);
    QStyledItemDelegate::paint(APainter, AOption, AIndex);
    const TRef<IGXImage> image = DataAt(AIndex).Image;
    if (!image) return;
    const QWidget* view = option.widget;
    const QStyle* style = view ? view->style() : QApplication::style();
    const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &option, view);
    const TRef<IGXGraphics> graphics = New<TIGXGraphics>(*APainter);
    graphics->SetSmoothingMode(smAntiAlias);
    graphics->SetInterpolationMode(imHighQualityBicubic);
    graphics->DrawImage(
        image, TIGXRect(text.left() - IconSize, text.top() + (text.height() - IconSize) / 2, IconSize, IconSize));
  }

protected:
  void initStyleOption(QStyleOptionViewItem* AOption, const QModelIndex& AIndex) const override {
    QStyledItemDelegate::initStyleOption(AOption, AIndex);
    const QColor text = AOption->palette.color(QPalette::WindowText);
    AOption->palette.setColor(QPalette::Text, text);
    AOption->palette.setColor(QPalette::HighlightedText, text);
    const TTarvoTreeSelectDialogForm::TNodeData data = DataAt(AIndex);
    if (!FForm->FDefaultName.empty()) AOption->font.setBold(data.Name == FForm->FDefaultName);
    // The style leaves room for the icon; the icon itself is drawn in paint.
    if (data.Image) {
      AOption->features |= QStyleOptionViewItem::HasDecoration;
      AOption->decorationSize = QSize(IconSize, IconSize);
    }
  }

private:
  static TTarvoTreeSelectDialogForm::TNodeData DataAt(const QModelIndex& AIndex) {
    return static_cast<TTarvoTreeSelectDialogForm::TNode*>(AIndex.data(Qt::UserRole).value<void*>())->GetData();
  }

  TTarvoTreeSelectDialogForm* FForm;
};

// ---- TTarvoTreeSelectDialogForm ----

// The state of one rebuild of the tree.
struct TTarvoTreeSelectDialogForm::TRefreshPass {
  // Nil without filter text.
  TRef<IMatches> Matcher;
  // In the flat mode: the names shown already, so a value in two categories shows once.
  std::set<String> Shown;
  QTreeWidgetItem* FirstMatch = nullptr;
};

namespace {
QToolButton* NewTreeSelectToolButton(QWidget* AParent, QStyle::StandardPixmap AIcon, const char* AHint) {
  auto* button = new QToolButton(AParent);
  button->setAutoRaise(true);
  button->setFixedSize(23, 23);
  button->setIcon(AParent->style()->standardIcon(AIcon));
  button->setToolTip(QString::fromUtf8(AHint));
  return button;
}
} // namespace

TTarvoTreeSelectDialogForm::TTarvoTreeSelectDialogForm(QWidget* AParent)
    : QDialog(AParent), TopPanel(new QWidget(this)), FilterLabel(new QLabel(QStringLiteral("&Filter:"), TopPanel)),
      FilterEdit(new QLineEdit(TopPanel)),
      FilterSpeedButton(NewTreeSelectToolButton(TopPanel, QStyle::SP_LineEditClearButton, "Clear")),
      ExpandButton(NewTreeSelectToolButton(TopPanel, QStyle::SP_ArrowDown, "Expand Items")),
      CollapseButton(NewTreeSelectToolButton(TopPanel, QStyle::SP_ArrowUp, "Collapse Items")),
      CategorizedSpeedButton(NewTreeSelectToolButton(TopPanel, QStyle::SP_DirIcon, "Categorized")),
      TreeView(new QTreeWidget(this)), BottomPanel(new QWidget(this)),
      OKButton(new QPushButton(QStringLiteral("OK"), BottomPanel)),
      CancelButton(new QPushButton(QStringLiteral("Cancel"), BottomPanel)), FNodes(New<TArrayList<TRef<TNode>>>()),
      FCategoryNodes(New<TDictionary<TClass, TRef<TNodeList>>>()) {
  TopPanel->setFixedHeight(33);
  FilterLabel->setBuddy(FilterEdit);
  FilterSpeedButton->setEnabled(false);
  CategorizedSpeedButton->setCheckable(true);
  CategorizedSpeedButton->setChecked(true);
  auto* top = new QHBoxLayout(TopPanel);
  top->setContentsMargins(8, 5, 8, 5);
  top->addWidget(FilterLabel);
  top->addWidget(FilterEdit, 1);
  for (QToolButton* button : {FilterSpeedButton, ExpandButton, CollapseButton, CategorizedSpeedButton})
    top->addWidget(button);

  TreeView->setHeaderHidden(true);
  TreeView->setColumnCount(1);
  TreeView->setIndentation(19);
  TreeView->setSelectionMode(QAbstractItemView::SingleSelection);
  TreeView->setItemDelegate(new TTreeSelectItemDelegate(this));
  // The selection shows as clearly while the filter has the focus.
  QPalette palette = TreeView->palette();
  for (QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
    palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
  TreeView->setPalette(palette);
  TreeView->viewport()->installEventFilter(this);

  OKButton->setEnabled(false);
  LayOutSelectDialog(*this, TopPanel, TreeView, BottomPanel, OKButton, CancelButton);

  connect(FilterEdit, &QLineEdit::textChanged, this, [this] { FilterEditChange(); });
  connect(FilterSpeedButton, &QToolButton::clicked, this, [this] { FilterSpeedButtonClick(); });
  connect(ExpandButton, &QToolButton::clicked, TreeView, &QTreeView::expandAll);
  connect(CollapseButton, &QToolButton::clicked, TreeView, &QTreeView::collapseAll);
  connect(CategorizedSpeedButton, &QToolButton::clicked, this, [this] { CategorizedSpeedButtonClick(); });
  connect(TreeView, &QTreeWidget::itemSelectionChanged, this, [this] { TreeViewChange(); });
  connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);

  // A dialog with a parent is centred on the parent's window as it is shown.
  resize(ClientWidth, ClientHeight);
}

TTarvoTreeSelectDialogForm::~TTarvoTreeSelectDialogForm() {
  // Clearing reports a change of selection: it must run while the handlers and the nodes the
  // items point at are still there.
  TreeView->clear();
}

void TTarvoTreeSelectDialogForm::SetList(const TRef<ICategorizedValueList>& AList) {
  for (const TCategorizedValue& value : AList) {
    const TRef<TNode> node = New<TTreeViewNodeData<TNodeData>>(value.Name, TNodeData{value.Name, value.Image});
    for (const TClassCategoryClass& category : value.Categories) AddToCategory(category, node);
    if (value.Categories.empty()) FNodes->Add(node);
  }
}

void TTarvoTreeSelectDialogForm::AddToCategory(TClassCategoryClass ACategory, const TRef<TNode>& ANode) {
  TRef<TNodeList> members;
  if (!FCategoryNodes->TryGetValue(ACategory.get(), members)) {
    const TRef<TNode> category = New<TTreeViewNodeData<TNodeData>>(CategoryCaption(ACategory), TNodeData{});
    members = category->GetChildren();
    FCategoryNodes->Add(ACategory.get(), members);
    FNodes->Add(category);
  }
  members->Add(ANode);
}

Boolean TTarvoTreeSelectDialogForm::Execute(const String& ACaption, const String& ADefault, Boolean ASort) {
  setWindowTitle(QString::fromStdString(ACaption));
  FSort = ASort;
  FDefaultName = ADefault;
  if (FSort) SortNodes(FNodes);
  RefreshTreeView();

  // The last value of the name wins; only its category is opened to show it.
  const QString wanted = QString::fromStdString(ADefault).toUpper();
  QTreeWidgetItem* found = nullptr;
  for (QTreeWidgetItemIterator walk(TreeView); *walk; ++walk)
    if ((*walk)->childCount() == 0 && (*walk)->text(0).toUpper() == wanted) found = *walk;
  if (found) {
    TreeView->setCurrentItem(found);
    TreeView->scrollToItem(found);
  }
  return ExecuteModal(*this) == QDialog::Accepted;
}

String TTarvoTreeSelectDialogForm::GetSelection() const {
  const QTreeWidgetItem* selected = SelectedItem();
  return selected ? NodeOf(selected)->GetData().Name : String();
}

void TTarvoTreeSelectDialogForm::RefreshTreeView() {
  if (const QTreeWidgetItem* selected = SelectedItem()) NodeOf(selected)->SetSelected(true);
  for (QTreeWidgetItemIterator walk(TreeView); *walk; ++walk) NodeOf(*walk)->SetExpanded((*walk)->isExpanded());

  TreeView->setUpdatesEnabled(false);
  TreeView->clear();
  TRefreshPass pass;
  if (!FilterEdit->text().isEmpty()) pass.Matcher = New<TWordsMatch>(FilterEdit->text().toStdString());
  AddNodes(pass, nullptr, FNodes);
  if (!SelectedItem() && pass.FirstMatch) TreeView->setCurrentItem(pass.FirstMatch);
  if (const QTreeWidgetItem* selected = SelectedItem()) TreeView->scrollToItem(selected);
  TreeView->setUpdatesEnabled(true);
  TreeView->setEnabled(true);
}

Boolean TTarvoTreeSelectDialogForm::AddNodes(TRefreshPass& APass, QTreeWidgetItem* AParent,
                                             const TRef<TNodeList>& ANodes) {
  const Boolean categorized = CategorizedSpeedButton->isChecked();
  Boolean result = false;
  for (const TRef<TNode>& node : ANodes) {
    const TRef<TNodeList> children = node->GetChildren();
    const Boolean leaf = children->GetCount() == 0;
    Boolean matched = false;
    if (leaf && APass.Matcher) {
      if (!APass.Matcher->Matches(node->GetCaption())) continue;
      matched = true;
    }
    if (categorized) {
      QTreeWidgetItem* item = AddItem(AParent, node);
      // A category none of whose values passes the filter does not show.
      if (!leaf && !AddNodes(APass, item, children)) {
        delete item;
        item = nullptr;
      }
      if (item) {
        RestoreItem(APass, item, node, matched);
        result = true;
      }
      node->SetSelected(false);
    } else if (!leaf) {
      result = AddNodes(APass, AParent, children) || result;
    } else if (APass.Shown.insert(node->GetCaption()).second) {
      RestoreItem(APass, AddItem(AParent, node), node, matched);
      result = true;
      // Shown once, the selection is the tree's again: a flag left standing would select this
      // value in a later rebuild, over the one selected then.
      node->SetSelected(false);
    }
  }
  return result;
}

QTreeWidgetItem* TTarvoTreeSelectDialogForm::AddItem(QTreeWidgetItem* AParent, const TRef<TNode>& ANode) {
  auto* item = new QTreeWidgetItem(QStringList(QString::fromStdString(ANode->GetCaption())));
  item->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(ANode.get())));
  if (AParent) AParent->addChild(item);
  else TreeView->addTopLevelItem(item);
  return item;
}

void TTarvoTreeSelectDialogForm::RestoreItem(TRefreshPass& APass, QTreeWidgetItem* AItem, const TRef<TNode>& ANode,
                                             Boolean AMatched) {
  if (AMatched && !APass.FirstMatch) APass.FirstMatch = AItem;
  AItem->setExpanded(ANode->GetExpanded());
  if (ANode->GetSelected()) TreeView->setCurrentItem(AItem);
}

QTreeWidgetItem* TTarvoTreeSelectDialogForm::SelectedItem() const {
  const QList<QTreeWidgetItem*> selected = TreeView->selectedItems();
  return selected.isEmpty() ? nullptr : selected.first();
}

TTarvoTreeSelectDialogForm::TNode* TTarvoTreeSelectDialogForm::NodeOf(const QTreeWidgetItem* AItem) {
  return static_cast<TNode*>(AItem->data(0, Qt::UserRole).value<void*>());
}

void TTarvoTreeSelectDialogForm::SortNodes(const TRef<TNodeList>& ANodes) {
  ANodes->Sort([](const TRef<TNode>& ALeft, const TRef<TNode>& ARight) {
    return DefaultCompare(ALeft->GetCaption(), ARight->GetCaption());
  });
  for (const TRef<TNode>& node : ANodes) SortNodes(node->GetChildren());
}

void TTarvoTreeSelectDialogForm::FilterEditChange() {
  FilterSpeedButton->setEnabled(!FilterEdit->text().isEmpty());
  RefreshTreeView();
}

void TTarvoTreeSelectDialogForm::FilterSpeedButtonClick() {
  FilterEdit->clear();
  FilterEdit->setFocus();
}

void TTarvoTreeSelectDialogForm::TreeViewChange() {
  const QTreeWidgetItem* selected = SelectedItem();
  // A category cannot be picked.
  OKButton->setEnabled(selected && selected->childCount() == 0);
}

void TTarvoTreeSelectDialogForm::TreeViewDblClick() {
  if (FLastClickOnNode && !GetSelection().empty()) accept();
}

bool TTarvoTreeSelectDialogForm::eventFilter(QObject* AWatched, QEvent* AEvent) {
  const QEvent::Type type = AEvent->type();
  if (AWatched == TreeView->viewport() && (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)) {
    // The second press of a double click comes as the double click itself.
    FLastClickOnNode = TreeView->itemAt(static_cast<QMouseEvent*>(AEvent)->position().toPoint()) != nullptr;
    if (type == QEvent::MouseButtonDblClick) TreeViewDblClick();
  }
  return QDialog::eventFilter(AWatched, AEvent);
}

} // namespace Tarvo
