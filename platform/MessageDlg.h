#pragma once
#pragma GCC visibility push(default)
// Message boxes, run through the modal seam.

#include "rtl/Sets.h"
#include "rtl/Types.h"

namespace Tarvo {

TARVO_ENUM(TMsgDlgType, mtWarning, mtError, mtInformation, mtConfirmation, mtCustom)
TARVO_ENUM(TMsgDlgBtn, mbYes, mbNo, mbOK, mbCancel, mbAbort, mbRetry, mbIgnore, mbAll, mbNoToAll, mbYesToAll, mbHelp,
           mbClose)
TARVO_SET(TMsgDlgButtons, TMsgDlgBtn)

// Asks the user with AMessage and the buttons of AButtons, ADefault focused; answers the button
// pressed. A box closed without one of its buttons answers mbCancel. Under a modal handler the
// box is a QMessageBox and the handler answers the QMessageBox::StandardButton pressed.
TMsgDlgBtn MessageDlg(const String& AMessage, TMsgDlgType AType, TMsgDlgButtons AButtons, TMsgDlgBtn ADefault);

} // namespace Tarvo

#pragma GCC visibility pop
