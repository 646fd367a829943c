#pragma once
#pragma GCC visibility push(default)
// Work put off until the main thread's event loop comes round again: a handler that must not
// destroy the widget it runs in, or a change that must wait until the current event is done.

#include "containers/Common.h"

namespace Tarvo {

// Queues AProc to run on the main thread once control is back in its event loop; from any
// thread, never inside this call. Needs the application object.
void MainThreadExecute(TProc<> AProc);

// Runs what MainThreadExecute has queued so far, as the event loop would; for callers without a
// running loop (tests, headless hosts). Work queued while it runs waits for the next call.
void ProcessMainThreadQueue();

} // namespace Tarvo

#pragma GCC visibility pop
