// Queries handed out by the lists themselves: their results are new lists of the same kind.
#include <gtest/gtest.h>

#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using V = std::vector<int>;

TEST(ListQueryTest, ArrayListQueryRerunsOverTheChangedList) {
  const TRef<IArrayList<int>> list = TArrayList<int>::CreateArray({1, 2, 3});
  const auto query = list->Query();
  EXPECT_EQ(query->Count([](const int& AItem) { return AItem > 1; }), 2);
  list->Add(4);
  EXPECT_EQ(query->Count([](const int& AItem) { return AItem > 1; }), 3);
}

TEST(ListQueryTest, ReverseQueryWalksBackToFront) {
  const TRef<IArrayList<int>> list = TArrayList<int>::CreateArray({1, 2, 3});
  const TRef<IArrayList<int>> taken = list->Query(true)->Take(2);
  EXPECT_EQ(Contents(taken), (V{3, 2}));
  Integer index = 0;
  EXPECT_TRUE(list->Query(true)->IndexOf(1, index));
  EXPECT_EQ(index, 2);
}

TEST(ListQueryTest, ResultsAreNewListsAndTheSourceStays) {
  const TRef<IArrayList<int>> list = TArrayList<int>::CreateArray({1, 2, 3});
  const TRef<IArrayList<int>> copy = list->Query()->Skip(0);
  EXPECT_FALSE(copy == list);
  copy->Add(9);
  EXPECT_EQ(Contents(list), (V{1, 2, 3}));
  EXPECT_EQ(Contents(list->Query()->Filter([](const int& AItem) { return AItem != 2; })), (V{1, 3}));
  EXPECT_TRUE(list->Query()->ForEach([](const int&) {}) == list);
}

TEST(ListQueryTest, QueryKeepsItsListAlive) {
  TRef<IQuery<String>> query;
  {
    const TRef<IStringArrayList> names = New<TStringArrayList>();
    names->Add("b")->Add("a");
    query = names->Query();
  }
  EXPECT_EQ(query->First(), "b");
}

TEST(ListQueryTest, CopyAddsThroughTheList) {
  const TRef<IArrayList<int>> source = TArrayList<int>::CreateArray({5, 6});
  const TRef<IArrayList<int>> copy = TArrayList<int>::CreateCopy(source);
  EXPECT_EQ(Contents(copy), (V{5, 6}));
  EXPECT_THROW(TArrayList<int>::CreateCopy(nullptr), EAssertionFailed);
}

TEST(ListQueryTest, LinkedListQueryGivesLinkedLists) {
  const TRef<ILinkedList<int>> list = New<TLinkedList<int>>();
  list->Add(1)->Add(2)->Add(3);
  const TRef<ILinkedList<int>> odd = list->Query()->Filter([](const int& AItem) { return AItem % 2 == 1; });
  EXPECT_EQ(Contents(odd), (V{1, 3}));
  EXPECT_EQ(list->Query()->Take(0)->GetCount(), 0);
}

} // namespace
} // namespace Tarvo::Testing
