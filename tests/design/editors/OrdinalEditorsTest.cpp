#include <gtest/gtest.h>

#include "design/editors/OrdinalEditors.h"
#include "design/paint/InplaceFormController.h"
#include "forms/RangedInplaceForm.h"
#include "tests/design/editors/TypedEditorTest.h"

namespace Tarvo {

namespace {

using namespace Testing;

using OrdinalEditorsTest = TypedEditorTest<TIntegerPropertyEditor>;

// The hard range comes from the member's limits, the integer type's declared maximum (read as a
// 32-bit number) or the class's defaults; the suggested one from the attributes first. Values are
// clamped, never refused: the maximum first, an unsigned reading for a range crossed as signed
// numbers, the result held as an Int64.
TEST_F(OrdinalEditorsTest, RangesAndClamping) {
  struct TRow {
    const char* Name;
    TRef<TRangedOrdinalPropertyEditor> Editor;
    Int64 Min, Max, SuggestedMin, SuggestedMax;
    std::vector<std::pair<Int64, Int64>> Clamped; // given, result
  };
  const TRow rows[] = {
      {"Byte", Editor("Gain"), INT32_MIN, 255, 0, 255, {{-5, -5}, {300, 255}}},
      {"Cardinal", Editor<TCardinalPropertyEditor>("Count"), 0, -1, 0, -1, {{4000000000, 4000000000}}},
      {"Int64", Editor<TInt64PropertyEditor>("Position"), INT64_MIN, INT64_MAX, INT64_MIN, INT64_MAX, {}},
      {"limits by attributes", Editor("Order"), INT32_MIN, 32767, 1, 4, {}},
      {"suggested by attributes", Editor("Channel"), INT32_MIN, INT32_MAX, 2, 8, {}},
      {"suppressed range", Editor("Offset"), -100, 100, INT32_MIN, 100, {{500, 100}, {-99, -99}}},
      {"crossed limits", Editor("Crossed"), 10, 5, INT32_MIN, 5, {{7, 10}}},
  };
  ForEachRow(rows, [](const TRow& ARow) {
    EXPECT_EQ(ARow.Editor->GetMinValue().AsInt64(), ARow.Min);
    EXPECT_EQ(ARow.Editor->GetMaxValue().AsInt64(), ARow.Max);
    EXPECT_EQ(ARow.Editor->GetSuggestedMinValue().AsInt64(), ARow.SuggestedMin);
    EXPECT_EQ(ARow.Editor->GetSuggestedMaxValue().AsInt64(), ARow.SuggestedMax);
    for (const auto& [given, expected] : ARow.Clamped) {
      const TValue result = ARow.Editor->ApplyConstraints(TValue(given));
      EXPECT_EQ(result.GetTypeInfo(), &TypeInfo_Int64);
      EXPECT_EQ(result.AsInt64(), expected) << given;
    }
  });
  EXPECT_EQ(Editor<TCardinalPropertyEditor>("Count")->GetDefaultMaxValue().GetTypeInfo(), &TypeInfo_Int64);
}

// A suppressed range refuses the query only; no slider for the basic editor, a fixed-list member
// or an unpublished one.
TEST_F(OrdinalEditorsTest, InterfacesAnswered) {
  EXPECT_FALSE(Supports<IPropertyRange>(Editor("Offset")));
  EXPECT_TRUE(Supports<IPropertySuggestedRange>(Editor("Offset")));
  EXPECT_TRUE(Supports<IPropertyRange>(Editor("Channel")));
  EXPECT_TRUE(Supports<IPropertyEditorInplace>(Editor("Channel")));
  EXPECT_TRUE(Supports<IPropertyEditorInplace>(Editor<TInt64PropertyEditor>("Position")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor("Fixed")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor("Inner")));
  EXPECT_FALSE(Supports<IPropertyEditorInplace>(Editor<TBasicIntegerPropertyEditor>("Channel")));
}

// The form shows the first object's value over the suggested range; a move writes every object
// inside the bracket the bar's hold opens, and the grid is told to read the rows again.
TEST_F(OrdinalEditorsTest, TheSliderWritesEverySelectedObject) {
  FFirst.FChannel = 3;
  FSecond.FChannel = 6;
  const TRef<TIntegerPropertyEditor> editor = Editor("Channel");
  QWidget grid;
  const auto form = QueryAs<IPropertyEditorInplace>(editor)->GetInplaceForm(&grid, New<TPaintObjects>(), nullptr,
                                                                            TIGXRect(0, 0, 200, 16));
  auto* numeric = static_cast<TNumericInplaceForm*>(form->GetForm());
  EXPECT_EQ(numeric->GetValue().AsInt64(), 3);
  numeric->OnEditorEnter(numeric);
  numeric->TrackBar->setValue(TNumericInplaceForm::TrackBarMax); // the suggested maximum, 8
  numeric->OnEditorLeave(numeric);
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "8"); // one text: both objects hold it
  EXPECT_EQ(FLog, (std::vector<String>{"BeginModify", "Modified", "EndModify"}));
  // A write through the row moves the bar.
  editor->SetStringValue("5");
  EXPECT_EQ(numeric->GetValue().AsInt64(), 5);
}

// A Cardinal's slider runs over the whole unsigned range, though its maximum reads -1. A form
// the grid keeps after its editor went reports to nobody.
TEST_F(OrdinalEditorsTest, TheCardinalSliderRunsOverTheUnsignedRange) {
  QWidget grid;
  TRef<IPropertyEditorInplace> editor = QueryAs<IPropertyEditorInplace>(Editor<TCardinalPropertyEditor>("Count"));
  const auto form = editor->GetInplaceForm(&grid, New<TPaintObjects>(), nullptr, TIGXRect(0, 0, 200, 16));
  auto* numeric = static_cast<TNumericInplaceForm*>(form->GetForm());
  numeric->TrackBar->setValue(TNumericInplaceForm::TrackBarMax); // near the maximum, as wide bars place it
  const Cardinal written = FFirst.FCount;
  EXPECT_GT(written, 4290000000u);
  EXPECT_EQ(FSecond.FCount, written);
  editor = nullptr;
  numeric->TrackBar->setValue(0);
  EXPECT_EQ(FFirst.FCount, written);
}

} // namespace
} // namespace Tarvo
