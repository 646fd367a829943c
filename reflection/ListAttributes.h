#pragma once
#pragma GCC visibility push(default)
// Lists and dialogs that an editor is given from attributes alone.

#include "reflection/Attributes.h"

namespace Tarvo {

// A property and the methods that supply its list values share one association identity; the
// identities compare as exact text.
TARVO_ATTRIBUTE_1(DesignAssociationAttribute, TCustomAttribute, String, Identity)
TARVO_ATTRIBUTE_1(PropertyListDesignAssociationAttribute, TCustomAttribute, String, Identity)
// One literal list value; After places it behind the values of the associated methods.
TARVO_ATTRIBUTE_2(PropertyListDesignValueAttribute, TCustomAttribute, String, Value, Boolean, After, false)
TARVO_ATTRIBUTE_1(PropertyListDialogDesignAttribute, TCustomAttribute, String, Caption)
TARVO_ATTRIBUTE(PropertySortListDesignAttribute, TCustomAttribute)
TARVO_ATTRIBUTE_1(PropertyValueAttribute, TCustomAttribute, String, Value)

} // namespace Tarvo

#pragma GCC visibility pop
