#include "design/editors/SampleListRows.h"

#include <algorithm>
#include <cmath>

namespace Tarvo {

TRef<IGXFont> TSampleListRow::Font(const String& AText) const {
  return AText == Editor.GetDefaultStringValue() ? PaintObjects->GetModifiedFont() : PaintObjects->GetFont();
}

void TSampleListRow::GetSize(const String& AText, Single ASampleWidth, Single ASampleHeight, TIGXSize& ASize) const {
  const TIGXRect text = Graphics->MeasureString(AText, Font(AText), TIGXSize(), PaintObjects->GetStringFormat());
  ASize.Height = std::max({ASize.Height, ASampleHeight, Single(std::round(text.Height))});
  ASize.Width = std::max(ASize.Width, ASampleWidth + Single(std::ceil(text.Width)));
}

void TSampleListRow::FillBackground(const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect) const {
  Graphics->FillRectangle(APaintObjectSet->GetBackgroundBrush(), ARect);
}

void TSampleListRow::DrawText(const String& AText, const TRef<IPaintObjectSet>& APaintObjectSet,
                              const TIGXRect& ARect) const {
  Graphics->DrawString(AText, Font(AText), ARect, PaintObjects->GetStringFormat(), APaintObjectSet->GetFontBrush());
}

} // namespace Tarvo
