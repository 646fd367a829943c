#include "runtime/Graphics.h"

#include "reflection/Publish.h"

namespace Tarvo {

namespace {
// A * B / C rounded half away from zero, without overflow on the way.
Integer MulDiv(Integer A, Integer B, Integer C) {
  const Int64 product = Int64(A) * B;
  const Int64 half = C / 2;
  return static_cast<Integer>((product < 0 ? product - half : product + half) / C);
}
} // namespace

TARVO_IMPLEMENT_CLASS(TFont)
TARVO_PUBLISH(TFont) {
  Property("Charset", &TFont::GetCharset, &TFont::SetCharset, &TypeInfo_TFontCharset).Default(DEFAULT_CHARSET);
  Property("Color", &TFont::GetColor, &TFont::SetColor, &TypeInfo_TColor).Default(clWindowText);
  Property("Height", &TFont::GetHeight, &TFont::SetHeight).Default(TFont::DefaultHeight);
  Property("Name", &TFont::GetName, &TFont::SetName, &TypeInfo_TFontName).Default(TFont::DefaultName);
  // The height is what is kept; the size is another view of it.
  Property("Size", &TFont::GetSize, &TFont::SetSize).Stored(false);
  Property("Style", &TFont::GetStyle, &TFont::SetStyle).Default(TFontStyles());
}

void TFont::Assign(TPersistent* ASource) {
  if (!AssignData(ASource, &TFont::FData)) inherited::Assign(ASource);
}

Integer TFont::GetSize() const { return -MulDiv(FData.Height, 72, PixelsPerInch); }

void TFont::SetSize(Integer AValue) { SetHeight(-MulDiv(AValue, PixelsPerInch, 72)); }

TARVO_IMPLEMENT_CLASS(TPen)
TARVO_PUBLISH(TPen) {
  Property("Color", &TPen::GetColor, &TPen::SetColor, &TypeInfo_TColor).Default(clBlack);
  Property("Style", &TPen::GetStyle, &TPen::SetStyle).Default(psSolid);
  Property("Width", &TPen::GetWidth, &TPen::SetWidth).Default(1);
}

void TPen::Assign(TPersistent* ASource) {
  if (!AssignData(ASource, &TPen::FData)) inherited::Assign(ASource);
}

TARVO_IMPLEMENT_CLASS(TBrush)
TARVO_PUBLISH(TBrush) {
  Property("Color", &TBrush::GetColor, &TBrush::SetColor, &TypeInfo_TColor).Default(clWhite);
  Property("Style", &TBrush::GetStyle, &TBrush::SetStyle).Default(bsSolid);
}

void TBrush::Assign(TPersistent* ASource) {
  if (!AssignData(ASource, &TBrush::FData)) inherited::Assign(ASource);
}

void TBrush::SetColor(TColor AValue) {
  TData data = FData;
  data.Color = AValue;
  if (data.Style == bsClear) data.Style = bsSolid;
  Change(FData, data);
}

} // namespace Tarvo
