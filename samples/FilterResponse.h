#pragma once
// The response a filter is specified by, beside its cutoff: a nested object of the filter.

#include "runtime/Component.h"

namespace Signals {

using namespace Tarvo;

class TFilterResponse : public TPersistent {
  TARVO_CLASS(TFilterResponse, TPersistent)

public:
  void Assign(TPersistent* ASource) override;

  // Pass-band ripple and stop-band attenuation in dB.
  Double GetRipple() const { return FData.Ripple; }
  void SetRipple(Double AValue) { FData.Ripple = AValue; }
  Double GetAttenuation() const { return FData.Attenuation; }
  void SetAttenuation(Double AValue) { FData.Attenuation = AValue; }
  // dB per octave.
  Integer GetSlope() const { return FData.Slope; }
  void SetSlope(Integer AValue) { FData.Slope = AValue; }

private:
  struct TData {
    Double Ripple = 0.5;
    Double Attenuation = 60;
    Integer Slope = 12;
  };
  TData FData;
};

} // namespace Signals
