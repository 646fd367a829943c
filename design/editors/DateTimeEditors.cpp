#include "design/editors/DateTimeEditors.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "forms/DateCalendar.h"
#include "rtl/DateUtils.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TNestedDateTimePropertyEditor)
TARVO_IMPLEMENT_CLASS(TDateTimeTextPropertyEditor)
TARVO_IMPLEMENT_CLASS(TDatePropertyEditor)
TARVO_IMPLEMENT_CLASS(TTimePropertyEditor)
TARVO_IMPLEMENT_CLASS(TDateTimePropertyEditor)

// ---- Parts ----

void TNestedDateTimePropertyEditor::Setup(String AName, Integer AMinValue, Integer AMaxValue, TGetter AGetter,
                                          TSetter ASetter) {
  FName = std::move(AName);
  FMinValue = AMinValue;
  FMaxValue = AMaxValue;
  FGetter = std::move(AGetter);
  FSetter = std::move(ASetter);
}

void TNestedDateTimePropertyEditor::Setup(String AName, Integer AMinValue, TGetter AGetMaxValue, TGetter AGetter,
                                          TSetter ASetter) {
  Setup(std::move(AName), AMinValue, 0, std::move(AGetter), std::move(ASetter));
  FGetMaxValue = std::move(AGetMaxValue);
}

TSinglePropertyEditor& TNestedDateTimePropertyEditor::Parent() {
  return static_cast<TSinglePropertyEditor&>(*FParentEditor);
}

Boolean TNestedDateTimePropertyEditor::GetIsReadOnly() { return Parent().GetIsReadOnly(); }

Integer TNestedDateTimePropertyEditor::MaxFor(TDateTime AValue) {
  return FGetMaxValue ? FGetMaxValue(AValue) : FMaxValue;
}

TValue TNestedDateTimePropertyEditor::GetMaxValue() {
  const TRef<IValueArrayList> values = Parent().GetInstanceValues(nullptr);
  return TValue(MaxFor(values->GetCount() > 0 ? TDateTime(values->GetItem(0).AsExtended()) : 0));
}

TRef<IValueArrayList> TNestedDateTimePropertyEditor::GetInstanceValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IValueArrayList> result = New<TArrayList<TValue>>();
  for (const TValue& value : Parent().GetInstanceValues(AObjectsList))
    result->Add(value.IsEmpty() ? TValue() : TValue(FGetter(TDateTime(value.AsExtended()))));
  return result;
}

void TNestedDateTimePropertyEditor::SetInstanceValues(const TValue& AValue) {
  TSinglePropertyEditor& parent = Parent();
  const PTypeInfo type = parent.GetFirstMember()->GetTypeInfo()->GetHandle();
  const Int64 part = AValue.AsOrdinal();
  parent.BeginModify();
  try {
    for (TObject* object : FDesigner->GetSelection()) {
      const TRef<IValueArrayList> own =
          parent.GetInstanceValues(New<TObjectArrayList>()->Add(parent.GetValueForRootInstance(object)));
      if (own->GetCount() == 0 || own->GetItem(0).IsEmpty()) continue;
      const TDateTime old = TDateTime(own->GetItem(0).AsExtended());
      const Integer kept = Integer(std::clamp<Int64>(part, FMinValue, MaxFor(old)));
      parent.SetInstanceValue(object, TValue::From<TDateTime>(FSetter(old, kept), type));
    }
  } catch (...) {
    parent.EndModify();
    throw;
  }
  parent.EndModify();
  UpdateInplace();
}

TRef<IArrayList<Boolean>> TNestedDateTimePropertyEditor::GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) {
  return Parent().GetIsDefaults(AObjectsList);
}

namespace {

// A part of a date and time: its row's name, range and closures.
struct TDateTimePart {
  const char* Name;
  Integer MinValue, MaxValue; // MaxValue 0: the month's length
  Word (*Get)(TDateTime);
  TDateTime (*Set)(TDateTime, Word);
};

const TDateTimePart DateParts[] = {
    {"Year", 0, 65534, YearOf, RecodeYear},
    {"Month", 1, 12, MonthOf, RecodeMonth},
    {"Day", 1, 0, DayOf, RecodeDay},
};

const TDateTimePart TimeParts[] = {
    {"Hour", 0, 23, HourOf, RecodeHour},
    {"Minute", 0, 59, MinuteOf, RecodeMinute},
    {"Second", 0, 59, SecondOf, RecodeSecond},
    {"Millisecond", 0, 999, MilliSecondOf, RecodeMilliSecond},
};

// The time, then " (", the milliseconds and " mS)".
String TimeText(TDateTime AValue) { return TimeToStr(AValue) + " (" + IntToStr(MilliSecondOf(AValue)) + " mS)"; }

// Reads back what TimeText wrote: the text before the last "(" by AParse, then the number
// between it and the last "mS" as the milliseconds. Text without "(" is parsed whole.
Boolean ParseSplit(const String& AText, Boolean (*AParse)(std::string_view, TDateTime&), TDateTime& AResult) {
  const std::size_t open = AText.rfind('(');
  if (open == String::npos) return AParse(AText, AResult);
  if (!AParse(std::string_view(AText).substr(0, open), AResult)) return false;
  const std::size_t unit = AText.rfind("mS");
  const std::size_t end = unit == String::npos || unit < open ? AText.size() : unit;
  Integer milliseconds;
  if (!TryStrToInt(Trim(std::string_view(AText).substr(open + 1, end - open - 1)), milliseconds) || milliseconds < 0 ||
      milliseconds > 999)
    return false;
  AResult = RecodeMilliSecond(AResult, Word(milliseconds));
  return true;
}

Boolean ParseDate(std::string_view AText, TDateTime& AResult) { return TryStrToDate(AText, AResult); }
Boolean ParseTime(std::string_view AText, TDateTime& AResult) { return TryStrToTime(AText, AResult); }
Boolean ParseDateTime(std::string_view AText, TDateTime& AResult) { return TryStrToDateTime(AText, AResult); }

} // namespace

// ---- Text ----

TRef<IStringArrayList> TDateTimeTextPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) {
    const TDateTime dateTime = TDateTime(value.AsExtended());
    if (!HasTime()) result->Add(DateToStr(dateTime));
    else if (!HasDate()) result->Add(TimeText(dateTime));
    else result->Add(DateToStr(dateTime) + " " + TimeText(dateTime));
  }
  return result;
}

void TDateTimeTextPropertyEditor::SetStringValue(const String& AValue) {
  TDateTime dateTime = 0;
  if (!Parse(AValue, dateTime)) throw EDesignPropertyError(Format(InvalidText(), {AValue}));
  WriteDateTime(dateTime);
}

void TDateTimeTextPropertyEditor::WriteDateTime(TDateTime ADateTime) {
  SetInstanceValues(TValue::From<TDateTime>(ADateTime, GetFirstMember()->GetTypeInfo()->GetHandle()));
}

TRef<IPropertyEditors> TDateTimeTextPropertyEditor::GetPropertyEditors() {
  const TRef<TPropertyEditors> result = New<TPropertyEditors>();
  const auto add = [&](const TDateTimePart& APart) {
    TMemberEditor* made = TMemberEditorClass(TNestedDateTimePropertyEditor::ClassInfo())
                              .Create(nullptr, this, FDesigner, GetFirstMember(), String(APart.Name), GetFirstMember());
    const TRef<TNestedDateTimePropertyEditor> editor(static_cast<TNestedDateTimePropertyEditor*>(made));
    const auto get = [read = APart.Get](TDateTime AValue) { return Integer(read(AValue)); };
    const auto set = [write = APart.Set](TDateTime AValue, Integer APart) { return write(AValue, Word(APart)); };
    if (APart.MaxValue == 0)
      editor->Setup(
          APart.Name, APart.MinValue, [](TDateTime AValue) { return Integer(DaysInMonth(AValue)); }, get, set);
    else editor->Setup(APart.Name, APart.MinValue, APart.MaxValue, get, set);
    result->Add(editor);
  };
  if (HasDate())
    for (const TDateTimePart& part : DateParts) add(part);
  if (HasTime())
    for (const TDateTimePart& part : TimeParts) add(part);
  return result;
}

// ---- The three rows ----

Boolean TDatePropertyEditor::Parse(const String& AText, TDateTime& AResult) { return ParseDate(AText, AResult); }

Boolean TTimePropertyEditor::Parse(const String& AText, TDateTime& AResult) {
  return ParseSplit(AText, ParseTime, AResult);
}

Boolean TDateTimePropertyEditor::Parse(const String& AText, TDateTime& AResult) {
  return ParseSplit(AText, ParseDateTime, AResult);
}

// ---- The calendar ----

TDatePropertyEditor::~TDatePropertyEditor() { delete FControl.data(); }

void TDatePropertyEditor::ShowHosted(const TRef<IPropertyEditorHost>& AHost) {
  CloseCalendar();
  FHost = AHost;
  FControl = new TDateCalendar(AHost->GetParentControl());
  const TIGXRect bounds = AHost->GetBounds();
  FControl->setGeometry(QRect(int(bounds.X), int(bounds.Y), int(bounds.Width), int(bounds.Height)));
  const TRef<IValueArrayList> values = GetInstanceValues(nullptr);
  if (values->GetCount() > 0 && !values->GetItem(0).IsEmpty()) {
    Word year, month, day;
    DecodeDate(TDateTime(values->GetItem(0).AsExtended()), year, month, day);
    FControl->setSelectedDate(QDate(year, month, day));
  }
  FControl->OnAccept = [this](QDate ADate) {
    WriteDateTime(EncodeDate(Word(ADate.year()), Word(ADate.month()), Word(ADate.day())));
    CloseCalendar();
  };
  FControl->OnCancel = [this] { CloseCalendar(); };
  FControl->show();
  FControl->setFocus();
}

void TDatePropertyEditor::CloseCalendar() {
  if (FControl) {
    // The calendar may be reporting the key or click that closes it: it goes when that is done.
    FControl->OnAccept = nullptr;
    FControl->OnCancel = nullptr;
    FControl->hide();
    FControl->deleteLater();
    FControl = nullptr;
  }
  if (const TRef<IPropertyEditorHost> host = std::exchange(FHost, nullptr)) host->CloseHosted();
}

// ---- Start-up ----

void RegisterDateTimeEditors() {
  RegisterPropertyEditor(&TypeInfo_TDate, TDatePropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TTime, TTimePropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TDateTime, TDateTimePropertyEditor::ClassInfo());
}

} // namespace Tarvo
