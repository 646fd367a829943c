#pragma once
#pragma GCC visibility push(default)
// Every modal run of the package (a dialog's Execute, a form's ShowModal, a message box) goes
// through ExecuteModal, so that a test can stand in for the user: it installs a handler that
// fills the dialog and says how it was closed, and no modal loop ever starts.

#include <QDialog>

#include <functional>

namespace Tarvo {

// Gets the dialog ready to run (built, not shown) and answers the code it closes with, as a
// click would: QDialog::Accepted or Rejected, or for a message box the standard button pressed.
using TModalHandler = std::function<int(QDialog& ADialog)>;

// Runs ADialog modally and answers its result code. Under a handler the dialog is closed with the
// handler's code through QDialog::done, so that it settles its state (a colour dialog its
// selected colour) as on a real click.
int ExecuteModal(QDialog& ADialog);

// Installs AHandler for the runs that follow (nil restores the real modal loop); answers the
// handler it replaces.
TModalHandler SetModalHandler(TModalHandler AHandler);

// Installs a handler for the life of the scope, then restores the one before.
class TModalHandlerScope {
public:
  explicit TModalHandlerScope(TModalHandler AHandler) : FPrevious(SetModalHandler(std::move(AHandler))) {}
  ~TModalHandlerScope() { SetModalHandler(std::move(FPrevious)); }
  TModalHandlerScope(const TModalHandlerScope&) = delete;
  TModalHandlerScope& operator=(const TModalHandlerScope&) = delete;

private:
  TModalHandler FPrevious;
};

} // namespace Tarvo

#pragma GCC visibility pop
