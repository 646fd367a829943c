#pragma once
#pragma GCC visibility push(default)
// The texts of keyboard shortcuts: "Ctrl+A", "Shift+Ctrl+F1", "Alt+BkSp". A shortcut is a key
// code in the low byte with the flags scShift, scCtrl and scAlt.

#include "runtime/NamedTypes.h"

namespace Tarvo {

// The modifiers in the order Shift, Ctrl, Alt, then the key's name; empty for a key with no name.
String ShortCutToText(TShortCut AShortCut);
// The shortcut of a text, modifiers and key name in any case; 0 for a text that names no key.
TShortCut TextToShortCut(const String& AText);

} // namespace Tarvo

#pragma GCC visibility pop
