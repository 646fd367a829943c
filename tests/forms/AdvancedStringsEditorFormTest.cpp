#include <gtest/gtest.h>

#include <QFontDatabase>

#include <vector>

#include "forms/AdvancedStringsEditorForm.h"
#include "platform/ModalSeam.h"
#include "tests/support/NamedRows.h"
#include "tests/support/StringLines.h"

namespace Tarvo {
namespace AdvancedStringsEditorFormTesting {

using Testing::LinesOf;
using Testing::ListOf;
using Testing::TLines;

TAdvancedStringsEditorForm* FormOf(QDialog& ADialog) {
  auto* form = dynamic_cast<TAdvancedStringsEditorForm*>(&ADialog);
  EXPECT_NE(form, nullptr);
  return form;
}

// The editor shows the lines without a line after the last; on OK the list takes the typed text
// split as TStrings::SetText splits it.
TEST(AdvancedStringsEditorFormTest, AcceptFillsTheEditorAndTakesTheEditedLines) {
  const struct {
    const char* Name;
    TLines Lines;
    const char* Shown;
    const char* Typed;
    TLines Result;
  } cases[] = {
      {"lines replaced", {"one", "two"}, "one\ntwo", "alpha\nbeta\ngamma", {"alpha", "beta", "gamma"}},
      {"a break at the end starts no line", {"a"}, "a", "a\nb\n", {"a", "b"}},
      {"an empty line before the last break stays", {"a"}, "a", "a\n\n", {"a", ""}},
      {"an empty last string shows as a closing break", {"a", ""}, "a\n", "a\n", {"a"}},
      {"empty text empties the list", {"x", "y"}, "x\ny", "", {}},
      {"text beyond ASCII", {"Grüße"}, "Grüße", "Grüße\n日本語\n😀", {"Grüße", "日本語", "😀"}},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) {
    const auto list = ListOf(ACase.Lines);
    int runs = 0;
    TModalHandlerScope scope([&](QDialog& ADialog) {
      ++runs;
      EXPECT_EQ(ADialog.windowTitle(), QStringLiteral("Items — Grüße"));
      if (TAdvancedStringsEditorForm* form = FormOf(ADialog)) {
        EXPECT_EQ(form->Editor->toPlainText(), QString::fromUtf8(ACase.Shown));
        form->Editor->setPlainText(QString::fromUtf8(ACase.Typed));
      }
      return int(QDialog::Accepted);
    });
    EXPECT_TRUE(TAdvancedStringsEditorForm::Execute("Items — Grüße", *list));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(LinesOf(*list), ACase.Result);
  });
}

// Cancel writes nothing back and tells the list's handlers of no change, whatever was typed.
TEST(AdvancedStringsEditorFormTest, CancelLeavesTheListUntouched) {
  const auto list = ListOf({"keep", "", "these"});
  int notices = 0;
  const TNotifyHandler handler = list->AddChangeHandler([&] { ++notices; });
  TModalHandlerScope scope([](QDialog& ADialog) {
    if (TAdvancedStringsEditorForm* form = FormOf(ADialog)) form->Editor->setPlainText(QStringLiteral("changed"));
    return int(QDialog::Rejected);
  });
  EXPECT_FALSE(TAdvancedStringsEditorForm::Execute("Items", *list));
  EXPECT_EQ(LinesOf(*list), (TLines{"keep", "", "these"}));
  EXPECT_EQ(notices, 0);
}

// The caret's line and column count from 1 and a character outside the basic plane is one
// column; the line count is what OK would give.
TEST(AdvancedStringsEditorFormTest, StatusFollowsTheCaretAndTheText) {
  const struct {
    const char* Name;
    const char* Text;
    int Position; // in UTF-16 units
    const char *Place, *Count;
  } cases[] = {
      {"nothing", "", 0, "Line 1, Column 1", "0 lines"},
      {"end of the first line", "abc\nde", 3, "Line 1, Column 4", "2 lines"},
      {"inside the second line", "abc\nde", 5, "Line 2, Column 2", "2 lines"},
      {"one line", "abc", 3, "Line 1, Column 4", "1 line"},
      {"on the line after a closing break", "abc\n", 4, "Line 2, Column 1", "1 line"},
      {"after a character outside the basic plane", "😀x", 3, "Line 1, Column 3", "1 line"},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) {
    TAdvancedStringsEditorForm form;
    form.Editor->setPlainText(QString::fromUtf8(ACase.Text));
    QTextCursor cursor = form.Editor->textCursor();
    cursor.setPosition(ACase.Position);
    form.Editor->setTextCursor(cursor);
    EXPECT_EQ(form.PositionLabel->text().toStdString(), ACase.Place);
    EXPECT_EQ(form.LineCountLabel->text().toStdString(), ACase.Count);
  });

  // Text added after the caret, which stays, changes the count only.
  TAdvancedStringsEditorForm form;
  form.Editor->setPlainText(QStringLiteral("ab"));
  QTextCursor end(form.Editor->document());
  end.movePosition(QTextCursor::End);
  end.insertText(QStringLiteral("\ncd\n"));
  EXPECT_EQ(form.Editor->textCursor().position(), 0);
  EXPECT_EQ(form.PositionLabel->text().toStdString(), "Line 1, Column 1");
  EXPECT_EQ(form.LineCountLabel->text().toStdString(), "2 lines");
}

// The option puts the editor in the system's fixed font and back in the font it was built with.
TEST(AdvancedStringsEditorFormTest, MonospaceOptionSwitchesTheEditorFont) {
  TAdvancedStringsEditorForm form;
  const QString proportional = form.Editor->font().family();
  const QString fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  ASSERT_NE(proportional, fixed) << "the platform gives one family for both fonts";
  EXPECT_FALSE(form.MonospaceBox->isChecked());
  EXPECT_EQ(form.Editor->lineWrapMode(), QPlainTextEdit::NoWrap);

  form.MonospaceBox->click();
  EXPECT_EQ(form.Editor->font().family(), fixed);
  form.MonospaceBox->click();
  EXPECT_EQ(form.Editor->font().family(), proportional);
}

} // namespace AdvancedStringsEditorFormTesting
} // namespace Tarvo
