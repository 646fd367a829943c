#include <gtest/gtest.h>

#include "forms/AdvancedStringsEditorForm.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace AdvancedStringsEditorFormTesting {

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

} // namespace AdvancedStringsEditorFormTesting
} // namespace Tarvo
