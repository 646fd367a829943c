#pragma once
// The set-up and tear-down of the design core: its registries, the types it compares with, the
// hooks it places in the component registry and the module loader, and its own registrations.

#include "reflection/TypeInfo.h"

namespace Tarvo {

// Types looked up once at start-up and compared with later; nil while the unit is down.
struct TDesignKeptTypes {
  TRef<IClassTypeInfo> ComponentType;
  TRef<ITypeInfo> ObjectListType;
  TRef<ITypeInfo> StringListType;
};
extern TDesignKeptTypes GDesignKeptTypes;

void InitializeDesignUnit();
void FinalizeDesignUnit();

// The category registrations of the design core itself, in their order.
void RegisterDesignCategories();

// The editor registrations of the design core itself, in their order, and the default editors
// of the fallback.
void RegisterDesignEditors();

} // namespace Tarvo
