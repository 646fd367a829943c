// The form controller and form list instances of one form class, compiled here once; the editors'
// definitions declare them extern.
#include "design/paint/InplaceFormController.h"
#include "forms/EnumCanvasInplaceForm.h"

namespace Tarvo {
TARVO_INPLACE_FORM_INSTANCES(, TEnumCanvasInplaceForm)
} // namespace Tarvo
