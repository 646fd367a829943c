// expect: TValueMustFitThePropertyType<unsigned char, char ?\[2\]>
// expect: a \.Default\(\.\.\.\) or \.Limits\(\.\.\.\) value does not fit the property's type
// A text for a Byte compiled, and then stopped the host while the module loaded.
#include "reflection/Publish.h"

namespace Probe {
class TGadget : public Tarvo::TObject {
  TARVO_CLASS(TGadget, Tarvo::TObject)
public:
  Tarvo::Byte FLevel = 0;
};
TARVO_PUBLISH(TGadget) { Property("Level", &TGadget::FLevel, &TGadget::FLevel).Default("1"); }
} // namespace Probe
