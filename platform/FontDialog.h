#pragma once
#pragma GCC visibility push(default)
// The dialog that picks a font, run through the modal seam.

#include "runtime/Graphics.h"

namespace Tarvo {

// Opens on AFont's family, size and styles; on OK writes the choice back into AFont and answers
// true. The charset and the colour are not the dialog's: they stay as they were. Only fonts the
// machine has can be chosen.
Boolean ExecuteFontDialog(TFont& AFont);

} // namespace Tarvo

#pragma GCC visibility pop
