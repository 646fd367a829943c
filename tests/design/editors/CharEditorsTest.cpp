#include <gtest/gtest.h>

#include "design/editors/CharEditors.h"
#include "tests/design/editors/TypedEditorTest.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo {

namespace {

using namespace Testing;

class CharEditorsTest : public TypedEditorTest<TAnsiCharPropertyEditor> {
protected:
  TRef<TAnsiCharPropertyEditor> FNarrow = Editor("Narrow");
  TRef<TWideCharPropertyEditor> FWide = Editor<TWideCharPropertyEditor>("Wide");
};

// One character stands for itself; a longer text is a code after "#", "$" or "0x".
TEST_F(CharEditorsTest, TextsThatMeanACode) {
  struct TRow {
    const char* Name;
    String Text;
    Integer Code;
  };
  const TRow rows[] = {
      {"decimal after #", "#65", 65},
      {"hexadecimal after $", "$41", 65},
      {"0x", "0x41", 65},
      {"0X", "0X41", 65},
      {"a lone digit", "7", '7'},
      {"a lone #", "#", '#'},
      {"empty text", "", 0},
      {"a letter beyond ASCII", "é", 233},
  };
  ForEachRow(rows, [this](const TRow& ARow) {
    FNarrow->SetStringValue(ARow.Text);
    EXPECT_EQ(Byte(FFirst.FNarrow), ARow.Code);
    FWide->SetStringValue(ARow.Text);
    EXPECT_EQ(FFirst.FWide, ARow.Code);
  });
  FWide->SetStringValue("Ω");
  EXPECT_EQ(FFirst.FWide, u'Ω');
}

// Refused before anything is written, with the fixed texts.
TEST_F(CharEditorsTest, RefusedTextsWriteNothing) {
  ExpectError<EDesignPropertyError>([this] { FNarrow->SetStringValue("65"); }, "Invalid property value");
  ExpectError<EDesignPropertyError>([this] { FNarrow->SetStringValue("#x1"); }, "Invalid property value");
  ExpectError<EDesignPropertyError>([this] { FNarrow->SetStringValue("#300"); }, "Value must be between 0 and 255");
  ExpectError<EDesignPropertyError>([this] { FWide->SetStringValue("#65536"); }, "Value must be between 0 and 65535");
  EXPECT_EQ(FFirst.FNarrow, 'x');
  EXPECT_EQ(FFirst.FWide, u'x');
  EXPECT_TRUE(FLog.empty());
}

// An 8-bit character shows codes 33 to 127 as themselves; a wide one 32 to 127, quoted in the cell.
TEST_F(CharEditorsTest, PrintableCodesShowAsThemselves) {
  struct TRow {
    const char* Name;
    Integer Code;
    String Narrow, Wide, WideDisplay;
  };
  const TRow rows[] = {
      {"control", 9, "#9", "#9", "#9"},     {"blank", 32, "#32", " ", "' '"},
      {"letter", 65, "A", "A", "'A'"},      {"127", 127, "\x7f", "\x7f", "'\x7f'"},
      {"128", 128, "#128", "#128", "#128"}, {"beyond a byte", 955, "", "#955", "#955"},
  };
  ForEachRow(rows, [this](const TRow& ARow) {
    FFirst.FWide = FSecond.FWide = WideChar(ARow.Code);
    EXPECT_EQ(FWide->GetStringValues(nullptr)->GetItem(0), ARow.Wide);
    EXPECT_EQ(FWide->GetDisplayValue(nullptr), ARow.WideDisplay);
    if (ARow.Code > 255) return;
    FFirst.FNarrow = FSecond.FNarrow = AnsiChar(ARow.Code);
    EXPECT_EQ(FNarrow->GetDisplayValue(nullptr), ARow.Narrow);
  });
}

} // namespace
} // namespace Tarvo
