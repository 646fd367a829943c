#pragma once
#pragma GCC visibility push(default)
// What the screen offers by name: the installed font families and the input methods.

#include <vector>

#include "rtl/Types.h"

namespace Tarvo {

// The font families of the machine, in the order the font database enumerates them.
std::vector<String> ScreenFonts();

// The input methods the platform was told to use (QT_IM_MODULES, else QT_IM_MODULE), in the given
// order; empty where none is named, which is common on this platform.
std::vector<String> ScreenImes();

} // namespace Tarvo

#pragma GCC visibility pop
