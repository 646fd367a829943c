// expect: static.assert(ion)? failed
// expect: TARVO_CLASS\(TWhatever, \.\.\.\) stands in another class's body
// A class that names another class in its TARVO_CLASS would answer for that class.
#include "rtl/Object.h"

namespace Probe {
class TWhatever : public Tarvo::TObject {
  TARVO_CLASS(TWhatever, Tarvo::TObject)
};
class TB : public Tarvo::TObject {
  TARVO_CLASS(TWhatever, Tarvo::TObject)
};
} // namespace Probe
