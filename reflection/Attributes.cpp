#include "reflection/Attributes.h"

#include <map>
#include <memory>

#include "rtl/ModuleSwept.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TCustomAttribute)

TCustomAttribute* FindAttribute(const std::vector<TCustomAttribute*>& AAttributes, TClass AClass) {
  for (TCustomAttribute* attribute : AAttributes)
    if (attribute->InheritsFrom(AClass)) return attribute;
  return nullptr;
}

namespace {

// Attributes of type records, owned here; a module's leave with it.
using TTypeAttributes = std::map<PTypeInfo, std::vector<std::unique_ptr<TCustomAttribute>>>;

TTypeAttributes& TypeAttributeRegistry() {
  static TModuleSwept<TTypeAttributes> registry("type attributes", KeyBelongsTo);
  return registry.Items();
}

} // namespace

void RegisterTypeAttribute(PTypeInfo AType, TCustomAttribute* AAttribute) {
  TypeAttributeRegistry()[AType].emplace_back(AAttribute);
}

std::vector<TCustomAttribute*> TypeAttributes(PTypeInfo AType) {
  std::vector<TCustomAttribute*> result;
  const auto& attributes = TypeAttributeRegistry();
  if (const auto found = attributes.find(AType); found != attributes.end())
    for (const auto& attribute : found->second) result.push_back(attribute.get());
  return result;
}

} // namespace Tarvo
