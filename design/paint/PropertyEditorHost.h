#pragma once
// The second way of showing an editor: instead of a form opening under the row, the editor asks
// the host for a place and shows a control of its own there.

#include <QWidget>

#include "design/SinglePropertyEditor.h"
#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

// Implemented by the host.
class TARVO_API IPropertyEditorHost : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorHost, "{6EFAC553-FB84-4FEE-A5BF-E708BBC9F263}", IInterface)
public:
  // The widget the editor's control goes into.
  virtual QWidget* GetParentControl() = 0;
  // Where in that widget the control belongs.
  virtual TIGXRect GetBounds() = 0;
  // The editor is done: the host takes the place away with the control in it.
  virtual void CloseHosted() = 0;
};

// Implemented by an editor that shows a control of its own in a place the host gives.
class TARVO_API IPropertyEditorHosted : public virtual IPropertyEditor {
  TARVO_INTERFACE(IPropertyEditorHosted, "{F23A51C1-676A-4ED7-B4CE-CA62BC82BDC5}", IPropertyEditor)
public:
  virtual void ShowHosted(const TRef<IPropertyEditorHost>& AHost) = 0;
};

} // namespace Tarvo
