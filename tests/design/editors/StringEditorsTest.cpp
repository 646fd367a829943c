#include <gtest/gtest.h>

#include <QFileDialog>
#include <QPlainTextEdit>
#include <QTemporaryFile>

#include "design/editors/FileNameEditor.h"
#include "design/editors/OrdinalEditors.h"
#include "forms/AdvancedStringsEditorForm.h"
#include "platform/ModalSeam.h"
#include "tests/design/editors/TypedEditorTest.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo {

namespace {

using namespace Testing;

using StringEditorsTest = TypedEditorTest<TStringPropertyEditor>;

// Trimmed, separators made underscores, then checked: first character, then every character.
TEST_F(StringEditorsTest, TheIdentifierRule) {
  struct TRow {
    const char* Name;
    String Text;
    String Written; // empty: refused
  };
  const TRow rows[] = {
      {"blanks around go", "  gain stage\t", "gain_stage"},
      {"hyphen and tab inside", "a-b\tc", "a_b_c"},
      {"leading digit", "9lives", ""},
      {"leading digit behind an underscore", "_9lives", "_9lives"},
      {"full stop inside", "a.b", ""},
      {"letters beyond ASCII", "Größe", "Größe"},
  };
  ForEachRow(rows, [this](const TRow& ARow) {
    FFirst.FIdent = FSecond.FIdent = "start";
    FLog.clear();
    if (ARow.Written.empty()) {
      ExpectError<EDesignPropertyError>([&] { Editor("Ident")->SetStringValue(ARow.Text); },
                                        "Component Name can't be empty");
      EXPECT_EQ(FFirst.FIdent, "start");
      EXPECT_TRUE(FLog.empty());
    } else {
      Editor("Ident")->SetStringValue(ARow.Text);
      EXPECT_EQ(FFirst.FIdent, ARow.Written);
      EXPECT_EQ(FSecond.FIdent, ARow.Written);
    }
  });
  Editor("Notes")->SetStringValue("");
  EXPECT_EQ(FFirst.FNotes, "") << "without the attribute any text passes";
  Editor("Notes")->SetStringValue("a.b c");
  EXPECT_EQ(FFirst.FNotes, "a.b c");
}

TEST_F(StringEditorsTest, DefaultsAndLiveUpdate) {
  FSecond.FText = "abc";
  EXPECT_EQ(Editor("Text")->GetIsDefaults(nullptr)->ToArray(), (std::vector<Boolean>{true, false})) << "case counts";
  EXPECT_EQ(Editor<TOrdinalPropertyEditor>("Text")->GetIsDefaults(nullptr)->ToArray(),
            (std::vector<Boolean>{true, false}));
  EXPECT_TRUE(Editor("Text")->GetAutoUpdate());
  EXPECT_FALSE(Editor("Notes")->GetAutoUpdate());
  EXPECT_FALSE(Editor<TNamePropertyEditor>("Text")->GetAutoUpdate());
}

TEST_F(StringEditorsTest, ANameIsWrittenWithItsBlanks) {
  Editor<TNamePropertyEditor>("Notes")->SetStringValue("  Stage 1 ");
  EXPECT_EQ(FFirst.FNotes, "  Stage 1 ");
  ExpectError<EDesignPropertyError>([this] { Editor<TNamePropertyEditor>("Notes")->SetStringValue(" \t"); },
                                    "Component Name can't be empty");
  EXPECT_EQ(FSecond.FNotes, "  Stage 1 ");
}

// The dialog shows the first object's lines under the row's name; accepted, it writes every object
// and tells the designer; cancelled, it changes nothing and tells nobody.
TEST_F(StringEditorsTest, TheMultiLineDialog) {
  FSecond.FNotes = "other";
  const auto editor = Editor<TMultiLineStringPropertyEditor>("Notes");
  const auto answer = [](int ACode) {
    return [ACode](QDialog& ADialog) {
      auto& form = dynamic_cast<TAdvancedStringsEditorForm&>(ADialog);
      EXPECT_EQ(form.windowTitle(), "Notes");
      EXPECT_EQ(form.Editor->toPlainText(), "one\ntwo");
      form.Editor->setPlainText("three\nfour");
      return ACode;
    };
  };
  {
    TModalHandlerScope cancel(answer(QDialog::Rejected));
    editor->Execute(nullptr);
  }
  EXPECT_EQ(FSecond.FNotes, "other");
  EXPECT_TRUE(FLog.empty());
  {
    TModalHandlerScope accept(answer(QDialog::Accepted));
    editor->Execute(nullptr);
  }
  EXPECT_EQ(FFirst.FNotes, "three\nfour\n");
  EXPECT_EQ(FSecond.FNotes, "three\nfour\n");
  EXPECT_EQ(FLog, (std::vector<String>{"Modified", "Modified"}));
}

// An open dialog for existing files under the member's filter; a file chosen on OK is written,
// nothing on Cancel.
TEST_F(StringEditorsTest, TheFileDialogTakesItsFilterFromTheMember) {
  QTemporaryFile file(QDir::tempPath() + "/tarvo-XXXXXX.log");
  ASSERT_TRUE(file.open());
  for (const int code : {QDialog::Rejected, QDialog::Accepted}) {
    TModalHandlerScope answer([&](QDialog& ADialog) {
      auto& dialog = dynamic_cast<QFileDialog&>(ADialog);
      EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
      EXPECT_EQ(dialog.nameFilters(), QStringList{"Logs (*.log)"});
      EXPECT_EQ(dialog.defaultSuffix(), "log");
      dialog.selectFile(file.fileName());
      return code;
    });
    Editor<TAttributedFileNameEdit>("File")->Execute(nullptr);
    EXPECT_EQ(FSecond.FFile, code == QDialog::Accepted ? file.fileName().toStdString() : "");
  }
  EXPECT_EQ(Editor<TAttributedFileNameEdit>("Plain")->GetFilterDefaultExt(), (std::pair<String, String>{}));
}

// Each font is measured once: a later call takes the cached height whatever height it brings.
TEST_F(StringEditorsTest, TheFontHeightCache) {
  const auto editor = Editor<TFontNamePropertyEditor>("Text");
  const auto measure = [&](const String& AFont, Single AHeight) {
    TIGXSize size{50, AHeight};
    editor->ListGetSize(TValue(AFont), nullptr, nullptr, nullptr, size);
    EXPECT_EQ(size.Width, 50);
    return size.Height;
  };
  const Single first = measure("Sans Serif", 4);
  EXPECT_GE(first, 16);
  EXPECT_EQ(measure("Sans Serif", 200), first);
  EXPECT_EQ(measure("Monospace", 200), 200) << "a font not measured yet keeps a taller row";
  EXPECT_EQ(measure("Monospace", 1), 200);
}

} // namespace
} // namespace Tarvo
