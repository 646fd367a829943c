#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "FormTestSupport.h"
#include <QMessageBox>

#include "forms/RangedInplaceForm.h"
#include "platform/ModalSeam.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using namespace Testing;

constexpr Int64 Int64Min = std::numeric_limits<Int64>::min();
constexpr Int64 Int64Max = std::numeric_limits<Int64>::max();

template <class T> TRef<IPropertyRange> Range(T AMin, T AMax) {
  return New<TPropertyRange>(TValue::From<T>(AMin), TValue::From<T>(AMax));
}

int PositionOf(Int64 AValue, Int64 AMin, Int64 AMax) {
  TNumericInplaceForm form;
  form.SetLimits(Range(AMin, AMax));
  form.SetValue(TValue::From<Int64>(AValue));
  return form.TrackBar->value();
}

// Bar positions of integer values: rounding, wide ranges in quarters, values outside and empty ranges.
TEST(NumericInplaceFormTest, PositionTable) {
  const struct {
    const char* Name;
    Int64 Value, Min, Max;
    int Position;
  } cases[] = {{"the middle", 500, 0, 1000, 2048},
               {"rounded to the nearest", 333, 0, 1000, 1364}, // 1363.97
               {"zero in a new form", 0, -100, 100, 2048},
               {"a half rounds to even, down", 1, 0, 8192, 0},
               {"a half rounds to even, up", 3, 0, 8192, 2},
               {"in quarters from a span of 100000 on", 250000, 0, 1000000, 1024},
               {"the middle of the full range", 0, Int64Min, Int64Max, 2048},
               {"the start of the full range", Int64Min, Int64Min, Int64Max, 0},
               {"the middle of the unsigned 32-bit range", Int64(1) << 31, 0, 4294967295, 2048},
               {"below the range", -5, 0, 1000, 0},
               {"above the range", 5000, 0, 1000, 4095},
               {"the last step stops one short of the end", 1000, 0, 1000, 4095},
               {"an empty range", 7, 5, 5, 0}};
  ForEachRow(cases, [](const auto& c) { EXPECT_EQ(PositionOf(c.Value, c.Min, c.Max), c.Position); });
  // Worked out in quarters, wide ranges land on multiples of four only.
  const struct {
    const char* Name;
    Int64 Min, Max;
  } wide[] = {
      {"from zero", 0, 100000}, {"across zero", -3, 99997}, {"long", -50000, 12345678}, {"full", Int64Min, Int64Max}};
  ForEachRow(wide, [](const auto& ARange) {
    for (int i = 0; i < 200; ++i) {
      const Int64 value = Int64((long double)ARange.Min + ((long double)ARange.Max - ARange.Min) * i / 200.0L);
      EXPECT_EQ(PositionOf(value, ARange.Min, ARange.Max) % 4, 0) << value;
    }
  });
}

// A value from the editor fires nothing, nor moves the bar when already held; the user's fires.
TEST(NumericInplaceFormTest, OnlyTheUsersValueFires) {
  TNumericInplaceForm form;
  form.SetLimits(Range<Int64>(0, 1000));
  std::vector<Int64> reported;
  form.OnValueChange = [&](QWidget* ASender) {
    reported.push_back(static_cast<TNumericInplaceForm*>(ASender)->GetValue().AsInt64());
  };
  form.SetValue(TValue::From<Int64>(250));
  EXPECT_TRUE(reported.empty());
  form.TrackBar->setValue(3072);
  form.TrackBar->setValue(2050); // 500, a little to the right
  EXPECT_EQ(reported, (std::vector<Int64>{750, 500}));
  form.SetValue(TValue::From<Int64>(500));
  EXPECT_EQ(form.TrackBar->value(), 2050);
  form.SetValue(TValue::From<Int64>(501));
  EXPECT_EQ(form.TrackBar->value(), 2052);
  EXPECT_EQ(reported.size(), 2u);
}

// Pressing and releasing the bar, and focus in and out, enter and leave the editor.
TEST(NumericInplaceFormTest, HoldingTheBarEntersAndLeaves) {
  TNumericInplaceForm form;
  form.SetLimits(Range<Int64>(0, 10));
  std::vector<std::string> events;
  form.OnEditorEnter = [&](QWidget*) { events.push_back("enter"); };
  form.OnEditorLeave = [&](QWidget*) { events.push_back("leave"); };
  SendMouse(form.TrackBar, QEvent::MouseButtonPress, {1, 1});
  SendMouse(form.TrackBar, QEvent::MouseButtonRelease, {1, 1});
  QFocusEvent focusIn(QEvent::FocusIn), focusOut(QEvent::FocusOut);
  QApplication::sendEvent(form.TrackBar, &focusIn);
  QApplication::sendEvent(form.TrackBar, &focusOut);
  EXPECT_EQ(events, (std::vector<std::string>{"enter", "leave", "enter", "leave"}));
}

// A handler's error has nowhere to go from a window system event: the user is shown it.
TEST(NumericInplaceFormTest, AHandlersErrorIsShownToTheUser) {
  TNumericInplaceForm form;
  form.SetLimits(Range<Int64>(0, 10));
  form.OnValueChange = [](QWidget*) { throw EDesignPropertyError("Gain must stay below 5"); };
  QString shown;
  TModalHandlerScope answer([&](QDialog& ADialog) {
    shown = dynamic_cast<QMessageBox&>(ADialog).text();
    return int(QMessageBox::Ok);
  });
  form.TrackBar->setValue(4000);
  EXPECT_EQ(shown, QStringLiteral("Gain must stay below 5"));
}

// The bar's ends read back inside the full ranges of Int64 and Double.
TEST(RangedInplaceFormTest, TheBarsEndsStayInsideTheFullRanges) {
  TNumericInplaceForm numeric;
  numeric.SetLimits(Range(Int64Min, Int64Max));
  numeric.TrackBar->setValue(4095);
  EXPECT_GT(numeric.GetValue().AsInt64(), Int64Max / 4096 * 4093);
  numeric.TrackBar->setValue(0);
  EXPECT_EQ(numeric.GetValue().AsInt64(), Int64Min);

  TRealInplaceFormUnit real;
  const Double highest = std::numeric_limits<Double>::max();
  real.SetLimits(Range(-highest, highest));
  real.SetValue(TValue::From<Double>(0));
  EXPECT_EQ(real.TrackBar->value(), 2048);
  real.TrackBar->setValue(0);
  EXPECT_EQ(real.GetValue().AsExtended(), -highest);
  real.TrackBar->setValue(4095);
  EXPECT_TRUE(std::isfinite(double(real.GetValue().AsExtended())));
}

// Positions in whole quarters; a value the bar's position means already moves nothing.
TEST(RealInplaceFormTest, PlacesTheValueInQuartersAndReadsItBack) {
  TRealInplaceFormUnit form;
  form.SetLimits(Range<Double>(-1, 1));
  form.SetValue(TValue::From<Double>(0.1)); // 2252.8
  EXPECT_EQ(form.TrackBar->value(), 2252);
  int changes = 0;
  form.OnValueChange = [&](QWidget*) { ++changes; };
  form.TrackBar->setValue(1001); // not a quarter position
  EXPECT_EQ(changes, 1);
  EXPECT_DOUBLE_EQ(form.GetValue().AsExtended(), 1001 / 2048.0 - 1);
  form.SetValue(TValue::From<Double>(1001 / 2048.0 - 1));
  EXPECT_EQ(form.TrackBar->value(), 1001);
  EXPECT_EQ(changes, 1);
}

// As an editor does: the change writes the value, which comes back to every open form.
TEST(RealInplaceFormTest, TheValueComingBackDuringAChangeIsIgnored) {
  TRealInplaceFormUnit form;
  form.SetLimits(Range<Double>(0, 100));
  form.OnValueChange = [&](QWidget*) { form.SetValue(TValue::From<Double>(99)); };
  form.TrackBar->setValue(1000);
  EXPECT_EQ(form.TrackBar->value(), 1000);
  EXPECT_DOUBLE_EQ(form.GetValue().AsExtended(), 1000 / 4096.0 * 100);
  form.OnValueChange = nullptr;
  form.SetValue(TValue::From<Double>(25)); // unlocked again
  EXPECT_EQ(form.TrackBar->value(), 1024);
}

} // namespace
} // namespace Tarvo
