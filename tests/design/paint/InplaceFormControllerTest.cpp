#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>

#include <string>
#include <vector>

#include "design/paint/InplaceFormController.h"

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
  explicit TGridLog(std::string AName, std::vector<std::string>* ALog) : FName(std::move(AName)), FLog(ALog) {}
  void EndEdit() override { FLog->push_back(FName + ".EndEdit"); }
  void Invalidate() override { FLog->push_back(FName + ".Invalidate"); }
  void Refresh(Boolean AReadValues) override { FLog->push_back(FName + ".Refresh(" + (AReadValues ? "true" : "false") + ")"); }
  QWidget* GetControl() override { return nullptr; }

private:
  std::string FName;
  std::vector<std::string>* FLog;
};

using TProbeController = TInplaceEditorFormController<TProbeForm>;

class InplaceFormControllerTest : public testing::Test {
protected:
  TRef<TProbeController> MakeController() {
    return New<TProbeController>([this](TIGXRect ARect) { return Made.push_back(ARect), new TProbeForm(); },
                                 [](TProbeForm* AForm) { AForm->ParentWhenUpdated = AForm->parentWidget(); });
  }
  TRef<IMemberUIUpdate> Grid(const std::string& AName) { return New<TGridLog>(AName, &Log); }

  QWidget FGrid;
  TRef<IPaintObjects> FPaintObjects = New<TPaintObjects>();
  std::vector<TIGXRect> Made;
  std::vector<std::string> Log;
};

TEST_F(InplaceFormControllerTest, OpensTheFormUnderTheRowAtItsOwnHeight) {
  FGrid.resize(300, 300);
  FGrid.show();
  const auto controller = MakeController();
  const auto form = controller->GetInplaceForm(&FGrid, FPaintObjects, Grid("grid"), TIGXRect(5, 40, 120, 16));
  auto* widget = static_cast<TProbeForm*>(form->GetForm());
  ASSERT_NE(widget, nullptr);
  ASSERT_EQ(Made.size(), 1u);
  EXPECT_EQ(Made[0], TIGXRect(5, 40, 120, 16));
  EXPECT_EQ(widget->ParentWhenUpdated, nullptr); // wired and filled before it joins the grid
  EXPECT_EQ(widget->parentWidget(), &FGrid);
  EXPECT_EQ(widget->geometry(), QRect(5, 40, 120, TProbeForm::OwnHeight));
  EXPECT_EQ(form->GetHeight(), TProbeForm::OwnHeight);
  EXPECT_TRUE(widget->isVisible());
  EXPECT_EQ(GetControlColor(widget), clWindow);
}

TEST_F(InplaceFormControllerTest, KeepsItsFormsUntilDroppedAndTheLatestGridHandle) {
  const auto controller = MakeController();
  const auto first = controller->GetInplaceForm(&FGrid, FPaintObjects, Grid("a"), TIGXRect(0, 0, 50, 16));
  const auto second = controller->GetInplaceForm(&FGrid, FPaintObjects, Grid("b"), TIGXRect(0, 20, 50, 16));
  EXPECT_EQ(controller->GetUIUpdate(), second->GetUIUpdate());

  auto forms = controller->GetForms();
  ASSERT_EQ(forms->GetCount(), 2);
  EXPECT_EQ(forms->GetItem(0).Form, first->GetForm());
  EXPECT_EQ(forms->GetItem(0).UIUpdate, first->GetUIUpdate());
  EXPECT_EQ(forms->GetItem(1).Form, second->GetForm());

  controller->DropForm(first);
  forms = controller->GetForms();
  ASSERT_EQ(forms->GetCount(), 1);
  EXPECT_EQ(forms->GetItem(0).Form, second->GetForm());
  // Dropping forgets; the grid's handle still holds the form.
  EXPECT_NE(first->GetForm(), nullptr);
}

TEST_F(InplaceFormControllerTest, ClosingAFormEndsTheEditOfTheLatestGrid) {
  const auto controller = MakeController();
  const auto first = controller->GetInplaceForm(&FGrid, FPaintObjects, Grid("a"), TIGXRect(0, 0, 50, 16));
  controller->GetInplaceForm(&FGrid, FPaintObjects, Grid("b"), TIGXRect(0, 20, 50, 16));
  first->GetForm()->close();
  EXPECT_EQ(Log, (std::vector<std::string>{"b.EndEdit", "b.Refresh(true)"}));
}

TEST_F(InplaceFormControllerTest, AFormOutlivingItsControllerClosesSafely) {
  TRef<IInplaceForm> form = MakeController()->GetInplaceForm(&FGrid, FPaintObjects, Grid("a"), TIGXRect(0, 0, 50, 16));
  ASSERT_NE(form->GetForm(), nullptr);
  form->GetForm()->close();
  EXPECT_TRUE(Log.empty());
}

TEST_F(InplaceFormControllerTest, ADestroyedFormLeavesASafeHandle) {
  const auto controller = MakeController();
  auto* grid = new QWidget();
  const auto form = controller->GetInplaceForm(grid, FPaintObjects, Grid("a"), TIGXRect(0, 0, 50, 16));
  delete grid;
  EXPECT_EQ(form->GetForm(), nullptr);
  EXPECT_EQ(form->GetHeight(), 0);
  form->UpdateRect(TIGXRect(1, 2, 3, 4));
  form->UpdateColor(clHighlight);
  EXPECT_EQ(controller->GetForms()->GetItem(0).Form, nullptr);
}

TEST(InplaceFormTest, TheHandleTakesItsFormAlong) {
  QPointer<QWidget> widget = new TProbeForm();
  New<TInplaceForm>(widget.data(), nullptr);
  EXPECT_TRUE(widget.isNull());
}

TEST(InplaceFormTest, UpdateRectKeepsTheFormsHeight) {
  const auto form = New<TInplaceForm>(new TProbeForm(), nullptr);
  form->UpdateRect(TIGXRect(7, 9, 140, 300));
  EXPECT_EQ(form->GetForm()->geometry(), QRect(7, 9, 140, TProbeForm::OwnHeight));
  form->UpdateRect(TIGXRect(3.4f, 8.6f, 99.5f, 2.0f));
  EXPECT_EQ(form->GetForm()->geometry(), QRect(3, 9, 100, TProbeForm::OwnHeight));
}

TEST(InplaceFormTest, UpdateColorRepaintsOnlyOnAChange) {
  QWidget grid;
  auto* widget = new TProbeForm();
  widget->setParent(&grid);
  const auto form = New<TInplaceForm>(widget, nullptr);
  grid.show();
  QApplication::processEvents();
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
