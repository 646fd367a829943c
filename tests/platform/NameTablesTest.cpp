#include <gtest/gtest.h>

#include <QImage>

#include <functional>

#include "platform/CharsetNames.h"
#include "platform/CursorImages.h"
#include "platform/CursorNames.h"
#include "platform/ShortCutTexts.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using Testing::ForEachRow;

// Charset and cursor names both ways, in any case on the way in; numbers no name stands for fail
// (a cursor's shows as itself), and a failed lookup leaves its result alone.
TEST(NameTablesTest, CharsetsAndCursorsByNameAndNumber) {
  const auto charsetName = [](Integer AValue) {
    String ident = "?";
    CharsetToIdent(AValue, ident);
    return ident;
  };
  const auto cursorName = [](Integer AValue) { return CursorToString(TCursor(AValue)); };
  const auto charsetValue = [](const String& AName, Integer& AValue) { return IdentToCharset(AName, AValue); };
  const auto cursorValue = [](const String& AName, Integer& AValue) { return IdentToCursor(AName, AValue); };
  const struct {
    const char* Name;
    Integer Value;
    const char* Ident;
    std::function<String(Integer)> ToName;
    std::function<Boolean(const String&, Integer&)> ToValue;
  } rows[] = {{"first charset", 0, "ANSI_CHARSET", charsetName, charsetValue},
              {"default charset", 1, "DEFAULT_CHARSET", charsetName, charsetValue},
              {"big5", 136, "CHINESEBIG5_CHARSET", charsetName, charsetValue},
              {"last charset", 255, "OEM_CHARSET", charsetName, charsetValue},
              {"charset without a name", 3, "?", charsetName, charsetValue},
              {"default cursor", crDefault, "crDefault", cursorName, cursorValue},
              {"no cursor", crNone, "crNone", cursorName, cursorValue},
              {"last cursor", crSizeAll, "crSizeAll", cursorName, cursorValue},
              {"cursor without a name", -5, "-5", cursorName, cursorValue}};
  ForEachRow(rows, [](const auto& ARow) {
    EXPECT_EQ(ARow.ToName(ARow.Value), ARow.Ident);
    Integer value = 99;
    const Boolean named = ARow.ToValue(LowerCase(ARow.Ident), value);
    EXPECT_EQ(value, named ? ARow.Value : 99);
    EXPECT_EQ(named, String(ARow.Ident) != "?" && String(ARow.Ident) != "-5");
  });
  // The lists of names are their editors' lists: those tests count them.
  EXPECT_EQ(ScreenCursor(crHandPoint), Qt::PointingHandCursor);
  EXPECT_FALSE(ScreenCursor(crNone) || ScreenCursor(-5) || ScreenCursor(1));
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
