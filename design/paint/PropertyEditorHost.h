#pragma once
// The second way of showing an editor: instead of a form opening under the row, the editor asks
// the host for a place and shows a control of its own there.

#include <QWidget>

#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

// Implemented by the host.
class IPropertyEditorHost : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorHost, IInterface, "{6EFAC553-FB84-4FEE-A5BF-E708BBC9F263}")
public:
  // The widget the editor's control goes into.
  virtual QWidget* GetParentControl() = 0;
  // Where in that widget the control belongs.
  virtual TIGXRect GetBounds() = 0;
  // The editor is done: the host takes the place away with the control in it.
  virtual void CloseHosted() = 0;
};

} // namespace Tarvo
