#include <gtest/gtest.h>

#include <QApplication>

#include <string>
#include <vector>

#include "design/paint/InplaceFormController.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

// A form that decides its own height and counts its paints.
class TProbeForm : public QWidget {
public:
  static constexpr int OwnHeight = 37;
  TProbeForm() { resize(10, OwnHeight); }
  int Paints = 0;
  QWidget* ParentWhenUpdated = reinterpret_cast<QWidget*>(1);

protected:
  void paintEvent(QPaintEvent*) override { ++Paints; }
};

// Writes down what the grid is told.
class TGridLog : public TImplements<TInterfacedObject, IMemberUIUpdate> {
public:
  TGridLog(std::string AName, std::vector<std::string>* ALog) : FName(std::move(AName)), FLog(ALog) {}
  void EndEdit() override { FLog->push_back(FName + ".EndEdit"); }
  void Invalidate() override { FLog->push_back(FName + ".Invalidate"); }
  void Refresh(Boolean AReadValues) override {
    FLog->push_back(FName + ".Refresh(" + (AReadValues ? "true" : "false") + ")");
  }
  QWidget* GetControl() override { return nullptr; }

private:
  std::string FName;
  std::vector<std::string>* FLog;
};

class InplaceFormControllerTest : public testing::Test {
protected:
  TRef<TInplaceEditorFormController<TProbeForm>> FController = New<TInplaceEditorFormController<TProbeForm>>(
      [this](TIGXRect ARect) { return Made.push_back(ARect), new TProbeForm(); },
      [](TProbeForm* AForm) { AForm->ParentWhenUpdated = AForm->parentWidget(); });
  QWidget FGrid;
  std::vector<TIGXRect> Made;
  std::vector<std::string> Log;

  TRef<IInplaceForm> Open(const std::string& AGrid, Integer ATop, QWidget* AParent = nullptr) {
    return FController->GetInplaceForm(AParent ? AParent : &FGrid, New<TPaintObjects>(), New<TGridLog>(AGrid, &Log),
                                       TIGXRect(5, ATop, 120, 16));
  }
};

// Made for the row's rectangle and filled before it joins the grid, then shown under the row at its own height.
TEST_F(InplaceFormControllerTest, OpensTheFormUnderTheRowAtItsOwnHeight) {
  FGrid.show();
  const auto form = Open("grid", 40);
  auto* widget = static_cast<TProbeForm*>(form->GetForm());
  EXPECT_EQ(Made, (std::vector<TIGXRect>{TIGXRect(5, 40, 120, 16)}));
  EXPECT_TRUE(widget->ParentWhenUpdated == nullptr && widget->parentWidget() == &FGrid);
  EXPECT_EQ(widget->geometry(), QRect(5, 40, 120, TProbeForm::OwnHeight));
  EXPECT_EQ(form->GetHeight(), TProbeForm::OwnHeight);
  EXPECT_TRUE(widget->isVisible());
  EXPECT_EQ(GetControlColor(widget), clWindow); // the colour of a plain row
}

// Forms stay listed until dropped; closing any of them ends the edit of the grid opened last.
TEST_F(InplaceFormControllerTest, KeepsItsFormsAndTheLatestGridHandle) {
  const auto first = Open("a", 0), second = Open("b", 20);
  EXPECT_EQ(FController->GetUIUpdate(), second->GetUIUpdate());
  auto forms = FController->GetForms();
  ASSERT_EQ(forms->GetCount(), 2);
  EXPECT_TRUE(forms->GetItem(0).Form == first->GetForm() && forms->GetItem(0).UIUpdate == first->GetUIUpdate());
  EXPECT_EQ(forms->GetItem(1).Form, second->GetForm());

  first->GetForm()->close();
  EXPECT_EQ(Log, (std::vector<std::string>{"b.EndEdit", "b.Refresh(true)"}));
  FController->DropForm(first);
  forms = FController->GetForms();
  ASSERT_EQ(forms->GetCount(), 1);
  EXPECT_EQ(forms->GetItem(0).Form, second->GetForm());
  EXPECT_NE(first->GetForm(), nullptr); // dropping forgets; the grid's handle still holds the form
}

// Lifetime: a form outliving its controller closes silently; one its parent took down leaves a handle of no form.
TEST_F(InplaceFormControllerTest, FormsOutlivingTheirControllerOrDestroyedFromOutsideAreSafe) {
  const auto orphan = Open("a", 0);
  auto* grid = new QWidget();
  const auto destroyed = Open("b", 20, grid);
  FController = nullptr;
  orphan->GetForm()->close();
  EXPECT_TRUE(Log.empty());

  FController = New<TInplaceEditorFormController<TProbeForm>>([](TIGXRect) { return new TProbeForm(); });
  const auto form = Open("c", 0, grid);
  delete grid;
  const struct {
    const char* Name;
    TRef<IInplaceForm> Gone;
  } gone[] = {{"of the released controller", destroyed}, {"of the live controller", form}};
  Testing::ForEachRow(gone, [](const auto& ARow) {
    EXPECT_EQ(ARow.Gone->GetForm(), nullptr);
    EXPECT_EQ(ARow.Gone->GetHeight(), 0);
    ARow.Gone->UpdateRect(TIGXRect(1, 2, 3, 4));
    ARow.Gone->UpdateColor(clHighlight);
  });
  EXPECT_EQ(FController->GetForms()->GetItem(0).Form, nullptr);
}

// The handle takes its form along; it moves and widens the form, rounded, at the form's own height.
TEST(InplaceFormTest, TheHandleMovesTheFormAndTakesItAlong) {
  auto form = New<TInplaceForm>(new TProbeForm(), nullptr);
  const QPointer<QWidget> widget = form->GetForm();
  form->UpdateRect(TIGXRect(7, 9, 140, 300));
  EXPECT_EQ(widget->geometry(), QRect(7, 9, 140, TProbeForm::OwnHeight));
  form->UpdateRect(TIGXRect(3.4f, 8.6f, 99.5f, 2.0f));
  EXPECT_EQ(widget->geometry(), QRect(3, 9, 100, TProbeForm::OwnHeight));
  form = nullptr;
  EXPECT_TRUE(widget.isNull());
}

// A new colour repaints the form at once; the colour it has already repaints nothing.
TEST(InplaceFormTest, UpdateColorRepaintsOnlyOnAChange) {
  QWidget grid;
  auto* widget = new TProbeForm();
  widget->setParent(&grid);
  const auto form = New<TInplaceForm>(widget, nullptr);
  grid.show();
  SetControlColor(widget, clWindow);
  QApplication::processEvents();
  widget->Paints = 0;
  form->UpdateColor(clWindow);
  QApplication::processEvents();
  EXPECT_EQ(widget->Paints, 0);
  form->UpdateColor(clHighlight);
  EXPECT_EQ(widget->Paints, 1); // at once, not when the loop comes round
  EXPECT_EQ(GetControlColor(widget), clHighlight);
}

} // namespace
} // namespace Tarvo
