#pragma once
// The shared objects a value is painted with: fonts, string format and the colours of list rows.
// The host hands its own set to every paint call; GetDesignPaintObjects gives one for painting
// outside such a call.

#include "containers/Common.h"
#include "design/Interfaced.h"
#include "platform/GXBrushes.h"
#include "platform/GXFonts.h"
#include "platform/GXImages.h"

namespace Tarvo {

class TARVO_API IPaintObjectSet : public virtual IInterface {
  TARVO_INTERFACE(IPaintObjectSet, "{C17CA608-F1AF-472B-A991-141BFD43A471}", IInterface)
public:
  // What only a host's own set gives; nil from the package's sets.
  virtual TRef<IInterface> GetHostObject() = 0;
  virtual TRef<IGXBrush> GetFontBrush() = 0;
  virtual TRef<IGXBrush> GetBackgroundBrush() = 0;
  virtual TColor GetFontColor() = 0;
  virtual TColor GetBkgColor() = 0;
};

// The colours of drop-down list rows by row state.
class TARVO_API IItemObjectSet : public virtual IInterface {
  TARVO_INTERFACE(IItemObjectSet, "{CB33CD97-9B09-4544-AA5D-60FF4DD64336}", IInterface)
public:
  virtual TRef<IPaintObjectSet> GetNone() = 0;
  virtual TRef<IPaintObjectSet> GetSelected() = 0;
  virtual TRef<IPaintObjectSet> GetHighlighted() = 0;
};

// Only the first three and the list set are certain; a caller must be ready for nil from the rest.
class TARVO_API IPaintObjects : public virtual IInterface {
  TARVO_INTERFACE(IPaintObjects, "{7CF4877B-2F09-4EC3-8CC1-9E76BB4B6F0D}", IInterface)
public:
  // Text of a value at its default.
  virtual TRef<IGXFont> GetFont() = 0;
  // Text of a value changed from its default.
  virtual TRef<IGXFont> GetModifiedFont() = 0;
  virtual TRef<IGXStringFormat> GetStringFormat() = 0;
  virtual TRef<IItemObjectSet> GetListSet() = 0;
  // The boxes of a Boolean value: ticked, empty, and for a selection whose objects differ.
  virtual TRef<IGXBitmap> GetCheckedBitmap() = 0;
  virtual TRef<IGXBitmap> GetUncheckedBitmap() = 0;
  virtual TRef<IGXBitmap> GetGrayedBitmap() = 0;
  // The objects that the host keeps for itself, by the number it gives them; nil from the
  // package's own object.
  virtual TRef<IInterface> GetHostObject(Integer APlace) = 0;
};

class TARVO_API TPaintObjectSet : public TImplements<TInterfaced, IPaintObjectSet> {
public:
  // The brushes take the colours with system colours resolved now; the colours stay as given.
  TPaintObjectSet(TColor ABkgColor, TColor AFontColor);

  TRef<IInterface> GetHostObject() override { return nullptr; }
  TRef<IGXBrush> GetFontBrush() override { return FFontBrush; }
  TRef<IGXBrush> GetBackgroundBrush() override { return FBackgroundBrush; }
  TColor GetFontColor() override { return FFontColor; }
  TColor GetBkgColor() override { return FBkgColor; }

private:
  TRef<IGXBrush> FFontBrush;
  TRef<IGXBrush> FBackgroundBrush;
  TColor FBkgColor;
  TColor FFontColor;
};

// Plain rows in window colours; selected and highlighted rows share one highlight set.
class TARVO_API TItemObjectSet : public TImplements<TInterfaced, IItemObjectSet> {
public:
  TItemObjectSet();

  TRef<IPaintObjectSet> GetNone() override { return FNone; }
  TRef<IPaintObjectSet> GetSelected() override { return FSelected; }
  TRef<IPaintObjectSet> GetHighlighted() override { return FHighlighted; }

private:
  TRef<IPaintObjectSet> FNone;
  TRef<IPaintObjectSet> FSelected;
  TRef<IPaintObjectSet> FHighlighted;
};

class TARVO_API TPaintObjects : public TImplements<TInterfaced, IPaintObjects> {
public:
  static constexpr const char* DefaultFontFamily = "Microsoft Sans Serif";
  static constexpr Single DefaultFontSize = 8.0f;

  // Fonts of DefaultFontFamily by that name, on every machine: where the family is missing, the
  // drawing shows the family the platform substitutes, and the name stays the design's.
  TPaintObjects();

  TRef<IGXFont> GetFont() override { return FFont; }
  TRef<IGXFont> GetModifiedFont() override { return FModifiedFont; }
  TRef<IGXStringFormat> GetStringFormat() override { return FStringFormat; }
  TRef<IItemObjectSet> GetListSet() override { return FListSet; }
  TRef<IGXBitmap> GetCheckedBitmap() override { return nullptr; }
  TRef<IGXBitmap> GetUncheckedBitmap() override { return nullptr; }
  TRef<IGXBitmap> GetGrayedBitmap() override { return nullptr; }
  TRef<IInterface> GetHostObject(Integer) override { return nullptr; }

private:
  TRef<IGXFont> FFont;
  TRef<IGXFont> FModifiedFont;
  TRef<IGXStringFormat> FStringFormat;
  TRef<IItemObjectSet> FListSet;
};

// The host's source of paint objects for painting outside its paint calls. When assigned, it
// alone answers GetDesignPaintObjects.
extern TARVO_API TFunc<TRef<IPaintObjects>> _GetDesignPaintObjects;

// The paint objects to use outside a host paint call: the hook's, or else the package's own,
// built on first need and kept. Painting is single-threaded, so the first build takes no lock.
TARVO_API TRef<IPaintObjects> GetDesignPaintObjects();

// Whether the package's own paint objects exist; a host with the hook assigned never causes them.
Boolean DesignPaintObjectsBuilt();

// Clears the hook and the package's own object, as the package unloads.
void FinalizeDesignPaintObjects();

} // namespace Tarvo
