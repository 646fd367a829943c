#pragma once
// Cursors by name, each drawn beside its name: in the value cell scaled to 16 by 16, in the list at
// its natural size. A published member also gets a strip of cursor buttons in place.

#include "design/editors/EnumButtonsEditor.h"
#include "design/editors/OrdinalEditors.h"
#include "design/paint/EditorPaint.h"

namespace Tarvo {

class TARVO_API TCursorPropertyEditor
    : public TImplements<TEnumButtonsEditor<TBasicIntegerPropertyEditor>, IPropertyEditorListDraw,
                         IPropertyEditorDropDownStringList, IPropertyEditorDraw> {
  TARVO_CLASS(TCursorPropertyEditor, TImplements<TEnumButtonsEditor<TBasicIntegerPropertyEditor>, IPropertyEditorListDraw,
                                                 IPropertyEditorDropDownStringList, IPropertyEditorDraw>)
public:
  // The sample's size in the value cell.
  static constexpr Integer SampleSize = 16;

  using TImplements::TImplements;

  // The cursor's name, else its number.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  String GetDefaultStringValue() override;
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;

  // The first object's cursor on white in a pale frame, scaled to the sample's size at the cell's
  // top left; nothing for a number no cursor has. The text goes right of the sample.
  void DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                 const TRef<IPaintObjectSet>& APaintObjectSet, TIGXRect& ARect, Boolean& ADefaultDraw) override;
  void GetEditRectangle(TIGXRect& ARect) override;
  void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                   const TRef<IPaintObjectSet>& APaintObjectSet, TIGXSize& ASize) override;
  // The row's cursor at its natural size on the row's background, 2 in from the corner, and its name.
  void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                     const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect, Boolean ASelected) override;

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  TRef<IStringArrayList> ButtonNames() override { return GetStringListValues(); }
  TRef<IGXBitmap> ButtonPicture(const String& AName) override;

private:
  // Draws the cursor into FBitmap over ABackground, framed or not; false, the bitmap left clear,
  // for a number no cursor has.
  Boolean PaintCursor(Integer ACursor, TAlphaColor ABackground, Boolean AFramed);
  // The cursor a list entry names, by name or by number; crNone, which has no picture, when it names
  // none.
  static Integer EntryCursor(const String& AText);

  TRef<IGXBitmap> FBitmap;
  Integer FImageWidth = 0;
  Integer FImageHeight = 0;
};

// Compiled once, with the editor.
extern template class TInplaceFormEditor<TBasicIntegerPropertyEditor, TEnumCanvasInplaceForm>;
extern template class TEnumButtonsEditor<TBasicIntegerPropertyEditor>;

} // namespace Tarvo
