#include <gtest/gtest.h>

#include <QFontDialog>

#include <set>

#include "design/editors/FontEditor.h"
#include "design/editors/IdentifierEditors.h"
#include "platform/ModalSeam.h"
#include "platform/ShortCutTexts.h"
#include "tests/rtl/ExpectError.h"
#include "tests/design/editors/IdentGadget.h"

namespace Tarvo {
namespace {

using IdentifierEditorsTest = IdentEditorTest<TModalResultPropertyEditor>;

// The table's names by index, matched in any case; empty text is mrNone; past the table, numbers.
TEST_F(IdentifierEditorsTest, ModalResultsByName) {
  const auto editor = Editor("Result");
  FFirst.FResult = FSecond.FResult = mrCancel;
  editor->SetStringValue("");
  EXPECT_EQ(FFirst.FResult + FSecond.FResult, 0);
  editor->SetStringValue("MROK");
  EXPECT_EQ(FSecond.FResult, mrOk);
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "mrOk");
  editor->SetStringValue("mryestoall");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "mrYesToAll");
  editor->SetStringValue("15");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "15");
  FSecond.FResult = -3;
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "15;-3");
  const std::vector<String> names = editor->GetStringListValues()->ToArray();
  EXPECT_EQ(names.size(), 15u);
  EXPECT_EQ(names.front() + "," + names[10] + "," + names.back(), "mrNone,mrTryAgain,mrYesToAll");
}

// Empty text and "(None)" in any case clear the shortcut; a text no key matches is refused and
// writes nothing.
TEST_F(IdentifierEditorsTest, ShortCutsByText) {
  const auto editor = Editor<TShortCutPropertyEditor>("ShortCut");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "(None)");
  for (const char* clear : {"", "(none)", "(NONE)"}) {
    FFirst.FShortCut = FSecond.FShortCut = scCtrl | 'A';
    editor->SetStringValue(clear);
    EXPECT_EQ(FFirst.FShortCut + FSecond.FShortCut, 0) << clear;
  }
  editor->SetStringValue("shift+ctrl+f1");
  EXPECT_EQ(FSecond.FShortCut, scShift | scCtrl | 0x70);
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "Shift+Ctrl+F1");
  FLog.clear();
  Testing::ExpectError<EDesignPropertyError>([&] { editor->SetStringValue("Ctrl+Nothing"); }, "Invalid property value");
  EXPECT_EQ(FSecond.FShortCut, scShift | scCtrl | 0x70);
  EXPECT_TRUE(FLog.empty());
}

// The list is "(None)" and the texts of the table's entries in its order; every text reads back
// as its entry.
TEST_F(IdentifierEditorsTest, ShortCutListFollowsTheTable) {
  const std::vector<String> texts = Editor<TShortCutPropertyEditor>("ShortCut")->GetStringListValues()->ToArray();
  ASSERT_EQ(texts.size(), ShortCuts.size());
  EXPECT_EQ(texts[0], "(None)");
  EXPECT_EQ(ShortCuts[0], 0);
  const char* landmarks[][2] = {{"1", "Ctrl+A"},          {"27", "Ctrl+Alt+A"},      {"53", "F1"},
                                {"65", "Ctrl+F1"},        {"77", "Shift+F1"},        {"89", "Shift+Ctrl+F1"},
                                {"101", "Ins"},           {"104", "Del"},            {"106", "Ctrl+Del"},
                                {"107", "Alt+BkSp"},      {"108", "Shift+Alt+BkSp"}};
  for (const auto& landmark : landmarks) EXPECT_EQ(texts[std::stoul(landmark[0])], landmark[1]);
  for (std::size_t index = 1; index < ShortCuts.size(); ++index)
    EXPECT_EQ(TextToShortCut(texts[index]), ShortCuts[index]) << texts[index];
  EXPECT_EQ(std::set<String>(texts.begin(), texts.end()).size(), texts.size());
}

// Charset names both ways; a number with no name shows and reads as a number.
TEST_F(IdentifierEditorsTest, CharsetsByName) {
  const auto editor = Editor<TFontCharsetPropertyEditor>("Charset");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "DEFAULT_CHARSET");
  editor->SetStringValue("russian_charset");
  EXPECT_EQ(FFirst.FCharset, 204);
  editor->SetStringValue("3");
  EXPECT_EQ(editor->GetDisplayValue(nullptr), "3");
  EXPECT_EQ(editor->GetStringListValues()->GetCount(), 19);
}

// The dialog opens on the first object's font; OK writes the choice to every object, cancel
// changes nothing.
TEST_F(IdentifierEditorsTest, FontDialogWritesOnAccept) {
  FFirst.GetFont()->SetSize(11);
  FSecond.GetFont()->SetSize(11);
  const auto editor = Editor<TFontPropertyEditor>("Font");
  for (const int answer : {QDialog::Rejected, QDialog::Accepted}) {
    QFont shown;
    TModalHandlerScope scope([&](QDialog& ADialog) {
      auto* dialog = qobject_cast<QFontDialog*>(&ADialog);
      EXPECT_NE(dialog, nullptr);
      if (!dialog) return int(QDialog::Rejected);
      shown = dialog->currentFont();
      QFont choice = shown;
      choice.setPointSize(15);
      choice.setItalic(true);
      dialog->setCurrentFont(choice);
      return answer;
    });
    FLog.clear();
    editor->Execute(nullptr);
    EXPECT_EQ(shown.pointSize(), 11);
    const Boolean written = answer == QDialog::Accepted;
    EXPECT_EQ(FLog, written ? std::vector<String>{"Modified"} : std::vector<String>{});
    for (TIdentGadget* gadget : {&FFirst, &FSecond}) {
      EXPECT_EQ(gadget->GetFont()->GetStyle().Contains(fsItalic), written);
      EXPECT_EQ(gadget->GetFont()->GetSize(), written ? 15 : 11);
    }
  }
}

} // namespace
} // namespace Tarvo
