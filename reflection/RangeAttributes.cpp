#include "reflection/RangeAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(DesignMinAttribute)
TARVO_IMPLEMENT_CLASS(DesignMaxAttribute)
TARVO_IMPLEMENT_CLASS(DesignRangeAttribute)
TARVO_IMPLEMENT_CLASS(MinValueAttribute)
TARVO_IMPLEMENT_CLASS(MaxValueAttribute)
TARVO_IMPLEMENT_CLASS(ValueRangeAttribute)
TARVO_IMPLEMENT_CLASS(SuppressRangeAttribute)

} // namespace Tarvo
