#include "host/headless/HostDesigner.h"

namespace Tarvo {

TRef<IStringArrayList> THostDesigner::GetComponentNames() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (Integer i = 0; i < FRoot->ComponentCount(); ++i) result->Add(FRoot->Components(i)->GetName());
  return result;
}

String THostDesigner::UniqueName(const String& ABaseName) { return FRoot->UniqueComponentName(ABaseName); }

void THostDesigner::Modified() {
  ++FModifiedCount;
  TDesigner::Modified();
}

} // namespace Tarvo
