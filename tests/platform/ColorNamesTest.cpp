#include <gtest/gtest.h>

#include <QColor>

#include <functional>
#include <set>
#include <vector>

#include "platform/AlphaColorNames.h"
#include "platform/ColorNames.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using Testing::ForEachRow;

// Names read in any case and come back as the table writes them; values without a name come back
// as hexadecimal text that reads as the same value.
TEST(ColorNamesTest, NamesAndNumbersBothWays) {
  const struct {
    const char* Name;
    const char* Text;
    TColor Value;
    const char* Shown;
  } rows[] = {
      {"fixed colour", "clRed", 0x0000FF, "clRed"},
      {"any case", "CLMONEYGREEN", 0xC0DCC0, "clMoneyGreen"},
      {"system colour", "clBtnFace", TColor(0xFF00000F), "clBtnFace"},
      {"last system colour", "clMenuBar", TColor(0xFF00001E), "clMenuBar"},
      {"none", "clNone", 0x1FFFFFFF, "clNone"},
      {"default", "clDefault", 0x20000000, "clDefault"},
      {"named number", "255", 0x0000FF, "clRed"},
      {"unnamed number", "10531008", 0xA0B0C0, "$00A0B0C0"},
      {"hexadecimal", "$00A0B0C0", 0xA0B0C0, "$00A0B0C0"},
      {"system index without a name", "$FF000019", TColor(0xFF000019), "$FF000019"},
      {"negative number", "-16777211", TColor(0xFF000005), "clWindow"},
  };
  ForEachRow(rows, [](const auto& ARow) {
    EXPECT_EQ(StringToColor(ARow.Text), ARow.Value);
    EXPECT_EQ(ColorToString(ARow.Value), ARow.Shown);
  });
  TColor color = 7;
  EXPECT_FALSE(IdentToColor("255", color));
  EXPECT_FALSE(IdentToColor("clRedd", color));
  EXPECT_EQ(color, 7);
  String ident = "kept";
  EXPECT_FALSE(ColorToIdent(0xA0B0C0, ident));
  EXPECT_EQ(ident, "kept");
}

// Every name once, in table order: fixed colours, system colours, then clNone and clDefault.
TEST(ColorNamesTest, ValuesComeInTableOrder) {
  std::vector<String> names;
  GetColorValues([&](const String& AName) { names.push_back(AName); });
  ASSERT_EQ(names.size(), 52u);
  EXPECT_EQ(names.front(), "clBlack");
  EXPECT_EQ(names[19], "clMedGray");
  EXPECT_EQ(names[20], "clScrollBar");
  EXPECT_EQ(names[50], "clNone");
  EXPECT_EQ(names.back(), "clDefault");
  EXPECT_EQ(std::set<String>(names.begin(), names.end()).size(), names.size());
  for (const String& name : names) {
    TColor color = 0;
    EXPECT_TRUE(IdentToColor(name, color)) << name;
    EXPECT_EQ(ColorToString(color), name);
  }
}

TEST(AlphaColorNamesTest, NamesAndTextsBothWays) {
  const struct {
    const char* Name;
    const char* Text;
    TAlphaColor Value;
    const char* Shown;
  } rows[] = {
      {"name", "claRed", 0xFFFF0000u, "claRed"},
      {"any case", "CLAALICEBLUE", 0xFFF0F8FFu, "claAliceBlue"},
      {"keyword alone", "rebeccapurple", 0xFF663399u, "claRebeccaPurple"},
      {"second name of a value", "claCyan", 0xFF00FFFFu, "claAqua"},
      {"transparent", "claTransparent", 0x00000000u, "claTransparent"},
      {"eight digits", "#80204060", 0x80204060u, "#80204060"},
      {"six digits are opaque", "#0000ff", 0xFF0000FFu, "claBlue"},
      {"decimal", "4278190080", 0xFF000000u, "claBlack"},
      {"hexadecimal number", "$7F00FF00", 0x7F00FF00u, "#7F00FF00"},
  };
  ForEachRow(rows, [](const auto& ARow) {
    EXPECT_EQ(StringToRGBAColor(ARow.Text), ARow.Value);
    EXPECT_EQ(RGBAColorToString(ARow.Value), ARow.Shown);
  });
}

// Both readers name what they expected.
TEST(AlphaColorNamesTest, TextThatIsNoColourIsRefused) {
  const std::function<void(const char*)> colour = [](const char* AText) { StringToColor(AText); },
                                         alpha = [](const char* AText) { StringToRGBAColor(AText); };
  const String expectColour = "' is not a valid colour: a colour name or a number is expected",
               expectAlpha = "' is not a valid alpha colour: a colour name, #AARRGGBB, #RRGGBB or a number is expected";
  const struct {
    const char* Name;
    const char* Text;
    const std::function<void(const char*)>& Read;
    const String& Expected;
  } rows[] = {{"empty colour", "", colour, expectColour},
              {"unknown colour name", "clRedd", colour, expectColour},
              {"colour past 32 bits", "4294967296", colour, expectColour},
              {"alpha name as a colour", "claRed", colour, expectColour},
              {"empty alpha colour", "", alpha, expectAlpha},
              {"unknown alpha name", "claRedd", alpha, expectAlpha},
              {"seven digits", "#1234567", alpha, expectAlpha},
              {"not hex", "#GG0000", alpha, expectAlpha},
              {"negative", "-1", alpha, expectAlpha},
              {"alpha past 32 bits", "4294967296", alpha, expectAlpha}};
  ForEachRow(rows, [](const auto& ARow) {
    Testing::ExpectError([&] { ARow.Read(ARow.Text); }, "'" + String(ARow.Text) + ARow.Expected);
  });
}

// Each name is the CSS keyword of that colour, as Qt's own table of them knows it; the one
// keyword newer than some Qt versions' tables may be missing there.
TEST(AlphaColorNamesTest, NamesAreTheCssColours) {
  const std::vector<String> names = GetStandardRGBAColorNames();
  EXPECT_EQ(names.size(), 142u);
  std::vector<String> unknownToQt;
  for (const String& name : names) {
    ASSERT_EQ(name.substr(0, 3), "cla");
    const QColor css(QString::fromStdString(name.substr(3)).toLower());
    if (!css.isValid()) {
      unknownToQt.push_back(name);
      continue;
    }
    EXPECT_EQ(StringToRGBAColor(name), css.rgba()) << name;
  }
  EXPECT_LE(unknownToQt.size(), 1u);
  for (const String& name : unknownToQt) EXPECT_EQ(name, "claRebeccaPurple");
}

} // namespace
} // namespace Tarvo
