#pragma once
// Dates and times held as real numbers, edited as text and in parts. A date shows as DateToStr
// gives it, a time with its milliseconds after it (" (250 mS)"), a date and time as both; the
// parser reads back what they write. Each row expands into integer sub-rows for its parts, which
// write through the row to every selected object. A date row also shows a calendar in the place
// its host gives.

#include <QPointer>
#include <functional>

#include "design/editors/FloatEditors.h"
#include "design/editors/OrdinalEditors.h"
#include "design/paint/PropertyEditorHost.h"

namespace Tarvo {

class TDateCalendar;

// One part of a date and time (Year, Month, Day, Hour, Minute, Second, Millisecond) as a row
// under the date row that made it.
class TARVO_API TNestedDateTimePropertyEditor : public TCardinalPropertyEditor {
  TARVO_CLASS(TNestedDateTimePropertyEditor, TCardinalPropertyEditor)
public:
  using TGetter = std::function<Integer(TDateTime)>;
  using TSetter = std::function<TDateTime(TDateTime, Integer)>;
  using TCardinalPropertyEditor::TCardinalPropertyEditor;

  // The part's row with a fixed maximum, or with one that depends on the value (a month's days).
  void Setup(String AName, Integer AMinValue, Integer AMaxValue, TGetter AGetter, TSetter ASetter);
  void Setup(String AName, Integer AMinValue, TGetter AGetMaxValue, TGetter AGetter, TSetter ASetter);

  String GetName() override { return FName; }
  String GetDisplayName() override { return FName; }
  Boolean GetIsReadOnly() override;
  // The part of each of the parent's values, as 32-bit integers.
  TRef<IValueArrayList> GetInstanceValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Each object's own value with this part replaced, kept inside the part's range for that value,
  // written through the parent inside one modification bracket.
  void SetInstanceValues(const TValue& AValue) override;
  TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) override;
  TValue GetMinValue() override { return TValue(FMinValue); }
  TValue GetMaxValue() override;
  TValue GetSuggestedMinValue() override { return GetMinValue(); }
  TValue GetSuggestedMaxValue() override { return GetMaxValue(); }

private:
  TSinglePropertyEditor& Parent();
  Integer MaxFor(TDateTime AValue);

  String FName;
  Integer FMinValue = 0;
  Integer FMaxValue = 0;
  TGetter FGetMaxValue;
  TGetter FGetter;
  TSetter FSetter;
};

// What the three date and time rows share: the text of a value, its parser, the message for text
// that does not parse, and the parts it expands into.
class TARVO_API TDateTimeTextPropertyEditor : public TImplements<TBasicFloatPropertyEditor, ISubPropertyEditors> {
  TARVO_CLASS(TDateTimeTextPropertyEditor, TImplements<TBasicFloatPropertyEditor, ISubPropertyEditors>)
public:
  using TImplements::TImplements;
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Raises EDesignPropertyError with the row's message for text that does not parse; nothing is
  // written then.
  void SetStringValue(const String& AValue) override;
  TRef<IPropertyEditors> GetPropertyEditors() override;

protected:
  virtual Boolean HasDate() = 0;
  virtual Boolean HasTime() = 0;
  virtual Boolean Parse(const String& AText, TDateTime& AResult) = 0;
  // The message for text that does not parse, "%s" standing for the text.
  virtual String InvalidText() = 0;
  // Writes ADateTime as a value of the member's type.
  void WriteDateTime(TDateTime ADateTime);
};

class TARVO_API TDatePropertyEditor : public TImplements<TDateTimeTextPropertyEditor, IPropertyEditorHosted> {
  TARVO_CLASS(TDatePropertyEditor, TImplements<TDateTimeTextPropertyEditor, IPropertyEditorHosted>)
public:
  using TImplements::TImplements;
  ~TDatePropertyEditor() override;
  // The calendar on the first object's date (today where there is none).
  void ShowHosted(const TRef<IPropertyEditorHost>& AHost) override;
  TDateCalendar* GetCalendar() { return FControl; }

protected:
  Boolean HasDate() override { return true; }
  Boolean HasTime() override { return false; }
  Boolean Parse(const String& AText, TDateTime& AResult) override;
  String InvalidText() override { return "'%s' is not a valid date"; }

private:
  void CloseCalendar();

  QPointer<TDateCalendar> FControl;
  TRef<IPropertyEditorHost> FHost;
};

class TARVO_API TTimePropertyEditor : public TDateTimeTextPropertyEditor {
  TARVO_CLASS(TTimePropertyEditor, TDateTimeTextPropertyEditor)
public:
  using TDateTimeTextPropertyEditor::TDateTimeTextPropertyEditor;

protected:
  Boolean HasDate() override { return false; }
  Boolean HasTime() override { return true; }
  Boolean Parse(const String& AText, TDateTime& AResult) override;
  String InvalidText() override { return "'%s' is not a valid time"; }
};

class TARVO_API TDateTimePropertyEditor : public TDateTimeTextPropertyEditor {
  TARVO_CLASS(TDateTimePropertyEditor, TDateTimeTextPropertyEditor)
public:
  using TDateTimeTextPropertyEditor::TDateTimeTextPropertyEditor;

protected:
  Boolean HasDate() override { return true; }
  Boolean HasTime() override { return true; }
  Boolean Parse(const String& AText, TDateTime& AResult) override;
  String InvalidText() override { return "'%s' is not a valid date and time"; }
};

} // namespace Tarvo
