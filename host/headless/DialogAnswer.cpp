#include "host/headless/DialogAnswer.h"

#include <QColorDialog>
#include <QDialog>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "forms/AlphaColorEditForm.h"
#include "host/headless/RowModel.h"
#include "platform/AlphaColorNames.h"
#include "platform/ColorNames.h"
#include "rtl/SysUtils.h"

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

// A colour name or number of a TColor row, else a colour as Qt reads it ("#102030", "navy").
Boolean PickColor(QColorDialog& ADialog, const String& AAnswer) {
  QColor colour;
  if (TColor value; IdentToColor(AAnswer, value) || TryStrToInt(AAnswer, value)) {
    const Cardinal rgb = Cardinal(ColorToRGB(value));
    colour = QColor(rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF);
  } else {
    colour = QColor(QString::fromStdString(AAnswer));
  }
  if (colour.isValid()) ADialog.setCurrentColor(colour);
  return colour.isValid();
}

// Any text an alpha colour row reads.
Boolean PickAlphaColor(TWXAlphaColorEditForm& AForm, const String& AAnswer) {
  try {
    AForm.SetColor(StringToRGBAColor(AAnswer));
  } catch (const EConvertError&) {
    return false;
  }
  return true;
}

} // namespace

int AnswerDialog(QDialog& ADialog, const std::optional<String>& AAnswer) {
  if (!AAnswer) return QDialog::Rejected;
  const QString answer = QString::fromStdString(*AAnswer);
  Boolean picked = false;
  // The colour dialogs first: their fields are lists and text boxes of their own.
  if (auto* colour = qobject_cast<QColorDialog*>(&ADialog)) picked = PickColor(*colour, *AAnswer);
  else if (auto* alpha = dynamic_cast<TWXAlphaColorEditForm*>(&ADialog)) picked = PickAlphaColor(*alpha, *AAnswer);
  else if (auto* list = ADialog.findChild<QListWidget*>()) picked = PickInList(*list, answer);
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
