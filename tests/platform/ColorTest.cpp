#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPalette>

#include "platform/GXTypes.h"

namespace Tarvo {
namespace {

// Installs a palette of distinct colours for the length of a test.
class SystemColorTest : public testing::Test {
protected:
  void SetUp() override {
    FSaved = QGuiApplication::palette();
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x10, 0x20, 0x30));
    palette.setColor(QPalette::Text, QColor(0x11, 0x21, 0x31));
    palette.setColor(QPalette::Highlight, QColor(0x12, 0x22, 0x32));
    palette.setColor(QPalette::HighlightedText, QColor(0x13, 0x23, 0x33));
    palette.setColor(QPalette::Button, QColor(0x14, 0x24, 0x34));
    palette.setColor(QPalette::ButtonText, QColor(0x15, 0x25, 0x35));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x16, 0x26, 0x36));
    palette.setColor(QPalette::ToolTipBase, QColor(0x17, 0x27, 0x37));
    QGuiApplication::setPalette(palette);
  }
  void TearDown() override { QGuiApplication::setPalette(FSaved); }

private:
  QPalette FSaved;
};

TEST_F(SystemColorTest, FollowsThePalette) {
  const struct {
    TColor System;
    TColor Expected; // 0x00BBGGRR
  } table[] = {
      {clWindow, 0x302010},
      {clWindowText, 0x312111},
      {clHighlight, 0x322212},
      {clHighlightText, 0x332313},
      {clBtnFace, 0x342414},
      {SystemColor(scBtnText), 0x352515},
      {SystemColor(scGrayText), 0x362616},
      {SystemColor(scInfoBackground), 0x372717},
  };
  for (const auto& row : table) EXPECT_EQ(ColorToRGB(row.System), row.Expected) << std::hex << row.System;
  EXPECT_EQ(MakeColor(clHighlight), 0xFF122232u);
  EXPECT_EQ(MakeColor(clWindow, 0x40), 0x40102030u);
}

TEST_F(SystemColorTest, PlainColoursPassUnchanged) {
  EXPECT_EQ(ColorToRGB(0x00336699), 0x00336699);
  EXPECT_EQ(MakeColor(0x00336699), 0xFF996633u); // red is the low byte of a TColor
  EXPECT_EQ(MakeColor(0x000000FF, 0x80), 0x80FF0000u);
  // An index the palette has no part for reads black.
  EXPECT_EQ(ColorToRGB(TColor(0xFF000019u)), 0);
  EXPECT_EQ(ColorToRGB(TColor(0xFF0000FEu)), 0);
}

} // namespace
} // namespace Tarvo
