#pragma once
// The editors of one character. A printable character shows as itself, any other as "#" and its
// code; a text of one character stands for itself, a longer one must be a code after "#"
// (decimal), "$" or "0x" (hexadecimal).

#include "design/editors/OrdinalEditors.h"

namespace Tarvo {

// One character of type C, held in values of that type.
template <class C> class TARVO_API TCharPropertyEditor : public TRangedOrdinalPropertyEditor {
public:
  using TRangedOrdinalPropertyEditor::TRangedOrdinalPropertyEditor;
  // Clamps by unsigned codes and keeps the character type.
  TValue ApplyConstraints(const TValue& AValue) override;
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Raises EDesignPropertyError for a text that is no character or code, or a code the member's
  // type cannot hold; nothing is written then.
  void SetStringValue(const String& AValue) override;
  TValue GetDefaultMinValue() override;
  TValue GetDefaultMaxValue() override;

protected:
  // The values' texts; with AQuoted a printable character stands between single quotes.
  TRef<IStringArrayList> CharTexts(const TRef<IObjectArrayList>& AObjectsList, Boolean AQuoted);
};

extern template class TCharPropertyEditor<AnsiChar>;
extern template class TCharPropertyEditor<WideChar>;

// An 8-bit character: codes 33 to 127 show as themselves, so a blank shows as "#32".
class TARVO_API TAnsiCharPropertyEditor : public TCharPropertyEditor<AnsiChar> {
  TARVO_CLASS(TAnsiCharPropertyEditor, TCharPropertyEditor<AnsiChar>)
public:
  using TCharPropertyEditor::TCharPropertyEditor;
};

// A UTF-16 character: codes 32 to 127 show as themselves, and between quotes in the value cell.
class TARVO_API TWideCharPropertyEditor : public TCharPropertyEditor<WideChar> {
  TARVO_CLASS(TWideCharPropertyEditor, TCharPropertyEditor<WideChar>)
public:
  using TCharPropertyEditor::TCharPropertyEditor;
  TRef<IStringArrayList> GetDisplayValues(const TRef<IObjectArrayList>& AObjectsList) override {
    return CharTexts(AObjectsList, true);
  }
};

} // namespace Tarvo
