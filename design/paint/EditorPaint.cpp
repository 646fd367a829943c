#include "design/paint/EditorPaint.h"

namespace Tarvo {

TARVO_IMPLEMENT_ENUM(TMouseButton)
TARVO_IMPLEMENT_ENUM(TShiftStateItem)
TARVO_IMPLEMENT_SET(TShiftState, TShiftStateItem)

} // namespace Tarvo
