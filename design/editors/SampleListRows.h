#pragma once
// The drop-down rows of editors that draw a sample left of each name (cursors, brush and pen
// styles): the row makes room for both, and the default value's name stands out in the other font.

#include "design/SinglePropertyEditor.h"
#include "design/paint/EditorPaint.h"

namespace Tarvo {

struct TSampleListRow {
  IPropertyEditor& Editor;
  const TRef<IGXGraphics>& Graphics;
  const TRef<IPaintObjects>& PaintObjects;

  // Raises ASize to hold a sample of ASampleWidth by ASampleHeight and, right of it, AText.
  void GetSize(const String& AText, Single ASampleWidth, Single ASampleHeight, TIGXSize& ASize) const;
  // Fills the row with the set's background, before the sample is drawn.
  void FillBackground(const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect) const;
  // Draws AText in ARect, the row less its sample.
  void DrawText(const String& AText, const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect) const;

private:
  TRef<IGXFont> Font(const String& AText) const;
};

} // namespace Tarvo
