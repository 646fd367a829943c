#pragma once
// Where the tools find the bundled sample module and design: beside the executable in a build
// tree, under lib/tarvo and share/tarvo/designs of the prefix once installed.

#include "host/headless/HostSession.h"

namespace Tarvo {

TInspectPaths BundledPaths();

} // namespace Tarvo
