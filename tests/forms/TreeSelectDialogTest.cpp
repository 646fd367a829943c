#include <gtest/gtest.h>

#include "forms/TreeSelectDialog.h"
#include "platform/ModalSeam.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace TreeSelectDialogTesting {

using TForm = TTarvoTreeSelectDialogForm;

const TClassCategoryClass Visual = TVisualMemberCategory::ClassInfo();
const TClassCategoryClass Layout = TLayoutMemberCategory::ClassInfo();

TRef<ICategorizedValueList> Values(std::vector<TCategorizedValue> AValues) {
  return TArrayList<TCategorizedValue>::CreateArray(AValues);
}

// Button and Label are Visual, Label and Panel Layout; Timer has no category.
TRef<ICategorizedValueList> Controls() {
  return Values({{"Button", nullptr, {Visual}},
                 {"Label", nullptr, {Visual, Layout}},
                 {"Panel", nullptr, {Layout}},
                 {"Timer", nullptr, {}}});
}

// Items in order, children in brackets; "+" marks an expanded category, "*" the selected item.
String Shape(const QTreeWidgetItem* AItem) {
  String result;
  for (int i = 0; i < AItem->childCount(); ++i) {
    const QTreeWidgetItem* child = AItem->child(i);
    const Boolean parent = child->childCount() > 0;
    result += (i ? " " : "") + child->text(0).toStdString() + (parent && child->isExpanded() ? "+" : "") +
              (child->isSelected() ? "*" : "") + (parent ? "(" + Shape(child) + ")" : "");
  }
  return result;
}
String Shape(const TForm& AForm) { return Shape(AForm.TreeView->invisibleRootItem()); }

QTreeWidgetItem* Item(const TForm& AForm, const char* AText) {
  return AForm.TreeView->findItems(AText, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

// Runs AForm over the controls with AUser standing in for the user; answers what Execute answers.
Boolean RunTree(TForm& AForm, const String& ADefault, const std::function<int(TForm&)>& AUser, Boolean ASort = false) {
  TModalHandlerScope user([&](QDialog& ADialog) { return AUser(static_cast<TForm&>(ADialog)); });
  return AForm.Execute("Pick", ADefault, ASort);
}

// What shows for a default, a mode and a filter, and whether OK may be pressed.
TEST(TreeSelectDialogTest, DefaultFilterAndModeDecideWhatShows) {
  const struct {
    const char *Name, *Default;
    Boolean Categorized;
    const char *Filter, *Shape;
    Boolean Ok;
  } cases[] = {
      {"categories, then values without one", "", true, "", "Visual(Button Label) Layout(Label Panel) Timer", false},
      {"flat: a value of two categories once", "", false, "", "Button Label Panel Timer", false},
      {"a value of two categories under both", "", true, "lab", "Visual+(Label*) Layout(Label)", true},
      {"a category left without values goes", "", true, "pan", "Layout+(Panel*)", true},
      {"words in any order and case", "", false, "ER tim", "Timer*", true},
      {"nothing matches", "Panel", true, "zzz", "", false},
      {"the default: the last value so named, in any case", "label", true, "",
       "Visual(Button Label) Layout+(Label* Panel) Timer", true},
      {"a category is no value", "VISUAL", true, "", "Visual(Button Label) Layout(Label Panel) Timer", false},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) {
    TForm form;
    form.SetList(Controls());
    RunTree(form, ACase.Default, [&](TForm& AForm) {
      if (!ACase.Categorized) AForm.CategorizedSpeedButton->click();
      if (*ACase.Filter) AForm.FilterEdit->setText(ACase.Filter);
      EXPECT_EQ(Shape(AForm), ACase.Shape);
      EXPECT_EQ(AForm.OKButton->isEnabled(), ACase.Ok);
      return QDialog::Rejected;
    });
  });
}

// A category's row is no value (the table above); the value selected last is picked with OK.
TEST(TreeSelectDialogTest, ExpansionAndSelectionSurviveFilteringAndTogglingAndOkPicksTheValue) {
  TForm form;
  form.SetList(Controls());
  EXPECT_TRUE(RunTree(form, "", [](TForm& AForm) {
    Item(AForm, "Layout")->setExpanded(true);
    AForm.TreeView->setCurrentItem(Item(AForm, "Timer"));
    AForm.FilterEdit->setText("t");
    EXPECT_EQ(Shape(AForm), "Visual(Button) Timer*");
    AForm.CategorizedSpeedButton->click();
    EXPECT_EQ(Shape(AForm), "Button Timer*");
    AForm.CategorizedSpeedButton->click();
    AForm.FilterSpeedButton->click();
    EXPECT_EQ(AForm.FilterEdit->text(), "");
    EXPECT_EQ(Shape(AForm), "Visual(Button Label) Layout+(Label Panel) Timer*");
    AForm.ExpandButton->click();
    EXPECT_EQ(Shape(AForm), "Visual+(Button Label) Layout+(Label Panel) Timer*");
    AForm.CollapseButton->click();
    AForm.FilterEdit->setText("e");
    EXPECT_EQ(Shape(AForm), "Visual(Label) Layout(Label Panel) Timer*");
    // Flat, the value selected last is the one kept, though another was kept before it.
    AForm.CategorizedSpeedButton->click();
    AForm.TreeView->setCurrentItem(Item(AForm, "Panel"));
    AForm.FilterEdit->setText("");
    EXPECT_EQ(Shape(AForm), "Button Label Panel* Timer");
    EXPECT_TRUE(AForm.OKButton->isEnabled());
    return QDialog::Accepted;
  }));
  EXPECT_EQ(form.GetSelection(), "Panel");
}

TEST(TreeSelectDialogTest, SortOrdersEveryLevelByCaptionCaseCounting) {
  for (const Boolean sort : {false, true}) {
    TForm form;
    form.SetList(Values({{"beta", nullptr, {Layout}},
                         {"Alpha", nullptr, {Layout}},
                         {"alpha", nullptr, {}},
                         {"Zulu", nullptr, {Visual}}}));
    RunTree(
        form, "",
        [&](TForm& AForm) {
          EXPECT_EQ(Shape(AForm),
                    sort ? "Layout(Alpha beta) Visual(Zulu) alpha" : "Layout(beta Alpha) alpha Visual(Zulu)");
          return QDialog::Rejected;
        },
        sort);
  }
}

// The icon stands 16 pixels wide just left of the value's text.
TEST(TreeSelectDialogTest, AValuesIconIsDrawnBesideItsText) {
  QImage red(4, 4, QImage::Format_ARGB32);
  red.fill(Qt::red);
  TForm form;
  form.SetList(Values({{"Shape", New<TIGXBitmap>(red), {}}}));
  RunTree(form, "Shape", [](TForm& AForm) {
    AForm.show();
    const QRect row = AForm.TreeView->visualItemRect(Item(AForm, "Shape"));
    const QImage shown = AForm.TreeView->viewport()->grab().toImage();
    int reds = 0;
    for (int x = row.left(); x < row.right(); ++x) reds += shown.pixelColor(x, row.center().y()) == Qt::red;
    EXPECT_EQ(reds, 16);
    return QDialog::Rejected;
  });
}

} // namespace TreeSelectDialogTesting
} // namespace Tarvo
