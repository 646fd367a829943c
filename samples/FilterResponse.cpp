#include "samples/FilterResponse.h"

#include "reflection/Publish.h"

namespace Signals {

TARVO_IMPLEMENT_CLASS(TFilterResponse)

TARVO_PUBLISH(TFilterResponse) {
  Property("Ripple", &TFilterResponse::GetRipple, &TFilterResponse::SetRipple).Default(0.5);
  Property("Attenuation", &TFilterResponse::GetAttenuation, &TFilterResponse::SetAttenuation).Default(60.0);
  Property("Slope", &TFilterResponse::GetSlope, &TFilterResponse::SetSlope).Default(12);
}

void TFilterResponse::Assign(TPersistent* ASource) {
  if (const auto* source = dynamic_cast<const TFilterResponse*>(ASource)) FData = source->FData;
  else inherited::Assign(ASource);
}

} // namespace Signals
