// A module of its own for the module tests: a published class with an enumeration, a component,
// and a resource.
#include "reflection/Publish.h"
#include "rtl/Module.h"
#include "runtime/Component.h"

namespace Tarvo {

TARVO_ENUM(TTestModuleMood, tmCalm, tmBusy)
TARVO_IMPLEMENT_ENUM(TTestModuleMood)

class TTestModuleThing : public TObject {
  TARVO_CLASS(TTestModuleThing, TObject)
public:
  int Value = 1;
  TTestModuleMood Mood = tmBusy;
};

TARVO_IMPLEMENT_CLASS(TTestModuleThing)
TARVO_PUBLISH(TTestModuleThing) {
  Property("Value", &TTestModuleThing::Value, &TTestModuleThing::Value).Default(1);
  Property("Mood", &TTestModuleThing::Mood, &TTestModuleThing::Mood);
}

class TTestModulePart : public TComponent {
  TARVO_CLASS(TTestModulePart, TComponent)
public:
  using TComponent::TComponent;
};
TARVO_IMPLEMENT_CLASS(TTestModulePart)

namespace {
const char Greeting[] = "hello from the module";
const TResourceRegistration GreetingResource("GREETING", Greeting, sizeof Greeting - 1);
} // namespace

} // namespace Tarvo
