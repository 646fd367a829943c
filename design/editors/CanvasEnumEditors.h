#pragma once
// Enumerations whose values are drawn: a sample square beside each name, in the value cell and in
// the list, and (for a published member) a strip of sample buttons in place. Brush styles show a
// filled box, pen styles an outline drawn with the pen.

#include "design/editors/EnumButtonsEditor.h"
#include "design/editors/EnumEditors.h"
#include "runtime/NamedTypes.h"

namespace Tarvo {

class TARVO_API TCanvasEnumerationPropertyEditor
    : public TImplements<TEnumPropertyEditor, IPropertyEditorListDraw, IPropertyEditorDraw> {
  TARVO_CLASS(TCanvasEnumerationPropertyEditor,
              TImplements<TEnumPropertyEditor, IPropertyEditorListDraw, IPropertyEditorDraw>)
public:
  // The smallest list row: a sample of 16 and its margins.
  static constexpr Integer MinListRowHeight = 18;

  using TImplements::TImplements;

  // Draws the sample of the value named AName into the square from the canvas's origin whose side
  // is ARect's height less 2. Nothing here: the subclasses know their samples.
  virtual void DrawItemGen(IGXGraphics&, const TIGXRect&, const String&) {}

  // The first object's sample 1 in from the cell's corner; the text goes right of its square.
  void DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                 const TRef<IPaintObjectSet>& APaintObjectSet, TIGXRect& ARect, Boolean& ADefaultDraw) override;
  // Leaves a square as high as the cell for the sample.
  void GetEditRectangle(TIGXRect& ARect) override;
  void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                   const TRef<IPaintObjectSet>& APaintObjectSet, TIGXSize& ASize) override;
  void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                     const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect, Boolean ASelected) override;

protected:
  // FBitmap as the sample of AName for a row of AHeight.
  const TRef<IGXBitmap>& PaintSample(const String& AName, Single AHeight);

  TRef<IGXBitmap> FBitmap;
};

class TARVO_API TCanvasInplaceEnumerationPropertyEditor : public TEnumButtonsEditor<TCanvasEnumerationPropertyEditor> {
  TARVO_CLASS(TCanvasInplaceEnumerationPropertyEditor, TEnumButtonsEditor<TCanvasEnumerationPropertyEditor>)
public:
  using TEnumButtonsEditor::TEnumButtonsEditor;

protected:
  TRef<IStringArrayList> ButtonNames() override { return GetStringListValues(); }
  TRef<IGXBitmap> ButtonPicture(const String& AName) override;
};

class TARVO_API TBrushStylePropertyEditor : public TCanvasInplaceEnumerationPropertyEditor {
  TARVO_CLASS(TBrushStylePropertyEditor, TCanvasInplaceEnumerationPropertyEditor)
public:
  using TCanvasInplaceEnumerationPropertyEditor::TCanvasInplaceEnumerationPropertyEditor;
  void DrawItemGen(IGXGraphics& ACanvas, const TIGXRect& ARect, const String& AName) override;
  // A box outlined in the window text colour, filled with the style; a clear brush leaves it empty.
  void DrawItem(IGXGraphics& ACanvas, const TIGXRect& ARect, TBrushStyle AValue);
};

class TARVO_API TPenStylePropertyEditor : public TCanvasInplaceEnumerationPropertyEditor {
  TARVO_CLASS(TPenStylePropertyEditor, TCanvasInplaceEnumerationPropertyEditor)
public:
  using TCanvasInplaceEnumerationPropertyEditor::TCanvasInplaceEnumerationPropertyEditor;
  void DrawItemGen(IGXGraphics& ACanvas, const TIGXRect& ARect, const String& AName) override;
  // A pale frame, and over it the same outline in the window text colour with the style.
  void DrawItem(IGXGraphics& ACanvas, const TIGXRect& ARect, TPenStyle AValue);
};

// Compiled once, with the editors.
extern template class TInplaceFormEditor<TCanvasEnumerationPropertyEditor, TEnumCanvasInplaceForm>;
extern template class TEnumButtonsEditor<TCanvasEnumerationPropertyEditor>;

} // namespace Tarvo
