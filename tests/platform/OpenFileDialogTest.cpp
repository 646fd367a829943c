#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

#include "platform/ModalSeam.h"
#include "platform/OpenFileDialog.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace OpenFileDialogTesting {

TEST(OpenFileDialogTest, FilterBecomesNameFilters) {
  const struct {
    const char *Name, *Filter;
    QStringList Filters;
  } cases[] = {
      {"empty", "", {}},
      {"one pair", "Text files|*.txt", {"Text files (*.txt)"}},
      {"two pairs", "Text files|*.txt|All files|*.*", {"Text files (*.txt)", "All files (*.*)"}},
      {"several patterns", "Images|*.png;*.jpg", {"Images (*.png *.jpg)"}},
      {"blanks around patterns", "Images| *.png ; *.jpg ", {"Images (*.png *.jpg)"}},
      {"description naming its pattern", "Text files (*.txt)|*.txt", {"Text files (*.txt)"}},
      {"description naming its patterns by semicolons", "Images (*.png;*.jpg)|*.png;*.jpg", {"Images (*.png *.jpg)"}},
      {"odd trailing description", "Text files|*.txt|Everything", {"Text files (*.txt)", "Everything (*)"}},
      {"pair without patterns", "Anything||Text|*.txt", {"Anything (*)", "Text (*.txt)"}},
      {"closing bar", "Text|*.txt|", {"Text (*.txt)"}},
      {"patterns without description", "|*.txt", {"*.txt"}},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) { EXPECT_EQ(FileDialogNameFilters(ACase.Filter), ACase.Filters); });
}

// The dialog opens existing files under the filter, not at the name it is given; the name
// changes only when a file was chosen on OK.
TEST(OpenFileDialogTest, RunsTheDialogAndTakesTheChosenFile) {
  // The earlier name lies in a folder of its own: the dialog may start where a previous one was
  // left, never there.
  QTemporaryDir directory, earlierDirectory;
  ASSERT_TRUE(directory.isValid() && earlierDirectory.isValid());
  const QString chosen = directory.filePath(QStringLiteral("chosen.txt"));
  QFile file(chosen);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  const String before = earlierDirectory.filePath(QStringLiteral("before.txt")).toStdString();

  const struct {
    const char* Name;
    const char* DefaultExt;
    Boolean Select;
    int Code;
    Boolean Answer;
  } cases[] = {
      {"file chosen, OK", "txt", true, QDialog::Accepted, true},
      {"file chosen, Cancel", ".txt", true, QDialog::Rejected, false},
      {"OK without a file", "", false, QDialog::Accepted, false},
  };
  Testing::ForEachRow(cases, [&](const auto& ACase) {
    int runs = 0;
    TModalHandlerScope scope([&](QDialog& ADialog) {
      ++runs;
      auto* dialog = qobject_cast<QFileDialog*>(&ADialog);
      EXPECT_NE(dialog, nullptr);
      if (!dialog) return int(QDialog::Rejected);
      EXPECT_EQ(dialog->parent(), nullptr);
      EXPECT_TRUE(dialog->testOption(QFileDialog::DontUseNativeDialog));
      EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
      EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
      EXPECT_EQ(dialog->nameFilters(), (QStringList{"Text files (*.txt)", "All files (*.*)"}));
      EXPECT_EQ(dialog->defaultSuffix(), ACase.DefaultExt[0] ? QStringLiteral("txt") : QString());
      EXPECT_NE(dialog->directory().absolutePath().toStdString(),
                QDir(earlierDirectory.path()).absolutePath().toStdString());
      if (ACase.Select) dialog->selectFile(chosen);
      return ACase.Code;
    });
    String fileName = before;
    EXPECT_EQ(ExecuteOpenFileDialog("Text files|*.txt|All files|*.*", ACase.DefaultExt, fileName), ACase.Answer);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(fileName, ACase.Answer ? chosen.toStdString() : before);
  });
}

} // namespace OpenFileDialogTesting
} // namespace Tarvo
