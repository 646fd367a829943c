// The list instances of one element type, compiled here once; the header declares them extern.
#include "platform/QueryControls.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, QWidget*)
} // namespace Tarvo
