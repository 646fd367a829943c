#pragma once
// The component modules a host loaded, unloaded again when the scope goes.

#include <vector>

#include "rtl/Types.h"

namespace Tarvo {

class TModule;

// Unloads the modules it loaded, the last first.
class TModulesScope {
public:
  TModulesScope() = default;
  ~TModulesScope();
  TModulesScope(const TModulesScope&) = delete;
  TModulesScope& operator=(const TModulesScope&) = delete;

  // Raises EModuleError when the module can't be opened; nothing is kept then.
  void Load(const String& APath);

private:
  std::vector<TModule*> FModules;
};

} // namespace Tarvo
