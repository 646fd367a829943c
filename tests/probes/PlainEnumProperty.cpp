// expect: TPublishedTypeNeedsARecord<Probe::TGadget::TMode>
// expect: a published member's type has no type record
// An enumeration needs TARVO_ENUM for its names to be known.
#include "reflection/Publish.h"

namespace Probe {
class TGadget : public Tarvo::TObject {
  TARVO_CLASS(TGadget, Tarvo::TObject)
public:
  enum class TMode { Slow, Fast };
  TMode FMode = TMode::Slow;
};
TARVO_PUBLISH(TGadget) { Property("Mode", &TGadget::FMode, &TGadget::FMode); }
} // namespace Probe
