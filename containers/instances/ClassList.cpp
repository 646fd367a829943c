// The list instances of one element type, compiled here once; the header declares them extern.
#include "containers/List.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, TClass)
} // namespace Tarvo
