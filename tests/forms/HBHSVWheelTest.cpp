#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FormTestSupport.h"
#include "forms/HBHSVWheel.h"

namespace Tarvo {
namespace {

using namespace Testing;

// The hue passes through; black is black whatever the saturation, and beyond full counts as full.
TEST(HBHSVWheelTest, HSVToHSLTable) {
  const struct {
    Single S, V, ExpectedS, ExpectedL;
  } cases[] = {{1, 1, 1, 0.5f}, {0, 1, 0, 1}, {0.7f, 0, 0, 0}, {0.5f, 0.8f, 0.5f, 0.6f}, {360, 1, 1, 0.5f}};
  for (const auto& c : cases) {
    Single h, s, l;
    HBHSVToHSL(123, c.S, c.V, h, s, l);
    EXPECT_EQ(h, 123);
    EXPECT_NEAR(s, c.ExpectedS, 1e-6) << c.S << " " << c.V;
    EXPECT_NEAR(l, c.ExpectedL, 1e-6) << c.S << " " << c.V;
  }
}

// Hues of any turn, greys and shades.
TEST(HBHSVWheelTest, HSLToRGBTable) {
  const struct {
    Single H, S, L;
    int RGB;
  } cases[] = {{0, 1, 0.5f, 0xFF0000},   {60, 1, 0.5f, 0xFFFF00},   {120, 1, 0.5f, 0x00FF00}, {180, 1, 0.5f, 0x00FFFF},
               {240, 1, 0.5f, 0x0000FF}, {300, 1, 0.5f, 0xFF00FF},  {90, 1, 0.5f, 0x80FF00},  {0, 0, 0.5f, 0x808080},
               {200, 1, 1, 0xFFFFFF},    {-120, 1, 0.5f, 0x0000FF}, {480, 1, 0.5f, 0x00FF00}, {0, 1, 0.25f, 0x800000}};
  for (const auto& c : cases) {
    Byte r, g, b;
    HBHSLToRGB(c.H, c.S, c.L, r, g, b);
    EXPECT_EQ(r << 16 | g << 8 | b, c.RGB) << c.H << " " << c.S << " " << c.L;
  }
}

TEST(HBHSVWheelTest, PicksHueByAngleAndSaturationByDistance) {
  THBHSVWheel wheel;
  wheel.resize(53, 53); // centre (26.5, 26.5), radius 25
  int changes = 0;
  std::vector<std::string> mouse;
  wheel.OnChange = [&] { ++changes; };
  wheel.OnMouseDown = [&] { mouse.push_back("down " + std::to_string(wheel.GetHue())); };
  wheel.OnMouseUp = [&] { mouse.push_back("up"); };
  // Straight up, left halfway out, and below beyond the rim.
  const struct {
    QPointF At;
    Single Hue, Saturation;
  } picks[] = {{{26.5, 1.5}, 0.25f, 1}, {{14, 26.5}, 0.5f, 0.5f}, {{26.5, 80}, 0.75f, 1}};
  for (const auto& pick : picks) {
    Click(&wheel, pick.At);
    EXPECT_FLOAT_EQ(wheel.GetHue(), pick.Hue);
    EXPECT_FLOAT_EQ(wheel.GetSaturation(), pick.Saturation);
  }
  EXPECT_EQ(changes, 3); // hue and saturation together
  // The wheel picks before it reports the press.
  const auto down = [](Single AHue) { return "down " + std::to_string(AHue); };
  EXPECT_EQ(mouse, (std::vector<std::string>{down(0.25f), "up", down(0.5f), "up", down(0.75f), "up"}));
}

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
