// The list instances of one element type, compiled here once; the header declares them extern.
#include "containers/List.h"

namespace Tarvo {
TARVO_LIST_ELEMENT_INSTANCES(, TInterfacedChangeNotifyItem)
TARVO_LINKED_LIST_INSTANCES(, TInterfacedChangeNotifyItem)
} // namespace Tarvo
