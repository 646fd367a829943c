#include <gtest/gtest.h>

#include <QImage>

#include "platform/CharsetNames.h"
#include "platform/CursorImages.h"
#include "platform/CursorNames.h"
#include "platform/ShortCutTexts.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using Testing::ForEachRow;

struct TNamedNumberRow {
  const char* Name;
  Integer Value;
  const char* Ident;
};

// Names both ways, in any case on the way in; numbers no name stands for fail.
TEST(NameTablesTest, CharsetsByNameAndNumber) {
  const TNamedNumberRow rows[] = {{"first", 0, "ANSI_CHARSET"},         {"default", 1, "DEFAULT_CHARSET"},
                                  {"mac", 77, "MAC_CHARSET"},           {"big5", 136, "CHINESEBIG5_CHARSET"},
                                  {"russian", 204, "RUSSIAN_CHARSET"},  {"last", 255, "OEM_CHARSET"}};
  ForEachRow(rows, [](const TNamedNumberRow& ARow) {
    String ident;
    EXPECT_TRUE(CharsetToIdent(ARow.Value, ident));
    EXPECT_EQ(ident, ARow.Ident);
    Integer value = -1;
    EXPECT_TRUE(IdentToCharset(LowerCase(ARow.Ident), value));
    EXPECT_EQ(value, ARow.Value);
  });
  String ident = "kept";
  Integer value = 7;
  EXPECT_FALSE(CharsetToIdent(3, ident));
  EXPECT_FALSE(IdentToCharset("LATIN_CHARSET", value));
  EXPECT_EQ(ident + std::to_string(value), "kept7");
  std::vector<String> names;
  GetCharsetValues([&](const String& AName) { names.push_back(AName); });
  EXPECT_EQ(names.size(), 19u);
  EXPECT_EQ(names.front() + "," + names.back(), "ANSI_CHARSET,OEM_CHARSET");
}

// A number without a name shows as itself; crNone and unknown numbers have no shape to draw.
TEST(NameTablesTest, CursorsByNameNumberAndShape) {
  const TNamedNumberRow rows[] = {{"default", crDefault, "crDefault"}, {"none", crNone, "crNone"},
                                  {"cross", crCross, "crCross"},       {"hand", crHandPoint, "crHandPoint"},
                                  {"size all", crSizeAll, "crSizeAll"}};
  ForEachRow(rows, [](const TNamedNumberRow& ARow) {
    EXPECT_EQ(CursorToString(TCursor(ARow.Value)), ARow.Ident);
    Integer value = 99;
    EXPECT_TRUE(IdentToCursor(UpperCase(ARow.Ident), value));
    EXPECT_EQ(value, ARow.Value);
  });
  EXPECT_EQ(CursorToString(-5), "-5");
  EXPECT_EQ(CursorToString(7), "7");
  Integer value = 99;
  EXPECT_FALSE(IdentToCursor("crPointer", value));
  EXPECT_EQ(value, 99);
  EXPECT_EQ(ScreenCursor(crHandPoint), Qt::PointingHandCursor);
  EXPECT_EQ(ScreenCursor(crDefault), Qt::ArrowCursor);
  EXPECT_FALSE(ScreenCursor(crNone) || ScreenCursor(-5) || ScreenCursor(1));
  std::vector<String> names;
  GetCursorValues([&](const String& AName) { names.push_back(AName); });
  EXPECT_EQ(names.size(), 22u);
  EXPECT_EQ(names.front() + "," + names.back(), "crDefault,crSizeAll");
}

// Every shape draws white with a dark outline inside the cursor's box, nothing outside it.
TEST(NameTablesTest, CursorPicturesStayInTheirBox) {
  for (const Qt::CursorShape shape : {Qt::ArrowCursor, Qt::CrossCursor, Qt::PointingHandCursor, Qt::WaitCursor,
                                      Qt::ForbiddenCursor, Qt::SizeFDiagCursor, Qt::WhatsThisCursor}) {
    SCOPED_TRACE(int(shape));
    QImage image(CursorImageWidth + 20, CursorImageHeight + 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    QPainter painter(&image);
    DrawCursor(painter, shape, QPointF(10, 10));
    painter.end();
    int dark = 0, light = 0, outside = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const QColor pixel = image.pixelColor(x, y);
        const bool inside = QRect(10, 10, CursorImageWidth, CursorImageHeight).contains(x, y);
        if (!inside && pixel != QColor(Qt::red)) ++outside;
        if (inside && pixel.lightness() < 128) ++dark;
        if (inside && pixel == QColor(Qt::white)) ++light;
      }
    EXPECT_EQ(outside, 0);
    EXPECT_GT(dark, 10);
    EXPECT_GT(light, 0);
  }
}

TEST(NameTablesTest, ShortCutTexts) {
  const struct {
    const char* Name;
    TShortCut ShortCut;
    const char* Text;
  } rows[] = {{"letter", scCtrl | 'A', "Ctrl+A"},
              {"all modifiers in order", scShift | scCtrl | scAlt | 'Z', "Shift+Ctrl+Alt+Z"},
              {"function key", scShift | scCtrl | 0x70, "Shift+Ctrl+F1"},
              {"last function key", 0x7B, "F12"},
              {"backspace", scAlt | 0x08, "Alt+BkSp"},
              {"insert", 0x2D, "Ins"},
              {"delete", scCtrl | 0x2E, "Ctrl+Del"},
              {"digit", scAlt | '5', "Alt+5"}};
  ForEachRow(rows, [](const auto& ARow) {
    EXPECT_EQ(ShortCutToText(ARow.ShortCut), ARow.Text);
    EXPECT_EQ(TextToShortCut(ARow.Text), ARow.ShortCut);
    EXPECT_EQ(TextToShortCut(LowerCase(ARow.Text)), ARow.ShortCut);
  });
  // Modifiers given in another order still count.
  EXPECT_EQ(TextToShortCut("Ctrl+Shift+F1"), scShift | scCtrl | 0x70);
  const struct {
    const char* Name;
    const char* Text;
  } unknown[] = {{"empty", ""}, {"modifier alone", "Ctrl+"}, {"unknown key", "Ctrl+F13"},
                 {"unknown modifier", "Hyper+A"}, {"none", "(None)"}};
  ForEachRow(unknown, [](const auto& ARow) { EXPECT_EQ(TextToShortCut(ARow.Text), 0); });
  EXPECT_EQ(ShortCutToText(scCtrl | 0xFF), "");
}

} // namespace
} // namespace Tarvo
