#pragma once
#pragma GCC visibility push(default)
// How string rows are edited.

#include "reflection/Attributes.h"

namespace Tarvo {

TARVO_ATTRIBUTE(AutoUpdateAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(IdentifierStringAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(StringDesignAccessAttribute, TCustomAttribute)
// The filter and default extension of the file dialog.
TARVO_ATTRIBUTE_2(FileNameDesignAttribute, TCustomAttribute, String, Filter, String, DefaultExt, String())

} // namespace Tarvo

#pragma GCC visibility pop
