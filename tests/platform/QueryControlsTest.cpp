#include <gtest/gtest.h>

#include <QLabel>
#include <QSlider>

#include "platform/QueryControls.h"

namespace Tarvo {
namespace {

TEST(QueryControlsTest, FindsChildrenOfTheClassOnlyAndRecursesWhenAsked) {
  QWidget form;
  auto* first = new QSlider(&form);
  new QLabel(&form);
  auto* panel = new QWidget(&form);
  auto* nested = new QSlider(panel);
  auto* last = new QSlider(&form);

  std::vector<QWidget*> flat;
  QueryControls<QSlider>(&form)->ForEach([&](QWidget* const& AWidget) { flat.push_back(AWidget); });
  EXPECT_EQ(flat, (std::vector<QWidget*>{first, last}));

  std::vector<QWidget*> deep;
  QueryControls<QSlider>(&form, true)->ForEach([&](QWidget* const& AWidget) { deep.push_back(AWidget); });
  EXPECT_EQ(deep, (std::vector<QWidget*>{first, nested, last}));
  EXPECT_EQ(QueryControls<QLabel>(&form)->Count([](QWidget* const&) { return true; }), 1);
}

} // namespace
} // namespace Tarvo
