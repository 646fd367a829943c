#pragma once
// The grid's paint objects: the package's fonts, format and list colours, with the check boxes
// of Boolean values drawn by the widget style, so that they look like every other check box of
// the desktop. While a grid exists, the package paints with these outside the grid's paint
// calls too (in-place forms, dialogs).

#include "design/paint/PaintObjects.h"

namespace Tarvo {

class TGridPaintObjects : public TImplements<TInterfaced, IPaintObjects> {
public:
  TGridPaintObjects();

  TRef<IGXFont> GetFont() override { return FPackage->GetFont(); }
  TRef<IGXFont> GetModifiedFont() override { return FPackage->GetModifiedFont(); }
  TRef<IGXStringFormat> GetStringFormat() override { return FPackage->GetStringFormat(); }
  TRef<IItemObjectSet> GetListSet() override { return FPackage->GetListSet(); }
  TRef<IGXBitmap> GetCheckedBitmap() override { return FChecked; }
  TRef<IGXBitmap> GetUncheckedBitmap() override { return FUnchecked; }
  TRef<IGXBitmap> GetGrayedBitmap() override { return FGrayed; }
  TRef<IInterface> GetHostObject(Integer) override { return nullptr; }

  // Makes these the package's paint objects for as long as AUsers is above zero: the first grid
  // installs them, the last one takes them back.
  static void Acquire();
  static void Release();

private:
  TRef<IPaintObjects> FPackage;
  TRef<IGXBitmap> FChecked;
  TRef<IGXBitmap> FUnchecked;
  TRef<IGXBitmap> FGrayed;
};

} // namespace Tarvo
