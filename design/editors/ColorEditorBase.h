#pragma once
// What the two colour editors share: a swatch in the value cell and in the rows of the named list,
// a colour form in place of the row for published members without a fixed list, and a dialog.
// The editors differ in data, which TTraits gives: the value's type and names, the swatch's
// width in row heights and the argument that picks its border.

#include "design/editors/InplaceFormEditor.h"
#include "design/paint/EditorPaint.h"
#include "design/paint/InplaceForm.h"

namespace Tarvo {

// TBase is the numeric editor the colour editor extends, TForm its in-place colour form. TTraits
// has TColorValue, TBorderArgument, SwatchRows, ValueBorder (the border argument of the value
// cell), ListBorder(ASelected) (that of a list row), ToText(TValue) and MeasureInListFont (whether
// a list row is measured in the font it is drawn in, or always in the plain one). A base with a
// slider keeps it hidden: only the colour form is offered.
template <class TBase, class TForm, class TTraits>
class TARVO_API TColorEditorBase
    : public TImplements<TInplaceFormEditor<TBase, TForm>, IPropertyEditorDialog, IPropertyEditorListDraw,
                         IPropertyEditorDraw, IPropertyEditorDropDownStringList> {
  using TInherited = TImplements<TInplaceFormEditor<TBase, TForm>, IPropertyEditorDialog, IPropertyEditorListDraw,
                                 IPropertyEditorDraw, IPropertyEditorDropDownStringList>;

public:
  using TColorValue = typename TTraits::TColorValue;

  using TInherited::TInherited;

  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  String GetDefaultStringValue() override;

  // The first object's swatch; the text goes right of it. No swatch, and the whole cell for the
  // text, when the first text is empty.
  void DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                 const TRef<IPaintObjectSet>& APaintObjectSet, TIGXRect& ARect, Boolean& ADefaultDraw) override;
  void GetEditRectangle(TIGXRect& ARect) override;
  // Raises the height to the text's and the width to the swatch and the text.
  void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                   const TRef<IPaintObjectSet>& APaintObjectSet, TIGXSize& ASize) override;
  // The row's swatch and name; the default value in the other font.
  void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                     const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect, Boolean ASelected) override;

  // The swatch of the colour the text names, at the left of ARect.
  virtual void PaintColorBox(const TRef<IGXGraphics>& AGraphics, const String& AValue, const TIGXRect& ARect,
                             typename TTraits::TBorderArgument ABorder) = 0;

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  void MakeForm(TForm* AForm) override;
  void ShowValue(TForm* AForm) override;
  // The font of a list row: the default value stands out.
  TRef<IGXFont> ListFont(const TValue& AValue, const TRef<IPaintObjects>& APaintObjects);
  // The first selected object's colour; false with nothing selected.
  Boolean FirstColor(TColorValue& AColor);

private:
  // Where the text starts: the swatch and its margin, in row heights.
  static void SkipSwatch(TIGXRect& ARect) {
    ARect.X += ARect.Height * TTraits::SwatchRows;
    ARect.Width -= ARect.Height * TTraits::SwatchRows;
  }
};

} // namespace Tarvo
