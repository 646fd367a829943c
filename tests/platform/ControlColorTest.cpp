#include <gtest/gtest.h>

#include <QSlider>

#include "platform/ControlColor.h"

namespace Tarvo {
namespace {

TEST(ControlColorTest, KeepsTheColourAsGivenAndPaintsItResolved) {
  QWidget form;
  auto* child = new QSlider(&form);
  SetControlColor(&form, clHighlight);
  EXPECT_EQ(GetControlColor(&form), clHighlight);
  EXPECT_EQ(form.palette().color(QPalette::Window).rgba(), MakeColor(clHighlight));
  EXPECT_TRUE(form.autoFillBackground());
  // A child without a colour of its own reads what its palette inherited.
  EXPECT_EQ(GetControlColor(child), ColorToRGB(clHighlight));

  SetControlColor(&form, 0x3020F0);
  EXPECT_EQ(GetControlColor(&form), 0x3020F0);
  EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0xF0, 0x20, 0x30));
}

} // namespace
} // namespace Tarvo
