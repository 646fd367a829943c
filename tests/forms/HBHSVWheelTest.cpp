#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FormTestSupport.h"
#include "forms/HBHSVWheel.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using namespace Testing;

// The hue passes through; black is black whatever the saturation, and beyond full counts as full.
TEST(HBHSVWheelTest, HSVToHSLTable) {
  const struct {
    const char* Name;
    Single S, V, ExpectedS, ExpectedL;
  } cases[] = {{"full", 1, 1, 1, 0.5f},
               {"white", 0, 1, 0, 1},
               {"black", 0.7f, 0, 0, 0},
               {"shade", 0.5f, 0.8f, 0.5f, 0.6f},
               {"beyond full", 360, 1, 1, 0.5f}};
  ForEachRow(cases, [](const auto& c) {
    Single h, s, l;
    HBHSVToHSL(123, c.S, c.V, h, s, l);
    EXPECT_EQ(h, 123);
    EXPECT_NEAR(s, c.ExpectedS, 1e-6);
    EXPECT_NEAR(l, c.ExpectedL, 1e-6);
  });
}

// Hues of any turn, greys and shades.
TEST(HBHSVWheelTest, HSLToRGBTable) {
  const struct {
    const char* Name;
    Single H, S, L;
    int RGB;
  } cases[] = {{"red", 0, 1, 0.5f, 0xFF0000},           {"yellow", 60, 1, 0.5f, 0xFFFF00},
               {"green", 120, 1, 0.5f, 0x00FF00},       {"cyan", 180, 1, 0.5f, 0x00FFFF},
               {"blue", 240, 1, 0.5f, 0x0000FF},        {"magenta", 300, 1, 0.5f, 0xFF00FF},
               {"lime", 90, 1, 0.5f, 0x80FF00},         {"grey", 0, 0, 0.5f, 0x808080},
               {"white", 200, 1, 1, 0xFFFFFF},          {"turned back", -120, 1, 0.5f, 0x0000FF},
               {"over a turn", 480, 1, 0.5f, 0x00FF00}, {"dark red", 0, 1, 0.25f, 0x800000}};
  ForEachRow(cases, [](const auto& c) {
    Byte r, g, b;
    HBHSLToRGB(c.H, c.S, c.L, r, g, b);
    EXPECT_EQ(r << 16 | g << 8 | b, c.RGB);
  });
}

// A click picks the hue by angle and the saturation by distance, beyond the rim as full, before the press is reported.
TEST(HBHSVWheelTest, PicksHueByAngleAndSaturationByDistance) {
  THBHSVWheel wheel;
  wheel.resize(53, 53); // centre (26.5, 26.5), radius 25
  int changes = 0;
  std::vector<std::string> mouse;
  wheel.OnChange = [&] { ++changes; };
  wheel.OnMouseDown = [&] { mouse.push_back("down " + std::to_string(wheel.GetHue())); };
  wheel.OnMouseUp = [&] { mouse.push_back("up"); };
  const struct {
    const char* Name;
    QPointF At;
    Single Hue, Saturation;
  } picks[] = {{"straight up", {26.5, 1.5}, 0.25f, 1},
               {"left halfway out", {14, 26.5}, 0.5f, 0.5f},
               {"below beyond the rim", {26.5, 80}, 0.75f, 1}};
  ForEachRow(picks, [&](const auto& pick) {
    Click(&wheel, pick.At);
    EXPECT_FLOAT_EQ(wheel.GetHue(), pick.Hue);
    EXPECT_FLOAT_EQ(wheel.GetSaturation(), pick.Saturation);
  });
  EXPECT_EQ(changes, 3); // hue and saturation together
  const auto down = [](Single AHue) { return "down " + std::to_string(AHue); };
  EXPECT_EQ(mouse, (std::vector<std::string>{down(0.25f), "up", down(0.5f), "up", down(0.75f), "up"}));
}

// Setting a value the wheel already holds reports no change.
TEST(HBHSVWheelTest, SettersReportRealChangesOnly) {
  THBHSVWheel wheel;
  int changes = 0;
  wheel.OnChange = [&] { ++changes; };
  wheel.SetValue(1);
  wheel.SetSaturation(1);
  wheel.SetHue(0);
  EXPECT_EQ(changes, 0);
  wheel.SetValue(0.5f);
  wheel.SetHue(0.5f);
  EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace Tarvo
