// The list instances of one element type, compiled here once; the header declares them extern.
#include "design/MemberFilter.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, TRef<IMemberFilter>)
} // namespace Tarvo
