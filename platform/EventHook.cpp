#include "platform/EventHook.h"

namespace Tarvo {

namespace {
class TEventHook : public QObject {
public:
  TEventHook(QObject* ATarget, QEvent::Type AType, TProc<QEvent*> AHandler)
      : QObject(ATarget), FType(AType), FHandler(std::move(AHandler)) {}

  bool eventFilter(QObject*, QEvent* AEvent) override {
    if (AEvent->type() == FType) FHandler(AEvent);
    return false;
  }

private:
  QEvent::Type FType;
  TProc<QEvent*> FHandler;
};
} // namespace

void HookEvent(QObject* ATarget, QEvent::Type AType, TProc<QEvent*> AHandler) {
  TARVO_ASSERT(ATarget != nullptr);
  TARVO_ASSERT(AHandler != nullptr);
  ATarget->installEventFilter(new TEventHook(ATarget, AType, std::move(AHandler)));
}

} // namespace Tarvo
