#pragma once
// Attributes: objects of attribute classes attached to members, types and classes in the
// registration tables. They are found by class, descendants included.

#include "containers/List.h"
#include "rtl/Object.h"

namespace Tarvo {

class TCustomAttribute : public TObject {
  TARVO_CLASS(TCustomAttribute, TObject)
};

// The attributes of one thing, in declaration order.
using IAttributeList = IArrayList<TCustomAttribute*>;

// The first attribute of AClass (or a descendant) in AAttributes; nil when none.
TCustomAttribute* FindAttribute(const std::vector<TCustomAttribute*>& AAttributes, TClass AClass);

} // namespace Tarvo
