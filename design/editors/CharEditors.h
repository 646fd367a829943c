#pragma once
// The editors of one character. A printable character shows as itself, any other as "#" and its
// code; a text of one character stands for itself, a longer one must be a code after "#"
// (decimal), "$" or "0x" (hexadecimal).

#include "design/editors/OrdinalEditors.h"

namespace Tarvo {

// An 8-bit character: codes 33 to 127 show as themselves, so a blank shows as "#32".
class TARVO_API TAnsiCharPropertyEditor : public TRangedOrdinalPropertyEditor {
  TARVO_CLASS(TAnsiCharPropertyEditor, TRangedOrdinalPropertyEditor)
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
};

// A UTF-16 character: codes 32 to 127 show as themselves, and between quotes in the value cell.
class TARVO_API TWideCharPropertyEditor : public TRangedOrdinalPropertyEditor {
  TARVO_CLASS(TWideCharPropertyEditor, TRangedOrdinalPropertyEditor)
public:
  using TRangedOrdinalPropertyEditor::TRangedOrdinalPropertyEditor;
  TValue ApplyConstraints(const TValue& AValue) override;
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  TRef<IStringArrayList> GetDisplayValues(const TRef<IObjectArrayList>& AObjectsList) override;
  void SetStringValue(const String& AValue) override;
  TValue GetDefaultMinValue() override;
  TValue GetDefaultMaxValue() override;
};

} // namespace Tarvo
