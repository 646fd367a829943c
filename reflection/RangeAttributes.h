#pragma once
#pragma GCC visibility push(default)
// Ranges of numeric rows: suggested ranges, the member's own limits, and the refusal of both.

#include "reflection/Attributes.h"

namespace Tarvo {

// The Design... attributes suggest a range; the others state the member's own limits.
TARVO_ATTRIBUTE_1(DesignMinAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_1(DesignMaxAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_2(DesignRangeAttribute, TCustomAttribute, TValue, MinValue, TValue, MaxValue)
TARVO_ATTRIBUTE_1(MinValueAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_1(MaxValueAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_2(ValueRangeAttribute, TCustomAttribute, TValue, MinValue, TValue, MaxValue)
TARVO_ATTRIBUTE(SuppressRangeAttribute, TCustomAttribute)

} // namespace Tarvo

#pragma GCC visibility pop
