// The lists of int the container tests share, compiled here once; ListTestSupport.h declares them
// extern. Each test compiling its own cost it about 2 s.
#include "tests/containers/ListTestSupport.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, int)
TARVO_LINKED_LIST_INSTANCES(, int)
} // namespace Tarvo
