#include "reflection/TypeInfo.h"

namespace Tarvo {

TARVO_IMPLEMENT_ENUM(TMemberVisibility)
TARVO_IMPLEMENT_ENUM(TMethodKind)

} // namespace Tarvo
