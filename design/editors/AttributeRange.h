#pragma once
// The range a member's attributes give a numeric row, read in one order by every numeric editor:
// the Design... attribute of that end, DesignRangeAttribute, the MinValue/MaxValue attribute,
// then ValueRangeAttribute.

#include "reflection/TypeInfo.h"

namespace Tarvo {

// False, with AResult untouched, where no attribute gives that end.
bool AttributeMinValue(const TRef<IMemberInfo>& AMember, TValue& AResult);
bool AttributeMaxValue(const TRef<IMemberInfo>& AMember, TValue& AResult);

} // namespace Tarvo
