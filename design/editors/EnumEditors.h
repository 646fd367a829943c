#pragma once
// Enumerations offered as a list of their names, and Booleans as a check box in the value cell
// that a click toggles.

#include "design/editors/OrdinalEditors.h"
#include "design/paint/EditorPaint.h"

namespace Tarvo {

class TARVO_API TEnumPropertyEditor : public TImplements<TOrdinalPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TEnumPropertyEditor, TImplements<TOrdinalPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  // The names in declaration order; sorted under PropertySortListDesignAttribute.
  TRef<IStringArrayList> GetStringListValues() override;
};

// The box is 12 by 12 pixels inside a 16-pixel column at the left of the cell.
class TARVO_API TBooleanPropertyEditor
    : public TImplements<TEnumPropertyEditor, IPropertyEditorMouse, IPropertyEditorListDraw, IPropertyEditorDraw> {
  TARVO_CLASS(TBooleanPropertyEditor,
              TImplements<TEnumPropertyEditor, IPropertyEditorMouse, IPropertyEditorListDraw, IPropertyEditorDraw>)
public:
  static constexpr Integer BoxColumn = 16;

  using TImplements::TImplements;

  // Ticked or empty when the objects agree, grayed when they differ; the text goes right of it.
  void DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                 const TRef<IPaintObjectSet>& APaintObjectSet, TIGXRect& ARect, Boolean& ADefaultDraw) override;
  void GetEditRectangle(TIGXRect& ARect) override;
  // The list rows: at least 16 high, as wide as high; the default value in the other font.
  void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                   const TRef<IPaintObjectSet>& APaintObjectSet, TIGXSize& ASize) override;
  void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                     const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect, Boolean ASelected) override;
  void ValueMouseDown(TMouseButton, TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&,
                      Boolean&) override {}
  void ValueMouseMove(TShiftState, Integer, Integer, const TRef<IMemberUIUpdate>&, const TIGXRect&, Boolean&) override {
  }
  // A release on the box, with any button, sets every object to the negation of the first one's
  // value and has the grid read the rows again.
  void ValueMouseUp(TMouseButton AButton, TShiftState AShift, Integer X, Integer Y,
                    const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect, Boolean& AHandled) override;

private:
  // The font of a list row: the default value stands out.
  TRef<IGXFont> ListFont(const TValue& AValue, const TRef<IPaintObjects>& APaintObjects);
};

} // namespace Tarvo
