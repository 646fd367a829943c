#include "runtime/Popups.h"

#include "reflection/Publish.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TPopupMenu)
TARVO_PUBLISH(TPopupMenu) { Property("AutoPopup", &TPopupMenu::GetAutoPopup, &TPopupMenu::SetAutoPopup).Default(true); }

TARVO_IMPLEMENT_CLASS(TCustomHint)
TARVO_PUBLISH(TCustomHint) {
  Property("Delay", &TCustomHint::GetDelay, &TCustomHint::SetDelay).Default(Cardinal(500));
  Property("HideAfter", &TCustomHint::GetHideAfter, &TCustomHint::SetHideAfter).Default(-1);
  Property("Title", &TCustomHint::GetTitle, &TCustomHint::SetTitle);
}

} // namespace Tarvo
