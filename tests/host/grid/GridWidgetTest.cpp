// The inspector grid as a user drives it: real widgets on the offscreen platform, clicks and keys
// delivered as the window system would, over the sample design.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QUndoStack>

#include "host/grid/GridView.h"
#include "host/grid/GridWidget.h"
#include "host/headless/DialogAnswer.h"
#include "platform/ModalSeam.h"
#include "tests/forms/FormTestSupport.h"
#include "tests/host/SampleSession.h"

namespace Tarvo {

namespace {

using Testing::Click;

class GridWidgetTest : public testing::Test {
protected:
  void SetUp() override {
    FGrid.emplace();
    FGrid->resize(420, 600);
    FGrid->show();
    FGrid->SetDesigner(FSession.Designer());
  }
  void TearDown() override { FGrid.reset(); }

  TGridView& View() { return *FGrid->View(); }
  TGridRow& Row(const char* APath) {
    TGridRow* row = View().Rows().Find(APath);
    EXPECT_NE(row, nullptr) << APath;
    View().Rows().Prepare(*row);
    return *row;
  }
  void Key(QWidget* AWidget, int AKey, const QString& AText = QString(), Qt::KeyboardModifiers AModifiers = {}) {
    QKeyEvent press(QEvent::KeyPress, AKey, AModifiers, AText);
    QApplication::sendEvent(AWidget, &press);
  }
  // Makes the row current and types AText into its edit, without committing.
  QLineEdit* Type(const char* APath, const QString& AText) {
    EXPECT_NE(View().SelectPath(APath), nullptr) << APath;
    View().StartEdit();
    QLineEdit* edit = View().LineEdit();
    EXPECT_NE(edit, nullptr);
    if (edit) edit->setText(AText);
    return edit;
  }
  void Enter(QLineEdit* AEdit) { Key(AEdit, Qt::Key_Return); }
  QPoint ValuePoint(const char* APath, int AX = 6) {
    const QRect cell = View().ValueRect(Row(APath));
    return QPoint(cell.left() + AX, cell.top() + cell.height() / 2);
  }

  Testing::TSampleSession FSession;
  std::optional<TInspectorGrid> FGrid;
};

TEST_F(GridWidgetTest, ATypedValueIsWrittenToEverySelectedObjectAndUndoneAndRedoneAsOneStep) {
  FSession.Select({"Generator1", "Generator2"});
  Enter(Type("Frequency", "1500"));
  EXPECT_EQ(View().LineEdit(), nullptr);
  EXPECT_EQ(FSession.Text("Generator1", "Frequency"), "1500");
  EXPECT_EQ(FSession.Text("Generator2", "Frequency"), "1500");
  EXPECT_EQ(Row("Frequency").Value, "1500");

  ASSERT_EQ(FGrid->UndoStack()->count(), 1);
  Key(&View(), Qt::Key_Z, QString(), Qt::ControlModifier);
  EXPECT_EQ(FSession.Text("Generator1", "Frequency"), "440");
  EXPECT_EQ(FSession.Text("Generator2", "Frequency"), "1000");
  EXPECT_EQ(Row("Frequency").Value, "440;1000");
  Key(&View(), Qt::Key_Y, QString(), Qt::ControlModifier);
  EXPECT_EQ(FSession.Text("Generator2", "Frequency"), "1500");
}

TEST_F(GridWidgetTest, ARefusedValueStaysInItsRowWithTheReasonAndNothingIsWritten) {
  FSession.Select({"Generator1", "Generator2"});
  QLineEdit* edit = Type("Frequency", "-5");
  Enter(edit);
  TGridRow& frequency = Row("Frequency");
  ASSERT_EQ(View().LineEdit(), edit) << "the edit stays open for correction";
  EXPECT_EQ(edit->text(), "-5");
  EXPECT_EQ(frequency.RefusedText, "-5");
  EXPECT_EQ(frequency.RefusedMessage, "Frequency must not be negative: -5");
  EXPECT_EQ(FSession.Text("Generator1", "Frequency"), "440");
  EXPECT_EQ(FGrid->UndoStack()->count(), 0);
  EXPECT_FALSE(FGrid->CommitEdit());

  // A text the editor drops without a word is reported in the row as well.
  edit->setText("fast");
  Enter(edit);
  EXPECT_EQ(frequency.RefusedMessage, "\"fast\" was not accepted");
  // Escape drops the edit and its reason, and writes nothing, not even a text that would be taken.
  edit->setText("1234");
  Key(edit, Qt::Key_Escape);
  EXPECT_TRUE(frequency.RefusedMessage.empty());
  EXPECT_EQ(View().LineEdit(), nullptr);
  EXPECT_EQ(FSession.Text("Generator1", "Frequency"), "440");
}

TEST_F(GridWidgetTest, ASelectionChangeCommitsTheEditInProgressToTheObjectsItWasTypedFor) {
  FSession.Select({"Generator1"});
  Type("Frequency", "2500");
  // The host asks before it changes the selection, as the designer window does.
  ASSERT_TRUE(FGrid->CommitEdit());
  FSession.Select({"Generator2"});
  EXPECT_EQ(FSession.Text("Generator1", "Frequency"), "2500");
  EXPECT_EQ(FSession.Text("Generator2", "Frequency"), "1000");

  // An update bracket announces the change itself: the grid commits on that notice.
  Type("Frequency", "3000");
  FSession.Designer()->BeginUpdate();
  FSession.Designer()->EndUpdate();
  EXPECT_EQ(FSession.Text("Generator2", "Frequency"), "3000");
}

TEST_F(GridWidgetTest, TheDropDownListWritesThePickAndTheBooleanBoxTakesClicks) {
  FSession.Select({"Generator1"});
  ASSERT_NE(View().SelectPath("Waveform"), nullptr);
  ASSERT_TRUE(View().ListButton()->isVisible());
  Key(&View(), Qt::Key_F4);
  ASSERT_NE(View().List(), nullptr);
  const QList<QListWidgetItem*> square = View().List()->findItems("wfSquare", Qt::MatchExactly);
  ASSERT_EQ(square.size(), 1);
  View().List()->setCurrentItem(square[0]);
  Key(View().List(), Qt::Key_Return);
  EXPECT_EQ(FSession.Text("Generator1", "Waveform"), "wfSquare");

  ASSERT_NE(View().SelectPath("Enabled"), nullptr);
  Click(View().viewport(), ValuePoint("Enabled"));
  EXPECT_EQ(FSession.Text("Generator1", "Enabled"), "False");
  EXPECT_EQ(FGrid->UndoStack()->count(), 2);
}

TEST_F(GridWidgetTest, RowsExpandAndCollapseAndStayExpandedForTheirClassAcrossSelections) {
  FSession.Select({"Scope1"});
  TGridRow& channels = Row("Channels");
  ASSERT_TRUE(channels.Expandable);
  const std::size_t collapsed = View().Rows().Shown().size();
  View().SetCurrent(&channels);
  Key(&View(), Qt::Key_Right);
  EXPECT_GT(View().Rows().Shown().size(), collapsed);
  EXPECT_EQ(Row("Channels.ch33").Value, "True");

  FSession.Select({"Generator1"});
  FSession.Select({"Scope1"});
  EXPECT_TRUE(Row("Channels").Expanded);
  View().SetCurrent(&Row("Channels"));
  Key(&View(), Qt::Key_Left);
  EXPECT_EQ(View().Rows().Shown().size(), collapsed);
}

TEST_F(GridWidgetTest, CategoryViewPutsRowsUnderHeadingsAndSearchKeepsTheMatchingOnes) {
  FSession.Select({"Generator1"});
  FGrid->SetSearchText("freq");
  std::vector<String> shown;
  for (TGridRow* row : View().Rows().Shown()) shown.push_back(row->Name);
  EXPECT_EQ(shown, std::vector<String>{"Frequency"});

  FGrid->SetSearchText("");
  FGrid->SetCategoryView(true);
  const std::vector<TGridRow*>& rows = View().Rows().Shown();
  ASSERT_FALSE(rows.empty());
  EXPECT_TRUE(rows.front()->IsHeading);
  EXPECT_EQ(rows.back()->Parent->Name, "Miscellaneous");
}

// The gestures that open more than a text: a form under the row, a control over it, a dialog.
// Each is one undo step, however many writes it makes.
TEST_F(GridWidgetTest, FormsOpenUnderTheirRowControlsOverItAndDialogsThroughTheButton) {
  FSession.Select({"Scope1"});
  ASSERT_NE(View().SelectPath("Channel"), nullptr);
  QWidget* form = View().InplaceForm();
  ASSERT_NE(form, nullptr) << "a ranged number gets its slider";
  EXPECT_EQ(form->parentWidget(), View().viewport());
  EXPECT_EQ(form->geometry().top(), View().RowRect(Row("Channel")).bottom() + 1);
  const QPointer<QWidget> gone = form;
  View().SelectPath("Caption");
  EXPECT_TRUE(gone.isNull()) << "leaving the row takes the form away";

  FSession.Select({"Generator1"});
  ASSERT_NE(View().SelectPath("CalibrationDate"), nullptr);
  Key(&View(), Qt::Key_Return);
  EXPECT_EQ(View().LineEdit(), nullptr) << "a date shows its own control instead of the text edit";
  const auto calendar = [&] { return View().viewport()->findChild<QCalendarWidget*>(); };
  ASSERT_NE(calendar(), nullptr);
  EXPECT_EQ(calendar()->size(), View().HostedRect().size()) << "the control fills the place the grid gives";
  EXPECT_EQ(View().HostedRect().top(), View().RowRect(Row("CalibrationDate")).top());
  View().SelectPath("Frequency");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(calendar(), nullptr) << "leaving the row closes the control";

  ASSERT_NE(View().SelectPath("Preset"), nullptr);
  ASSERT_TRUE(View().DialogButton()->isVisible());
  {
    const TModalHandlerScope user([](QDialog& ADialog) { return AnswerDialog(ADialog, String("Calibration")); });
    Click(View().DialogButton(), QPoint(4, 4));
  }
  EXPECT_EQ(Row("Preset").Value, "Calibration");
  ASSERT_EQ(FGrid->UndoStack()->count(), 1);
  FGrid->UndoStack()->undo();
  EXPECT_EQ(Row("Preset").Value, "");
}

// Pixels at places a user looks: a changed value's bold name, a ticked box, a mixed selection's
// muted text. Text is smoothed, so ink is measured, not matched to a colour.
TEST_F(GridWidgetTest, TheGridPaintsBoldChangedNamesCheckBoxesAndMutedMixedTexts) {
  const auto ink = [&](const QImage& AImage, const QRect& ARect) {
    long total = 0;
    for (int y = ARect.top(); y <= ARect.bottom(); ++y)
      for (int x = ARect.left(); x <= ARect.right(); ++x) total += 255 - AImage.pixelColor(x, y).lightness();
    return total;
  };
  const auto darkest = [&](const QImage& AImage, const QRect& ARect) {
    int result = 255;
    for (int y = ARect.top(); y <= ARect.bottom(); ++y)
      for (int x = ARect.left(); x <= ARect.right(); ++x) result = std::min(result, AImage.pixelColor(x, y).lightness());
    return result;
  };
  const auto nameCell = [&](const char* APath) {
    const QRect line = View().RowRect(Row(APath));
    return QRect(line.left(), line.top(), View().NameWidth(), line.height() - 1);
  };

  FSession.Select({"Generator1"});
  const QImage single = View().viewport()->grab().toImage();
  // Amplitude differs from its default, Waveform does not; the names are about as long.
  EXPECT_GT(ink(single, nameCell("Amplitude")), ink(single, nameCell("Waveform")) * 6 / 5);
  const QRect box = View().ValueRect(Row("Enabled"));
  EXPECT_LT(darkest(single, QRect(box.left() + 1, box.top() + 2, 12, box.height() - 4)), 160)
      << "the box of a True value is drawn";
  const QRect oneFrequency = View().ValueRect(Row("Frequency")).adjusted(0, 1, 0, -1);
  const int plain = darkest(single, oneFrequency);

  FSession.Select({"Generator1", "Generator2"});
  const QImage mixed = View().viewport()->grab().toImage();
  const QRect bothFrequencies = View().ValueRect(Row("Frequency")).adjusted(0, 1, 0, -1);
  EXPECT_GT(ink(mixed, bothFrequencies), 0);
  EXPECT_GT(darkest(mixed, bothFrequencies), plain + 40) << "joined texts are muted";
}

} // namespace

} // namespace Tarvo
