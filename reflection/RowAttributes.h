#pragma once
#pragma GCC visibility push(default)
// How a member shows as a row: hidden, multi-line, named, read-only, refreshing, nested.

#include "reflection/Attributes.h"

namespace Tarvo {

TARVO_ATTRIBUTE(HiddenDesignAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(MultiLineAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(DynamicElementAttribute, TCustomAttribute)

// The text shown in place of a member's or a class's own name.
TARVO_ATTRIBUTE_1(NameAttribute, TCustomAttribute, String, Name)
TARVO_ATTRIBUTE(ReadOnlyAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(RefreshPropertiesAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(PropertyFixedListDesignAttribute, TCustomAttribute)

// One Boolean, read as the attribute's value; written without an argument it says yes.
TARVO_ATTRIBUTE_1(TBasicBooleanAttribute, TCustomAttribute, Boolean, Value, true)
TARVO_ATTRIBUTE(DisplayNestedAttribute, TBasicBooleanAttribute)
TARVO_ATTRIBUTE(DisplayNestedShortAttribute, TBasicBooleanAttribute)
TARVO_ATTRIBUTE(HideNestedDefaultAttribute, TBasicBooleanAttribute)

} // namespace Tarvo

#pragma GCC visibility pop
