// A module built as its own shared library: one class and one named resource.
#include "rtl/Module.h"
#include "rtl/Object.h"

namespace Tarvo {

class TTestModuleThing : public TObject {
  TARVO_CLASS(TTestModuleThing, TObject)
public:
  using TConstructor = TConstructorSignature<int>;
  explicit TTestModuleThing(int AValue) : Value(AValue) {}
  int Value;
};

TARVO_IMPLEMENT_CLASS(TTestModuleThing)

namespace {
const char Greeting[] = "hello from the module";
const TResourceRegistration GreetingResource("GREETING", Greeting, sizeof Greeting - 1);
} // namespace

} // namespace Tarvo
