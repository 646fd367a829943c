#include "host/headless/DialogAnswer.h"

#include <QDialog>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "host/headless/RowModel.h"

namespace Tarvo {

namespace {

// The first of the items with the text, an exact match before one in another case.
template <class TItem, class TTextOf>
TItem* Matching(const std::vector<TItem*>& AItems, const QString& AText, TTextOf ATextOf) {
  for (const Qt::CaseSensitivity cases : {Qt::CaseSensitive, Qt::CaseInsensitive})
    for (TItem* item : AItems)
      if (ATextOf(item).compare(AText, cases) == 0) return item;
  return nullptr;
}

Boolean PickInList(QListWidget& AList, const QString& AAnswer) {
  std::vector<QListWidgetItem*> rows;
  for (int i = 0; i < AList.count(); ++i) rows.push_back(AList.item(i));
  QListWidgetItem* found = Matching(rows, AAnswer, [](QListWidgetItem* AItem) { return AItem->text(); });
  if (found) AList.setCurrentItem(found);
  return found != nullptr;
}

Boolean PickInTree(QTreeWidget& ATree, const QString& AAnswer) {
  std::vector<QTreeWidgetItem*> leaves;
  for (QTreeWidgetItemIterator it(&ATree); *it; ++it)
    if ((*it)->childCount() == 0) leaves.push_back(*it);
  QTreeWidgetItem* found = Matching(leaves, AAnswer, [](QTreeWidgetItem* AItem) { return AItem->text(0); });
  if (found) ATree.setCurrentItem(found);
  return found != nullptr;
}

} // namespace

int AnswerDialog(QDialog& ADialog, const std::optional<String>& AAnswer) {
  if (!AAnswer) return QDialog::Rejected;
  const QString answer = QString::fromStdString(*AAnswer);
  Boolean picked = false;
  if (auto* list = ADialog.findChild<QListWidget*>()) picked = PickInList(*list, answer);
  else if (auto* tree = ADialog.findChild<QTreeWidget*>()) picked = PickInTree(*tree, answer);
  else if (auto* text = ADialog.findChild<QPlainTextEdit*>()) {
    text->setPlainText(answer);
    picked = true;
  } else {
    throw EInspectError("the dialog \"" + ADialog.windowTitle().toStdString() + "\" takes no answer");
  }
  if (!picked)
    throw EInspectError("the dialog \"" + ADialog.windowTitle().toStdString() + "\" offers no \"" + *AAnswer + "\"");
  return QDialog::Accepted;
}

} // namespace Tarvo
