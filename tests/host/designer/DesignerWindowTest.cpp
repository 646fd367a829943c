// The designer's main window on the sample design, as real widgets: the tree feeds the designer,
// the palette adds components, files go through the modal seam and nothing waits on a user.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QUndoStack>

#include <fstream>
#include <optional>
#include <sstream>

#include "host/designer/ComponentPalette.h"
#include "host/designer/ComponentTree.h"
#include "host/designer/DesignerWindow.h"
#include "host/grid/GridView.h"
#include "host/grid/GridWidget.h"
#include "host/headless/PackageScope.h"
#include "platform/ModalSeam.h"
#include "runtime/DesignFile.h"

namespace Tarvo {
namespace DesignerWindowTesting {

// "Name: ClassName" of each component, in owner order.
std::vector<String> Listing(TComponent* ARoot) {
  std::vector<String> result;
  for (Integer i = 0; i < ARoot->ComponentCount(); ++i)
    result.push_back(ARoot->Components(i)->GetName() + ": " + ARoot->Components(i)->ClassName());
  return result;
}

std::vector<String> Names(const TRef<IObjectArrayList>& ASelection) {
  std::vector<String> result;
  for (TObject* object : ASelection->ToArray()) result.push_back(static_cast<TComponent*>(object)->GetName());
  return result;
}

class DesignerWindowTest : public testing::Test {
protected:
  void SetUp() override {
    FModules.Load(TARVO_SAMPLES_MODULE_PATH);
    FWindow.emplace(TARVO_SAMPLE_DESIGN);
    FWindow->show();
  }
  void TearDown() override { FWindow.reset(); }

  TComponentTree& Tree() { return *FWindow->Tree(); }
  QTreeWidgetItem* Item(const char* AName) {
    QTreeWidgetItem* item = Tree().ItemOf(FWindow->Root()->FindComponent(AName));
    EXPECT_NE(item, nullptr) << AName;
    return item;
  }
  // As an extended selection by the user: the items alone, in one change of the tree.
  void SelectInTree(std::initializer_list<const char*> ANames) {
    QItemSelection selection;
    for (const char* name : ANames) {
      const QModelIndex index = Tree().indexFromItem(Item(name));
      selection.select(index, index);
    }
    Tree().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  }
  std::vector<String> TreeSelection() {
    std::vector<String> result;
    for (TObject* object : Tree().SelectedComponents()) result.push_back(static_cast<TComponent*>(object)->GetName());
    return result;
  }
  std::vector<String> DesignerSelection() { return Names(FWindow->Designer()->GetSelection()); }
  void Trigger(const char* AAction) {
    QAction* action = FWindow->findChild<QAction*>(AAction);
    ASSERT_NE(action, nullptr) << AAction;
    action->trigger();
  }
  QString TempPath(const char* AName) const { return FDirectory.filePath(AName); }

  TPackageScope FPackage;
  TModulesScope FModules;
  std::optional<TDesignerWindow> FWindow;
  QTemporaryDir FDirectory;
};

TEST_F(DesignerWindowTest, TheTreeShowsTheDesignAndItsSelectionIsTheDesigners) {
  ASSERT_EQ(Tree().topLevelItemCount(), 4);
  EXPECT_EQ(Tree().topLevelItem(0)->text(0), "Generator1: TSignalGenerator");
  EXPECT_EQ(Tree().topLevelItem(3)->text(0), "Scope1: TSignalScope");
  // The shapes and the button are owned by the root like the others, yet show in the scope they sit in.
  ASSERT_EQ(Tree().topLevelItem(3)->childCount(), 3);
  EXPECT_EQ(Tree().topLevelItem(3)->child(1)->text(0), "Baseline: TShape");
  EXPECT_EQ(DesignerSelection(), std::vector<String>{"Generator1"}) << "the first component on opening";

  SelectInTree({"Generator2", "Generator1"});
  EXPECT_EQ(DesignerSelection(), (std::vector<String>{"Generator1", "Generator2"}));
  SelectInTree({});
  EXPECT_EQ(DesignerSelection(), std::vector<String>{});

  // A selection made elsewhere shows in the tree; a rename in the grid shows in its item.
  FWindow->Designer()->SetSelection(New<TObjectArrayList>()->Add(FWindow->Root()->FindComponent("TriggerMark")));
  EXPECT_EQ(TreeSelection(), std::vector<String>{"TriggerMark"});
  TGridView& view = *FWindow->Grid()->View();
  ASSERT_TRUE(view.WriteText(*view.SelectPath("Name"), "Marker"));
  EXPECT_EQ(Tree().topLevelItem(3)->child(0)->text(0), "Marker: TShape");
  EXPECT_TRUE(FWindow->isWindowModified());
}

// While the grid refuses the text being typed, the tree keeps the selection and the row keeps the
// text; once the text is accepted the selection moves and the value is written.
TEST_F(DesignerWindowTest, NoSelectionChangeWhileTheGridRefusesAnEdit) {
  TGridView& view = *FWindow->Grid()->View();
  ASSERT_NE(view.SelectPath("Frequency"), nullptr);
  view.StartEdit();
  ASSERT_NE(view.LineEdit(), nullptr);
  view.LineEdit()->setText("loud");

  SelectInTree({"Filter1"});
  EXPECT_EQ(DesignerSelection(), std::vector<String>{"Generator1"});
  EXPECT_EQ(TreeSelection(), std::vector<String>{"Generator1"});
  ASSERT_NE(view.LineEdit(), nullptr);
  EXPECT_EQ(view.LineEdit()->text(), "loud");
  const Integer count = FWindow->Root()->ComponentCount();
  FWindow->Palette()->Button("TSignalFilter")->click();
  EXPECT_EQ(FWindow->Root()->ComponentCount(), count) << "a new component would be selected";

  view.LineEdit()->setText("1234");
  SelectInTree({"Filter1"});
  EXPECT_EQ(DesignerSelection(), std::vector<String>{"Filter1"});
  EXPECT_NE(WriteDesign(FWindow->Root()).find("\"Frequency\": \"1234\""), String::npos);
}

// A palette click adds a uniquely named component and selects it. Save As writes what ReadDesign
// reads back as the same components; the saved design is no longer modified and is saved again
// under the same name.
TEST_F(DesignerWindowTest, APaletteClickAddsAComponentAndSaveAsWritesTheDesignThatOpensAgain) {
  EXPECT_FALSE(FWindow->isWindowModified());
  for (const char* name : {"SignalGenerator1", "SignalGenerator2"}) {
    FWindow->Palette()->Button("TSignalGenerator")->click();
    TComponent* added = FWindow->Root()->FindComponent(name);
    ASSERT_NE(added, nullptr) << name;
    EXPECT_EQ(Item(name)->text(0), QString(name) + ": TSignalGenerator");
    EXPECT_EQ(TreeSelection(), std::vector<String>{name});
    EXPECT_EQ(DesignerSelection(), std::vector<String>{name});
  }
  EXPECT_TRUE(FWindow->isWindowModified());
  const QString path = TempPath("saved.json");
  int dialogs = 0;
  const TModalHandlerScope user([&](QDialog& ADialog) {
    ++dialogs;
    auto& dialog = dynamic_cast<QFileDialog&>(ADialog);
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    dialog.selectFile(path);
    return int(QDialog::Accepted);
  });
  Trigger("actionSaveAs");
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(FWindow->FileName(), path.toStdString());
  EXPECT_FALSE(FWindow->isWindowModified());
  EXPECT_TRUE(FWindow->windowTitle().startsWith("saved.json"));

  std::stringstream text;
  text << std::ifstream(path.toStdString()).rdbuf();
  const TOwnedObject<TComponent> copy(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  ReadDesign(text.str(), copy.get());
  EXPECT_EQ(Listing(copy.get()), Listing(FWindow->Root()));
  EXPECT_EQ(Listing(copy.get()).back(), "SignalGenerator2: TSignalGenerator");

  Trigger("actionSave");
  EXPECT_EQ(dialogs, 1) << "a design with a file is saved without asking";
}

// A file that can't be read is reported and the open design stays; a good one replaces it once
// the user lets the changes go, and those can no longer be undone.
TEST_F(DesignerWindowTest, OpenKeepsTheDesignOnABrokenFileAndReplacesItOnAGoodOne) {
  const QString broken = TempPath("broken.json");
  std::ofstream(broken.toStdString()) << R"({"components": [{"class": "TNoSuchClass", "name": "X"}]})";
  TComponent* const root = FWindow->Root();
  QString error, question;
  QString answer = broken;
  const TModalHandlerScope user([&](QDialog& ADialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&ADialog)) {
      if (box->icon() == QMessageBox::Question) {
        question = box->text();
        return int(QMessageBox::No);
      }
      error = box->text();
      return int(QMessageBox::Ok);
    }
    dynamic_cast<QFileDialog&>(ADialog).selectFile(answer);
    return int(QDialog::Accepted);
  });
  Trigger("actionOpen");
  EXPECT_TRUE(error.contains("TNoSuchClass")) << error.toStdString();
  EXPECT_EQ(FWindow->Root(), root);
  EXPECT_EQ(Tree().topLevelItemCount(), 4);
  EXPECT_EQ(FWindow->FileName(), TARVO_SAMPLE_DESIGN);

  const QString good = TempPath("good.json");
  std::ofstream(good.toStdString()) << R"({"components": [{"class": "TSignalFilter", "name": "Lone"}]})";
  answer = good;
  error.clear();
  TGridView& view = *FWindow->Grid()->View();
  ASSERT_TRUE(view.WriteText(*view.SelectPath("Frequency"), "880"));
  ASSERT_EQ(FWindow->Grid()->UndoStack()->count(), 1);
  EXPECT_TRUE(question.isEmpty());
  Trigger("actionOpen");
  EXPECT_TRUE(question.startsWith("Save the changes")) << "the change is dropped only when the user says so";
  EXPECT_TRUE(error.isEmpty()) << error.toStdString();
  EXPECT_EQ(Listing(FWindow->Root()), std::vector<String>{"Lone: TSignalFilter"});
  EXPECT_EQ(DesignerSelection(), std::vector<String>{"Lone"});
  EXPECT_EQ(FWindow->Grid()->UndoStack()->count(), 0);
  EXPECT_FALSE(FWindow->isWindowModified());
}

} // namespace DesignerWindowTesting
} // namespace Tarvo
