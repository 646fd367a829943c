#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>

#include "design/paint/EditorPaint.h"
#include "design/paint/PaintObjects.h"

namespace Tarvo {
namespace {

TAlphaColor BrushColor(const TRef<IGXBrush>& ABrush) { return QueryAs<IGXSolidBrush>(ABrush)->GetColor(); }

// Brushes take the colours resolved, the sets keep them as given; selected and highlighted rows
// share one set.
TEST(PaintObjectsTest, SetsResolveTheirBrushesAndRowsTakeWindowAndHighlightColours) {
  const auto set = New<TPaintObjectSet>(clHighlight, TColor(0x0080FF));
  EXPECT_EQ(BrushColor(set->GetBackgroundBrush()), MakeColor(clHighlight));
  EXPECT_EQ(BrushColor(set->GetFontBrush()), 0xFFFF8000u);
  EXPECT_EQ(set->GetBkgColor(), clHighlight);

  const auto list = New<TItemObjectSet>();
  EXPECT_EQ((std::pair{list->GetNone()->GetBkgColor(), list->GetNone()->GetFontColor()}),
            (std::pair{clWindow, clWindowText}));
  EXPECT_EQ((std::pair{list->GetHighlighted()->GetBkgColor(), list->GetHighlighted()->GetFontColor()}),
            (std::pair{clHighlight, clHighlightText}));
  EXPECT_EQ(list->GetSelected(), list->GetHighlighted());
}

// The design's family is kept by name, installed or not, and drawing finds an installed one for it;
// the modified font is the same family in bold.
TEST(PaintObjectsTest, DefaultsAndTheirFontFallback) {
  const auto objects = New<TPaintObjects>();
  const auto font = objects->GetFont();
  EXPECT_EQ(font->GetFamily(), "Microsoft Sans Serif");
  EXPECT_TRUE(QFontDatabase::families().contains(QFontInfo(font->ToQFont()).family()));
  EXPECT_EQ(objects->GetModifiedFont()->GetStyle(), gfsBold);
  EXPECT_EQ(objects->GetModifiedFont()->GetFamily(), font->GetFamily());
}

class DesignPaintObjectsTest : public testing::Test {
protected:
  void SetUp() override { FinalizeDesignPaintObjects(); }
  void TearDown() override { FinalizeDesignPaintObjects(); }
};

// A hook set by the host answers every call and the default is never built.
TEST_F(DesignPaintObjectsTest, TheHookAnswersAloneAndLeavesTheDefaultUnbuilt) {
  const TRef<IPaintObjects> hosts = New<TPaintObjects>();
  int calls = 0;
  _GetDesignPaintObjects = [&] { return ++calls, hosts; };
  EXPECT_EQ(GetDesignPaintObjects(), hosts);
  EXPECT_EQ(GetDesignPaintObjects(), hosts);
  EXPECT_EQ(calls, 2);
  EXPECT_FALSE(DesignPaintObjectsBuilt());
}

// The default is built once and dropped, with the hook, by the finalization.
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
  void ValueMouseMove(TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&, Boolean&) override {
  }
  void ValueMouseUp(TMouseButton, TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&,
                    Boolean&) override {}
  String GetCustomHint() override { return "hint"; }
};

// The shared operations have no identity of their own, so one form is never taken for the other.
TEST(EditorPaintInterfacesTest, PropertyAndMemberFormsAreTold) {
  const TRef<IInterface> editor = New<TPropertyOnlyEditor>();
  EXPECT_TRUE(Supports<IPropertyEditorMouse>(editor) && Supports<IPropertyEditorCustomHint>(editor));
  EXPECT_FALSE(Supports<IMemberEditorMouse>(editor) || Supports<IMemberEditorCustomHint>(editor));
  EXPECT_FALSE(Supports<IPropertyEditorDraw>(editor) || Supports<IEditorMouse>(editor));
}

} // namespace
} // namespace Tarvo
