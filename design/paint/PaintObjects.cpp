#include "design/paint/PaintObjects.h"

namespace Tarvo {

TFunc<TRef<IPaintObjects>> _GetDesignPaintObjects;

namespace {

TRef<IPaintObjects> GDesignPaintObjects;

} // namespace

TPaintObjectSet::TPaintObjectSet(TColor ABkgColor, TColor AFontColor)
    : FFontBrush(New<TIGXSolidBrush>(MakeColor(AFontColor))),
      FBackgroundBrush(New<TIGXSolidBrush>(MakeColor(ABkgColor))), FBkgColor(ABkgColor), FFontColor(AFontColor) {}

TItemObjectSet::TItemObjectSet()
    : FNone(New<TPaintObjectSet>(clWindow, clWindowText)),
      FSelected(New<TPaintObjectSet>(clHighlight, clHighlightText)), FHighlighted(FSelected) {}

TPaintObjects::TPaintObjects() : FListSet(New<TItemObjectSet>()) {
  FFont = New<TIGXFont>(DefaultFontFamily, DefaultFontSize, gfsRegular, fuPoint);
  FModifiedFont = New<TIGXFont>(DefaultFontFamily, DefaultFontSize, gfsBold, fuPoint);
  const auto format = New<TIGXStringFormat>(sfNoWrap);
  format->SetTrimming(stEllipsisCharacter);
  format->SetLineAlignment(saCenter);
  FStringFormat = format;
}

TRef<IPaintObjects> GetDesignPaintObjects() {
  if (_GetDesignPaintObjects) return _GetDesignPaintObjects();
  if (!GDesignPaintObjects) GDesignPaintObjects = New<TPaintObjects>();
  return GDesignPaintObjects;
}

Boolean DesignPaintObjectsBuilt() { return GDesignPaintObjects != nullptr; }

void FinalizeDesignPaintObjects() {
  _GetDesignPaintObjects = nullptr;
  GDesignPaintObjects = nullptr;
}

} // namespace Tarvo
