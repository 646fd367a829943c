#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLabel>
#include <QPalette>
#include <QSlider>

#include "platform/ControlColor.h"
#include "platform/QueryControls.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

// Installs a palette of distinct colours for the length of a test.
class ColorTest : public testing::Test {
protected:
  void SetUp() override {
    QPalette palette;
    const std::pair<QPalette::ColorRole, QColor> roles[] = {
        {QPalette::Base, QColor(0x10, 0x20, 0x30)},       {QPalette::Text, QColor(0x11, 0x21, 0x31)},
        {QPalette::Highlight, QColor(0x12, 0x22, 0x32)},  {QPalette::HighlightedText, QColor(0x13, 0x23, 0x33)},
        {QPalette::Button, QColor(0x14, 0x24, 0x34)},     {QPalette::ButtonText, QColor(0x15, 0x25, 0x35)},
        {QPalette::ToolTipBase, QColor(0x17, 0x27, 0x37)}};
    for (const auto& [role, color] : roles) palette.setColor(role, color);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x16, 0x26, 0x36));
    QGuiApplication::setPalette(palette);
  }
  void TearDown() override { QGuiApplication::setPalette(FSaved); }

private:
  QPalette FSaved = QGuiApplication::palette();
};

// System colours resolve through the palette, others pass unchanged; an index the palette has
// no part for reads black. TColor keeps red in its low byte, ARGB in its third.
TEST_F(ColorTest, ResolvesSystemColoursAndSwapsTheChannelsForARGB) {
  const struct {
    const char* Name;
    TColor Color, RGB;
    TAlphaColor ARGB;
  } table[] = {{"window", clWindow, 0x302010, 0xFF102030u},
               {"window text", clWindowText, 0x312111, 0xFF112131u},
               {"highlight", clHighlight, 0x322212, 0xFF122232u},
               {"highlighted text", clHighlightText, 0x332313, 0xFF132333u},
               {"scroll bar, the first index: the button's too", SystemColor(scScrollBar), 0x342414, 0xFF142434u},
               {"button face", clBtnFace, 0x342414, 0xFF142434u},
               {"button text", SystemColor(scBtnText), 0x352515, 0xFF152535u},
               {"grey text, disabled", SystemColor(scGrayText), 0x362616, 0xFF162636u},
               {"tooltip background", SystemColor(scInfoBackground), 0x372717, 0xFF172737u},
               {"a plain colour", 0x00336699, 0x00336699, 0xFF996633u},
               {"a value past the colours, as clNone", 0x1FFFFFFF, 0x1FFFFFFF, 0xFFFFFFFFu},
               {"an index the palette lacks", TColor(0xFF000019u), 0, 0xFF000000u},
               {"an index past the palette", TColor(0xFF0000FEu), 0, 0xFF000000u}};
  Testing::ForEachRow(table, [](const auto& row) {
    EXPECT_EQ(ColorToRGB(row.Color), row.RGB);
    EXPECT_EQ(MakeColor(row.Color), row.ARGB);
  });
  EXPECT_EQ(MakeColor(clWindow, 0x40), 0x40102030u);
  EXPECT_EQ(MakeColor(0x000000FF, 0x80), 0x80FF0000u);
}

// A widget keeps its colour as given, so that a system colour stays one, and paints it resolved.
TEST_F(ColorTest, ControlsKeepTheColourAsGivenAndPaintItResolved) {
  QWidget form;
  auto* child = new QSlider(&form);
  SetControlColor(&form, clHighlight);
  EXPECT_EQ(GetControlColor(&form), clHighlight);
  EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0x12, 0x22, 0x32));
  EXPECT_TRUE(form.autoFillBackground());
  // A child without a colour of its own reads what its palette inherited.
  EXPECT_EQ(GetControlColor(child), 0x322212);
  SetControlColor(&form, 0x3020F0);
  EXPECT_EQ(GetControlColor(&form), 0x3020F0);
  EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0xF0, 0x20, 0x30));
}

// Children of the class asked only, in order, and grandchildren only when recursing.
TEST(QueryControlsTest, FindsChildrenOfTheClassOnlyAndRecursesWhenAsked) {
  QWidget form;
  auto* first = new QSlider(&form);
  new QLabel(&form);
  auto* nested = new QSlider(new QWidget(&form));
  auto* last = new QSlider(&form);
  const auto collect = [&](bool ARecursive) {
    std::vector<QWidget*> found;
    QueryControls<QSlider>(&form, ARecursive)->ForEach([&](QWidget* const& AWidget) { found.push_back(AWidget); });
    return found;
  };
  EXPECT_EQ(collect(false), (std::vector<QWidget*>{first, last}));
  EXPECT_EQ(collect(true), (std::vector<QWidget*>{first, nested, last}));
  EXPECT_EQ(QueryControls<QLabel>(&form)->Count([](QWidget* const&) { return true; }), 1);
}

} // namespace
} // namespace Tarvo
