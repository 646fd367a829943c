#include "design/editors/IdentifierEditors.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "platform/CharsetNames.h"
#include "platform/ShortCutTexts.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TFontCharsetPropertyEditor)
TARVO_IMPLEMENT_CLASS(TModalResultPropertyEditor)
TARVO_IMPLEMENT_CLASS(TShortCutPropertyEditor)

TRef<IStringArrayList> ValueTexts(const TRef<IValueArrayList>& AValues,
                                  const std::function<String(const TValue&)>& AText) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : AValues) result->Add(AText(value));
  return result;
}

TRef<IStringArrayList> NameList(void (*AGetValues)(const TGetStrProc&)) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  AGetValues([&](const String& AName) { result->Add(AName); });
  return result;
}

// ---- Charsets ----

TRef<IStringArrayList> TFontCharsetPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return ValueTexts(GetInstanceValues(AObjectsList), [](const TValue& AValue) {
    String name;
    return CharsetToIdent(Integer(AValue.AsOrdinal()), name) ? name : AValue.ToString();
  });
}

void TFontCharsetPropertyEditor::SetStringValue(const String& AValue) {
  Integer charset = 0;
  if (IdentToCharset(AValue, charset)) SetInstanceValues(TValue(charset));
  else TSinglePropertyEditor::SetStringValue(AValue);
}

TRef<IStringArrayList> TFontCharsetPropertyEditor::GetStringListValues() { return NameList(GetCharsetValues); }

// ---- Modal results ----

TRef<IStringArrayList> TModalResultPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return ValueTexts(GetInstanceValues(AObjectsList), [](const TValue& AValue) {
    const Int64 result = AValue.AsOrdinal();
    return result >= 0 && std::size_t(result) < ModalResults.size() ? String(ModalResults[result]) : AValue.ToString();
  });
}

void TModalResultPropertyEditor::SetStringValue(const String& AValue) {
  if (AValue.empty()) return SetInstanceValues(TValue(mrNone));
  for (std::size_t index = 0; index < ModalResults.size(); ++index)
    if (SameText(AValue, ModalResults[index])) return SetInstanceValues(TValue(Integer(index)));
  TSinglePropertyEditor::SetStringValue(AValue);
}

TRef<IStringArrayList> TModalResultPropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const char* name : ModalResults) result->Add(name);
  return result;
}

// ---- Shortcuts ----

namespace {

constexpr std::array<TShortCut, 109> MakeShortCuts() {
  std::array<TShortCut, 109> table{};
  std::size_t next = 1;
  const auto add = [&](TShortCut AShortCut) { table[next++] = AShortCut; };
  for (TShortCut letter = 'A'; letter <= 'Z'; ++letter) add(scCtrl | letter);
  for (TShortCut letter = 'A'; letter <= 'Z'; ++letter) add(scCtrl | scAlt | letter);
  constexpr TShortCut F1 = 0x70, Ins = 0x2D, Del = 0x2E, BkSp = 0x08;
  for (TShortCut modifiers : {TShortCut(0), scCtrl, scShift, TShortCut(scShift | scCtrl)})
    for (TShortCut key = F1; key < F1 + 12; ++key) add(modifiers | key);
  for (TShortCut key : {Ins, Del})
    for (TShortCut modifiers : {TShortCut(0), scShift, scCtrl}) add(modifiers | key);
  add(scAlt | BkSp);
  add(scShift | scAlt | BkSp);
  return table;
}

constexpr std::array<TShortCut, 109> ShortCutTable = MakeShortCuts();
// Filled to the last entry, and no further (an entry past the end would not compile).
static_assert(ShortCutTable.back() == (scShift | scAlt | 0x08));

} // namespace

const std::array<TShortCut, 109> ShortCuts = ShortCutTable;

TRef<IStringArrayList> TShortCutPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return ValueTexts(GetInstanceValues(AObjectsList), [](const TValue& AValue) {
    const TShortCut shortCut = TShortCut(AValue.AsOrdinal());
    return shortCut == 0 ? String(NoShortCut) : ShortCutToText(shortCut);
  });
}

void TShortCutPropertyEditor::SetStringValue(const String& AValue) {
  TShortCut shortCut = 0;
  if (!AValue.empty() && !SameText(AValue, NoShortCut)) {
    shortCut = TextToShortCut(AValue);
    if (shortCut == 0) throw EDesignPropertyError("Invalid property value");
  }
  SetInstanceValues(TValue(Integer(shortCut)));
}

TRef<IStringArrayList> TShortCutPropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  result->Add(NoShortCut);
  for (std::size_t index = 1; index < ShortCuts.size(); ++index) result->Add(ShortCutToText(ShortCuts[index]));
  return result;
}

void RegisterIdentifierEditors() {
  RegisterPropertyEditor(&TypeInfo_TFontCharset, TFontCharsetPropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TModalResult, TModalResultPropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TShortCut, TShortCutPropertyEditor::ClassInfo());
}

} // namespace Tarvo
