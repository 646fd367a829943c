#include <gtest/gtest.h>

#include "FormTestSupport.h"
#include "forms/HBHSVWheel.h"

namespace Tarvo {
namespace {

using namespace Testing;

TEST(HBHSVToHSLTest, Table) {
  const struct {
    Single S, V, ExpectedS, ExpectedL;
  } cases[] = {
      {1, 1, 1, 0.5f},     // a pure hue
      {0, 1, 0, 1},        // white
      {0.7f, 0, 0, 0},     // black, whatever the saturation
      {0.5f, 0.8f, 0.5f, 0.6f},
      {360, 1, 1, 0.5f},   // beyond full saturation counts as full
  };
  for (const auto& c : cases) {
    Single h, s, l;
    HBHSVToHSL(123, c.S, c.V, h, s, l);
    EXPECT_EQ(h, 123);
    EXPECT_NEAR(s, c.ExpectedS, 1e-6) << c.S << " " << c.V;
    EXPECT_NEAR(l, c.ExpectedL, 1e-6) << c.S << " " << c.V;
  }
}

TEST(HBHSLToRGBTest, Table) {
  const struct {
    Single H, S, L;
    Byte R, G, B;
  } cases[] = {
      {0, 1, 0.5f, 255, 0, 0},     {60, 1, 0.5f, 255, 255, 0},  {120, 1, 0.5f, 0, 255, 0},
      {180, 1, 0.5f, 0, 255, 255}, {240, 1, 0.5f, 0, 0, 255},   {300, 1, 0.5f, 255, 0, 255},
      {90, 1, 0.5f, 128, 255, 0},  {0, 0, 0.5f, 128, 128, 128}, {200, 1, 1, 255, 255, 255},
      {-120, 1, 0.5f, 0, 0, 255},  {480, 1, 0.5f, 0, 255, 0},   {0, 1, 0.25f, 128, 0, 0},
  };
  for (const auto& c : cases) {
    Byte r, g, b;
    HBHSLToRGB(c.H, c.S, c.L, r, g, b);
    EXPECT_EQ(r, c.R) << c.H << " " << c.S << " " << c.L;
    EXPECT_EQ(g, c.G) << c.H << " " << c.S << " " << c.L;
    EXPECT_EQ(b, c.B) << c.H << " " << c.S << " " << c.L;
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

  Click(&wheel, {26.5, 1.5}); // straight up: a quarter turn
  EXPECT_FLOAT_EQ(wheel.GetHue(), 0.25f);
  EXPECT_FLOAT_EQ(wheel.GetSaturation(), 1);
  EXPECT_EQ(changes, 1); // hue and saturation together
  // The wheel picks before it reports the press.
  EXPECT_EQ(mouse, (std::vector<std::string>{"down " + std::to_string(0.25f), "up"}));

  Click(&wheel, {14, 26.5}); // left, halfway out
  EXPECT_FLOAT_EQ(wheel.GetHue(), 0.5f);
  EXPECT_FLOAT_EQ(wheel.GetSaturation(), 0.5f);
  Click(&wheel, {26.5, 80}); // below, beyond the rim
  EXPECT_FLOAT_EQ(wheel.GetHue(), 0.75f);
  EXPECT_FLOAT_EQ(wheel.GetSaturation(), 1);
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
