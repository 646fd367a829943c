#include <gtest/gtest.h>

#include <QFileDialog>
#include <QPlainTextEdit>
#include <QTemporaryFile>

#include "design/editors/CharEditors.h"
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

// A typed text is written to both selected objects as the row then shows it, or refused with its
// message before anything is written or the designer is told.
TEST_F(StringEditorsTest, TypedTexts) {
  struct TRow {
    const char* Name;
    TRef<TSinglePropertyEditor> Editor;
    String Text, Shown, Refusal = {}; // no refusal: the text is taken
  };
  const TRef<TSinglePropertyEditor> narrow = Editor<TAnsiCharPropertyEditor>("Narrow"),
                                    wide = Editor<TWideCharPropertyEditor>("Wide"), ident = Editor("Ident"),
                                    name = Editor<TNamePropertyEditor>("Notes");
  const String invalid = "Invalid property value", noName = "Component Name can't be empty";
  const TRow rows[] = {
      {"character code after #", narrow, "#65", "A"},
      {"character code after $", narrow, "$41", "A"},
      {"character code after 0x", narrow, "0x41", "A"},
      {"character code after 0X", wide, "0X41", "'A'"},
      {"a lone digit is itself", narrow, "7", "7"},
      {"a lone # is itself", narrow, "#", "#"},
      {"a letter beyond ASCII", narrow, "é", "#233"},
      {"empty text is code 0", wide, "", "#0"},
      {"a letter beyond a byte", wide, "Ω", "#937"},
      {"a code without its prefix", narrow, "65", "", invalid},
      {"a code with a bad digit", narrow, "#x1", "", invalid},
      {"a code beyond a byte", narrow, "#300", "", "Value must be between 0 and 255"},
      {"a code beyond a wide character", wide, "#65536", "", "Value must be between 0 and 65535"},
      // The identifier rule: trimmed, separators made underscores, then the first character and the rest.
      {"identifier: blanks around go", ident, "  gain stage\t", "gain_stage"},
      {"identifier: hyphen and tab inside", ident, "a-b\tc", "a_b_c"},
      {"identifier: leading digit", ident, "9lives", "", noName},
      {"identifier: digit behind an underscore", ident, "_9lives", "_9lives"},
      {"identifier: full stop inside", ident, "a.b", "", noName},
      {"identifier: letters beyond ASCII", ident, "Größe", "Größe"},
      {"any text without the identifier attribute", Editor("Notes"), "a.b c", "a.b c"},
      {"a name keeps its blanks", name, "  Stage 1 ", "  Stage 1 "},
      {"a name of blanks", name, " \t", "", noName},
      {"an integer beyond a suppressed range is clamped", Editor<TIntegerPropertyEditor>("Offset"), "-500", "-100"},
  };
  ForEachRow(rows, [this](const TRow& ARow) {
    const String before = ARow.Editor->GetDisplayValue(nullptr);
    FLog.clear();
    if (ARow.Refusal.empty()) {
      ARow.Editor->SetStringValue(ARow.Text);
      EXPECT_EQ(ARow.Editor->GetDisplayValue(nullptr), ARow.Shown); // one text: both objects hold it
    } else {
      ExpectError<EDesignPropertyError>([&] { ARow.Editor->SetStringValue(ARow.Text); }, ARow.Refusal);
      EXPECT_EQ(ARow.Editor->GetDisplayValue(nullptr), before);
      EXPECT_TRUE(FLog.empty());
    }
  });
}

// An 8-bit character shows codes 33 to 127 as themselves; a wide one 32 to 127, quoted in the cell.
TEST_F(StringEditorsTest, PrintableCodesShowAsThemselves) {
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
  const auto narrow = Editor<TAnsiCharPropertyEditor>("Narrow");
  const auto wide = Editor<TWideCharPropertyEditor>("Wide");
  ForEachRow(rows, [&](const TRow& ARow) {
    FFirst.FWide = FSecond.FWide = WideChar(ARow.Code);
    EXPECT_EQ(wide->GetStringValues(nullptr)->GetItem(0), ARow.Wide);
    EXPECT_EQ(wide->GetDisplayValue(nullptr), ARow.WideDisplay);
    if (ARow.Code > 255) return;
    FFirst.FNarrow = FSecond.FNarrow = AnsiChar(ARow.Code);
    EXPECT_EQ(narrow->GetDisplayValue(nullptr), ARow.Narrow);
  });
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

// The dialog shows the first object's lines under the row's name; accepted, it writes every object
// and tells the designer; cancelled, it changes nothing and tells nobody.
TEST_F(StringEditorsTest, TheMultiLineDialog) {
  FSecond.FNotes = "other";
  for (const int code : {QDialog::Rejected, QDialog::Accepted}) {
    TModalHandlerScope answer([&](QDialog& ADialog) {
      auto& form = dynamic_cast<TAdvancedStringsEditorForm&>(ADialog);
      EXPECT_EQ(form.windowTitle(), "Notes");
      EXPECT_EQ(form.Editor->toPlainText(), "one\ntwo");
      form.Editor->setPlainText("three\nfour");
      return code;
    });
    Editor<TMultiLineStringPropertyEditor>("Notes")->Execute(nullptr);
    EXPECT_EQ(FSecond.FNotes, code == QDialog::Accepted ? "three\nfour\n" : "other");
  }
  EXPECT_EQ(FFirst.FNotes, "three\nfour\n");
  EXPECT_EQ(FLog, (std::vector<String>{"Modified", "Modified"})) << "on OK only, once an object";
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
