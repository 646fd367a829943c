// expect: TPublishedTypeNeedsARecord<long long( int)?>
// expect: a published member's type has no type record
// long long is not the Int64 the records know.
#include "reflection/Publish.h"

namespace Probe {
class TGadget : public Tarvo::TObject {
  TARVO_CLASS(TGadget, Tarvo::TObject)
public:
  long long FTotal = 0;
};
TARVO_PUBLISH(TGadget) { Property("Total", &TGadget::FTotal, &TGadget::FTotal); }
} // namespace Probe
