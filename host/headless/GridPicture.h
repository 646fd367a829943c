#pragma once
// The tool's pictures: the grid of the designer's selection, or the drop-down list of one of its
// rows, drawn offscreen by the widget the GUI host shows and written to a PNG file.

#include "design/Designer.h"
#include "host/headless/HostOptions.h"

namespace Tarvo {

// Raises EInspectError for a row that isn't there or has no list, and for a file that can't be
// written. Needs an application object.
void WriteGridPicture(const TRef<IDesigner>& ADesigner, const TInspectOptions& AOptions);

} // namespace Tarvo
