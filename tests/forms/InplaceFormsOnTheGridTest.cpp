#include <gtest/gtest.h>

#include "design/paint/InplaceFormController.h"
#include "forms/RangedInplaceForm.h"

namespace Tarvo {
namespace {

class TQuietGrid : public TImplements<TInterfacedObject, IMemberUIUpdate> {
public:
  void EndEdit() override {}
  void Invalidate() override {}
  void Refresh(Boolean) override {}
  QWidget* GetControl() override { return nullptr; }
};

// As a numeric editor builds its controller: the factory wires the form and gives it its range
// and first value.
TEST(InplaceFormsOnTheGridTest, ANumericFormOpensAtItsOwnHeightAndTakesValuesQuietly) {
  int changes = 0;
  const auto controller = New<TInplaceEditorFormController<TNumericInplaceForm>>([&](TIGXRect) {
    auto* form = new TNumericInplaceForm();
    form->OnValueChange = [&](QWidget*) { ++changes; };
    form->SetLimits(New<TPropertyRange>(TValue::From<Int64>(0), TValue::From<Int64>(100)));
    form->SetValue(TValue::From<Int64>(25));
    return form;
  });
  QWidget grid;
  const auto form = controller->GetInplaceForm(&grid, New<TPaintObjects>(), New<TQuietGrid>(), TIGXRect(0, 48, 180, 16));
  EXPECT_EQ(form->GetHeight(), TNumericInplaceForm::ClientHeight);
  form->UpdateRect(TIGXRect(0, 64, 240, 16));
  EXPECT_EQ(form->GetForm()->geometry(), QRect(0, 64, 240, TNumericInplaceForm::ClientHeight));

  // A value written elsewhere reaches every open form without coming back as a change.
  controller->GetInplaceForm(&grid, New<TPaintObjects>(), New<TQuietGrid>(), TIGXRect(0, 90, 180, 16));
  const auto forms = controller->GetForms();
  for (const auto& info : *forms) info.Form->SetValue(TValue::From<Int64>(75));
  for (const auto& info : *forms) EXPECT_EQ(info.Form->TrackBar->value(), 3072);
  EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace Tarvo
