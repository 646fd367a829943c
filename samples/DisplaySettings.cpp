#include "samples/DisplaySettings.h"

#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/StringAttributes.h"

namespace Signals {

TARVO_IMPLEMENT_CLASS(TDisplaySettings)

TARVO_PUBLISH(TDisplaySettings) {
  Property("Title", &TDisplaySettings::GetTitle, &TDisplaySettings::SetTitle)
      .Default(String("Standard"))
      .Attr<StringDesignAccessAttribute>();
  Property("Persistence", &TDisplaySettings::GetPersistence, &TDisplaySettings::SetPersistence).Default(Byte(0));
  Property("Intensity", &TDisplaySettings::GetIntensity, &TDisplaySettings::SetIntensity)
      .Default(Byte(80))
      .Attr<MaxValueAttribute>(TValue::From(Byte(100)));
  Property("ShowLabels", &TDisplaySettings::GetShowLabels, &TDisplaySettings::SetShowLabels).Default(true);
}

void TDisplaySettings::Assign(TPersistent* ASource) {
  if (const auto* source = dynamic_cast<const TDisplaySettings*>(ASource)) FData = source->FData;
  else inherited::Assign(ASource);
}

} // namespace Signals
