#include "platform/MainThread.h"

#include <QCoreApplication>
#include <QMetaObject>

namespace Tarvo {

void MainThreadExecute(TProc<> AProc) {
  QCoreApplication* application = QCoreApplication::instance();
  TARVO_ASSERT(application != nullptr);
  TARVO_ASSERT(AProc != nullptr);
  QMetaObject::invokeMethod(application, std::move(AProc), Qt::QueuedConnection);
}

void ProcessMainThreadQueue() {
  if (QCoreApplication* application = QCoreApplication::instance())
    QCoreApplication::sendPostedEvents(application, QEvent::MetaCall);
}

} // namespace Tarvo
