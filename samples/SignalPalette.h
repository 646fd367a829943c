#pragma once
// The palette page of the sample components. Each class registers from its own source file,
// after its member table, so that registration hooks already see the class's members; the
// classes leave the palette when the module unloads.

#include "reflection/ComponentRegistration.h"

namespace Signals {

using namespace Tarvo;

inline constexpr const char* SignalPalettePage = "Signal";

} // namespace Signals
