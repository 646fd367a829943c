#pragma once
// One life of a component module in a host, for the load-and-unload soak: the module is loaded,
// one component of each of its classes is made in a design, every row of each (sub-rows three
// levels down) is built and read, one value is written through its row's editor, and everything
// is freed before the module is unloaded. The package must be started, and an application
// object made, before the first cycle.

#include <map>
#include <string>

#include "rtl/Types.h"

namespace Tarvo::Testing {

// The number of rows built and read.
Integer RunModuleCycle(const String& AModulePath);
// The sizes of the registries a module unload sweeps, those made on first use counted as empty.
std::map<std::string, std::size_t> RegistrySizes();

} // namespace Tarvo::Testing
