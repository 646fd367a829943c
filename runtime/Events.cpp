#include "runtime/Events.h"

namespace Tarvo {

TARVO_IMPLEMENT_EVENT(TNotifyEvent)

} // namespace Tarvo
