#include "design/reflection/Attributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TCustomAttribute)

TCustomAttribute* FindAttribute(const std::vector<TCustomAttribute*>& AAttributes, TClass AClass) {
  for (TCustomAttribute* attribute : AAttributes)
    if (attribute->InheritsFrom(AClass)) return attribute;
  return nullptr;
}

} // namespace Tarvo
