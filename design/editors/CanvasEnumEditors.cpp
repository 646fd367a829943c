#include "design/editors/CanvasEnumEditors.h"

#include <algorithm>
#include <array>
#include <optional>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "design/editors/EnumButtonsEditorImpl.h"
#include "design/editors/SampleListRows.h"

namespace Tarvo {

template class TInplaceFormEditor<TCanvasEnumerationPropertyEditor, TEnumCanvasInplaceForm>;
template class TEnumButtonsEditor<TCanvasEnumerationPropertyEditor>;

TARVO_IMPLEMENT_CLASS(TCanvasEnumerationPropertyEditor)
TARVO_IMPLEMENT_CLASS(TCanvasInplaceEnumerationPropertyEditor)
TARVO_IMPLEMENT_CLASS(TBrushStylePropertyEditor)
TARVO_IMPLEMENT_CLASS(TPenStylePropertyEditor)

namespace {

// The side of the sample square of a row of AHeight.
Single SampleSide(Single AHeight) { return AHeight - 2; }

// The whole square, as a rectangle's outline and fill cover it.
TIGXRect SampleSquare(const TIGXRect& ARect) { return TIGXRect(0.0f, 0.0f, SampleSide(ARect.Height), SampleSide(ARect.Height)); }

// The outline's rectangle: a pen of width 1 covers one pixel more than the rectangle.
TIGXRect SampleOutline(const TIGXRect& ARect) {
  return TIGXRect(0.0f, 0.0f, SampleSide(ARect.Height) - 1, SampleSide(ARect.Height) - 1);
}

TRef<IGXBrush> SolidBrush(TColor AColor) { return New<TIGXSolidBrush>(MakeColor(AColor)); }

// The hatch of each brush style; none for the solid and the clear brush.
constexpr std::array<std::optional<TIGXHatchStyle>, 8> BrushHatches{
    std::nullopt,     std::nullopt,       hsHorizontal, hsVertical, hsForwardDiagonal,
    hsBackwardDiagonal, hsCross, hsDiagonalCross};

struct TPenLook {
  Boolean Visible;
  TIGXDashStyle Dash;
};

// How each pen style strokes; the alternate style sets every other pixel.
constexpr std::array<TPenLook, 9> PenLooks{{{true, dsSolid},
                                            {true, dsDash},
                                            {true, dsDot},
                                            {true, dsDashDot},
                                            {true, dsDashDotDot},
                                            {false, dsSolid},
                                            {true, dsSolid},
                                            {true, dsSolid},
                                            {true, dsCustom}}};

// The pale frame under a pen's sample.
constexpr TColor PenFrameColor = 0xEDEDED;

} // namespace

// ---- Samples in the cell and the list ----

const TRef<IGXBitmap>& TCanvasEnumerationPropertyEditor::PaintSample(const String& AName, Single AHeight) {
  const Integer side = std::max(1, Integer(SampleSide(AHeight)));
  if (!FBitmap || FBitmap->GetWidth() != side || FBitmap->GetHeight() != side) FBitmap = New<TIGXBitmap>(side, side);
  FBitmap->GetQImage().fill(Qt::transparent);
  DrawItemGen(*New<TIGXGraphics>(FBitmap->GetQImage()), TIGXRect(0.0f, 0.0f, AHeight, AHeight), AName);
  return FBitmap;
}

void TCanvasEnumerationPropertyEditor::DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>&,
                                                 const TRef<IPaintObjectSet>&, TIGXRect& ARect, Boolean&) {
  const TRef<IStringArrayList> texts = GetStringValues(nullptr);
  if (texts->GetCount() > 0 && !texts->GetItem(0).empty())
    AGraphics->DrawImage(PaintSample(texts->GetItem(0), ARect.Height), ARect.X + 1, ARect.Y + 1);
  GetEditRectangle(ARect);
}

void TCanvasEnumerationPropertyEditor::GetEditRectangle(TIGXRect& ARect) {
  ARect.X += ARect.Height;
  ARect.Width -= ARect.Height;
}

void TCanvasEnumerationPropertyEditor::ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                                   const TRef<IPaintObjects>& APaintObjects,
                                                   const TRef<IPaintObjectSet>&, TIGXSize& ASize) {
  const Single height = std::max(ASize.Height, Single(MinListRowHeight));
  TSampleListRow{*this, AGraphics, APaintObjects}.GetSize(AValue.ToString(), height, height, ASize);
}

void TCanvasEnumerationPropertyEditor::ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                                     const TRef<IPaintObjects>& APaintObjects,
                                                     const TRef<IPaintObjectSet>& APaintObjectSet,
                                                     const TIGXRect& ARect, Boolean) {
  const TSampleListRow row{*this, AGraphics, APaintObjects};
  const String text = AValue.ToString();
  row.FillBackground(APaintObjectSet, ARect);
  AGraphics->DrawImage(PaintSample(text, ARect.Height), ARect.X + 1, ARect.Y + 1);
  TIGXRect textRect = ARect;
  GetEditRectangle(textRect);
  row.DrawText(text, APaintObjectSet, textRect);
}

TRef<IGXBitmap> TCanvasInplaceEnumerationPropertyEditor::ButtonPicture(const String& AName) {
  const auto picture = New<TIGXBitmap>(EnumButtonPictureSize, EnumButtonPictureSize);
  DrawItemGen(*New<TIGXGraphics>(picture->GetQImage()), TIGXRect(0, 0, EnumButtonPictureSize + 2, EnumButtonPictureSize + 2),
              AName);
  return picture;
}

// ---- Brush styles ----

void TBrushStylePropertyEditor::DrawItemGen(IGXGraphics& ACanvas, const TIGXRect& ARect, const String& AName) {
  if (const Int64 style = TypeInfo_TBrushStyle.EnumValue(AName); style >= 0) DrawItem(ACanvas, ARect, TBrushStyle(style));
}

void TBrushStylePropertyEditor::DrawItem(IGXGraphics& ACanvas, const TIGXRect& ARect, TBrushStyle AValue) {
  ACanvas.FillRectangle(SolidBrush(clWindow), SampleSquare(ARect));
  const std::optional<TIGXHatchStyle> hatch = BrushHatches[AValue];
  const TRef<IGXBrush> brush = AValue == bsClear ? SolidBrush(clWindow)
                               : hatch ? New<TIGXHatchBrush>(*hatch, MakeColor(clWindowText), MakeColor(clWindow))
                                       : SolidBrush(clWindowText);
  ACanvas.FillRectangle(brush, SampleOutline(ARect));
  ACanvas.DrawRectangle(New<TIGXPen>(MakeColor(clWindowText)), SampleOutline(ARect));
}

// ---- Pen styles ----

void TPenStylePropertyEditor::DrawItemGen(IGXGraphics& ACanvas, const TIGXRect& ARect, const String& AName) {
  if (const Int64 style = TypeInfo_TPenStyle.EnumValue(AName); style >= 0) DrawItem(ACanvas, ARect, TPenStyle(style));
}

void TPenStylePropertyEditor::DrawItem(IGXGraphics& ACanvas, const TIGXRect& ARect, TPenStyle AValue) {
  ACanvas.FillRectangle(SolidBrush(clWindow), SampleSquare(ARect));
  ACanvas.DrawRectangle(New<TIGXPen>(MakeColor(PenFrameColor)), SampleOutline(ARect));
  const TPenLook look = PenLooks[AValue];
  if (!look.Visible) return;
  const auto pen = New<TIGXPen>(MakeColor(clWindowText));
  if (look.Dash == dsCustom) pen->SetDashPattern({1.0f, 1.0f});
  else pen->SetDashStyle(look.Dash);
  ACanvas.DrawRectangle(pen, SampleOutline(ARect));
}

void RegisterCanvasEnumEditors() {
  RegisterPropertyEditor(&TypeInfo_TBrushStyle, TBrushStylePropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TPenStyle, TPenStylePropertyEditor::ClassInfo());
}

} // namespace Tarvo
