#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "FormTestSupport.h"
#include "forms/RangedInplaceForm.h"

namespace Tarvo {
namespace {

using namespace Testing;

constexpr Int64 Int64Min = std::numeric_limits<Int64>::min();
constexpr Int64 Int64Max = std::numeric_limits<Int64>::max();

TRef<IPropertyRange> Range(Int64 AMin, Int64 AMax) {
  return New<TPropertyRange>(TValue::From<Int64>(AMin), TValue::From<Int64>(AMax));
}

TRef<IPropertyRange> RealRange(Double AMin, Double AMax) {
  return New<TPropertyRange>(TValue::From<Double>(AMin), TValue::From<Double>(AMax));
}

int PositionOf(Int64 AValue, Int64 AMin, Int64 AMax) {
  TNumericInplaceForm form;
  form.SetLimits(Range(AMin, AMax));
  form.SetValue(TValue::From<Int64>(AValue));
  return form.TrackBar->value();
}

TEST(NumericInplaceFormTest, SizeAndBar) {
  TNumericInplaceForm form;
  form.show();
  EXPECT_EQ(form.height(), 30);
  EXPECT_EQ(form.TrackBar->geometry(), form.rect());
}

TEST(NumericInplaceFormTest, PositionTable) {
  const struct {
    Int64 Value, Min, Max;
    int Position;
  } cases[] = {
      {500, 0, 1000, 2048},
      {333, 0, 1000, 1364},        // 1363.97
      {0, -100, 100, 2048},        // a new form places even a value of 0
      {1, 0, 8192, 0},             // 0.5 rounds to even
      {3, 0, 8192, 2},             // 1.5 rounds to even
      {0, 0, 99999, 0},
      {250000, 0, 1000000, 1024},  // in quarters from a span of 100000 on
      {0, Int64Min, Int64Max, 2048},
      {Int64Min, Int64Min, Int64Max, 0},
      {Int64(1) << 31, 0, 4294967295, 2048},
      {-5, 0, 1000, 0},            // outside the range: the bar's ends
      {5000, 0, 1000, 4095},
      {1000, 0, 1000, 4095},       // the last step stops one short of the end
      {7, 5, 5, 0},                // an empty range
  };
  for (const auto& c : cases)
    EXPECT_EQ(PositionOf(c.Value, c.Min, c.Max), c.Position) << c.Value << " in " << c.Min << ".." << c.Max;
}

TEST(NumericInplaceFormTest, PositionsOfWideRangesAreMultiplesOfFour) {
  const struct {
    Int64 Min, Max;
  } ranges[] = {{0, 100000}, {-3, 99997}, {-50000, 12345678}, {Int64Min, Int64Max}, {0, 4294967295}};
  for (const auto& r : ranges) {
    const long double span = (long double)r.Max - r.Min;
    for (int i = 0; i < 200; ++i) {
      const Int64 value = Int64((long double)r.Min + span * i / 200.0L);
      const int position = PositionOf(value, r.Min, r.Max);
      EXPECT_EQ(position % 4, 0) << value << " in " << r.Min << ".." << r.Max << " at " << position;
    }
  }
}

TEST(NumericInplaceFormTest, AValueFromTheEditorFiresNothingTheUsersDoes) {
  TNumericInplaceForm form;
  form.SetLimits(Range(0, 1000));
  std::vector<Int64> reported;
  form.OnValueChange = [&](QWidget* ASender) { reported.push_back(static_cast<TNumericInplaceForm*>(ASender)->GetValue().AsInt64()); };
  form.SetValue(TValue::From<Int64>(250));
  EXPECT_TRUE(reported.empty());
  EXPECT_EQ(form.GetValue().AsInt64(), 250);
  form.TrackBar->setValue(3072);
  EXPECT_EQ(reported, (std::vector<Int64>{750}));
}

TEST(NumericInplaceFormTest, TheValueHeldAlreadyMovesNothing) {
  TNumericInplaceForm form;
  form.SetLimits(Range(0, 1000));
  form.SetValue(TValue::From<Int64>(500));
  ASSERT_EQ(form.TrackBar->value(), 2048);
  form.TrackBar->setValue(2050); // still 500, a little to the right
  ASSERT_EQ(form.GetValue().AsInt64(), 500);
  form.SetValue(TValue::From<Int64>(500));
  EXPECT_EQ(form.TrackBar->value(), 2050);
  form.SetValue(TValue::From<Int64>(501));
  EXPECT_EQ(form.TrackBar->value(), 2052);
}

TEST(NumericInplaceFormTest, TheBarsEndsStayInsideTheFullRange) {
  TNumericInplaceForm form;
  form.SetLimits(Range(Int64Min, Int64Max));
  form.TrackBar->setValue(4095);
  EXPECT_GT(form.GetValue().AsInt64(), Int64Max / 4096 * 4093);
  form.TrackBar->setValue(0);
  EXPECT_EQ(form.GetValue().AsInt64(), Int64Min);
}

TEST(NumericInplaceFormTest, HoldingTheBarEntersAndLeaves) {
  TNumericInplaceForm form;
  form.SetLimits(Range(0, 10));
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

TEST(RealInplaceFormTest, PlacesTheValueInQuartersAndReadsItBack) {
  TRealInplaceFormUnit form;
  form.SetLimits(RealRange(-1, 1));
  form.SetValue(TValue::From<Double>(0.5));
  EXPECT_EQ(form.TrackBar->value(), 3072);
  form.SetValue(TValue::From<Double>(0.1)); // 2252.8: whole quarters
  EXPECT_EQ(form.TrackBar->value(), 2252);
  int changes = 0;
  form.OnValueChange = [&](QWidget*) { ++changes; };
  form.TrackBar->setValue(1024);
  EXPECT_EQ(changes, 1);
  EXPECT_DOUBLE_EQ(form.GetValue().AsExtended(), -0.5);
}

TEST(RealInplaceFormTest, AValueThatThePositionMeansAlreadyMovesNothing) {
  TRealInplaceFormUnit form;
  form.SetLimits(RealRange(0, 1));
  form.TrackBar->setValue(1001); // not a quarter position
  form.SetValue(TValue::From<Double>(1001 / 4096.0));
  EXPECT_EQ(form.TrackBar->value(), 1001);
  form.SetValue(TValue::From<Double>(0.5));
  EXPECT_EQ(form.TrackBar->value(), 2048);
}

TEST(RealInplaceFormTest, TheValueComingBackDuringAChangeIsIgnored) {
  TRealInplaceFormUnit form;
  form.SetLimits(RealRange(0, 100));
  // As an editor does: writes the value, which comes back to every open form.
  form.OnValueChange = [&](QWidget*) { form.SetValue(TValue::From<Double>(99)); };
  form.TrackBar->setValue(1000);
  EXPECT_EQ(form.TrackBar->value(), 1000);
  EXPECT_DOUBLE_EQ(form.GetValue().AsExtended(), 1000 / 4096.0 * 100);
  form.OnValueChange = nullptr;
  form.SetValue(TValue::From<Double>(25)); // unlocked again
  EXPECT_EQ(form.TrackBar->value(), 1024);
}

TEST(RealInplaceFormTest, TheFullDoubleRangeStaysFinite) {
  TRealInplaceFormUnit form;
  const Double highest = std::numeric_limits<Double>::max();
  form.SetLimits(RealRange(-highest, highest));
  form.SetValue(TValue::From<Double>(0));
  EXPECT_EQ(form.TrackBar->value(), 2048);
  form.TrackBar->setValue(0);
  EXPECT_EQ(form.GetValue().AsExtended(), -highest);
  form.TrackBar->setValue(4095);
  EXPECT_TRUE(std::isfinite(double(form.GetValue().AsExtended())));
}

} // namespace
} // namespace Tarvo
