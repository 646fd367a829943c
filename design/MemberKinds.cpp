#include "design/MemberKinds.h"

namespace Tarvo {

TARVO_IMPLEMENT_ENUM(TMemberKind)
TARVO_IMPLEMENT_SET(TMemberKinds, TMemberKind)

} // namespace Tarvo
