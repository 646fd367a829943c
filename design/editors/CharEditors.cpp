#include "design/editors/CharEditors.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TAnsiCharPropertyEditor)
TARVO_IMPLEMENT_CLASS(TWideCharPropertyEditor)

namespace {

// What tells the two character editors apart.
struct TCharKind {
  Integer FirstPrintable;
  TValue (*Make)(Integer ACode);
};

const TCharKind AnsiChars{33, [](Integer ACode) { return TValue::From(AnsiChar(ACode)); }};
const TCharKind WideChars{32, [](Integer ACode) { return TValue::From(WideChar(ACode)); }};

constexpr Integer LastPrintable = 127;

Integer CodeOf(const TValue& AValue) { return Integer(AValue.AsOrdinal()); }

TRef<IStringArrayList> CharTexts(const TRef<IValueArrayList>& AValues, const TCharKind& AKind, Boolean AQuoted) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : AValues) {
    const Integer code = CodeOf(value);
    if (code < AKind.FirstPrintable || code > LastPrintable) result->Add(Format("#%d", {code}));
    else result->Add(AQuoted ? "'" + String(1, char(code)) + "'" : String(1, char(code)));
  }
  return result;
}

// A code after "#" (decimal), or a whole text in "$" or "0x" hexadecimal; a plain number is not
// taken, so that a lone digit can stand for itself.
bool TryParseCode(const String& AText, Integer& ACode) {
  if (AText[0] == '#') return TryStrToInt(std::string_view(AText).substr(1), ACode);
  if (AText[0] == '$' || LowerCase(AText).starts_with("0x")) return TryStrToInt(AText, ACode);
  return false;
}

// The code the text means, checked against the member's type.
Integer ReadCode(const String& AText, const TRef<IMemberInfo>& AMember) {
  Integer code = 0;
  WideChar single = 0;
  if (AText.empty()) code = 0;
  else if (Utf8ToWideChar(AText, single)) code = single;
  else if (!TryParseCode(AText, code)) throw EDesignPropertyError("Invalid property value");
  const PTypeInfo type = AMember->GetTypeInfo()->GetHandle();
  if (code < type->MinValue || code > type->MaxValue)
    throw EDesignPropertyError(Format("Value must be between %d and %d", {type->MinValue, type->MaxValue}));
  return code;
}

TValue ClampCode(const TValue& AValue, const TValue& AMin, const TValue& AMax, const TCharKind& AKind) {
  Integer code = CodeOf(AValue);
  if (code > CodeOf(AMax)) code = CodeOf(AMax);
  if (code < CodeOf(AMin)) code = CodeOf(AMin);
  return AKind.Make(code);
}

} // namespace

TValue TAnsiCharPropertyEditor::ApplyConstraints(const TValue& AValue) {
  return ClampCode(AValue, GetMinValue(), GetMaxValue(), AnsiChars);
}
TRef<IStringArrayList> TAnsiCharPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return CharTexts(GetInstanceValues(AObjectsList), AnsiChars, false);
}
void TAnsiCharPropertyEditor::SetStringValue(const String& AValue) {
  SetInstanceValues(AnsiChars.Make(ReadCode(AValue, GetFirstMember())));
}
TValue TAnsiCharPropertyEditor::GetDefaultMinValue() { return AnsiChars.Make(0); }
TValue TAnsiCharPropertyEditor::GetDefaultMaxValue() { return AnsiChars.Make(255); }

TValue TWideCharPropertyEditor::ApplyConstraints(const TValue& AValue) {
  return ClampCode(AValue, GetMinValue(), GetMaxValue(), WideChars);
}
TRef<IStringArrayList> TWideCharPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return CharTexts(GetInstanceValues(AObjectsList), WideChars, false);
}
TRef<IStringArrayList> TWideCharPropertyEditor::GetDisplayValues(const TRef<IObjectArrayList>& AObjectsList) {
  return CharTexts(GetInstanceValues(AObjectsList), WideChars, true);
}
void TWideCharPropertyEditor::SetStringValue(const String& AValue) {
  SetInstanceValues(WideChars.Make(ReadCode(AValue, GetFirstMember())));
}
TValue TWideCharPropertyEditor::GetDefaultMinValue() { return WideChars.Make(0); }
TValue TWideCharPropertyEditor::GetDefaultMaxValue() { return WideChars.Make(65535); }

void RegisterCharEditors() {
  DefaultEditorClasses.ByTypeKind[tkChar] = TAnsiCharPropertyEditor::ClassInfo();
  DefaultEditorClasses.ByTypeKind[tkWChar] = TWideCharPropertyEditor::ClassInfo();
}

} // namespace Tarvo
