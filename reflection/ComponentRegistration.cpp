#include "reflection/ComponentRegistration.h"

#include <algorithm>

#include "rtl/KeyedHandlers.h"
#include "rtl/ModuleSwept.h"

namespace Tarvo {

TARVO_IMPLEMENT_EXCEPTION(EComponentRegistrationError)

namespace {

using THooks = TKeyedHandlers<TClass>;

struct TRegisteredComponent {
  String Page;
  TClass Class;
};

bool ClassBelongsTo(const TRegisteredComponent& AEntry, const TModule* AModule) {
  return AEntry.Class->Module() == AModule;
}

struct TComponentRegistry {
  TModuleSwept<std::vector<TRegisteredComponent>> Components{"component registrations", ClassBelongsTo};
  THooks Procedures;
  THooks Notifies;

  const TRegisteredComponent* Find(TClass AClass) const {
    const auto found = std::ranges::find(Components.Items(), AClass, &TRegisteredComponent::Class);
    return found == Components.Items().end() ? nullptr : &*found;
  }
};

TComponentRegistry& ComponentRegistry() {
  static TComponentRegistry registry;
  return registry;
}

int AddHook(THooks& AHooks, TProc<TClass> AHook) {
  const int key = AHooks.Add(AHook);
  // Catch up on the classes registered before; one that the hook registers meanwhile is
  // announced to it by that registration. A hook that fails here is not kept, since its caller
  // never gets the key to remove it.
  std::vector<TClass> earlier;
  for (const TRegisteredComponent& entry : ComponentRegistry().Components.Items()) earlier.push_back(entry.Class);
  try {
    for (TClass componentClass : earlier) AHook(componentClass);
  } catch (...) {
    AHooks.Remove(key);
    throw;
  }
  return key;
}

} // namespace

// Constant-initialised: modules may register before the component model's own initialisers ran.
constinit TClass GComponentBaseClass = nullptr;

void SetComponentBaseClass(TClass AClass) { GComponentBaseClass = AClass; }

void RegisterComponents(const String& APage, const std::vector<TClass>& AClasses) {
  for (TClass componentClass : AClasses) {
    TARVO_ASSERT(componentClass != nullptr);
    if (GComponentBaseClass && !componentClass->InheritsFrom(GComponentBaseClass))
      throw EComponentRegistrationError(String(componentClass->ClassName()) + ": only components go on a palette, and " +
                                        componentClass->ClassName() + " does not derive from " +
                                        GComponentBaseClass->ClassName());
  }
  TComponentRegistry& registry = ComponentRegistry();
  for (TClass componentClass : AClasses) {
    if (registry.Find(componentClass)) continue;
    registry.Components.Items().push_back({APage, componentClass});
    registry.Procedures.Run(componentClass);
    registry.Notifies.Run(componentClass);
  }
}

TComponentsRegistration::TComponentsRegistration(const String& APage, const std::vector<TClass>& AClasses) {
  GuardModuleRegistration([&] { RegisterComponents(APage, AClasses); });
}

TRef<IArrayList<TClass>> GetRegisteredComponents() {
  const TRef<IArrayList<TClass>> result = New<TArrayList<TClass>>();
  for (const TRegisteredComponent& entry : ComponentRegistry().Components.Items()) result->Add(entry.Class);
  return result;
}

String GetComponentPage(TClass AClass) {
  const TRegisteredComponent* entry = ComponentRegistry().Find(AClass);
  return entry ? entry->Page : String();
}

int RegisterComponentRegisteredNotify(TProc<TClass> ANotify) {
  return AddHook(ComponentRegistry().Notifies, std::move(ANotify));
}

void UnregisterComponentRegisteredNotify(int AKey) { ComponentRegistry().Notifies.Remove(AKey); }

int AddComponentRegistrationProcedure(TProc<TClass> AProcedure) {
  return AddHook(ComponentRegistry().Procedures, std::move(AProcedure));
}

void RemoveComponentRegistrationProcedure(int AKey) { ComponentRegistry().Procedures.Remove(AKey); }

} // namespace Tarvo
