#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using LinkedInts = TRef<TLinkedList<int>>;
using V = std::vector<int>;

LinkedInts MakeLinked(const V& AItems) {
  LinkedInts list = New<TLinkedList<int>>();
  list->Append(AItems);
  return list;
}

// Walks the list, running AStep with each element it yields; answers the elements seen.
V WalkWith(const LinkedInts& AList, const std::function<void(int)>& AStep) {
  V seen;
  for (const TRef<IEnumerator<int>> walk = AList->GetEnumerator(); walk->MoveNext();) {
    seen.push_back(walk->GenericGetCurrent());
    AStep(seen.back());
  }
  return seen;
}

// Removal during a walk only flags a node, which the walk's end unlinks; the count stays high.
// Adding 9 afterwards shows that the end of the list was mended.
TEST(LinkedListWalkTest, ChangesDuringAWalk) {
  using TStep = std::function<void(const LinkedInts&, int)>;
  const TStep removeThreeOnOne = [](const LinkedInts& L, int A) {
    if (A == 1) L->RemoveOne(3);
  };
  const TStep addUpToThree = [](const LinkedInts& L, int A) {
    if (A < 3) L->Add(A + 1);
  };
  const struct {
    const char* Name;
    V Items;
    TStep Step;
    V Seen, After;
    Integer Count;
  } rows[] = {
      // Removing 3 while on 1 passes over 2, whose successor is flagged, while 3 is still yielded.
      {"successor", {1, 2, 3, 4}, removeThreeOnOne, {1, 3, 4}, {1, 2, 4, 9}, 5},
      {"last", {1, 2, 3}, removeThreeOnOne, {1}, {1, 2, 9}, 4},
      {"current", {1, 2, 3}, [](const LinkedInts& L, int A) { L->RemoveOne(A); }, {1, 2, 3}, {9}, 4},
      {"pop", {1}, [](const LinkedInts& L, int) { L->PopFirst(); }, {1}, {9}, 2},
      {"added", {1}, addUpToThree, {1, 2, 3}, {1, 2, 3, 9}, 4},
  };
  ForEachRow(rows, [](const auto& r) {
    const LinkedInts list = MakeLinked(r.Items);
    EXPECT_EQ(WalkWith(list, [&](int A) { r.Step(list, A); }), r.Seen);
    list->Add(9);
    EXPECT_EQ(Contents(list), r.After);
    EXPECT_EQ(list->GetCount(), r.Count);
  });
}

// PopFirst during a walk flags the first node again and again; the walk's end unlinks it and notifies once.
TEST(LinkedListWalkTest, PopFirstDuringAWalkFindsTheSameNode) {
  LinkedInts list = MakeLinked({1, 2});
  TCounter counter;
  list->AddChangeHandler(counter.Handler());
  {
    const TRef<IEnumerator<int>> walk = list->GetEnumerator();
    EXPECT_EQ(list->PopFirst(), 1);
    EXPECT_EQ(list->PopFirst(), 1);
    EXPECT_EQ(counter.Count, 2);
  }
  EXPECT_EQ(counter.Count, 3); // the release step unlinks the flagged node and notifies once
  EXPECT_EQ(Contents(list), (V{2}));
  EXPECT_EQ(counter.Count, 3); // a later walk finds nothing flagged
  EXPECT_EQ(list->GetCount(), 2);
}

// A flagged node stays linked until the last walk over the list has gone.
TEST(LinkedListWalkTest, NodesAreFreedOnlyWhenTheLastEnumeratorGoes) {
  LinkedInts list = MakeLinked({1, 2, 3});
  TRef<IEnumerator<int>> outer = list->GetEnumerator();
  {
    const TRef<IEnumerator<int>> inner = list->GetEnumerator();
    list->RemoveOne(2);
  }
  EXPECT_EQ(Walk(outer), (V{2, 3})); // still linked for the outer walk, where it hides 1
  outer = nullptr;
  EXPECT_EQ(Contents(list), (V{1, 3}));
}

// Clear is refused while a walk could still reach nodes, and allowed over none.
TEST(LinkedListWalkTest, ClearingAListThatIsBeingWalkedIsRefusedWhileItHoldsNodes) {
  LinkedInts list = MakeLinked({1, 2});
  {
    const TRef<IEnumerator<int>> walk = list->GetEnumerator();
    EXPECT_THROW(list->Clear(), EAssertionFailed);
    EXPECT_EQ(list->GetCount(), 2);
  }
  EXPECT_EQ(Contents(list), (V{1, 2}));
  list = MakeLinked({1});
  WalkWith(list, [&](int) { list->PopFirst(); });
  EXPECT_EQ(list->GetCount(), 1);
  const TRef<IEnumerator<int>> walk = list->GetEnumerator(); // over no nodes: Clear is allowed
  list->Clear();
  EXPECT_EQ(list->GetCount(), 0);
}

// Removing at either end mends the links: Last and AddFront still find their places.
TEST(LinkedListTest, RemovalMendsTheLinksAndNotifies) {
  LinkedInts list = MakeLinked({1, 2, 3});
  TCounter counter;
  list->AddChangeHandler(counter.Handler());
  EXPECT_EQ(list->RemoveOne(3), 2);
  EXPECT_EQ(list->Last(), 2);
  EXPECT_EQ(list->RemoveOne(5), -1);
  EXPECT_EQ(counter.Count, 2); // absent: notifies all the same
  list->Add(4);
  EXPECT_EQ(list->RemoveOne(1), 0);
  list->AddFront(0);
  EXPECT_EQ(Contents(list), (V{0, 2, 4}));
  list->RemoveAll([](const int&) { return true; });
  list->Add(7);
  EXPECT_EQ(Contents(list), (V{7}));

  // Per element of the other list, the last equal element goes.
  list = MakeLinked({1, 2, 1, 3});
  list->RemoveAll(MakeLinked({1, 3}));
  EXPECT_EQ(Contents(list), (V{1, 2}));
  EXPECT_EQ(list->Last(), 2);
}

// The ends of an empty list give defaults and call no procedure.
TEST(LinkedListTest, EndsOfAFullAndAnEmptyList) {
  LinkedInts list = MakeLinked({1, 2});
  int item = -1;
  list->PopFirst([&](const int& A) { item = A * 10; });
  EXPECT_EQ(item, 10);
  list->PopFirst();
  EXPECT_EQ(list->PopFirst(), 0);
  EXPECT_EQ(list->Last(), 0);
  EXPECT_FALSE(list->Last(item));
  EXPECT_EQ(item, 0);
  EXPECT_FALSE(list->IfPopFirst([](const int&) { FAIL(); }));
  list->ForLast([](const int&) { FAIL(); });
}

// Copies and query results are linked lists; the current element is refused before the first step.
TEST(LinkedListTest, CopiesAndQueriesAreLinkedLists) {
  LinkedInts list = MakeLinked({1, 2});
  list->Assign(TArrayList<int>::CreateArray({5, 6, 7}));
  EXPECT_EQ(Contents(TLinkedList<int>::CreateCopy(list)), (V{5, 6, 7}));
  const TRef<ILinkedList<int>> odd = list->Query()->Filter([](const int& A) { return A % 2 == 1; });
  EXPECT_EQ(Contents(odd), (V{5, 7}));
  EXPECT_THROW(list->GetEnumerator()->GenericGetCurrent(), EAssertionFailed);
  EXPECT_EQ(Contents(list), (V{5, 6, 7}));
}

} // namespace
} // namespace Tarvo::Testing
