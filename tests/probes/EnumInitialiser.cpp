// expect: static.assert(ion)? failed
// expect: TARVO_ENUM\(TLevel, \.\.\.\) takes plain names
// Values are contiguous from 0; an initialiser would break the names' order.
#include "rtl/TypeRecords.h"

namespace Probe {
TARVO_ENUM(TLevel, lvLow = 1, lvHigh)
} // namespace Probe
