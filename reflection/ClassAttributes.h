#pragma once
#pragma GCC visibility push(default)
// Colour rows, class-valued rows and collections.

#include "reflection/Attributes.h"

namespace Tarvo {

TARVO_ATTRIBUTE(ExcludeSystemColorsAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(NotExpandableClassAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(HideEmptyAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(FixedCollectionAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(FixedOrderCollectionAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(AllowCollectionExpantionAttribute, TCustomAttribute)

} // namespace Tarvo

#pragma GCC visibility pop
