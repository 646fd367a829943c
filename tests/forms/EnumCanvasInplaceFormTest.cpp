#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "forms/EnumCanvasInplaceForm.h"
#include "platform/GXImages.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using TPlaces = std::vector<std::pair<int, int>>;

TPlaces Places(TEnumCanvasInplaceForm& AForm) {
  TPlaces places;
  for (auto* button : AForm.findChildren<QToolButton*>()) places.emplace_back(button->x(), button->y());
  return places;
}

// Buttons are 5 wider than their pictures and chain left to right.
TEST(EnumCanvasInplaceFormTest, AddButtonChainsPictureButtons) {
  TEnumCanvasInplaceForm form;
  form.AddButton(New<TIGXBitmap>(30, 12), "Solid", false, 10, 30);
  form.AddButton(New<TIGXBitmap>(30, 12), "Dash", true, 20, 30);
  const auto buttons = form.findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  EXPECT_TRUE(buttons[0]->geometry() == QRect(2, 2, 35, 21) && buttons[1]->geometry() == QRect(39, 2, 35, 21));
  EXPECT_EQ(buttons[1]->toolTip(), "Dash");
  EXPECT_EQ(buttons[0]->iconSize(), QSize(30, 12));
  EXPECT_TRUE(buttons[0]->isCheckable() && !buttons[0]->isChecked() && buttons[1]->isChecked());
}

// Buttons 23 wide flow into rows as wide as the form allows, against its right edge, and the
// form takes the rows' height; a shown form flows again as it is resized.
TEST(EnumCanvasInplaceFormTest, TheStripFlowsIntoRightAlignedRows) {
  const struct {
    const char* Name;
    int Width, Count;
    TPlaces Places;
    int Height;
  } cases[] = {{"room to spare", 200, 5, {{75, 2}, {100, 2}, {125, 2}, {150, 2}, {175, 2}}, 25}, // 127 of 200 used
               {"exactly room for all", 127, 5, {{2, 2}, {27, 2}, {52, 2}, {77, 2}, {102, 2}}, 25},
               {"two rows", 100, 5, {{2, 2}, {27, 2}, {52, 2}, {2, 25}, {27, 25}}, 48},
               {"three rows", 60, 5, {{2, 2}, {27, 2}, {2, 25}, {27, 25}, {2, 48}}, 71},
               {"narrower than a button", 10, 3, {{2, 2}, {2, 25}, {2, 48}}, 71},
               {"no buttons", 200, 0, {}, 25}};
  TEnumCanvasInplaceForm shown;
  for (int i = 0; i < 5; ++i) shown.AddButton(New<TIGXBitmap>(18, 16), "", false, i, 18);
  shown.show();
  Testing::ForEachRow(cases, [&](const auto& c) {
    TEnumCanvasInplaceForm form;
    for (int i = 0; i < c.Count; ++i) form.AddButton(New<TIGXBitmap>(18, 16), "", false, i, 18);
    form.resize(c.Width, 10);
    form.ArrangeButtons();
    EXPECT_EQ(Places(form), c.Places);
    EXPECT_EQ(form.height(), c.Height);
    if (c.Count != 5) return;
    shown.resize(c.Width, shown.height());
    EXPECT_EQ(Places(shown), c.Places) << "shown";
    EXPECT_EQ(shown.height(), c.Height) << "shown";
  });
}

// One button stays down; selecting a value presses its button without a click.
TEST(EnumCanvasInplaceFormTest, ClicksReportIndexAndValue) {
  TEnumCanvasInplaceForm form;
  for (int i = 0; i < 3; ++i) form.AddButton(nullptr, "", i == 0, 100 + i, 18);
  std::vector<std::pair<Integer, Integer>> clicks;
  form.OnButtonClick = [&](Integer AIndex, Integer AValue) { clicks.emplace_back(AIndex, AValue); };
  const auto buttons = form.findChildren<QToolButton*>();
  buttons[2]->click();
  EXPECT_EQ(clicks, (std::vector<std::pair<Integer, Integer>>{{2, 102}}));
  EXPECT_TRUE(buttons[2]->isChecked() && !buttons[0]->isChecked());
  form.SetSelectedValue(1);
  EXPECT_TRUE(buttons[1]->isChecked() && !buttons[2]->isChecked());
  form.SetSelectedValue(3); // no such button
  EXPECT_TRUE(buttons[1]->isChecked());
  EXPECT_EQ(clicks.size(), 1u);
}

} // namespace
} // namespace Tarvo
