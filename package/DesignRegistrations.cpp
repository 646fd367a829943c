// What the design package registers at start-up: each editor family's lines, in this order. The
// order is behaviour: of two entries that serve a member equally well, the later one wins.

#include "design/editors/BasicEditors.h"
#include "package/DesignUnit.h"

namespace Tarvo {

void RegisterDesignEditors() { RegisterBasicEditors(); }

} // namespace Tarvo
