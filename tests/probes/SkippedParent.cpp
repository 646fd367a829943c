// expect: static.assert(ion)? failed
// expect: the parent is not the class's direct base
// TB derives from TA but names TObject: InheritsFrom(TA) would be false.
#include "rtl/Object.h"

namespace Probe {
class TA : public Tarvo::TObject {
  TARVO_CLASS(TA, Tarvo::TObject)
};
class TB : public TA {
  TARVO_CLASS(TB, Tarvo::TObject)
};
} // namespace Probe
