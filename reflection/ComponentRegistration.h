#pragma once
#pragma GCC visibility push(default)
// The registry of component classes, their palette pages and the hooks run for each new class.

#include <vector>

#include "containers/List.h"
#include "rtl/Object.h"

namespace Tarvo {

TARVO_DECLARE_EXCEPTION(EComponentRegistrationError, Exception)

// Registers component classes on a palette page, in the order given. Each new class runs the
// registration procedures, then the registered notifications, each in the order they were
// added. A class registered before keeps its first page and is not announced again. A hook's
// exception passes through; the classes announced before it stay registered. A class that is no
// component raises EComponentRegistrationError before any class is registered.
void RegisterComponents(const String& APage, const std::vector<TClass>& AClasses);

// The class every component derives from; the component model names it as it starts.
void SetComponentBaseClass(TClass AClass);

// Registers component classes as the module that holds it opens; a failure fails the module's
// load. Written at namespace scope through TARVO_REGISTER_COMPONENTS.
struct TComponentsRegistration {
  TComponentsRegistration(const String& APage, const std::vector<TClass>& AClasses);
};

template <class... C> std::vector<TClass> ClassesOf() { return {C::ClassInfo()...}; }
// The registered classes in registration order; a module's classes leave when it unloads.
TRef<IArrayList<TClass>> GetRegisteredComponents();
// The palette page of a registered class; empty for one that is not registered.
String GetComponentPage(TClass AClass);

// The hooks are called for every class registered from then on, and at once for each class
// registered before, in registration order: what they do to a class does not depend on whether
// the design core or the component module loaded first. The key removes a hook again; a hook
// that raises while catching up is not kept.
int RegisterComponentRegisteredNotify(TProc<TClass> ANotify);
void UnregisterComponentRegisteredNotify(int AKey);
int AddComponentRegistrationProcedure(TProc<TClass> AProcedure);
void RemoveComponentRegistrationProcedure(int AKey);

} // namespace Tarvo

// Puts component classes on a palette page when their module opens:
//   TARVO_REGISTER_COMPONENTS("Climate", TThermostat, TRadiator)
#define TARVO_REGISTER_COMPONENTS(APage, ...)                                                                          \
  static const ::Tarvo::TComponentsRegistration TARVO_CONCAT(TarvoComponentsRegistration, __COUNTER__)(               \
      APage, ::Tarvo::ClassesOf<__VA_ARGS__>());

#pragma GCC visibility pop
