#pragma once
// The calendar a date row shows in the place its host gives: Enter, or a double click on a date
// cell, accepts the date; Escape gives up. A double click on a heading or an arrow does nothing.

#include <QCalendarWidget>
#include <functional>

namespace Tarvo {

class TDateCalendar : public QCalendarWidget {
public:
  explicit TDateCalendar(QWidget* AParent = nullptr);

  std::function<void(QDate)> OnAccept;
  std::function<void()> OnCancel;

protected:
  bool eventFilter(QObject* AWatched, QEvent* AEvent) override;
};

} // namespace Tarvo
