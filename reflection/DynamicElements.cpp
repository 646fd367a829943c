#include "reflection/DynamicElements.h"

#include <algorithm>

#include "rtl/ModuleSwept.h"

namespace Tarvo {

namespace {

struct TDynamicElement {
  TClass Base;
  TClass Element;
  bool operator==(const TDynamicElement&) const = default;
};

bool ElementBelongsTo(const TDynamicElement& AEntry, const TModule* AModule) {
  return AEntry.Base->Module() == AModule || AEntry.Element->Module() == AModule;
}

std::vector<TDynamicElement>& DynamicElements() {
  static TModuleSwept<std::vector<TDynamicElement>> registry("dynamic elements", ElementBelongsTo);
  return registry.Items();
}

} // namespace

void RegisterDynamicElement(TClass ABase, TClass AElementClass) {
  // A member of type ABase could not hold an element of any other class.
  TARVO_ASSERT(ABase != nullptr && AElementClass != nullptr && AElementClass->InheritsFrom(ABase));
  std::vector<TDynamicElement>& elements = DynamicElements();
  const TDynamicElement element{ABase, AElementClass};
  if (std::ranges::find(elements, element) == elements.end()) elements.push_back(element);
}

TRef<IArrayList<TClass>> GetDynamicElementsFor(TClass ABase) {
  const TRef<IArrayList<TClass>> result = New<TArrayList<TClass>>();
  if (!ABase) return result;
  for (const TDynamicElement& entry : DynamicElements())
    if (ABase->InheritsFrom(entry.Base) && entry.Element->InheritsFrom(ABase)) result->AddUnique(entry.Element);
  return result;
}

} // namespace Tarvo
