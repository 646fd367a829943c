#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>

#include <set>

#include "design/editors/ColorEditors.h"
#include "design/paint/PaintObjects.h"
#include "forms/AlphaColorEditForm.h"
#include "platform/AlphaColorNames.h"
#include "platform/ColorNames.h"
#include "platform/ModalSeam.h"
#include "reflection/ClassAttributes.h"
#include "reflection/Publish.h"
#include "reflection/RowAttributes.h"
#include "runtime/Component.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

class TColorGadget : public TComponent {
  TARVO_CLASS(TColorGadget, TComponent)
public:
  TColorGadget() : TComponent(nullptr) {}
  TColor FColor = 0;
  TAlphaColor FAlpha = 0;
};

TARVO_IMPLEMENT_CLASS(TColorGadget)
TARVO_PUBLISH(TColorGadget) {
  using T = TColorGadget;
  Property("Color", &T::FColor, &T::FColor, &TypeInfo_TColor);
  Property("Alpha", &T::FAlpha, &T::FAlpha, &TypeInfo_TAlphaColor);
  Property("FixedColors", &T::FColor, &T::FColor, &TypeInfo_TColor).Attr<ExcludeSystemColorsAttribute>();
  Property("FixedColor", &T::FColor, &T::FColor, &TypeInfo_TColor).Attr<PropertyFixedListDesignAttribute>();
  Property("FixedAlpha", &T::FAlpha, &T::FAlpha, &TypeInfo_TAlphaColor).Attr<PropertyFixedListDesignAttribute>();
  Public();
  Property("InnerColor", &T::FColor, &T::FColor, &TypeInfo_TColor);
  Property("InnerAlpha", &T::FAlpha, &T::FAlpha, &TypeInfo_TAlphaColor);
}

namespace {

using namespace Testing;

constexpr TAlphaColor SwatchCanvasGrey = 0xFF808080u;

class ColorEditorsTest : public GadgetEditorTest<TColorGadget, TColorPropertyEditor> {
protected:
  // The value cell of AName drawn at (0, 0, 100, 20) on grey; ACell is what is left for the text.
  template <class E> QImage DrawnValue(const String& AName, TIGXRect& ACell) {
    QImage image(100, 20, QImage::Format_ARGB32);
    image.fill(QColor::fromRgba(SwatchCanvasGrey));
    ACell = TIGXRect(0, 0, 100, 20);
    Boolean defaultDraw = true;
    Editor<E>(AName)->DrawValue(New<TIGXGraphics>(image), FPaint, FPaint->GetListSet()->GetNone(), ACell, defaultDraw);
    EXPECT_TRUE(defaultDraw);
    return image;
  }

  // The list row of AValue drawn at (0, 0, 100, 20).
  template <class E> QImage DrawnListRow(const String& AName, const String& AValue, Boolean ASelected) {
    QImage image(100, 20, QImage::Format_ARGB32);
    const TRef<IItemObjectSet> sets = FPaint->GetListSet();
    Editor<E>(AName)->ListDrawValue(TValue(AValue), New<TIGXGraphics>(image), FPaint,
                                    ASelected ? sets->GetSelected() : sets->GetNone(), TIGXRect(0, 0, 100, 20),
                                    ASelected);
    return image;
  }

  TRef<IPaintObjects> FPaint = New<TPaintObjects>();
};

// The left edge of the swatch's outline, one pixel in from the cell's corner.
QColor SwatchBorder(const QImage& AImage) { return AImage.pixelColor(1, 10); }

TEST_F(ColorEditorsTest, TextsOfBothEditors) {
  FFirst.FColor = FSecond.FColor = TColor(0xFF00000F);
  FFirst.FAlpha = FSecond.FAlpha = 0x80204060u;
  EXPECT_EQ(Editor<TColorPropertyEditor>("Color")->GetDisplayValue(nullptr), "clBtnFace");
  EXPECT_EQ(Editor<TAlphaColorPropertyEditor>("Alpha")->GetDisplayValue(nullptr), "#80204060");
  EXPECT_EQ(Editor<TColorPropertyEditor>("Color")->GetDefaultStringValue(), "clBlack");

  Editor<TColorPropertyEditor>("Color")->SetStringValue("clmaroon");
  EXPECT_EQ(FSecond.FColor, 0x000080);
  // A number takes the base editor's route.
  Editor<TColorPropertyEditor>("Color")->SetStringValue("$00A0B0C0");
  EXPECT_EQ(FSecond.FColor, 0xA0B0C0);
  Editor<TAlphaColorPropertyEditor>("Alpha")->SetStringValue("#FF112233");
  EXPECT_EQ(FSecond.FAlpha, 0xFF112233u);
  EXPECT_THROW(Editor<TAlphaColorPropertyEditor>("Alpha")->SetStringValue("claNowhere"), EConvertError);
  EXPECT_EQ(FSecond.FAlpha, 0xFF112233u);
}

// The names' table puts the 20 fixed colours first, then the system colours, clNone and clDefault.
TEST_F(ColorEditorsTest, SystemColoursAndTheirKinExcluded) {
  const std::vector<String> all = Editor<TColorPropertyEditor>("Color")->GetStringListValues()->ToArray();
  const std::vector<String> fixed = Editor<TColorPropertyEditor>("FixedColors")->GetStringListValues()->ToArray();
  ASSERT_EQ(all.size(), 52u);
  EXPECT_EQ(fixed, std::vector<String>(all.begin(), all.begin() + 20));
  EXPECT_EQ(Editor<TAlphaColorPropertyEditor>("Alpha")->GetStringListValues()->GetItem(0), "claAliceBlue");
}

// A nil first object has no text: no swatch, and the cell stays whole.
TEST_F(ColorEditorsTest, NoTextDrawsNoSwatch) {
  FDesigner->Root = TObjectArrayList::CreateArray({nullptr, &FFirst});
  for (const Boolean alpha : {false, true}) {
    TIGXRect cell;
    const QImage image = alpha ? DrawnValue<TAlphaColorPropertyEditor>("Alpha", cell)
                               : DrawnValue<TColorPropertyEditor>("Color", cell);
    EXPECT_EQ(cell, TIGXRect(0, 0, 100, 20)) << alpha;
    EXPECT_EQ(SwatchBorder(image).rgba(), SwatchCanvasGrey) << alpha;
  }
}

// A swatch whose channels are all 192 or less gets the border its place gives it; one channel
// of 193 makes it black. The text starts a row height (two for alpha) to the right.
TEST_F(ColorEditorsTest, DarkBorderAt192AndBlackAt193) {
  const struct {
    const char* Name;
    TColor Color;
    QRgb Value;
    QRgb List; // selected or not
  } colors[] = {
      {"192", 0xC0C0C0, qRgb(255, 255, 255), qRgb(0xC0, 0xC0, 0xC0)},
      {"193 in red", 0xC0C0C1, qRgb(0, 0, 0), qRgb(0, 0, 0)},
      {"193 in blue", 0xC1C0C0, qRgb(0, 0, 0), qRgb(0, 0, 0)},
  };
  ForEachRow(colors, [&](const auto& ARow) {
    FFirst.FColor = ARow.Color;
    TIGXRect cell;
    EXPECT_EQ(SwatchBorder(DrawnValue<TColorPropertyEditor>("Color", cell)).rgb(), ARow.Value);
    EXPECT_EQ(cell, TIGXRect(20, 0, 80, 20));
    const Cardinal bgr = Cardinal(ARow.Color);
    EXPECT_EQ(DrawnValue<TColorPropertyEditor>("Color", cell).pixel(10, 10), qRgb(bgr & 0xFF, bgr >> 8 & 0xFF, bgr >> 16));
    const String text = ColorToString(ARow.Color);
    EXPECT_EQ(SwatchBorder(DrawnListRow<TColorPropertyEditor>("Color", text, false)).rgb(), ARow.List);
    EXPECT_EQ(SwatchBorder(DrawnListRow<TColorPropertyEditor>("Color", text, true)).rgb(), ARow.List);
  });
  const struct {
    const char* Name;
    TAlphaColor Color;
    QRgb Value;
    QRgb SelectedList;
  } alphas[] = {
      {"192: its own colour, white when selected", 0xFF20C0C0u, qRgb(0x20, 0xC0, 0xC0), qRgb(255, 255, 255)},
      {"193", 0xFF20C1C0u, qRgb(0, 0, 0), qRgb(0, 0, 0)},
  };
  ForEachRow(alphas, [&](const auto& ARow) {
    FFirst.FAlpha = ARow.Color;
    TIGXRect cell;
    EXPECT_EQ(SwatchBorder(DrawnValue<TAlphaColorPropertyEditor>("Alpha", cell)).rgb(), ARow.Value);
    EXPECT_EQ(cell, TIGXRect(40, 0, 60, 20));
    const String text = RGBAColorToString(ARow.Color);
    EXPECT_EQ(SwatchBorder(DrawnListRow<TAlphaColorPropertyEditor>("Alpha", text, false)).rgb(), ARow.Value);
    EXPECT_EQ(SwatchBorder(DrawnListRow<TAlphaColorPropertyEditor>("Alpha", text, true)).rgb(), ARow.SelectedList);
  });
}

// Half-transparent red: the diamonds show through in the left half only; the right half is
// opaque red.
TEST_F(ColorEditorsTest, AlphaBackdropInTheLeftHalfOnly) {
  FFirst.FAlpha = 0x80FF0000u;
  TIGXRect cell;
  const QImage image = DrawnValue<TAlphaColorPropertyEditor>("Alpha", cell);
  // The swatch's inside runs from 2 to 36 across and 2 to 16 down; its halves meet at 19.5.
  const auto colours = [&](int ALeft, int ARight) {
    std::set<QRgb> found;
    for (int y = 2; y <= 16; ++y)
      for (int x = ALeft; x <= ARight; ++x) found.insert(image.pixel(x, y));
    return found;
  };
  EXPECT_GE(colours(2, 18).size(), 2u);
  EXPECT_EQ(colours(21, 36), std::set<QRgb>{qRgb(255, 0, 0)});
}

TEST_F(ColorEditorsTest, InPlaceFormOnlyForPublishedMembersWithoutFixedList) {
  EXPECT_TRUE(Supports<IPropertyEditorInplace>(Editor<TColorPropertyEditor>("Color")));
  EXPECT_TRUE(Supports<IPropertyEditorInplace>(Editor<TAlphaColorPropertyEditor>("Alpha")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor<TColorPropertyEditor>("FixedColor")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor<TAlphaColorPropertyEditor>("FixedAlpha")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor<TColorPropertyEditor>("InnerColor")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor<TAlphaColorPropertyEditor>("InnerAlpha")));
}

// The form opens at the first object's colour; a move writes every object inside the bracket of
// the hold, and a write through the row moves the form.
TEST_F(ColorEditorsTest, TheAlphaFormWritesEverySelectedObject) {
  FFirst.FAlpha = 0x80102030u;
  const TRef<TAlphaColorPropertyEditor> editor = Editor<TAlphaColorPropertyEditor>("Alpha");
  QWidget grid;
  const auto form =
      QueryAs<IPropertyEditorInplace>(editor)->GetInplaceForm(&grid, FPaint, nullptr, TIGXRect(0, 0, 200, 20));
  auto* colorForm = dynamic_cast<TAlphaColorInplaceForm*>(form->GetForm());
  ASSERT_NE(colorForm, nullptr);
  EXPECT_EQ(colorForm->GetColor(), 0x80102030u);
  colorForm->OnEditorEnter(colorForm);
  colorForm->TrackBarAlpha->setValue(0xFF);
  colorForm->OnEditorLeave(colorForm);
  EXPECT_EQ(FFirst.FAlpha, 0xFF102030u);
  EXPECT_EQ(FSecond.FAlpha, 0xFF102030u);
  EXPECT_EQ(FLog, (std::vector<String>{"BeginModify", "Modified", "EndModify"}));
  editor->SetStringValue("claRed");
  EXPECT_EQ(colorForm->GetColor(), 0xFFFF0000u);
}

// The platform's dialog starts at the first object's colour, system colours resolved; OK writes
// every object, Cancel none.
TEST_F(ColorEditorsTest, TheColorDialogThroughTheModalSeam) {
  FFirst.FColor = TColor(0xFF00000F);
  const QRgb face = QApplication::palette().color(QPalette::Active, QPalette::Button).rgb();
  for (const int close : {int(QDialog::Rejected), int(QDialog::Accepted)}) {
    QRgb shown = 0;
    TModalHandlerScope scope([&](QDialog& ADialog) {
      auto* dialog = qobject_cast<QColorDialog*>(&ADialog);
      EXPECT_NE(dialog, nullptr);
      if (!dialog) return int(QDialog::Rejected);
      shown = dialog->currentColor().rgb();
      dialog->setCurrentColor(QColor(0x10, 0x20, 0x30));
      return close;
    });
    Editor<TColorPropertyEditor>("Color")->Execute(nullptr);
    EXPECT_EQ(shown, face);
  }
  EXPECT_EQ(FFirst.FColor, 0x302010);
  EXPECT_EQ(FSecond.FColor, 0x302010);
  EXPECT_EQ(FLog, std::vector<String>{"Modified"});
}

// One form serves every call, shown at the first object's colour each time.
TEST_F(ColorEditorsTest, TheAlphaDialogIsMadeOnceAndKept) {
  std::vector<QDialog*> dialogs;
  std::vector<TAlphaColor> shown;
  const auto run = [&](int AClose, const char* AText) {
    TModalHandlerScope scope([&](QDialog& ADialog) {
      dialogs.push_back(&ADialog);
      auto* form = dynamic_cast<TWXAlphaColorEditForm*>(&ADialog);
      EXPECT_NE(form, nullptr);
      if (!form) return int(QDialog::Rejected);
      shown.push_back(form->GetColor());
      form->EditColor->setText(AText);
      return AClose;
    });
    Editor<TAlphaColorPropertyEditor>("Alpha")->Execute(nullptr);
  };
  FFirst.FAlpha = 0x11223344u;
  run(QDialog::Rejected, "#40506070");
  EXPECT_EQ(FFirst.FAlpha, 0x11223344u);
  run(QDialog::Accepted, "claNavy");
  EXPECT_EQ(FFirst.FAlpha, 0xFF000080u);
  EXPECT_EQ(FSecond.FAlpha, 0xFF000080u);
  ASSERT_EQ(dialogs.size(), 2u);
  EXPECT_EQ(dialogs[0], dialogs[1]);
  EXPECT_EQ(dialogs[0], &AlphaColorEditForm());
  EXPECT_EQ(shown, (std::vector<TAlphaColor>{0x11223344u, 0x11223344u}));
}

} // namespace
} // namespace Tarvo
