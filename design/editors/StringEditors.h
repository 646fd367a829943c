#pragma once
// The editors of text: the general string row with its identifier rule, the multi-line dialog,
// component names, wide strings, input method and font names with their lists, and file names
// picked in an open dialog.

#include <QFont>
#include <QImage>

#include <unordered_map>

#include "design/SinglePropertyEditor.h"
#include "design/paint/EditorPaint.h"

namespace Tarvo {

class TStrings;

class TARVO_API TStringPropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TStringPropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  // True when the member carries AutoUpdateAttribute: the row writes as the user types.
  Boolean GetAutoUpdate() override;
  // Under IdentifierStringAttribute the text is trimmed, its blanks, hyphens and tabs become
  // underscores, and what is then no identifier is refused with EDesignPropertyError, before
  // any object is written.
  void SetInstanceValues(const TValue& AValue) override;
  // A stored specifier's answer where the object has one, else the exact text against the
  // default's.
  TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) override;
};

// Text of many lines, edited in the strings dialog.
class TARVO_API TMultiLineStringPropertyEditor : public TImplements<TStringPropertyEditor, IPropertyEditorDialog> {
  TARVO_CLASS(TMultiLineStringPropertyEditor, TImplements<TStringPropertyEditor, IPropertyEditorDialog>)
public:
  using TImplements::TImplements;
  // Shows the lines under ACaption; true when the user accepted, with ALines edited.
  virtual Boolean ExecuteForm(const String& ACaption, TStrings& ALines);
  // Edits the first object's text; an accepted dialog writes every object, a cancelled one
  // changes nothing.
  void Execute(QWidget* AOwner) override;
};

// A component's name: it may not be blank. Unlike a string row it has no identifier rule here and
// never writes as the user types.
class TARVO_API TNamePropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TNamePropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  Boolean GetAutoUpdate() override { return false; }
  // The text is written as given, blanks around it included; only the test trims it.
  void SetInstanceValues(const TValue& AValue) override;
};

// Wide strings take any text, without the rules of a string row.
class TARVO_API TWideStringPropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TWideStringPropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
};

class TARVO_API TImeNamePropertyEditor : public TImplements<TStringPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TImeNamePropertyEditor, TImplements<TStringPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  // The platform's input methods; an empty list where it names none.
  TRef<IStringArrayList> GetStringListValues() override;
};

// The list of the machine's font families, each drawn as its name and "(ABC)" in the font itself.
class TARVO_API TFontNamePropertyEditor
    : public TImplements<TStringPropertyEditor, IPropertyEditorDropDownStringList, IPropertyEditorListDraw> {
  TARVO_CLASS(TFontNamePropertyEditor,
              TImplements<TStringPropertyEditor, IPropertyEditorDropDownStringList, IPropertyEditorListDraw>)
public:
  using TImplements::TImplements;
  TRef<IStringArrayList> GetStringListValues() override;
  // Each font is measured once for the editor's life: later calls take the cached height,
  // whatever height they bring.
  void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                   const TRef<IPaintObjectSet>& APaintObjectSet, TIGXSize& ASize) override;
  // "Name - " in the row's font, then "(ABC)" in the font named.
  void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                     const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect, Boolean ASelected) override;

private:
  // The off-screen surface the list rows are drawn on, and the font of its canvas.
  QImage FBitmap;
  QFont FCanvasFont;
  // Row heights by font name.
  std::unordered_map<String, Integer> FFontHeights;
};

} // namespace Tarvo
