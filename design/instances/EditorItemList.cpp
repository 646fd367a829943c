// The list instances of one element type, compiled here once; the header declares them extern.
#include "design/Registry.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, TRef<IMemberEditorItem>)
TARVO_LINKED_LIST_INSTANCES(, TRef<IMemberEditorItem>)
} // namespace Tarvo
