#pragma once
#pragma GCC visibility push(default)
// The named categories of values and classes in categorized lists and dialogs.

#include "reflection/Attributes.h"

namespace Tarvo {

// The named category of a value or class in categorized lists and dialogs.
TARVO_ATTRIBUTE_1(CategoryAttribute, TCustomAttribute, String, Category)
TARVO_ATTRIBUTE_1(AlternateCategoryAttribute, TCustomAttribute, String, Category)

} // namespace Tarvo

#pragma GCC visibility pop
