#include <gtest/gtest.h>

#include <QFontDatabase>

#include "forms/AdvancedStringsEditorForm.h"
#include "platform/ModalSeam.h"
#include "tests/support/NamedRows.h"
#include "tests/support/StringLines.h"

namespace Tarvo {
namespace AdvancedStringsEditorFormTesting {

using Testing::LinesOf;
using Testing::TLines;

// Shows the lines with no break after the last (an empty last string is a closing break); OK takes the typed lines.
TEST(AdvancedStringsEditorFormTest, ShowsTheLinesAndTakesTheTypedOnes) {
  const auto list = Testing::ListOf({"a", ""});
  TModalHandlerScope scope([&](QDialog& ADialog) {
    auto& form = dynamic_cast<TAdvancedStringsEditorForm&>(ADialog);
    EXPECT_EQ(form.Editor->toPlainText(), QStringLiteral("a\n"));
    form.Editor->setPlainText(QString::fromUtf8("Grüße\n\n😀"));
    return int(QDialog::Accepted);
  });
  EXPECT_TRUE(TAdvancedStringsEditorForm::Execute("Items", *list));
  EXPECT_EQ(LinesOf(*list), (TLines{"Grüße", "", "😀"}));
}

// Line and column from 1, a character outside the basic plane one column; the line count is what OK would give.
TEST(AdvancedStringsEditorFormTest, StatusFollowsTheCaret) {
  const struct {
    const char* Name;
    const char* Text;
    int Position; // in UTF-16 units
    const char *Place, *Count;
  } cases[] = {
      {"nothing", "", 0, "Line 1, Column 1", "0 lines"},
      {"inside the second line", "abc\nde", 5, "Line 2, Column 2", "2 lines"},
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
}

// The monospace option switches the editor's font to the fixed family and back.
TEST(AdvancedStringsEditorFormTest, MonospaceOptionSwitchesTheEditorFont) {
  TAdvancedStringsEditorForm form;
  const QString proportional = form.Editor->font().family();
  const QString fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  ASSERT_NE(proportional, fixed) << "the platform gives one family for both fonts";
  form.MonospaceBox->click();
  EXPECT_EQ(form.Editor->font().family(), fixed);
  form.MonospaceBox->click();
  EXPECT_EQ(form.Editor->font().family(), proportional);
}

} // namespace AdvancedStringsEditorFormTesting
} // namespace Tarvo
