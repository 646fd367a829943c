#include "samples/ConfirmButton.h"

#include "reflection/Publish.h"
#include "samples/SignalPalette.h"

namespace Signals {

TARVO_IMPLEMENT_CLASS(TConfirmButton)

TARVO_PUBLISH(TConfirmButton) {
  Property("Caption", &TConfirmButton::GetCaption, &TConfirmButton::SetCaption);
  Property("ModalResult", &TConfirmButton::GetModalResult, &TConfirmButton::SetModalResult, &TypeInfo_TModalResult)
      .Default(mrNone);
}

namespace {
TARVO_REGISTER_COMPONENTS(SignalPalettePage, TConfirmButton)
} // namespace

} // namespace Signals
