#pragma once
// The colour editors: a TColor (which may name a system colour) and a 32-bit colour with alpha.
// Both show a swatch beside the value and beside each name of their list, open a colour form in
// place and a colour dialog.

#include "design/editors/ColorEditorBase.h"
#include "design/editors/OrdinalEditors.h"
#include "forms/ColorInplaceForm.h"

namespace Tarvo {

struct TColorEditorTraits {
  using TColorValue = TColor;
  // The border of a dark swatch.
  using TBorderArgument = TColor;
  static constexpr Integer SwatchRows = 1;
  static constexpr TColor ValueBorder = clWhite;
  static TColor ListBorder(Boolean) { return 0xC0C0C0; }
  // Empty for the empty value of a nil object.
  static String ToText(const TValue& AValue);
  static constexpr Boolean MeasureInListFont = true;
};

struct TAlphaColorEditorTraits {
  using TColorValue = TAlphaColor;
  // Whether the row is selected: a dark swatch is then bordered in white, else in its own colour.
  using TBorderArgument = Boolean;
  static constexpr Integer SwatchRows = 2;
  static constexpr Boolean ValueBorder = false;
  static Boolean ListBorder(Boolean ASelected) { return ASelected; }
  static String ToText(const TValue& AValue);
  static constexpr Boolean MeasureInListFont = false;
};

class TARVO_API TColorPropertyEditor
    : public TColorEditorBase<TBasicIntegerPropertyEditor, TColorInplaceForm, TColorEditorTraits> {
  TARVO_CLASS(TColorPropertyEditor, TColorEditorBase<TBasicIntegerPropertyEditor, TColorInplaceForm, TColorEditorTraits>)
public:
  using TColorEditorBase::TColorEditorBase;

  // A colour name; anything else (a number) as the base value editor reads it.
  void SetStringValue(const String& AValue) override;
  // The names in the platform's order; under ExcludeSystemColorsAttribute the fixed colours only,
  // without clNone and clDefault.
  TRef<IStringArrayList> GetStringListValues() override;
  // A border of ADarcBorderColor unless a channel is above 192, then black.
  void PaintColorBox(const TRef<IGXGraphics>& AGraphics, const String& AValue, const TIGXRect& ARect,
                     TColor ADarcBorderColor) override;
  // The platform's colour dialog, made for this call, at the first object's colour.
  void Execute(QWidget* AOwner) override;
};

class TARVO_API TAlphaColorPropertyEditor
    : public TColorEditorBase<TCardinalPropertyEditor, TAlphaColorInplaceForm, TAlphaColorEditorTraits> {
  TARVO_CLASS(TAlphaColorPropertyEditor,
              TColorEditorBase<TCardinalPropertyEditor, TAlphaColorInplaceForm, TAlphaColorEditorTraits>)
public:
  using TColorEditorBase::TColorEditorBase;

  // A name, "#AARRGGBB", "#RRGGBB" or a number; EConvertError for anything else.
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;
  // Semi-transparent colours show over a diamond pattern in the left half; the right half is
  // opaque. A dark swatch is bordered in white when ASelected, else in its own colour.
  void PaintColorBox(const TRef<IGXGraphics>& AGraphics, const String& AValue, const TIGXRect& ARect,
                     Boolean ASelected) override;
  // The alpha colour dialog, made once and kept for the application's life.
  void Execute(QWidget* AOwner) override;
};

// Compiled once, with the editors.
extern template class TInplaceFormEditor<TBasicIntegerPropertyEditor, TColorInplaceForm>;
extern template class TInplaceFormEditor<TCardinalPropertyEditor, TAlphaColorInplaceForm>;
extern template class TColorEditorBase<TBasicIntegerPropertyEditor, TColorInplaceForm, TColorEditorTraits>;
extern template class TColorEditorBase<TCardinalPropertyEditor, TAlphaColorInplaceForm, TAlphaColorEditorTraits>;

} // namespace Tarvo
