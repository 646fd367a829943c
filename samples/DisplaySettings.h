#pragma once
// How a scope draws its screen: a nested object of the scope, shown in one row by its title.

#include "runtime/Component.h"

namespace Signals {

using namespace Tarvo;

class TDisplaySettings : public TPersistent {
  TARVO_CLASS(TDisplaySettings, TPersistent)

public:
  void Assign(TPersistent* ASource) override;

  // Stands for the whole object in the scope's row.
  const String& GetTitle() const { return FData.Title; }
  void SetTitle(const String& AValue) { FData.Title = AValue; }
  // The trace fades over this many sweeps; 0 for none.
  Byte GetPersistence() const { return FData.Persistence; }
  void SetPersistence(Byte AValue) { FData.Persistence = AValue; }
  // Brightness of the trace in percent.
  Byte GetIntensity() const { return FData.Intensity; }
  void SetIntensity(Byte AValue) { FData.Intensity = AValue; }
  Boolean GetShowLabels() const { return FData.ShowLabels; }
  void SetShowLabels(Boolean AValue) { FData.ShowLabels = AValue; }

private:
  struct TData {
    String Title = "Standard";
    Byte Persistence = 0;
    Byte Intensity = 80;
    Boolean ShowLabels = true;
  };
  TData FData;
};

} // namespace Signals
