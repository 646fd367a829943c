#include <gtest/gtest.h>

#include "platform/OpenFileDialog.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace OpenFileDialogTesting {

// A filter of description and pattern pairs becomes the dialog's name filters.
TEST(OpenFileDialogTest, FilterBecomesNameFilters) {
  const struct {
    const char *Name, *Filter;
    QStringList Filters;
  } cases[] = {
      {"empty", "", {}},
      {"two pairs", "Text files|*.txt|All files|*.*", {"Text files (*.txt)", "All files (*.*)"}},
      {"description naming its patterns", "Images (*.png;*.jpg)|*.png;*.jpg", {"Images (*.png *.jpg)"}},
      {"odd trailing description", "Text files|*.txt|Everything", {"Text files (*.txt)", "Everything (*)"}},
      {"patterns without description", "|*.txt", {"*.txt"}},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) { EXPECT_EQ(FileDialogNameFilters(ACase.Filter), ACase.Filters); });
}

} // namespace OpenFileDialogTesting
} // namespace Tarvo
