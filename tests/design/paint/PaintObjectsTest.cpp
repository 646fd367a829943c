#include <gtest/gtest.h>

#include <QFontDatabase>

#include "design/paint/EditorPaint.h"
#include "design/paint/PaintObjects.h"

namespace Tarvo {
namespace {

TAlphaColor BrushColor(const TRef<IGXBrush>& ABrush) { return QueryAs<IGXSolidBrush>(ABrush)->GetColor(); }

TEST(PaintObjectSetTest, ResolvesTheBrushes) {
  const auto set = New<TPaintObjectSet>(clHighlight, TColor(0x0080FF));
  EXPECT_EQ(BrushColor(set->GetBackgroundBrush()), MakeColor(clHighlight));
  EXPECT_EQ(BrushColor(set->GetFontBrush()), 0xFFFF8000u); // TColor keeps blue high, ARGB red
  EXPECT_FALSE(set->GetHostObject());
}

TEST(ItemObjectSetTest, RowStatesTakeWindowAndHighlightColours) {
  const auto list = New<TItemObjectSet>();
  EXPECT_EQ(list->GetNone()->GetBkgColor(), TColor(0xFF000005));
  EXPECT_EQ(list->GetNone()->GetFontColor(), TColor(0xFF000008));
  EXPECT_EQ(list->GetHighlighted()->GetBkgColor(), TColor(0xFF00000D));
  EXPECT_EQ(list->GetHighlighted()->GetFontColor(), TColor(0xFF00000E));
  EXPECT_EQ(list->GetSelected(), list->GetHighlighted());
  EXPECT_FALSE(list->GetNone() == list->GetHighlighted());
}

TEST(PaintObjectsTest, DefaultsAndTheirFontFallback) {
  const auto objects = New<TPaintObjects>();
  const auto font = objects->GetFont();
  const auto modified = objects->GetModifiedFont();
  EXPECT_EQ(font->GetSize(), 8.0f);
  EXPECT_EQ(font->GetUnit(), fuPoint);
  EXPECT_EQ(font->GetStyle(), gfsRegular);
  EXPECT_EQ(modified->GetStyle(), gfsBold);
  EXPECT_EQ(modified->GetFamily(), font->GetFamily());
  // Whether or not the named family is installed, the one used is.
  EXPECT_TRUE(QFontDatabase::families().contains(QString::fromStdString(font->GetFamily()))) << font->GetFamily();
  if (QFontDatabase::families().contains(TPaintObjects::DefaultFontFamily)) {
    EXPECT_EQ(font->GetFamily(), TPaintObjects::DefaultFontFamily);
  }

  const auto format = objects->GetStringFormat();
  EXPECT_EQ(format->GetFormatFlags(), 4096u);
  EXPECT_EQ(format->GetTrimming(), 3);
  EXPECT_EQ(format->GetLineAlignment(), 1);
  EXPECT_EQ(format->GetAlignment(), saNear);
  EXPECT_TRUE(objects->GetListSet());
}

TEST(PaintObjectsTest, OnlyAHostGivesBitmapsAndReservedObjects) {
  const auto objects = New<TPaintObjects>();
  EXPECT_FALSE(objects->GetCheckedBitmap());
  EXPECT_FALSE(objects->GetUncheckedBitmap());
  EXPECT_FALSE(objects->GetGrayedBitmap());
  for (Integer place : {4, 9, 23, 27, 33}) EXPECT_FALSE(objects->GetHostObject(place)) << place;
}

class DesignPaintObjectsTest : public testing::Test {
protected:
  void SetUp() override { FinalizeDesignPaintObjects(); }
  void TearDown() override { FinalizeDesignPaintObjects(); }
};

TEST_F(DesignPaintObjectsTest, TheHookLeavesTheDefaultUnbuilt) {
  const TRef<IPaintObjects> hosts = New<TPaintObjects>();
  int calls = 0;
  _GetDesignPaintObjects = [&] { return ++calls, hosts; };
  EXPECT_EQ(GetDesignPaintObjects(), hosts);
  EXPECT_EQ(GetDesignPaintObjects(), hosts);
  EXPECT_EQ(calls, 2);
  EXPECT_FALSE(DesignPaintObjectsBuilt());
}

TEST_F(DesignPaintObjectsTest, TheDefaultIsBuiltOnceAndGoesWithTheFinalization) {
  const auto first = GetDesignPaintObjects();
  EXPECT_TRUE(DesignPaintObjectsBuilt());
  EXPECT_EQ(GetDesignPaintObjects(), first);
  _GetDesignPaintObjects = [] { return TRef<IPaintObjects>(New<TPaintObjects>()); };
  FinalizeDesignPaintObjects();
  EXPECT_FALSE(_GetDesignPaintObjects);
  EXPECT_FALSE(DesignPaintObjectsBuilt());
  EXPECT_FALSE(GetDesignPaintObjects() == first);
}

// An editor offering the property form of an interface, and only that.
class TPropertyOnlyEditor : public TImplements<TInterfacedObject, IPropertyEditorMouse, IPropertyEditorCustomHint> {
public:
  void ValueMouseDown(TMouseButton, TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&,
                      Boolean&) override {}
  void ValueMouseMove(TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&, Boolean&) override {}
  void ValueMouseUp(TMouseButton, TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&,
                    Boolean&) override {}
  String GetCustomHint() override { return "hint"; }
};

TEST(EditorPaintInterfacesTest, PropertyAndMemberFormsAreTold) {
  const TRef<IInterface> editor = New<TPropertyOnlyEditor>();
  EXPECT_TRUE(Supports<IPropertyEditorMouse>(editor));
  EXPECT_TRUE(Supports<IPropertyEditorCustomHint>(editor));
  EXPECT_FALSE(Supports<IMemberEditorMouse>(editor));
  EXPECT_FALSE(Supports<IMemberEditorCustomHint>(editor));
  EXPECT_FALSE(Supports<IPropertyEditorDraw>(editor));
  EXPECT_FALSE(Supports<IEditorMouse>(editor));
}

} // namespace
} // namespace Tarvo
