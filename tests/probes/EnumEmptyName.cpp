// expect: static.assert(ion)? failed
// expect: TARVO_ENUM\(TLevel, \.\.\.\) takes plain names
// A trailing comma is valid C++ but leaves a value without a name.
#include "rtl/TypeRecords.h"

namespace Probe {
TARVO_ENUM(TLevel, lvLow, lvHigh, )
} // namespace Probe
