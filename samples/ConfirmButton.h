#pragma once
// A button that closes the panel it sits on with a result, as a dialog's OK button does.

#include "runtime/Controls.h"

namespace Signals {

using namespace Tarvo;

class TConfirmButton : public TControl {
  TARVO_CLASS(TConfirmButton, TControl)

public:
  explicit TConfirmButton(TComponent* AOwner) : TControl(AOwner) {}

  const String& GetCaption() const { return FCaption; }
  void SetCaption(const String& AValue) { FCaption = AValue; }
  // What a click answers the panel; mrNone leaves it open.
  TModalResult GetModalResult() const { return FModalResult; }
  void SetModalResult(TModalResult AValue) { FModalResult = AValue; }

private:
  String FCaption;
  TModalResult FModalResult = mrNone;
};

} // namespace Signals
