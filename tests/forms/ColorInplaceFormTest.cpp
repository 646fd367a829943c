#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FormTestSupport.h"
#include "forms/ColorInplaceForm.h"
#include "platform/ControlColor.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using namespace Testing;

// A colour set from outside fires nothing; a bar the user moves fires once and turns the wheel.
TEST(ColorInplaceFormTest, OnlyTheUsersColourFires) {
  TColorInplaceForm form;
  int changes = 0;
  form.OnColorChange = [&](QWidget* ASender) {
    EXPECT_EQ(ASender, &form);
    ++changes;
  };
  form.SetColor(0x3366FF); // red is the low byte of a TColor, the third of an alpha colour
  EXPECT_TRUE(form.TrackBarRed->value() == 0xFF && form.TrackBarBlue->value() == 0x33);
  form.SetColor(0x0000FF);
  EXPECT_EQ(changes, 0);
  form.TrackBarGreen->setValue(255); // red and green: yellow
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form.GetColor(), 0x00FFFF);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 1.0f / 6);
  form.SetColor(clHighlight); // taken resolved
  EXPECT_EQ(form.GetColor(), ColorToRGB(clHighlight));

  TAlphaColorInplaceForm alpha;
  int alphaChanges = 0, enters = 0;
  alpha.OnColorChange = [&](QWidget*) { ++alphaChanges; };
  alpha.OnEditorEnter = [&](QWidget*) { ++enters; };
  alpha.SetColor(0x80FF4010u);
  EXPECT_TRUE(alphaChanges == 0 && alpha.TrackBarAlpha->value() == 0x80 && alpha.TrackBarRed->value() == 0xFF);
  alpha.TrackBarAlpha->setValue(0x20);
  EXPECT_EQ(alphaChanges, 1);
  EXPECT_EQ(alpha.GetColor(), 0x20FF4010u);
  SendMouse(alpha.TrackBarAlpha, QEvent::MouseButtonPress, {1, 1});
  EXPECT_EQ(enters, 1);
}

// The wheel takes the hue of the colour set, in sixths of a turn, wrapping round past red.
TEST(ColorInplaceFormTest, TheWheelTakesTheHueOfTheColour) {
  const struct {
    const char* Name;
    TColor Color;
    Single Sixths;
  } cases[] = {{"yellow", 0x00FFFF, 1},
               {"blue", 0xFF0000, 4},
               {"orange", 0x0080FF, 128.0f / 255},
               {"a red leaning to blue wraps round", 0x8000FF, 6 - 128.0f / 255}};
  ForEachRow(cases, [](const auto& ACase) {
    TColorInplaceForm form;
    form.SetColor(ACase.Color);
    EXPECT_NEAR(form.HBHSVWheel->GetHue(), ACase.Sixths / 6, 1e-6);
  });
}

// The value follows the least channel; black and grey have no hue and leave the wheel's.
TEST(ColorInplaceFormTest, BlackAndGreyKeepTheWheelsHue) {
  TColorInplaceForm form;
  form.SetColor(0x00FF00);
  ASSERT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 2.0f / 6);
  const Single saturation = form.HBHSVWheel->GetSaturation();
  form.SetColor(0x808080);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 2.0f / 6);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetSaturation(), saturation);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetValue(), 128.0f / 255);
  form.SetColor(0x000000);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 2.0f / 6);
  EXPECT_EQ(form.HBHSVWheel->GetSaturation(), 360);
  EXPECT_EQ(form.HBHSVWheel->GetValue(), 0);
  EXPECT_EQ(form.GetColor(), 0);
}

// Picking on the wheel sets the bars and keeps the hue picked; events in order.
TEST(ColorInplaceFormTest, DraggingTheWheelSetsTheBarsAndKeepsThePickedHue) {
  TColorInplaceForm form;
  form.show(); // lays the wheel out at 53 by 53
  std::vector<std::string> events;
  form.OnColorChange = [&](QWidget*) { events.push_back("change"); };
  form.OnEditorEnter = [&](QWidget*) { events.push_back("enter"); };
  form.OnEditorLeave = [&](QWidget*) { events.push_back("leave"); };
  Click(form.HBHSVWheel, {26.5, 1.5}); // a quarter turn at full saturation, value 1
  EXPECT_EQ(form.GetColor(), 0x00FF80);
  // The bars' colour would give a slightly other hue; the wheel keeps the one picked.
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 0.25f);
  // One change for each bar that moved; the wheel picks before the form hears of the press.
  EXPECT_EQ(events, (std::vector<std::string>{"change", "change", "enter", "leave"}));
}

// The bars take the form's colour, the last one set.
TEST(ColorInplaceFormTest, BarsFollowTheFormsColour) {
  TColorInplaceForm form;
  SetControlColor(&form, clHighlight);
  SetControlColor(&form, 0x102030);
  for (QSlider* bar : {form.TrackBarRed, form.TrackBarGreen, form.TrackBarBlue}) {
    EXPECT_EQ(GetControlColor(bar), 0x102030) << bar->objectName().toStdString();
    EXPECT_EQ(bar->palette().color(QPalette::Window), QColor(0x30, 0x20, 0x10));
  }
}

} // namespace
} // namespace Tarvo
