#pragma once
// How tarvo-inspect stands in for the user of a dialog: it picks or types the answer given on the
// command line and presses OK, or cancels when there is none.

#include <optional>

#include "rtl/Types.h"

class QDialog;

namespace Tarvo {

// Selects the list row or the tree leaf whose text is AAnswer (exactly, else in any case), puts
// AAnswer into the dialog's text box, or gives a colour dialog the colour AAnswer names (a colour
// row's name or number, "#RRGGBB"; an alpha colour row's text for the alpha colour dialog); answers QDialog::Accepted, or Rejected without an
// answer. Raises EInspectError when the dialog offers no such choice.
int AnswerDialog(QDialog& ADialog, const std::optional<String>& AAnswer);

} // namespace Tarvo
