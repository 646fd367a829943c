#include "platform/ModalSeam.h"

#include <utility>

namespace Tarvo {

namespace {
TModalHandler& ModalHandler() {
  static TModalHandler handler;
  return handler;
}
} // namespace

int ExecuteModal(QDialog& ADialog) {
  // A copy: the handler may run a nested dialog that installs a handler of its own.
  const TModalHandler handler = ModalHandler();
  if (!handler) return ADialog.exec();
  const int result = handler(ADialog);
  ADialog.done(result);
  return result;
}

TModalHandler SetModalHandler(TModalHandler AHandler) { return std::exchange(ModalHandler(), std::move(AHandler)); }

} // namespace Tarvo
