#include <gtest/gtest.h>

#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using IntList = TRef<TArrayList<int>>;
using V = std::vector<int>;

IntList Make(const V& AItems) {
  IntList list = New<TArrayList<int>>();
  list->Append(AItems);
  return list;
}

TEST(ArrayListTest, DeletePastTheEndIsIgnoredWhileReadingFails) {
  IntList list = Make({1, 2, 3});
  list->Delete(3)->Delete(100);
  EXPECT_EQ(Contents(list), (V{1, 2, 3}));
  EXPECT_THROW(list->GetItem(3), EListError);
  EXPECT_THROW(list->GetItem(-1), EListError);
  EXPECT_THROW(list->Delete(-1), EListError);
  EXPECT_THROW(list->SetItem(3, 0), EListError);
  EXPECT_THROW(list->Swap(0, 3), EListError);

  list->Append(V{4, 5})->Delete(1, 2);
  EXPECT_EQ(Contents(list), (V{1, 4, 5}));
  list->Delete(3, 10); // a range that starts past the end: ignored
  EXPECT_THROW(list->Delete(1, 3), EListError);
  EXPECT_EQ(Contents(list), (V{1, 4, 5}));
}

TEST(ArrayListTest, InsertAtRisingIndices) {
  IntList list = Make({1, 5});
  list->Insert(1, Make({2, 3, 4}))->Insert(5, 6);
  EXPECT_EQ(Contents(list), (V{1, 2, 3, 4, 5, 6}));
  EXPECT_THROW(list->Insert(7, 9), EListError);
  list->Delete(2, 4)->Insert(1, list); // inserting itself inserts what it held
  EXPECT_EQ(Contents(list), (V{1, 1, 2, 2}));
}

TEST(ArrayListTest, SelfAppendAndSelfAssignLeaveTheListUnchanged) {
  IntList list = Make({1, 2});
  list->Append(list)->Assign(list);
  EXPECT_EQ(Contents(list), (V{1, 2}));
  list->Assign(Make({7}));
  EXPECT_EQ(Contents(list), (V{7}));
}

TEST(ArrayListTest, RemoveOneAnswersTheIndexOrMinusOne) {
  IntList list = Make({5, 6, 5});
  EXPECT_EQ(list->RemoveOne(5), 0);
  EXPECT_EQ(list->RemoveOne(9), -1);
  EXPECT_EQ(Contents(list), (V{6, 5}));
}

TEST(ArrayListTest, RemoveAllOfAnotherListTakesTheLastOccurrenceOncePerElement) {
  IntList list = Make({1, 2, 1, 3, 1});
  list->RemoveAll(Make({1, 3}));
  EXPECT_EQ(Contents(list), (V{1, 2, 1}));
  list->RemoveAll(Make({1}));
  EXPECT_EQ(Contents(list), (V{1, 2}));
  list->RemoveAll(Make({1, 1, 1}));
  EXPECT_EQ(Contents(list), (V{2}));
}

TEST(ArrayListTest, RemoveAllByPredicateGoesFromTheLastIndexDown) {
  IntList list = Make({1, 2, 3, 4});
  V found;
  list->RemoveAll([](const int& A) { return A % 2 == 0; }, [&](const int& A) { found.push_back(A); });
  EXPECT_EQ(found, (V{4, 2}));
  EXPECT_EQ(Contents(list), (V{1, 3}));
  list->RemoveAll(1)->RemoveAll([](int A) { return A == 3; });
  EXPECT_EQ(list->GetCount(), 0);
}

TEST(ArrayListTest, FindAndRemoveOneForms) {
  IntList list = Make({1, 2, 3, 2});
  int item = -1;
  EXPECT_FALSE(list->FindAndRemoveOne([](const int& A) { return A > 5; }, item));
  EXPECT_EQ(item, -1); // untouched
  EXPECT_TRUE(list->FindAndRemoveOne([](const int& A) { return A > 1; }, item));
  list->FindAndRemoveOne([](const int& A) { return A > 1; }, [&](const int& A) { item += A * 10; });
  EXPECT_EQ(item, 32);
  EXPECT_EQ(Contents(list), (V{1, 2}));
}

TEST(ArrayListTest, FindOrAddMakesAnElementOnlyWhenNoneMatches) {
  IntList list = Make({1, 2});
  int made = 0;
  const auto create = [&] { return ++made * 100; };
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 2; }, create), 2);
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 3; }, create), 100);
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 4; }, 4), 4);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(Contents(list), (V{1, 2, 100, 4}));
  list->AddUnique(4)->AddUnique(5);
  EXPECT_EQ(Contents(list), (V{1, 2, 100, 4, 5}));
}

TEST(ArrayListTest, NilArgumentsAreAssertionFailures) {
  IntList list = Make({1});
  EXPECT_THROW(list->Append(TRef<IEnumerable<int>>()), EAssertionFailed);
  EXPECT_THROW(list->Assign(nullptr), EAssertionFailed);
  EXPECT_THROW(list->RemoveAll(TRef<IEnumerable<int>>()), EAssertionFailed);
  EXPECT_THROW(list->RemoveOne(nullptr), EAssertionFailed);
  EXPECT_THROW(list->FindOrAdd(nullptr, 1), EAssertionFailed);
  EXPECT_THROW(list->FindOrAdd([](const int&) { return false; }, TFunc<int>()), EAssertionFailed);
  EXPECT_THROW(TArrayList<int>::CreateEnumerator(nullptr), EAssertionFailed);
  EXPECT_THROW(TArrayList<int>::CreateCopy(nullptr), EAssertionFailed);
  EXPECT_EQ(Contents(list), (V{1}));
}

TEST(ArrayListTest, WhichOperationsNotify) {
  struct Row {
    const char* Name;
    std::function<void(const IntList&)> Operation;
    int Notifications;
  };
  const Row rows[] = {
      {"Add", [](const IntList& L) { L->Add(9); }, 1},
      {"AddFront", [](const IntList& L) { L->AddFront(9); }, 1},
      {"Append", [](const IntList& L) { L->Append(V{8, 9}); }, 2},
      {"RemoveOne found", [](const IntList& L) { L->RemoveOne(2); }, 1},
      {"RemoveOne absent", [](const IntList& L) { L->RemoveOne(7); }, 1},
      {"ClearValues", [](const IntList& L) { L->ClearValues(); }, 1},
      {"Insert", [](const IntList& L) { L->Insert(0, 9); }, 0},
      {"Delete", [](const IntList& L) { L->Delete(0); }, 0},
      {"Delete range", [](const IntList& L) { L->Delete(0, 2); }, 0},
      {"Clear", [](const IntList& L) { L->Clear(); }, 0},
      {"SetItem", [](const IntList& L) { L->SetItem(0, 9); }, 0},
      {"Swap", [](const IntList& L) { L->Swap(0, 2); }, 0},
      {"Sort", [](const IntList& L) { L->Sort(); }, 0},
      {"IfRemoveOne", [](const IntList& L) { L->IfRemoveOne([](const int& A) { return A == 1; }); }, 0},
      {"RemoveAll", [](const IntList& L) { L->RemoveAll(1); }, 0},
  };
  for (const Row& row : rows) {
    IntList list = Make({3, 2, 1});
    TCounter counter;
    list->AddChangeHandler(counter.Handler());
    row.Operation(list);
    EXPECT_EQ(counter.Count, row.Notifications) << row.Name;
  }
}

TEST(ArrayListTest, DeletingTheCurrentElementPassesOverTheNext) {
  IntList list = Make({1, 2, 3, 4});
  V seen;
  for (const TRef<IEnumerator<int>> walk = list->GetEnumerator(); walk->MoveNext();) {
    seen.push_back(walk->GenericGetCurrent());
    if (seen.back() == 2) list->Delete(1);
  }
  EXPECT_EQ(seen, (V{1, 2, 4}));
}

TEST(ArrayListTest, ReverseWalkAndRangeFor) {
  IntList list = Make({1, 2, 3});
  EXPECT_EQ(Contents(TArrayList<int>::CreateEnumerator(list->GetReverseEnumerator())), (V{3, 2, 1}));
  const TRef<IReverseEnumeratorHost<int>> reverse = list->GetReverse();
  V seen;
  for (int item : *reverse) seen.push_back(item);
  for (int item : *list) seen.push_back(item);
  EXPECT_EQ(seen, (V{3, 2, 1, 1, 2, 3}));
  const TRef<IEnumerator<int>> walk = reverse->GetEnumerator();
  walk->MoveNext();
  walk->Reset();
  EXPECT_EQ(Walk(walk), (V{3, 2, 1}));
}

TEST(ArrayListTest, SortByComparisonOrByTheOrdinalCaseSensitiveDefault) {
  IntList numbers = Make({3, 1, 2});
  numbers->Sort([](const int& A, const int& B) { return B - A; });
  EXPECT_EQ(Contents(numbers), (V{3, 2, 1}));
  const TRef<IStringArrayList> list = TStringArrayList::CreateArray({"b", "B", "a", "A", "ab"});
  list->Sort();
  EXPECT_EQ(list->ToArray(), (std::vector<String>{"A", "B", "a", "ab", "b"}));
  EXPECT_FALSE(list->FindAndRemoveOne(String("AB")));
}

TEST(ArrayListTest, UntypedAccessThroughValues) {
  IntList list = Make({1});
  const TRef<IList> untyped = QueryAs<IList>(TRef<IArrayList<int>>(list));
  untyped->AddValue(TValue(Integer(2)));
  const TValue fresh = untyped->GetNewValue();
  EXPECT_EQ(fresh.GetTypeInfo(), TypeInfo<int>());
  EXPECT_EQ(fresh.AsInteger(), 0);
  std::vector<Integer> values;
  for (const TRef<IEnumerator<TValue>> walk = untyped->GetValueEnumerator(); walk->MoveNext();)
    values.push_back(walk->GenericGetCurrent().AsInteger());
  EXPECT_EQ(values, (V{1, 2}));

  // Interface elements travel as interface values.
  const TRef<TArrayList<TRef<IInterface>>> interfaces = New<TArrayList<TRef<IInterface>>>();
  const TValue nilInterface = TRef<IList>(interfaces)->GetNewValue();
  EXPECT_EQ(nilInterface.GetTypeKind(), tkInterface);
  EXPECT_FALSE(nilInterface.AsInterface());
  TRef<IList>(interfaces)->AddValue(TValue::From(TRef<IInterface>(list)));
  ASSERT_EQ(interfaces->GetCount(), 1);
  EXPECT_TRUE(interfaces->GetItem(0) == list);
}

} // namespace
} // namespace Tarvo::Testing
