#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QWidget>

#include <string>
#include <vector>

#include "platform/EventHook.h"

namespace Tarvo {
namespace {

class TLoggingWidget : public QWidget {
public:
  explicit TLoggingWidget(std::vector<std::string>* ALog) : FLog(ALog) {}

protected:
  void closeEvent(QCloseEvent* AEvent) override {
    FLog->push_back("widget");
    QWidget::closeEvent(AEvent);
  }

private:
  std::vector<std::string>* FLog;
};

TEST(EventHookTest, SeesTheEventsOfItsTypeFirstAndPassesThemOn) {
  std::vector<std::string> log;
  TLoggingWidget widget(&log);
  HookEvent(&widget, QEvent::Close, [&](QEvent*) { log.push_back("hook"); });
  HookEvent(&widget, QEvent::Show, [&](QEvent*) { log.push_back("show"); });
  widget.close();
  EXPECT_EQ(log, (std::vector<std::string>{"hook", "widget"}));
}

TEST(EventHookTest, GoesWithItsTarget) {
  auto* target = new QWidget();
  int calls = 0;
  HookEvent(target, QEvent::Close, [&](QEvent*) { ++calls; });
  const QPointer<QObject> hook = target->children().value(0);
  ASSERT_FALSE(hook.isNull());
  delete target;
  EXPECT_TRUE(hook.isNull());
  EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace Tarvo
