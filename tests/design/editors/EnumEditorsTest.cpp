#include <gtest/gtest.h>

#include "design/editors/EnumEditors.h"
#include "design/paint/PaintObjects.h"
#include "platform/GXGraphics.h"
#include "tests/design/editors/TypedEditorTest.h"

namespace Tarvo {
namespace {

using namespace Testing;

using EnumEditorsTest = TypedEditorTest<TBooleanPropertyEditor>;

TEST_F(EnumEditorsTest, NamesInDeclarationOrderUnlessSorted) {
  EXPECT_EQ(Editor<TEnumPropertyEditor>("Shape")->GetStringListValues()->ToArray(),
            (std::vector<String>{"stRectangle", "stSquare", "stRoundRect", "stRoundSquare", "stEllipse", "stCircle"}));
  EXPECT_EQ(Editor<TEnumPropertyEditor>("SortedShape")->GetStringListValues()->ToArray(),
            (std::vector<String>{"stCircle", "stEllipse", "stRectangle", "stRoundRect", "stRoundSquare", "stSquare"}));
}

// The host's boxes, one colour each.
class TBoxPaintObjects : public TPaintObjects {
public:
  TRef<IGXBitmap> GetCheckedBitmap() override { return Box(Qt::green); }
  TRef<IGXBitmap> GetUncheckedBitmap() override { return Box(Qt::red); }
  TRef<IGXBitmap> GetGrayedBitmap() override { return Box(Qt::gray); }

private:
  static TRef<IGXBitmap> Box(Qt::GlobalColor AColor) {
    QImage image(12, 12, QImage::Format_ARGB32_Premultiplied);
    image.fill(AColor);
    return New<TIGXBitmap>(image);
  }
};

// The box: ticked, empty, or grayed over objects that differ, at the cell's left and top; the
// text is drawn right of its column.
TEST_F(EnumEditorsTest, TheBoxShowsTheSelection) {
  TTypedGadget third;
  FDesigner->Select({&FFirst, &FSecond, &third});
  const auto paint = New<TBoxPaintObjects>();
  const auto drawn = [&] {
    QImage image(60, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    TIGXRect cell(20, 2, 40, 16);
    Boolean defaultDraw = true;
    Editor("Flag")->DrawValue(New<TIGXGraphics>(image), paint, nullptr, cell, defaultDraw);
    EXPECT_EQ(cell.X, 36);
    EXPECT_TRUE(defaultDraw);
    EXPECT_EQ(image.pixelColor(19, 2), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(32, 14), QColor(Qt::white));
    return image.pixelColor(20, 2) == image.pixelColor(31, 13) ? image.pixelColor(20, 2) : QColor();
  };
  EXPECT_EQ(drawn(), QColor(Qt::red));
  FSecond.FFlag = true;
  EXPECT_EQ(drawn(), QColor(Qt::gray));
  FFirst.FFlag = FSecond.FFlag = third.FFlag = true;
  EXPECT_EQ(drawn(), QColor(Qt::green));
}

// A release inside the 12 by 12 box, one pixel in from the cell's corner, writes every object
// the negation of the first one's value; 14 pixels in is outside it.
TEST_F(EnumEditorsTest, AClickOnTheBoxTogglesFromTheFirstValue) {
  TTypedGadget third;
  third.FFlag = true;
  FDesigner->Select({&FFirst, &FSecond, &third});
  const TIGXRect cell(100, 40, 80, 16);
  const auto click = [&](Integer X, Integer Y) {
    Boolean handled = false;
    Editor("Flag")->ValueMouseUp(mbRight, TShiftState(), X, Y, nullptr, cell, handled);
    return handled;
  };
  EXPECT_FALSE(click(114, 45));
  EXPECT_FALSE(FFirst.FFlag || FSecond.FFlag);
  EXPECT_TRUE(click(101, 41));
  EXPECT_TRUE(FFirst.FFlag && FSecond.FFlag && third.FFlag);
}

} // namespace
} // namespace Tarvo
