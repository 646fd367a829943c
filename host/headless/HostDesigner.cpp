#include "host/headless/HostDesigner.h"

namespace Tarvo {

TRef<IStringArrayList> THostDesigner::GetComponentNames() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (Integer i = 0; i < FRoot->ComponentCount(); ++i) result->Add(FRoot->Components(i)->GetName());
  return result;
}

String THostDesigner::UniqueName(const String& ABaseName) {
  for (Integer number = 1;; ++number) {
    const String candidate = ABaseName + std::to_string(number);
    if (!FRoot->FindComponent(candidate)) return candidate;
  }
}

void THostDesigner::Modified() {
  ++FModifiedCount;
  TDesigner::Modified();
}

} // namespace Tarvo
