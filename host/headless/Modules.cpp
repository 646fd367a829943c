#include "host/headless/Modules.h"

#include "rtl/Module.h"

namespace Tarvo {

TModulesScope::~TModulesScope() {
  for (auto module = FModules.rbegin(); module != FModules.rend(); ++module) UnloadModule(*module);
}

void TModulesScope::Load(const String& APath) { FModules.push_back(LoadModule(APath)); }

} // namespace Tarvo
