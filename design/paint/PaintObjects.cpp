#include "design/paint/PaintObjects.h"

#include <QFontInfo>

namespace Tarvo {

TFunc<TRef<IPaintObjects>> _GetDesignPaintObjects;

namespace {

TRef<IPaintObjects> GDesignPaintObjects;

// The family that text asked in AFamily is actually shown in: AFamily itself where installed.
String ShownFontFamily(const char* AFamily) { return QFontInfo(QFont(AFamily)).family().toStdString(); }

} // namespace

TPaintObjectSet::TPaintObjectSet(TColor ABkgColor, TColor AFontColor)
    : FFontBrush(New<TIGXSolidBrush>(MakeColor(AFontColor))),
      FBackgroundBrush(New<TIGXSolidBrush>(MakeColor(ABkgColor))), FBkgColor(ABkgColor), FFontColor(AFontColor) {}

TItemObjectSet::TItemObjectSet()
    : FNone(New<TPaintObjectSet>(clWindow, clWindowText)),
      FSelected(New<TPaintObjectSet>(clHighlight, clHighlightText)), FHighlighted(FSelected) {}

TPaintObjects::TPaintObjects() : FListSet(New<TItemObjectSet>()) {
  const String family = ShownFontFamily(DefaultFontFamily);
  FFont = New<TIGXFont>(family, DefaultFontSize, gfsRegular, fuPoint);
  FModifiedFont = New<TIGXFont>(family, DefaultFontSize, gfsBold, fuPoint);
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
