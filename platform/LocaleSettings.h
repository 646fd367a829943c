#pragma once
#pragma GCC visibility push(default)
// The text settings a locale writes numbers and dates with, for a host to give the package.

#include "rtl/SysUtils.h"

namespace Tarvo {

// The locale's decimal and group separators, its short date order and separator with four-digit
// years (so that every date reads back), and its time separator. False for a name the platform
// does not know.
bool TryFormatSettingsOf(const String& ALocaleName, TFormatSettings& AResult);

} // namespace Tarvo

#pragma GCC visibility pop
