#pragma once
// The base of the in-place forms that edit with track bars.

#include <QSlider>
#include <QWidget>

#include "containers/Common.h"

namespace Tarvo {

// The events of the forms carry the form that sent them.
using TFormNotifyEvent = TProc<QWidget*>;

// Tells AEvent, if set, that ASender changed. The forms' events come from the window system,
// where an exception has nowhere to go: one that the handler raises (a setter refusing the value)
// is shown to the user in a message box, as any error of an event is.
void NotifyForm(const TFormNotifyEvent& AEvent, QWidget* ASender);

class TBasicInplaceForm : public QWidget {
public:
  explicit TBasicInplaceForm(QWidget* AParent = nullptr);

protected:
  // A horizontal bar from 0 to AMax without tick marks and with a thumb 15 pixels long.
  QSlider* AddTrackBar(int AMax);
  // Brings the track bars into the form's new colour.
  void changeEvent(QEvent* AEvent) override;
};

} // namespace Tarvo
