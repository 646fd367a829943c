#include <gtest/gtest.h>

#include <QLabel>
#include <QStyle>

#include <string>
#include <vector>

#include "FormTestSupport.h"
#include "forms/ColorInplaceForm.h"
#include "platform/ControlColor.h"

namespace Tarvo {
namespace {

using namespace Testing;

std::vector<std::string> Captions(QWidget& AForm) {
  std::vector<std::string> captions;
  for (auto* label : AForm.findChildren<QLabel*>()) captions.push_back(label->text().toStdString());
  return captions;
}

TEST(ColorInplaceFormTest, SizesCaptionsAndBars) {
  TColorInplaceForm form;
  form.show();
  EXPECT_EQ(form.height(), 53);
  EXPECT_EQ(form.HBHSVWheel->geometry(), QRect(0, 0, 53, 53));
  EXPECT_EQ(Captions(form), (std::vector<std::string>{"R", "G", "B"}));
  for (QSlider* bar : {form.TrackBarRed, form.TrackBarGreen, form.TrackBarBlue}) {
    EXPECT_EQ(bar->minimum(), 0);
    EXPECT_EQ(bar->maximum(), 255);
    EXPECT_EQ(bar->tickPosition(), QSlider::NoTicks);
    EXPECT_EQ(bar->style()->pixelMetric(QStyle::PM_SliderLength, nullptr, bar), 15);
    EXPECT_GE(bar->x(), 53);
  }
  EXPECT_LE(form.TrackBarRed->geometry().bottom(), form.TrackBarGreen->y());

  TAlphaColorInplaceForm alpha;
  alpha.show();
  EXPECT_EQ(alpha.height(), 72);
  EXPECT_EQ(Captions(alpha), (std::vector<std::string>{"R", "G", "B", "A"}));
  EXPECT_EQ(alpha.TrackBarAlpha->maximum(), 255);
  EXPECT_LE(alpha.TrackBarBlue->geometry().bottom(), alpha.TrackBarAlpha->y());
}

TEST(ColorInplaceFormTest, AColourFromTheEditorFiresNothing) {
  TColorInplaceForm form;
  int changes = 0;
  form.OnColorChange = [&](QWidget* ASender) { EXPECT_EQ(ASender, &form), ++changes; };
  form.SetColor(0x336699);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(form.GetColor(), 0x336699);
  EXPECT_EQ(form.TrackBarRed->value(), 0x99);
  EXPECT_EQ(form.TrackBarBlue->value(), 0x33);
  form.SetColor(clHighlight);
  EXPECT_EQ(form.GetColor(), ColorToRGB(clHighlight));
  EXPECT_EQ(changes, 0);
}

TEST(ColorInplaceFormTest, ABarMovedByTheUserFiresAndTurnsTheWheel) {
  TColorInplaceForm form;
  form.SetColor(0x0000FF);
  int changes = 0;
  form.OnColorChange = [&](QWidget*) { ++changes; };
  form.TrackBarGreen->setValue(255); // red and green: yellow
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form.GetColor(), 0x00FFFF);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 1.0f / 6);
}

TEST(ColorInplaceFormTest, TheWheelTakesTheHueOfTheColour) {
  const struct {
    TColor Color;
    Single Sixths;
  } cases[] = {
      {0x00FFFF, 1}, {0x00FF00, 2}, {0xFFFF00, 3}, {0xFF0000, 4}, {0xFF00FF, 5},
      {0x0080FF, 128.0f / 255}, // orange
      {0x8000FF, 6 - 128.0f / 255}, // a red leaning to blue wraps round
  };
  for (const auto& c : cases) {
    TColorInplaceForm form;
    form.SetColor(c.Color);
    EXPECT_NEAR(form.HBHSVWheel->GetHue(), c.Sixths / 6, 1e-6) << std::hex << c.Color;
  }
}

TEST(ColorInplaceFormTest, BlackAndGreyKeepTheWheelsHue) {
  TColorInplaceForm form;
  form.SetColor(0x00FF00);
  ASSERT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 2.0f / 6);
  const Single saturation = form.HBHSVWheel->GetSaturation();

  form.SetColor(0x808080);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 2.0f / 6);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetSaturation(), saturation);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetValue(), 128.0f / 255); // the least channel

  form.SetColor(0x000000);
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 2.0f / 6);
  EXPECT_EQ(form.HBHSVWheel->GetSaturation(), 360);
  EXPECT_EQ(form.HBHSVWheel->GetValue(), 0);
  EXPECT_EQ(form.GetColor(), 0);
}

TEST(ColorInplaceFormTest, DraggingTheWheelSetsTheBarsAndKeepsThePickedHue) {
  TColorInplaceForm form;
  form.show(); // lays the wheel out at 53 by 53
  std::vector<std::string> events;
  form.OnColorChange = [&](QWidget*) { events.push_back("change"); };
  form.OnEditorEnter = [&](QWidget*) { events.push_back("enter"); };
  form.OnEditorLeave = [&](QWidget*) { events.push_back("leave"); };
  Click(form.HBHSVWheel, {26.5, 1.5}); // a quarter turn at full saturation, value 1
  EXPECT_EQ(form.TrackBarRed->value(), 128);
  EXPECT_EQ(form.TrackBarGreen->value(), 255);
  EXPECT_EQ(form.TrackBarBlue->value(), 0);
  // The bars' colour would give a slightly other hue; the wheel keeps the one picked.
  EXPECT_FLOAT_EQ(form.HBHSVWheel->GetHue(), 0.25f);
  // One change for each bar that moved; the wheel picks before the form hears of the press.
  EXPECT_EQ(events, (std::vector<std::string>{"change", "change", "enter", "leave"}));
}

TEST(ColorInplaceFormTest, BarsFollowTheFormsColour) {
  TColorInplaceForm form;
  SetControlColor(&form, clHighlight);
  SetControlColor(&form, 0x102030);
  for (QSlider* bar : {form.TrackBarRed, form.TrackBarGreen, form.TrackBarBlue}) {
    EXPECT_EQ(GetControlColor(bar), 0x102030);
    EXPECT_EQ(bar->palette().color(QPalette::Window), QColor(0x30, 0x20, 0x10));
  }
}

TEST(AlphaColorInplaceFormTest, TheAlphaBarTakesPartInTheColour) {
  TAlphaColorInplaceForm form;
  int changes = 0, enters = 0;
  form.OnColorChange = [&](QWidget*) { ++changes; };
  form.OnEditorEnter = [&](QWidget*) { ++enters; };
  form.SetColor(0x80FF4010u);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(form.TrackBarAlpha->value(), 0x80);
  EXPECT_EQ(form.TrackBarRed->value(), 0xFF);
  EXPECT_EQ(form.TrackBarGreen->value(), 0x40);
  EXPECT_EQ(form.TrackBarBlue->value(), 0x10);
  EXPECT_EQ(form.GetColor(), 0x80FF4010u);

  form.TrackBarAlpha->setValue(0x20);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form.GetColor(), 0x20FF4010u);
  SendMouse(form.TrackBarAlpha, QEvent::MouseButtonPress, {1, 1});
  EXPECT_EQ(enters, 1);
}

} // namespace
} // namespace Tarvo
