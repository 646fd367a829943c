// A module with one of the mistakes a component author can make, chosen when it is built: each
// must fail the module's load with a message that names the class (and member), and leave nothing
// registered behind.
#include "reflection/ComponentRegistration.h"
#include "reflection/Publish.h"
#include "runtime/Component.h"

namespace Faulty {

using namespace Tarvo;

#if defined(TARVO_FAULT_TakenClassName)
// The test module's class name, which that module registered first.
class TTestModuleThing : public TObject {
  TARVO_CLASS(TTestModuleThing, TObject)
};
TARVO_IMPLEMENT_CLASS(TTestModuleThing)
#else
class TFaultyGadget : public TPersistent {
  TARVO_CLASS(TFaultyGadget, TPersistent)
public:
  Integer FLevel = 0;
};
TARVO_IMPLEMENT_CLASS(TFaultyGadget)
TARVO_PUBLISH(TFaultyGadget) {
  Property("Level", &TFaultyGadget::FLevel, &TFaultyGadget::FLevel);
#if defined(TARVO_FAULT_DuplicateMember)
  Property("level", &TFaultyGadget::FLevel, &TFaultyGadget::FLevel);
#elif defined(TARVO_FAULT_FailingTable)
  throw std::runtime_error("the gadget cannot publish");
#endif
}
#if defined(TARVO_FAULT_NonComponent)
TARVO_REGISTER_COMPONENTS("Faulty", TFaultyGadget)
#endif
#endif

} // namespace Faulty
