#include <gtest/gtest.h>

#include <QApplication>

#include <thread>
#include <vector>

#include "platform/MainThread.h"
#include "platform/SystemMetrics.h"

namespace Tarvo {
namespace {

TEST(MainThreadExecuteTest, RunsLaterInOrder) {
  std::vector<int> runs;
  MainThreadExecute([&] { runs.push_back(1); });
  MainThreadExecute([&] { runs.push_back(2); });
  EXPECT_TRUE(runs.empty());
  ProcessMainThreadQueue();
  EXPECT_EQ(runs, (std::vector<int>{1, 2}));
  ProcessMainThreadQueue();
  EXPECT_EQ(runs.size(), 2u);
}

TEST(MainThreadExecuteTest, WorkQueuedByWorkWaitsForTheNextRound) {
  int runs = 0;
  MainThreadExecute([&] {
    ++runs;
    MainThreadExecute([&] { ++runs; });
  });
  ProcessMainThreadQueue();
  EXPECT_EQ(runs, 1);
  ProcessMainThreadQueue();
  EXPECT_EQ(runs, 2);
}

TEST(MainThreadExecuteTest, WorkFromAnotherThreadRunsOnTheMainThread) {
  std::thread::id ranOn;
  std::thread worker([&] { MainThreadExecute([&] { ranOn = std::this_thread::get_id(); }); });
  worker.join();
  ProcessMainThreadQueue();
  EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST(DragThresholdTest, ADragStartsAtTheSystemDistance) {
  const int saved = QApplication::startDragDistance();
  QApplication::setStartDragDistance(6);
  EXPECT_EQ(GetDragThreshold(), 6);
  const QPoint from(10, 10);
  EXPECT_FALSE(IsDragDistance(from, from));
  EXPECT_FALSE(IsDragDistance(from, {13, 12}));
  EXPECT_TRUE(IsDragDistance(from, {13, 13}));   // counted along both axes
  EXPECT_TRUE(IsDragDistance(from, {4, 10}));    // in any direction
  QApplication::setStartDragDistance(saved);
}

} // namespace
} // namespace Tarvo
