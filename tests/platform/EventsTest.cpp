#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QWidget>

#include <string>
#include <thread>
#include <vector>

#include "platform/EventHook.h"
#include "platform/MainThread.h"
#include "platform/SystemMetrics.h"

namespace Tarvo {
namespace {

class TLoggingWidget : public QWidget {
public:
  std::vector<std::string> Log;

protected:
  void closeEvent(QCloseEvent* AEvent) override {
    Log.push_back("widget");
    QWidget::closeEvent(AEvent);
  }
};

// A hook sees the events of its type before the widget, which still gets them; it goes with the widget.
TEST(EventHookTest, SeesItsEventsFirstAndGoesWithItsTarget) {
  auto* widget = new TLoggingWidget();
  HookEvent(widget, QEvent::Close, [&](QEvent*) { widget->Log.push_back("hook"); });
  HookEvent(widget, QEvent::Show, [&](QEvent*) { widget->Log.push_back("show"); });
  widget->close();
  EXPECT_EQ(widget->Log, (std::vector<std::string>{"hook", "widget"}));
  std::vector<QPointer<QObject>> hooks;
  for (QObject* hook : widget->children()) hooks.emplace_back(hook);
  ASSERT_EQ(hooks.size(), 2u);
  delete widget;
  for (const auto& hook : hooks) EXPECT_TRUE(hook.isNull());
}

// Queued work runs in order once the queue is processed, never inside the call; work it queues
// waits for the next round.
TEST(MainThreadExecuteTest, RunsLaterInOrderAndRoundByRound) {
  std::vector<int> runs;
  MainThreadExecute([&] { runs.push_back(1); });
  MainThreadExecute([&] {
    runs.push_back(2);
    MainThreadExecute([&] { runs.push_back(3); });
  });
  EXPECT_TRUE(runs.empty());
  ProcessMainThreadQueue();
  EXPECT_EQ(runs, (std::vector<int>{1, 2}));
  ProcessMainThreadQueue();
  ProcessMainThreadQueue();
  EXPECT_EQ(runs, (std::vector<int>{1, 2, 3}));
}

// Work queued from another thread runs on the main thread.
TEST(MainThreadExecuteTest, WorkFromAnotherThreadRunsOnTheMainThread) {
  std::thread::id ranOn;
  std::thread worker([&] { MainThreadExecute([&] { ranOn = std::this_thread::get_id(); }); });
  worker.join();
  ProcessMainThreadQueue();
  EXPECT_EQ(ranOn, std::this_thread::get_id());
}

// Counted along both axes, in any direction.
TEST(DragThresholdTest, ADragStartsAtTheSystemDistance) {
  const int saved = QApplication::startDragDistance();
  QApplication::setStartDragDistance(6);
  EXPECT_EQ(GetDragThreshold(), 6);
  EXPECT_FALSE(IsDragDistance({10, 10}, {10, 10}) || IsDragDistance({10, 10}, {13, 12}));
  EXPECT_TRUE(IsDragDistance({10, 10}, {13, 13}) && IsDragDistance({10, 10}, {4, 10}));
  QApplication::setStartDragDistance(saved);
}

} // namespace
} // namespace Tarvo
