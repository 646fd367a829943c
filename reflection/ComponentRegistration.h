#pragma once
#pragma GCC visibility push(default)
// The registry of component classes, their palette pages and the hooks run for each new class.

#include <vector>

#include "containers/List.h"
#include "rtl/Object.h"

namespace Tarvo {

// Registers component classes on a palette page, in the order given. Each new class runs the
// registration procedures, then the registered notifications, each in the order they were
// added. A class registered before keeps its first page and is not announced again. A hook's
// exception passes through; the classes announced before it stay registered.
void RegisterComponents(const String& APage, const std::vector<TClass>& AClasses);
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

#pragma GCC visibility pop
