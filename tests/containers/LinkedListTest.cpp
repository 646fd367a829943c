#include <gtest/gtest.h>

#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using IntList = TRef<TLinkedList<int>>;
using V = std::vector<int>;

IntList Make(const V& AItems) {
  IntList list = New<TLinkedList<int>>();
  list->Append(AItems);
  return list;
}

// Walks the list and runs AStep with each element it yields; answers the elements seen.
V WalkWith(const IntList& AList, const std::function<void(int)>& AStep) {
  V seen;
  for (const TRef<IEnumerator<int>> walk = AList->GetEnumerator(); walk->MoveNext();) {
    seen.push_back(walk->GenericGetCurrent());
    AStep(seen.back());
  }
  return seen;
}

TEST(LinkedListWalkTest, RemovingASuccessorPassesOverItsPredecessor) {
  IntList list = Make({1, 2, 3, 4});
  // 3 is flagged while the walk stands on 1: 2 (whose successor is flagged) is passed over,
  // while 3 itself is still yielded.
  EXPECT_EQ(WalkWith(list, [&](int A) { if (A == 1) list->RemoveOne(3); }), (V{1, 3, 4}));
  EXPECT_EQ(Contents(list), (V{1, 2, 4}));
  EXPECT_EQ(list->GetCount(), 4); // the settled count stays high
}

TEST(LinkedListWalkTest, RemovingTheLastNodeEndsTheWalkAndMendsTheEnd) {
  IntList list = Make({1, 2, 3});
  EXPECT_EQ(WalkWith(list, [&](int A) { if (A == 1) list->RemoveOne(3); }), (V{1}));
  EXPECT_EQ(list->Last(), 2);
  list->Add(9);
  EXPECT_EQ(Contents(list), (V{1, 2, 9}));
  EXPECT_EQ(list->GetCount(), 4);
}

TEST(LinkedListWalkTest, RemovingTheCurrentNodeDoesNotDisturbTheWalk) {
  IntList list = Make({1, 2, 3});
  EXPECT_EQ(WalkWith(list, [&](int A) { list->RemoveOne(A); }), (V{1, 2, 3}));
  EXPECT_EQ(Contents(list), V{});
  EXPECT_EQ(list->GetCount(), 3);
  list->Add(5);
  EXPECT_EQ(Contents(list), (V{5}));
}

TEST(LinkedListWalkTest, PopFirstDuringAWalkFindsTheSameNode) {
  IntList list = Make({1, 2});
  TCounter counter;
  list->AddChangeHandler(counter.Handler());
  {
    const TRef<IEnumerator<int>> walk = list->GetEnumerator();
    EXPECT_EQ(list->PopFirst(), 1);
    EXPECT_EQ(list->PopFirst(), 1);
    EXPECT_EQ(list->GetCount(), 2);
    EXPECT_EQ(counter.Count, 2);
  }
  // The release step unlinks the flagged node and notifies once.
  EXPECT_EQ(counter.Count, 3);
  EXPECT_EQ(Contents(list), (V{2}));
  EXPECT_EQ(list->GetCount(), 2);
  // A later walk finds nothing flagged and does not notify.
  EXPECT_EQ(counter.Count, 3);
}

TEST(LinkedListWalkTest, NodesAreFreedOnlyWhenTheLastEnumeratorGoes) {
  IntList list = Make({1, 2, 3});
  TRef<IEnumerator<int>> outer = list->GetEnumerator();
  {
    const TRef<IEnumerator<int>> inner = list->GetEnumerator();
    list->RemoveOne(2);
  }
  // Still linked for the outer walk, where it hides 1, its predecessor.
  EXPECT_EQ(Walk(outer), (V{2, 3}));
  outer = nullptr;
  EXPECT_EQ(Contents(list), (V{1, 3}));
}

TEST(LinkedListWalkTest, NodesAddedDuringAWalkAreReached) {
  IntList list = Make({1});
  EXPECT_EQ(WalkWith(list, [&](int A) { if (A < 3) list->Add(A + 1); }), (V{1, 2, 3}));
}

TEST(LinkedListWalkTest, ClearingAListThatIsBeingWalkedIsRefused) {
  IntList list = Make({1, 2});
  {
    const TRef<IEnumerator<int>> walk = list->GetEnumerator();
    EXPECT_THROW(list->Clear(), EAssertionFailed);
    EXPECT_EQ(list->GetCount(), 2);
  }
  EXPECT_EQ(Contents(list), (V{1, 2}));
}

TEST(LinkedListWalkTest, ClearSetsTheCountToZeroUnderAWalkOfNoNodes) {
  IntList list = Make({1});
  WalkWith(list, [&](int) { list->PopFirst(); });
  EXPECT_EQ(list->GetCount(), 1);
  const TRef<IEnumerator<int>> walk = list->GetEnumerator();
  list->Clear();
  EXPECT_EQ(list->GetCount(), 0);
}

TEST(LinkedListTest, RemovalMendsTheLinks) {
  IntList list = Make({1, 2, 3});
  EXPECT_EQ(list->RemoveOne(3), 2);
  EXPECT_EQ(list->Last(), 2);
  list->Add(4);
  EXPECT_EQ(list->RemoveOne(1), 0);
  list->AddFront(0);
  EXPECT_EQ(Contents(list), (V{0, 2, 4}));
  EXPECT_EQ(list->GetCount(), 3);
  list->RemoveAll([](const int&) { return true; });
  EXPECT_EQ(list->GetCount(), 0);
  list->Add(7);
  EXPECT_EQ(Contents(list), (V{7}));
}

TEST(LinkedListTest, RemoveOneNotifiesOnceWhetherOrNotFound) {
  IntList list = Make({1, 2});
  TCounter counter;
  list->AddChangeHandler(counter.Handler());
  EXPECT_EQ(list->RemoveOne(5), -1);
  EXPECT_EQ(counter.Count, 1);
  EXPECT_EQ(list->RemoveOne(2), 1);
  EXPECT_EQ(counter.Count, 2);
}

TEST(LinkedListTest, RemoveAllOfAnotherListTakesTheLastOccurrence) {
  IntList list = Make({1, 2, 1, 3});
  list->RemoveAll(Make({1, 3}));
  EXPECT_EQ(Contents(list), (V{1, 2}));
  EXPECT_EQ(list->Last(), 2);
}

TEST(LinkedListTest, PopFirstAndLastForms) {
  IntList list = Make({1, 2});
  int item = -1;
  EXPECT_TRUE(list->Last(item));
  EXPECT_EQ(item, 2);
  list->PopFirst(item);
  EXPECT_EQ(item, 1);
  list->PopFirst([&](const int& A) { item = A * 10; });
  EXPECT_EQ(item, 20);
  // Empty: defaults, and the procedures are not called.
  EXPECT_EQ(list->PopFirst(), 0);
  EXPECT_EQ(list->Last(), 0);
  EXPECT_FALSE(list->Last(item));
  EXPECT_EQ(item, 0);
  EXPECT_FALSE(list->IfPopFirst([](const int&) { FAIL(); }));
  list->ForLast([](const int&) { FAIL(); });
  list->Add(3)->ForLast([&](const int& A) { item = A; });
  EXPECT_EQ(item, 3);
}

TEST(LinkedListTest, FindOrAddAndFindAndRemoveOne) {
  IntList list = Make({1, 2});
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 2; }, [] { return 99; }), 2);
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 3; }, 3), 3);
  int item = -1;
  EXPECT_FALSE(list->FindAndRemoveOne([](const int& A) { return A > 5; }, item));
  EXPECT_EQ(item, -1);
  EXPECT_TRUE(list->FindAndRemoveOne(1));
  EXPECT_EQ(Contents(list), (V{2, 3}));
}

TEST(LinkedListTest, SelfAppendAndSelfAssignLeaveTheListUnchanged) {
  IntList list = Make({1, 2});
  list->Append(list)->Assign(list);
  EXPECT_EQ(Contents(list), (V{1, 2}));
  list->Assign(TArrayList<int>::CreateArray({5, 6}));
  EXPECT_EQ(Contents(list), (V{5, 6}));
  EXPECT_EQ(Contents(TLinkedList<int>::CreateCopy(list)), (V{5, 6}));
}

// So is reading the current element before the first step.
TEST(LinkedListTest, NilArgumentsAreAssertionFailures) {
  IntList list = Make({1});
  EXPECT_THROW(list->GetEnumerator()->GenericGetCurrent(), EAssertionFailed);
  EXPECT_THROW(list->Append(TRef<IEnumerable<int>>()), EAssertionFailed);
  EXPECT_THROW(list->Assign(nullptr), EAssertionFailed);
  EXPECT_THROW(list->IfRemoveOne(nullptr), EAssertionFailed);
  EXPECT_THROW(list->ForLast(nullptr), EAssertionFailed);
  EXPECT_THROW(TLinkedList<int>::CreateEnumerator(nullptr), EAssertionFailed);
  EXPECT_EQ(Contents(list), (V{1}));
}

} // namespace
} // namespace Tarvo::Testing
