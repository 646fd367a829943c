#pragma once
// Numbers the user knows by name: a font charset, a modal result, a keyboard shortcut. Each shows
// its name, takes a name back, and offers the names in a list; a name it does not know is read
// as the base value editor reads text, so a plain number keeps working.

#include <array>
#include <functional>

#include "design/editors/OrdinalEditors.h"
#include "platform/NamedValues.h"
#include "runtime/NamedTypes.h"

namespace Tarvo {

// One text a value, in order, by AText.
TRef<IStringArrayList> ValueTexts(const TRef<IValueArrayList>& AValues,
                                  const std::function<String(const TValue&)>& AText);
// The names of a platform's table (GetColorValues, GetCursorValues, ...), in its order.
TRef<IStringArrayList> NameList(void (*AGetValues)(const TGetStrProc&));

class TARVO_API TFontCharsetPropertyEditor
    : public TImplements<TBasicIntegerPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TFontCharsetPropertyEditor, TImplements<TBasicIntegerPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  // The charset's name, else the number.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;
};

// The names of the modal results, a value's name at its index.
inline constexpr std::array<const char*, 15> ModalResults{
    "mrNone",  "mrOk",      "mrCancel", "mrAbort", "mrRetry", "mrIgnore",    "mrYes",     "mrNo",
    "mrClose", "mrHelp",    "mrTryAgain", "mrContinue", "mrAll", "mrNoToAll", "mrYesToAll"};

class TARVO_API TModalResultPropertyEditor
    : public TImplements<TBasicIntegerPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TModalResultPropertyEditor, TImplements<TBasicIntegerPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  // The table's name, else the number.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Empty text is mrNone: clearing the cell clears the result. Names match in any case.
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;
};

// The shortcuts offered in the list, in its order; 0 is no shortcut.
extern TARVO_API const std::array<TShortCut, 109> ShortCuts;

class TARVO_API TShortCutPropertyEditor
    : public TImplements<TOrdinalPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TShortCutPropertyEditor, TImplements<TOrdinalPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  static constexpr const char* NoShortCut = "(None)";

  using TImplements::TImplements;
  // "(None)" for 0, else the key text.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Empty text and "(None)" in any case clear the shortcut; a text that names no key is refused.
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;
};

} // namespace Tarvo
