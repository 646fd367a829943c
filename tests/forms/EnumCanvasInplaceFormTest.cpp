#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "forms/EnumCanvasInplaceForm.h"
#include "platform/GXImages.h"

namespace Tarvo {
namespace {

using TPlaces = std::vector<std::pair<int, int>>;

// A form AWidth wide with ACount buttons of pictures 18 wide (buttons 23 wide), arranged.
std::unique_ptr<TEnumCanvasInplaceForm> Strip(int AWidth, int ACount) {
  auto form = std::make_unique<TEnumCanvasInplaceForm>();
  for (int i = 0; i < ACount; ++i) form->AddButton(New<TIGXBitmap>(18, 16), "", false, i, 18);
  form->resize(AWidth, 10);
  form->ArrangeButtons();
  return form;
}

TPlaces Places(TEnumCanvasInplaceForm& AForm) {
  TPlaces places;
  for (auto* button : AForm.findChildren<QToolButton*>()) places.emplace_back(button->x(), button->y());
  return places;
}

TEST(EnumCanvasInplaceFormTest, AddButtonChainsButtonsLeftToRight) {
  TEnumCanvasInplaceForm form;
  const auto picture = New<TIGXBitmap>(30, 12);
  form.AddButton(picture, "Solid", false, 10, 30);
  form.AddButton(picture, "Dash", true, 20, 30);
  const auto buttons = form.findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  EXPECT_EQ(buttons[0]->geometry(), QRect(2, 2, 35, 21));
  EXPECT_EQ(buttons[1]->geometry(), QRect(39, 2, 35, 21));
  EXPECT_EQ(buttons[1]->toolTip(), "Dash");
  EXPECT_TRUE(buttons[1]->isChecked());
  EXPECT_FALSE(buttons[0]->isChecked());
  EXPECT_TRUE(buttons[0]->isCheckable());
  EXPECT_TRUE(buttons[0]->autoRaise());
  EXPECT_EQ(buttons[0]->iconSize(), QSize(30, 12));
}

TEST(EnumCanvasInplaceFormTest, TheStripFlowsIntoRightAlignedRows) {
  const struct {
    int Width, Count;
    TPlaces Places;
    int Height;
  } cases[] = {
      // Room for all: one row against the right edge (127 of 200 used).
      {200, 5, {{75, 2}, {100, 2}, {125, 2}, {150, 2}, {175, 2}}, 25},
      // Exactly room for all.
      {127, 5, {{2, 2}, {27, 2}, {52, 2}, {77, 2}, {102, 2}}, 25},
      // Three to a row, then wrapped 23 lower.
      {100, 5, {{2, 2}, {27, 2}, {52, 2}, {2, 25}, {27, 25}}, 48},
      // Too narrow for more than two.
      {60, 5, {{2, 2}, {27, 2}, {2, 25}, {27, 25}, {2, 48}}, 71},
      {10, 3, {{2, 2}, {2, 25}, {2, 48}}, 71},
      {200, 0, {}, 25},
  };
  for (const auto& c : cases) {
    const auto form = Strip(c.Width, c.Count);
    EXPECT_EQ(Places(*form), c.Places) << c.Width << " wide, " << c.Count << " buttons";
    EXPECT_EQ(form->height(), c.Height) << c.Width << " wide, " << c.Count << " buttons";
  }
}

TEST(EnumCanvasInplaceFormTest, AShownStripFollowsItsWidth) {
  const auto form = Strip(200, 5);
  form->show();
  form->resize(60, form->height());
  EXPECT_EQ(Places(*form), (TPlaces{{2, 2}, {27, 2}, {2, 25}, {27, 25}, {2, 48}}));
  EXPECT_EQ(form->height(), 71);
  form->resize(300, form->height());
  EXPECT_EQ(form->height(), 25);
  EXPECT_EQ(Places(*form).back(), std::make_pair(275, 2));
}

TEST(EnumCanvasInplaceFormTest, ClicksReportIndexAndValueAndOneButtonStaysDown) {
  TEnumCanvasInplaceForm form;
  for (int i = 0; i < 3; ++i) form.AddButton(nullptr, "", i == 0, 100 + i, 18);
  std::vector<std::pair<Integer, Integer>> clicks;
  form.OnButtonClick = [&](Integer AIndex, Integer AValue) { clicks.emplace_back(AIndex, AValue); };
  const auto buttons = form.findChildren<QToolButton*>();
  buttons[2]->click();
  EXPECT_EQ(clicks, (std::vector<std::pair<Integer, Integer>>{{2, 102}}));
  EXPECT_TRUE(buttons[2]->isChecked());
  EXPECT_FALSE(buttons[0]->isChecked());

  form.SetSelectedValue(1);
  EXPECT_TRUE(buttons[1]->isChecked());
  EXPECT_FALSE(buttons[2]->isChecked());
  form.SetSelectedValue(3); // no such button
  EXPECT_TRUE(buttons[1]->isChecked());
  EXPECT_EQ(clicks.size(), 1u); // selecting is no click
}

} // namespace
} // namespace Tarvo
