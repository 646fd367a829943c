// expect: TValueMustFitThePropertyType<std::(__cxx11::)?basic_string<char>, bool>
// expect: a \.Default\(\.\.\.\) or \.Limits\(\.\.\.\) value does not fit the property's type
// A flag is no text.
#include "reflection/Publish.h"

namespace Probe {
class TGadget : public Tarvo::TObject {
  TARVO_CLASS(TGadget, Tarvo::TObject)
public:
  Tarvo::String FCaption;
};
TARVO_PUBLISH(TGadget) { Property("Caption", &TGadget::FCaption, &TGadget::FCaption).Default(true); }
} // namespace Probe
