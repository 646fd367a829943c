#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <cfloat>
#include <cmath>

#include "design/editors/DateTimeEditors.h"
#include "forms/DateCalendar.h"
#include "forms/RangedInplaceForm.h"
#include "rtl/DateUtils.h"
#include "tests/design/editors/TypedEditorTest.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo {

namespace {

using namespace Testing;

using RealEditorsTest = TypedEditorTest<TFloatPropertyEditor>;

// A Real reaches the double-precision bounds, every other float type the single-precision ones;
// the attributes come first.
TEST_F(RealEditorsTest, Ranges) {
  struct TRow {
    const char* Name;
    Double Min, Max;
  };
  const TRow rows[] = {{"Real", -DBL_MAX, 1.7976931348623157e+308},
                       {"Double", -3.4028234663852886e+38, 3.4028234663852886e+38},
                       {"Single", -3.4028234663852886e+38, 3.4028234663852886e+38},
                       {"Ranged", -1, 1}};
  ForEachRow(rows, [this](const TRow& ARow) {
    EXPECT_EQ(Editor(ARow.Name)->GetMinValue().AsExtended(), ARow.Min);
    EXPECT_EQ(Editor(ARow.Name)->GetMaxValue().AsExtended(), ARow.Max);
  });
}

// A Single shows single-precision digits; the default is compared exactly; the slider writes
// every selected object.
TEST_F(RealEditorsTest, TextDefaultAndSlider) {
  EXPECT_EQ(Editor("Single")->GetDisplayValue(nullptr), "0.1") << "not 0.100000001490116";
  FSecond.FDouble = 1e-300;
  EXPECT_EQ(Editor("Double")->GetIsDefaults(nullptr)->ToArray(), (std::vector<Boolean>{true, false}));
  QWidget grid;
  const TRef<TFloatPropertyEditor> ranged = Editor("Ranged");
  const auto form = QueryAs<IPropertyEditorInplace>(ranged)->GetInplaceForm(&grid, New<TPaintObjects>(), nullptr,
                                                                            TIGXRect(0, 0, 200, 16));
  static_cast<TRealInplaceFormUnit*>(form->GetForm())->TrackBar->setValue(TRealInplaceFormUnit::TrackBarMax);
  EXPECT_NEAR(FFirst.FDouble, 1, 1e-3) << "the bar's end, as the form places it";
  EXPECT_EQ(FSecond.FDouble, FFirst.FDouble);
}

// What a row writes, the same row reads back to the same value. Years run from 1 to 9999, so no
// date lies beyond; a time keeps whole milliseconds only; a Double shows 15 digits, so one that
// needs more (0.1 + 0.2) or the largest of all (which rounds up past the range) does not read back.
TEST_F(RealEditorsTest, TextsReadBack) {
  const auto nan = std::numeric_limits<Double>::quiet_NaN(), inf = std::numeric_limits<Double>::infinity();
  struct TRow {
    const char* Name;
    TRef<TSinglePropertyEditor> Editor;
    Double Value;
    const char* Text;
  };
  const TRef<TSinglePropertyEditor> time = Editor<TTimePropertyEditor>("Time"),
                                    date = Editor<TDatePropertyEditor>("Date");
  const TRow rows[] = {
      {"negative", Editor("Double"), -2.5, "-2.5"},
      {"tiny", Editor("Double"), 1e-300, "1E-300"},
      {"huge", Editor("Double"), 1.5e308, "1.5E308"},
      {"not a number", Editor("Double"), nan, "NAN"},
      {"negative infinity", Editor("Double"), -inf, "-INF"},
      {"single infinity", Editor("Single"), inf, "INF"},
      {"time with milliseconds", time, EncodeTime(12, 0, 0, 250), "12:00:00 (250 mS)"},
      {"the day's last millisecond", time, EncodeTime(23, 59, 59, 999), "23:59:59 (999 mS)"},
      {"the first date", date, EncodeDate(1, 1, 1), "0001-01-01"},
      {"before day 0", date, EncodeDate(1850, 6, 1), "1850-06-01"},
      {"the last date", date, EncodeDate(9999, 12, 31), "9999-12-31"},
      {"date and time before day 0", Editor<TDateTimePropertyEditor>("Stamp"),
       EncodeDateTime(1850, 6, 1, 6, 30, 15, 125), "1850-06-01 06:30:15 (125 mS)"},
  };
  ForEachRow(rows, [](const TRow& ARow) {
    const TRef<TSinglePropertyEditor>& editor = ARow.Editor;
    editor->SetInstanceValues(TValue(ARow.Value));
    const String text = editor->GetDisplayValue(nullptr);
    EXPECT_EQ(text, ARow.Text);
    editor->SetInstanceValues(TValue(0.0));
    editor->SetStringValue(text);
    const Extended read = editor->GetInstanceValues(nullptr)->GetItem(0).AsExtended();
    EXPECT_TRUE(read == Extended(ARow.Value) || (std::isnan(read) && std::isnan(ARow.Value))) << read;
  });
}

// Refused with the row's message; nothing is written and nobody told.
TEST_F(RealEditorsTest, BadDatesAndTimes) {
  const struct {
    const char* Name;
    TRef<TSinglePropertyEditor> Editor;
    const char *Text, *Message;
  } rows[] = {{"date", Editor<TDatePropertyEditor>("Date"), "2024-02-30", "'2024-02-30' is not a valid date"},
              {"time", Editor<TTimePropertyEditor>("Time"), "12:00 (1000 mS)", "'12:00 (1000 mS)' is not a valid time"},
              {"date and time", Editor<TDateTimePropertyEditor>("Stamp"), "2024-01-01 25:00",
               "'2024-01-01 25:00' is not a valid date and time"}};
  ForEachRow(rows, [](const auto& ARow) {
    ExpectError<EDesignPropertyError>([&] { ARow.Editor->SetStringValue(ARow.Text); }, ARow.Message);
  });
  EXPECT_EQ(FFirst.FDate + FFirst.FTime + FFirst.FStamp, 0);
  EXPECT_TRUE(FLog.empty());
}

// The parts of a date: a day's maximum follows the month; a part written over two objects
// keeps each object's own date.
TEST_F(RealEditorsTest, PartsWriteEachObjectsOwnDate) {
  FFirst.FStamp = EncodeDateTime(2024, 2, 10, 8, 0, 0, 0);
  FSecond.FStamp = EncodeDateTime(2023, 2, 10, 9, 0, 0, 0);
  const TRef<TDateTimePropertyEditor> stamp = Editor<TDateTimePropertyEditor>("Stamp"); // outlives its parts
  const TRef<IPropertyEditors> parts = stamp->GetPropertyEditors();
  // A list of editors answers its own interface and is still an untyped list underneath.
  EXPECT_TRUE(Supports<IList>(parts) && Supports<IPropertyEditors>(QueryAs<IList>(parts)));
  std::vector<String> names;
  for (const TRef<IPropertyEditor>& part : parts) names.push_back(part->GetName());
  EXPECT_EQ(names, (std::vector<String>{"Year", "Month", "Day", "Hour", "Minute", "Second", "Millisecond"}));
  const auto day = QueryAs<IPropertyRange>(parts->GetItem(2));
  EXPECT_EQ(day->GetMaxValue().AsInteger(), 29);
  FFirst.FStamp = EncodeDate(2023, 2, 1);
  EXPECT_EQ(day->GetMaxValue().AsInteger(), 28);
  FFirst.FStamp = EncodeDateTime(2024, 2, 10, 8, 0, 0, 0);
  FLog.clear();
  parts->GetItem(2)->SetStringValue("29");
  EXPECT_EQ(FFirst.FStamp, EncodeDateTime(2024, 2, 29, 8, 0, 0, 0));
  EXPECT_EQ(FSecond.FStamp, EncodeDateTime(2023, 2, 28, 9, 0, 0, 0)) << "kept inside its own month";
  EXPECT_EQ(FLog.front(), "BeginModify");
  EXPECT_EQ(FLog.back(), "EndModify");
}

// The calendar in the host's place: Escape writes nothing, a double click on a heading nothing, on
// a date cell the date; each closes the place but the heading's click.
class TCalendarPlace : public TImplements<TInterfaced, IPropertyEditorHost> {
public:
  QWidget* GetParentControl() override { return &FWidget; }
  TIGXRect GetBounds() override { return TIGXRect(0, 0, 300, 220); }
  void CloseHosted() override { ++FClosed; }
  QWidget FWidget;
  Integer FClosed = 0;
};

void Press(QWidget* AWidget, int AKey) {
  QKeyEvent press(QEvent::KeyPress, AKey, Qt::NoModifier);
  QApplication::sendEvent(AWidget, &press);
}

void DoubleClick(QWidget* AWidget, QPoint APoint) {
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                  QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, APoint, AWidget->mapToGlobal(APoint), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(AWidget, &event);
  }
}

TEST_F(RealEditorsTest, TheCalendar) {
  FFirst.FDate = FSecond.FDate = EncodeDate(2024, 5, 15);
  const auto editor = Editor<TDatePropertyEditor>("Date");
  const auto place = New<TCalendarPlace>();
  editor->ShowHosted(place);
  EXPECT_EQ(editor->GetCalendar()->selectedDate(), QDate(2024, 5, 15));
  Press(editor->GetCalendar()->findChild<QAbstractItemView*>(), Qt::Key_Escape);
  EXPECT_EQ(place->FClosed, 1);
  EXPECT_EQ(FFirst.FDate, EncodeDate(2024, 5, 15));

  editor->ShowHosted(place);
  auto* table = editor->GetCalendar()->findChild<QAbstractItemView*>();
  DoubleClick(table->viewport(), table->visualRect(table->model()->index(0, 3)).center());
  EXPECT_EQ(place->FClosed, 1) << "the weekday heading";
  EXPECT_EQ(FFirst.FDate, EncodeDate(2024, 5, 15));
  // Row 3 of the table holds dates of the shown month only.
  const QModelIndex cell = table->model()->index(3, 3);
  DoubleClick(table->viewport(), table->visualRect(cell).center());
  EXPECT_EQ(place->FClosed, 2);
  EXPECT_EQ(FSecond.FDate, EncodeDate(2024, 5, Word(table->model()->data(cell).toInt())));
  editor->ShowHosted(place);
  editor->GetCalendar()->setSelectedDate(QDate(2024, 5, 20));
  Press(editor->GetCalendar()->findChild<QAbstractItemView*>(), Qt::Key_Return);
  EXPECT_EQ(place->FClosed, 3);
  EXPECT_EQ(FFirst.FDate, EncodeDate(2024, 5, 20));
}

} // namespace
} // namespace Tarvo
