// expect: TValueMustFitThePropertyType<unsigned char, double>
// expect: a \.Default\(\.\.\.\) or \.Limits\(\.\.\.\) value does not fit the property's type
// A fraction would be cut to a whole number without a word.
#include "reflection/Publish.h"

namespace Probe {
class TGadget : public Tarvo::TObject {
  TARVO_CLASS(TGadget, Tarvo::TObject)
public:
  Tarvo::Byte FLevel = 0;
};
TARVO_PUBLISH(TGadget) { Property("Level", &TGadget::FLevel, &TGadget::FLevel).Default(1.5); }
} // namespace Probe
