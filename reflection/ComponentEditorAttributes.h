#pragma once
#pragma GCC visibility push(default)
// Component editors and the verbs a class offers through its members.

#include "reflection/Attributes.h"

namespace Tarvo {

// The component editor class of the class that carries it.
TARVO_ATTRIBUTE_1(ComponentEditorAttribute, TCustomAttribute, TClass, ComponentEditor)
// The class offers verbs from its properties' attributes, and with IncludeMethods from its
// methods' too.
TARVO_ATTRIBUTE_1(ComponentEditorEntriesDesignAttribute, TCustomAttribute, Boolean, IncludeMethods, false)
// A verb with its caption; First puts it at the front, where it is also the double-click action.
TARVO_ATTRIBUTE_2(ComponentEditorEntryDesignAttribute, TCustomAttribute, String, Text, Boolean, First, false)
// A method verb after which the designer refreshes fully.
TARVO_ATTRIBUTE(ComponentEditorEntryFullRefreshDesignAttribute, ComponentEditorEntryDesignAttribute)
// The question put to the user before the verb runs.
TARVO_ATTRIBUTE_1(ComponentEditorEntryDesignConfirmationAttribute, TCustomAttribute, String, Text)
// Cancels, where it stands, the attribute class it names.
TARVO_ATTRIBUTE_1(SuppressAttribute, TCustomAttribute, TCustomAttributeClass, AttributeClass)
// The base of class attributes that pick a component editor registered for their class.
TARVO_ATTRIBUTE(TMBCommonFilterHostedPreviewAttribute, TCustomAttribute)

} // namespace Tarvo

#pragma GCC visibility pop
