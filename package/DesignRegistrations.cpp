// What the design package registers at start-up: each editor family's lines, in this order. The
// order is behaviour: of two entries that serve a member equally well, the earlier one is used.

#include "design/editors/EditorFamilies.h"
#include "package/DesignUnit.h"

namespace Tarvo {

void RegisterDesignEditors() {
  RegisterBasicEditors();
  RegisterEnumEditors();
  RegisterSetEditors();
  RegisterOrdinalEditors();
  RegisterColorEditors();
  RegisterCharEditors();
  RegisterStringEditors();
  RegisterFileNameEditors();
  RegisterFloatEditors();
  RegisterDateTimeEditors();
  RegisterVariantEditors();
  RegisterClassEditors();
  RegisterFontEditors();
  RegisterIdentifierEditors();
  RegisterCursorEditors();
  RegisterCanvasEnumEditors();
}

} // namespace Tarvo
