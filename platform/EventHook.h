#pragma once
#pragma GCC visibility push(default)
// Handlers for the events of a widget that was not written to handle them: the widget's class
// stays as it is, and no meta-object code is needed.

#include <QEvent>
#include <QObject>

#include "containers/Common.h"

namespace Tarvo {

// Calls AHandler with each event of type AType that reaches ATarget, before the target sees it;
// the event then goes on to the target. The hook goes with the target.
void HookEvent(QObject* ATarget, QEvent::Type AType, TProc<QEvent*> AHandler);

} // namespace Tarvo

#pragma GCC visibility pop
