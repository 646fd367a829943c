// The list instances of one element type, compiled here once; the header declares them extern.
#include "design/CategorizedValues.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, TCategorizedValue)
} // namespace Tarvo
