#pragma once
#pragma GCC visibility push(default)
// The element classes offered for class-valued members.

#include "containers/List.h"
#include "rtl/Object.h"

namespace Tarvo {

// Offers AElementClass, which must descend from ABase, for members of type ABase.
void RegisterDynamicElement(TClass ABase, TClass AElementClass);
// The element classes a member of type ABase can hold, in registration order, each once: those
// registered for ABase, and those registered for an ancestor of ABase that descend from ABase.
// Elements registered for a descendant of ABase are not offered. A module's registrations leave
// when it unloads, whether it holds the base or the element.
TRef<IArrayList<TClass>> GetDynamicElementsFor(TClass ABase);

} // namespace Tarvo

#pragma GCC visibility pop
