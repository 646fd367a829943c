// What the design package registers at start-up: each editor family's lines, in this order. The
// order is behaviour: of two entries that serve a member equally well, the earlier one is used.
// The basic family comes first, as it gives every kind the base value editor until a typed
// family takes the kind over.

#include "design/editors/BasicEditors.h"
#include "design/editors/CharEditors.h"
#include "design/editors/FileNameEditor.h"
#include "design/editors/OrdinalEditors.h"
#include "design/editors/StringEditors.h"
#include "package/DesignUnit.h"

namespace Tarvo {

void RegisterDesignEditors() {
  RegisterBasicEditors();
  RegisterOrdinalEditors();
  RegisterCharEditors();
  RegisterStringEditors();
  RegisterFileNameEditors();
}

} // namespace Tarvo
