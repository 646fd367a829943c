#pragma once
#pragma GCC visibility push(default)
// The dialog that asks for an existing file to open, run through the modal seam.

#include <QStringList>

#include "rtl/Types.h"

namespace Tarvo {

// The Qt name filters of a filter in pairs of description and patterns, all separated by "|",
// the patterns of a pair by ";": "Text files|*.txt|Images|*.png;*.jpg" gives "Text files (*.txt)"
// and "Images (*.png *.jpg)". A description that names its patterns in parentheses already keeps
// them once; a description without patterns matches everything.
QStringList FileDialogNameFilters(const String& AFilter);

// Asks for an existing file under AFilter; a name typed without extension takes ADefaultExt (with
// or without its dot). On OK AFileName takes the file chosen and the answer is true; otherwise
// AFileName is left as it was. The dialog does not start at AFileName.
Boolean ExecuteOpenFileDialog(const String& AFilter, const String& ADefaultExt, String& AFileName);

} // namespace Tarvo

#pragma GCC visibility pop
