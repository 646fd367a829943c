#include <gtest/gtest.h>

#include <QColorDialog>
#include <QMessageBox>
#include <QPushButton>

#include "platform/MessageDlg.h"
#include "platform/ModalSeam.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

// The handler fills the dialog and closes it with its code as by a click; the selection settles on OK only.
TEST(ModalSeamTest, HandlerFillsAndClosesTheDialog) {
  const struct {
    const char* Name;
    int Code;
  } closes[] = {{"accepted", QDialog::Accepted}, {"rejected", QDialog::Rejected}};
  Testing::ForEachRow(closes, [](const auto& AClose) {
    const int code = AClose.Code;
    QColorDialog dialog{QColor(Qt::red)};
    TModalHandlerScope scope([code](QDialog& ADialog) {
      auto* colorDialog = qobject_cast<QColorDialog*>(&ADialog);
      EXPECT_NE(colorDialog, nullptr);
      if (colorDialog) colorDialog->setCurrentColor(QColor(10, 20, 30));
      return code;
    });
    EXPECT_EQ(ExecuteModal(dialog), code);
    EXPECT_TRUE(dialog.result() == code && !dialog.isVisible());
    EXPECT_EQ(dialog.selectedColor(), code == QDialog::Accepted ? QColor(10, 20, 30) : QColor());
  });
}

// Scopes nest and restore the handler before them; a handler may run a nested dialog.
TEST(ModalSeamTest, ScopesNestAndHandlersMayRunNestedDialogs) {
  QDialog outerDialog, innerDialog;
  int outerRuns = 0, innerResult = -1;
  {
    TModalHandlerScope outer([&](QDialog& ADialog) {
      if (&ADialog == &innerDialog) return int(QDialog::Rejected);
      ++outerRuns;
      innerResult = ExecuteModal(innerDialog);
      return int(QDialog::Accepted);
    });
    {
      TModalHandlerScope inner([](QDialog&) { return int(QDialog::Rejected); });
      EXPECT_EQ(ExecuteModal(outerDialog), QDialog::Rejected);
      EXPECT_EQ(outerRuns, 0);
    }
    EXPECT_EQ(ExecuteModal(outerDialog), QDialog::Accepted);
    EXPECT_EQ(innerResult, QDialog::Rejected);
    EXPECT_EQ(outerRuns, 1);
  }
  EXPECT_FALSE(SetModalHandler(nullptr));
}

// The box shows the message, caption, icon, buttons and default button asked for.
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
  EXPECT_TRUE(text == "Delete the item?" && title == "Confirm" && icon == QMessageBox::Question);
  EXPECT_EQ(buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::SaveAll);
  EXPECT_EQ(defaultText.remove('&'), "No");
}

// A button not on the box answers as dismissed.
TEST(MessageDlgTest, AnswersEachButtonByItsCode) {
  const struct {
    const char* Name;
    QMessageBox::StandardButton Pressed;
    TMsgDlgBtn Expected;
  } cases[] = {{"Yes", QMessageBox::Yes, mbYes},
               {"OK", QMessageBox::Ok, mbOK},
               {"Retry", QMessageBox::Retry, mbRetry},
               {"All", QMessageBox::SaveAll, mbAll},
               {"No to all", QMessageBox::NoToAll, mbNoToAll},
               {"Close", QMessageBox::Close, mbClose},
               {"no button", QMessageBox::NoButton, mbCancel},
               {"a button not on the box", QMessageBox::Help, mbCancel}};
  Testing::ForEachRow(cases, [](const auto& ACase) {
    TModalHandlerScope scope([&ACase](QDialog&) { return int(ACase.Pressed); });
    EXPECT_EQ(MessageDlg("?", mtWarning, {mbYes, mbOK, mbRetry, mbAll, mbNoToAll, mbClose}, mbOK), ACase.Expected);
  });
}

} // namespace
} // namespace Tarvo
