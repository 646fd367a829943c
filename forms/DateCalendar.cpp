#include "forms/DateCalendar.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace Tarvo {

TDateCalendar::TDateCalendar(QWidget* AParent) : QCalendarWidget(AParent) {
  // The calendar reports Enter and double clicks on date cells, and on nothing else, as activated.
  connect(this, &QCalendarWidget::activated, this, [this](QDate ADate) {
    if (OnAccept) OnAccept(ADate);
  });
  // Escape reaches the date table first, which keeps it.
  if (QAbstractItemView* table = findChild<QAbstractItemView*>()) table->installEventFilter(this);
  installEventFilter(this);
}

bool TDateCalendar::eventFilter(QObject* AWatched, QEvent* AEvent) {
  if (AEvent->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(AEvent)->key() == Qt::Key_Escape) {
    if (OnCancel) OnCancel();
    return true;
  }
  return QCalendarWidget::eventFilter(AWatched, AEvent);
}

} // namespace Tarvo
