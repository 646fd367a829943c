#include <gtest/gtest.h>

#include <QColorDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "platform/MessageDlg.h"
#include "platform/ModalSeam.h"

namespace Tarvo {
namespace {

TEST(ModalSeamTest, HandlerFillsAndAcceptsADialog) {
  QColorDialog dialog(QColor(Qt::red));
  TModalHandlerScope scope([](QDialog& ADialog) {
    auto* colorDialog = qobject_cast<QColorDialog*>(&ADialog);
    EXPECT_NE(colorDialog, nullptr);
    if (colorDialog) colorDialog->setCurrentColor(QColor(10, 20, 30));
    return int(QDialog::Accepted);
  });
  EXPECT_EQ(ExecuteModal(dialog), QDialog::Accepted);
  // Closed as by the OK button: the dialog settled its selection.
  EXPECT_EQ(dialog.selectedColor(), QColor(10, 20, 30));
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(ModalSeamTest, CancelLeavesTheSelectionUnset) {
  QColorDialog dialog(QColor(Qt::red));
  TModalHandlerScope scope([](QDialog& ADialog) {
    static_cast<QColorDialog&>(ADialog).setCurrentColor(QColor(10, 20, 30));
    return int(QDialog::Rejected);
  });
  EXPECT_EQ(ExecuteModal(dialog), QDialog::Rejected);
  EXPECT_FALSE(dialog.selectedColor().isValid());
}

TEST(ModalSeamTest, ScopesNestAndRestore) {
  int outerRuns = 0, innerRuns = 0;
  QDialog dialog;
  {
    TModalHandlerScope outer([&](QDialog&) { return ++outerRuns, int(QDialog::Accepted); });
    {
      TModalHandlerScope inner([&](QDialog&) { return ++innerRuns, int(QDialog::Rejected); });
      EXPECT_EQ(ExecuteModal(dialog), QDialog::Rejected);
    }
    EXPECT_EQ(ExecuteModal(dialog), QDialog::Accepted);
  }
  EXPECT_EQ(innerRuns, 1);
  EXPECT_EQ(outerRuns, 1);
  EXPECT_FALSE(SetModalHandler(nullptr));
}

TEST(ModalSeamTest, AHandlerMayRunANestedDialog) {
  QDialog outerDialog, innerDialog;
  int innerResult = -1;
  TModalHandlerScope scope([&](QDialog& ADialog) {
    if (&ADialog == &innerDialog) return int(QDialog::Rejected);
    innerResult = ExecuteModal(innerDialog);
    return int(QDialog::Accepted);
  });
  EXPECT_EQ(ExecuteModal(outerDialog), QDialog::Accepted);
  EXPECT_EQ(innerResult, QDialog::Rejected);
}

TEST(MessageDlgTest, ShowsTheMessageWithTheButtonsAsked) {
  QString text, title, defaultText;
  QMessageBox::StandardButtons buttons;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  TModalHandlerScope scope([&](QDialog& ADialog) {
    auto& box = dynamic_cast<QMessageBox&>(ADialog);
    text = box.text();
    title = box.windowTitle();
    icon = box.icon();
    buttons = box.standardButtons();
    defaultText = box.defaultButton() ? box.defaultButton()->text() : QString();
    return int(QMessageBox::No);
  });
  EXPECT_EQ(MessageDlg("Delete the item?", mtConfirmation, {mbYes, mbNo, mbAll}, mbNo), mbNo);
  EXPECT_EQ(text, "Delete the item?");
  EXPECT_EQ(title, "Confirm");
  EXPECT_EQ(icon, QMessageBox::Question);
  EXPECT_EQ(buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::SaveAll);
  EXPECT_EQ(defaultText.remove('&'), "No");
}

TEST(MessageDlgTest, AnswersEachButtonByItsCode) {
  const struct {
    QMessageBox::StandardButton Pressed;
    TMsgDlgBtn Expected;
  } cases[] = {
      {QMessageBox::Yes, mbYes},         {QMessageBox::Ok, mbOK},         {QMessageBox::Retry, mbRetry},
      {QMessageBox::SaveAll, mbAll},     {QMessageBox::NoToAll, mbNoToAll}, {QMessageBox::Close, mbClose},
      // Not on the box: dismissed.
      {QMessageBox::NoButton, mbCancel}, {QMessageBox::Help, mbCancel},
  };
  for (const auto& c : cases) {
    TModalHandlerScope scope([&](QDialog&) { return int(c.Pressed); });
    EXPECT_EQ(MessageDlg("?", mtWarning, {mbYes, mbOK, mbRetry, mbAll, mbNoToAll, mbClose}, mbOK), c.Expected)
        << c.Pressed;
  }
}

} // namespace
} // namespace Tarvo
