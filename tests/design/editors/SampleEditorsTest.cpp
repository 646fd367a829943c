#include <gtest/gtest.h>

#include <QToolButton>

#include "design/editors/CanvasEnumEditors.h"
#include "design/editors/CursorEditor.h"
#include "design/paint/PaintObjects.h"
#include "platform/GXGraphics.h"
#include "tests/design/editors/IdentGadget.h"

namespace Tarvo {
namespace {

using SampleEditorsTest = IdentEditorTest<TCursorPropertyEditor>;

constexpr QRgb Untouched = 0xFFFF0000;

QRgb Rgb(TColor AColor) { return MakeColor(AColor); }

// The editor's value drawn into ACell of a canvas filled with Untouched.
QImage DrawnValue(IPropertyEditorDraw& AEditor, TIGXRect& ACell) {
  QImage image(160, 30, QImage::Format_ARGB32);
  image.fill(Untouched);
  Boolean defaultDraw = true;
  AEditor.DrawValue(New<TIGXGraphics>(image), New<TPaintObjects>(), nullptr, ACell, defaultDraw);
  EXPECT_TRUE(defaultDraw);
  return image;
}

// The pixels of ARect that satisfy ATest.
int Count(const QImage& AImage, const QRect& ARect, const std::function<bool(QRgb)>& ATest) {
  int count = 0;
  for (int y = ARect.top(); y <= ARect.bottom(); ++y)
    for (int x = ARect.left(); x <= ARect.right(); ++x) count += ATest(AImage.pixel(x, y));
  return count;
}

bool Dark(QRgb APixel) { return qGray(APixel) < 80; }
// What a black line halved in size leaves.
bool Marked(QRgb APixel) { return APixel != Untouched && qGray(APixel) < 200; }

// Names both ways; a number no cursor has shows and reads as a number.
TEST_F(SampleEditorsTest, CursorsByName) {
  const auto editor = Editor("Cursor");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "crDefault");
  EXPECT_EQ(editor->GetDefaultStringValue(), "crDefault");
  editor->SetStringValue("CRHANDPOINT");
  EXPECT_EQ(FFirst.FCursor + FSecond.FCursor, 2 * crHandPoint);
  editor->SetStringValue("-5");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "-5");
  EXPECT_EQ(editor->GetStringListValues()->GetCount(), 22);
}

// The cursor scaled into 16 by 16 at the cell's corner, the text right of it; a number with no
// cursor draws nothing and keeps the text where it is.
TEST_F(SampleEditorsTest, CursorSampleInTheCell) {
  const auto editor = Editor("Cursor");
  TIGXRect edit(10, 2, 100, 18);
  editor->GetEditRectangle(edit);
  EXPECT_EQ(edit, TIGXRect(26, 2, 84, 18));
  for (const TCursor cursor : {crCross, TCursor(-5)}) {
    FFirst.FCursor = cursor;
    TIGXRect cell(10, 2, 100, 18);
    const QImage image = DrawnValue(*editor, cell);
    EXPECT_EQ(cell, edit);
    const QRect sample(10, 2, 16, 16);
    const int drawn = Count(image, sample, [](QRgb APixel) { return APixel != Untouched; });
    EXPECT_EQ(drawn, cursor == crCross ? 256 : 0) << cursor;
    EXPECT_EQ(Count(image, sample, Marked) > 0, cursor == crCross) << cursor;
    EXPECT_EQ(Count(image, QRect(0, 0, 160, 30), [](QRgb APixel) { return APixel != Untouched; }), drawn);
  }
}

// A list row holds the cursor at its natural size and the name; the row's background under both.
TEST_F(SampleEditorsTest, CursorListRows) {
  const auto editor = Editor("Cursor");
  QImage scratch(1, 1, QImage::Format_ARGB32);
  const auto paint = New<TPaintObjects>();
  TIGXSize size;
  editor->ListGetSize(TValue("crHandPoint"), New<TIGXGraphics>(scratch), paint, nullptr, size);
  EXPECT_EQ(size.Height, 36);
  EXPECT_GT(size.Width, 40);
  TIGXSize large{900, 50};
  editor->ListGetSize(TValue("crHandPoint"), New<TIGXGraphics>(scratch), paint, nullptr, large);
  EXPECT_EQ(large, (TIGXSize{900, 50}));
  const TRef<IPaintObjectSet> set = paint->GetListSet()->GetNone();
  for (const char* entry : {"crHandPoint", "crNone"}) {
    QImage image(200, 36, QImage::Format_ARGB32);
    image.fill(Untouched);
    editor->ListDrawValue(TValue(entry), New<TIGXGraphics>(image), paint, set, TIGXRect(0, 0, 200, 36), false);
    EXPECT_EQ(image.pixel(0, 0), Rgb(set->GetBkgColor()));
    EXPECT_EQ(Count(image, QRect(2, 2, 32, 32), Dark) > 10, String(entry) == "crHandPoint") << entry;
    EXPECT_GT(Count(image, QRect(36, 0, 164, 36), Dark), 0) << entry;
  }
}

// A square as high as the row: the box outlined in the text colour, filled with the style; a clear
// brush leaves it empty, with no pattern.
TEST_F(SampleEditorsTest, BrushSamples) {
  const auto editor = Editor<TBrushStylePropertyEditor>("Brush");
  TIGXRect edit(10, 2, 100, 20);
  editor->GetEditRectangle(edit);
  EXPECT_EQ(edit, TIGXRect(30, 2, 80, 20));
  const QRect inside(12, 4, 16, 16);
  const struct {
    const char* Name;
    TBrushStyle Style;
    int Window;
    int Text;
  } rows[] = {{"clear", bsClear, 256, 0}, {"solid", bsSolid, 0, 256}, {"hatched", bsDiagCross, -1, -1}};
  Testing::ForEachRow(rows, [&](const auto& ARow) {
    FFirst.FBrush = ARow.Style;
    TIGXRect cell(10, 2, 100, 20);
    const QImage image = DrawnValue(*editor, cell);
    EXPECT_EQ(cell, edit);
    // The outline covers the square's edge, 18 pixels from one pixel in.
    for (const QPoint corner : {QPoint(11, 3), QPoint(28, 3), QPoint(11, 20), QPoint(28, 20)})
      EXPECT_EQ(image.pixel(corner), Rgb(clWindowText));
    EXPECT_EQ(image.pixel(29, 10), Untouched);
    EXPECT_EQ(image.pixel(10, 10), Untouched);
    const int window = Count(image, inside, [](QRgb APixel) { return APixel == Rgb(clWindow); });
    const int text = Count(image, inside, [](QRgb APixel) { return APixel == Rgb(clWindowText); });
    if (ARow.Window >= 0) EXPECT_EQ(std::make_pair(window, text), std::make_pair(ARow.Window, ARow.Text));
    else EXPECT_TRUE(window > 0 && text > 0 && window + text == 256);
  });
}

// A pale frame under the outline of the pen's style: solid covers it, a dash leaves gaps, a clear
// pen leaves the frame alone.
TEST_F(SampleEditorsTest, PenSamples) {
  const auto editor = Editor<TPenStylePropertyEditor>("Pen");
  const QRect topEdge(11, 3, 18, 1);
  const struct {
    const char* Name;
    TPenStyle Style;
    bool Frame;
    bool Line;
  } rows[] = {{"solid", psSolid, false, true}, {"dash", psDash, true, true}, {"alternate", psAlternate, true, true},
              {"clear", psClear, true, false}};
  Testing::ForEachRow(rows, [&](const auto& ARow) {
    FFirst.FPen = ARow.Style;
    TIGXRect cell(10, 2, 100, 20);
    const QImage image = DrawnValue(*editor, cell);
    const int frame = Count(image, topEdge, [](QRgb APixel) { return APixel == Rgb(0xEDEDED); });
    const int line = Count(image, topEdge, [](QRgb APixel) { return APixel == Rgb(clWindowText); });
    EXPECT_EQ(frame + line, 18);
    EXPECT_EQ(frame > 0, ARow.Frame);
    EXPECT_EQ(line > 0, ARow.Line);
    EXPECT_EQ(Count(image, QRect(12, 4, 16, 16), [](QRgb APixel) { return APixel == Rgb(clWindow); }), 256);
  });
}

// Tells the designer's log what the grid is told.
class TUIUpdateLog : public TImplements<TInterfacedObject, IMemberUIUpdate> {
public:
  explicit TUIUpdateLog(std::vector<String>& ALog) : FLog(ALog) {}
  void EndEdit() override { FLog.push_back("EndEdit"); }
  void Invalidate() override {}
  void Refresh(Boolean AReadValues) override { FLog.push_back(AReadValues ? "Refresh(true)" : "Refresh(false)"); }
  QWidget* GetControl() override { return nullptr; }

private:
  std::vector<String>& FLog;
};

// Published members get a button a value, the first object's pressed; a click writes every
// object, then ends the edit; a write from elsewhere moves the pressed button.
TEST_F(SampleEditorsTest, ButtonStripInPlace) {
  TRef<IPropertyEditorInplace> inplace;
  EXPECT_FALSE(Supports(Editor<TPenStylePropertyEditor>("InnerPen"), inplace));
  EXPECT_FALSE(Supports(Editor("InnerCursor"), inplace));
  EXPECT_TRUE(Supports(Editor("Cursor"), inplace));
  const auto editor = Editor<TPenStylePropertyEditor>("Pen");
  ASSERT_TRUE(Supports(editor, inplace));
  FFirst.FPen = psDot;
  QWidget grid;
  grid.resize(300, 200);
  const TRef<IInplaceForm> form =
      inplace->GetInplaceForm(&grid, New<TPaintObjects>(), New<TUIUpdateLog>(FLog), TIGXRect(0, 20, 300, 20));
  const QList<QToolButton*> buttons = form->GetForm()->findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 9);
  EXPECT_TRUE(buttons[psDot]->isChecked());
  EXPECT_EQ(buttons[psDot]->toolTip(), "psDot");
  FLog.clear();
  buttons[psDashDot]->click();
  EXPECT_EQ(FFirst.FPen + FSecond.FPen, 2 * psDashDot);
  EXPECT_EQ(FLog, (std::vector<String>{"Modified", "EndEdit", "Refresh(true)"}));
  editor->SetStringValue("psClear");
  EXPECT_TRUE(buttons[psClear]->isChecked());
  inplace->DropForm(form);
}

} // namespace
} // namespace Tarvo
