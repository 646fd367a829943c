#include "design/editors/CharEditors.h"

#include <limits>
#include <type_traits>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TAnsiCharPropertyEditor)
TARVO_IMPLEMENT_CLASS(TWideCharPropertyEditor)

namespace {

// An 8-bit character shows a blank by its code, a wide one as itself.
template <class C> constexpr Integer FirstPrintable = std::is_same_v<C, AnsiChar> ? 33 : 32;
constexpr Integer LastPrintable = 127;
template <class C> constexpr Integer LastCode = std::numeric_limits<std::make_unsigned_t<C>>::max();

template <class C> TValue CharValue(Integer ACode) { return TValue::From(C(ACode)); }
Integer CodeOf(const TValue& AValue) { return Integer(AValue.AsOrdinal()); }

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

} // namespace

template <class C> TValue TCharPropertyEditor<C>::ApplyConstraints(const TValue& AValue) {
  Integer code = CodeOf(AValue);
  if (code > CodeOf(GetMaxValue())) code = CodeOf(GetMaxValue());
  if (code < CodeOf(GetMinValue())) code = CodeOf(GetMinValue());
  return CharValue<C>(code);
}

template <class C>
TRef<IStringArrayList> TCharPropertyEditor<C>::CharTexts(const TRef<IObjectArrayList>& AObjectsList, Boolean AQuoted) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) {
    const Integer code = CodeOf(value);
    if (code < FirstPrintable<C> || code > LastPrintable) result->Add(Format("#%d", {code}));
    else result->Add(AQuoted ? "'" + String(1, char(code)) + "'" : String(1, char(code)));
  }
  return result;
}

template <class C>
TRef<IStringArrayList> TCharPropertyEditor<C>::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return CharTexts(AObjectsList, false);
}

template <class C> void TCharPropertyEditor<C>::SetStringValue(const String& AValue) {
  SetInstanceValues(CharValue<C>(ReadCode(AValue, GetFirstMember())));
}

template <class C> TValue TCharPropertyEditor<C>::GetDefaultMinValue() { return CharValue<C>(0); }
template <class C> TValue TCharPropertyEditor<C>::GetDefaultMaxValue() { return CharValue<C>(LastCode<C>); }

template class TCharPropertyEditor<AnsiChar>;
template class TCharPropertyEditor<WideChar>;

void RegisterCharEditors() {
  DefaultEditorClasses.ByTypeKind[tkChar] = TAnsiCharPropertyEditor::ClassInfo();
  DefaultEditorClasses.ByTypeKind[tkWChar] = TWideCharPropertyEditor::ClassInfo();
}

} // namespace Tarvo
