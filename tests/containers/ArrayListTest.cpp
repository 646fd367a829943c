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
const TConstFunc<int, Boolean> IsEven = [](const int& A) { return A % 2 == 0; };

// Indexes at and past both ends; a list inserted, appended or assigned into itself.
TEST(ArrayListTest, IndexBoundaries) {
  IntList list = Make({1, 2, 3});
  list->Delete(3)->Delete(100)->Delete(3, 10); // at or past the end: ignored
  EXPECT_EQ(Contents(list), (V{1, 2, 3}));
  ExpectAssertions<EListError>({{"reading at the end", [&] { list->GetItem(3); }},
                                {"reading before the start", [&] { list->GetItem(-1); }},
                                {"deleting before the start", [&] { list->Delete(-1); }},
                                {"writing at the end", [&] { list->SetItem(3, 0); }},
                                {"swapping with the end", [&] { list->Swap(0, 3); }},
                                {"deleting a range past the end", [&] { list->Delete(1, 3); }},
                                {"inserting past the end", [&] { list->Insert(4, 9); }}});
  EXPECT_EQ(Contents(list), (V{1, 2, 3}));
  list->Delete(1, 2)->Insert(1, Make({2, 3, 4}))->Insert(4, 5);
  EXPECT_EQ(Contents(list), (V{1, 2, 3, 4, 5}));
  list->Delete(2, 3)->Insert(1, list); // inserting itself inserts what it held
  EXPECT_EQ(Contents(list), (V{1, 1, 2, 2}));
  list->Append(list)->Assign(list); // appending or assigning itself does nothing
  EXPECT_EQ(Contents(list), (V{1, 1, 2, 2}));
}

// Which element each removal takes, and in what order the found ones are seen.
TEST(ArrayListTest, RemovalForms) {
  IntList list = Make({5, 6, 5});
  EXPECT_EQ(list->RemoveOne(5), 0);
  EXPECT_EQ(list->RemoveOne(9), -1);
  EXPECT_EQ(Contents(list), (V{6, 5}));

  // Per element of the other list, the last equal element goes.
  list = Make({1, 2, 1, 3, 1});
  list->RemoveAll(Make({1, 3, 1}));
  EXPECT_EQ(Contents(list), (V{1, 2}));

  // By predicate from the last index down, the procedure seeing each removed element.
  list = Make({1, 2, 3, 4});
  V found;
  list->RemoveAll(IsEven, [&](const int& A) { found.push_back(A); });
  EXPECT_EQ(found, (V{4, 2}));
  EXPECT_EQ(Contents(list), (V{1, 3}));

  list = Make({1, 2, 3, 2});
  int item = -1;
  EXPECT_FALSE(list->FindAndRemoveOne([](const int& A) { return A > 5; }, item));
  EXPECT_EQ(item, -1); // untouched
  EXPECT_TRUE(list->FindAndRemoveOne([](const int& A) { return A > 1; }, item));
  list->FindAndRemoveOne([](const int& A) { return A > 1; }, [&](const int& A) { item += A * 10; });
  EXPECT_EQ(item, 32);
  EXPECT_EQ(Contents(list), (V{1, 2}));
}

// FindOrAdd calls its maker only when nothing matches; AddUnique adds only what is missing.
TEST(ArrayListTest, FindOrAddMakesAnElementOnlyWhenNoneMatches) {
  IntList list = Make({1, 2});
  int made = 0;
  const auto create = [&] { return ++made * 100; };
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 2; }, create), 2);
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 3; }, create), 100);
  EXPECT_EQ(list->FindOrAdd([](const int& A) { return A == 4; }, 4), 4);
  EXPECT_EQ(made, 1);
  list->AddUnique(4)->AddUnique(5);
  EXPECT_EQ(Contents(list), (V{1, 2, 100, 4, 5}));
}

// What each operation does to {3, 2, 1} and how often it notifies.
TEST(ArrayListTest, OperationsAndTheirNotifications) {
  const auto appendTwo = [](const IntList& L) { L->Append(V{8, 9}); };
  struct TRow {
    const char* Name;
    std::function<void(const IntList&)> Operation;
    V After;
    int Notifications;
  } rows[] = {
      {"Add", [](const IntList& L) { L->Add(9); }, {3, 2, 1, 9}, 1},
      {"AddFront", [](const IntList& L) { L->AddFront(9); }, {9, 3, 2, 1}, 1},
      {"Append", appendTwo, {3, 2, 1, 8, 9}, 2},
      {"RemoveOne", [](const IntList& L) { L->RemoveOne(2); }, {3, 1}, 1},
      {"RemoveOne of an absent item notifies all the same", [](const IntList& L) { L->RemoveOne(7); }, {3, 2, 1}, 1},
      {"ClearValues", [](const IntList& L) { L->ClearValues(); }, {}, 1},
      {"Insert", [](const IntList& L) { L->Insert(0, 9); }, {9, 3, 2, 1}, 0},
      {"Delete", [](const IntList& L) { L->Delete(0); }, {2, 1}, 0},
      {"Delete a range", [](const IntList& L) { L->Delete(0, 2); }, {1}, 0},
      {"Clear", [](const IntList& L) { L->Clear(); }, {}, 0},
      {"SetItem", [](const IntList& L) { L->SetItem(0, 9); }, {9, 2, 1}, 0},
      {"Swap", [](const IntList& L) { L->Swap(0, 2); }, {1, 2, 3}, 0},
      {"Sort", [](const IntList& L) { L->Sort(); }, {1, 2, 3}, 0},
      {"IfRemoveOne", [](const IntList& L) { L->IfRemoveOne([](const int& A) { return A == 1; }); }, {3, 2}, 0},
      {"RemoveAll after an Append", [](const IntList& L) { L->Append(V{2})->RemoveAll(2); }, {3, 1}, 1},
  };
  ForEachRow(rows, [](const TRow& ARow) {
    IntList list = Make({3, 2, 1});
    TCounter counter;
    list->AddChangeHandler(counter.Handler());
    ARow.Operation(list);
    EXPECT_EQ(Contents(list), ARow.After);
    EXPECT_EQ(counter.Count, ARow.Notifications);
  });
}

// A walk passes over the element after a deleted current one; reverse walks; the count is read on every step.
TEST(ArrayListTest, Walks) {
  IntList list = Make({1, 2, 3, 4});
  V seen;
  for (const TRef<IEnumerator<int>> walk = list->GetEnumerator(); walk->MoveNext();) {
    seen.push_back(walk->GenericGetCurrent());
    if (seen.back() == 2) list->Delete(1); // deleting the current element passes over the next
  }
  EXPECT_EQ(seen, (V{1, 2, 4}));

  EXPECT_EQ(Contents(TArrayList<int>::CreateEnumerator(list->GetReverseEnumerator())), (V{4, 3, 1}));
  const TRef<IReverseEnumeratorHost<int>> reverse = list->GetReverse();
  seen.clear();
  for (int item : *reverse) seen.push_back(item);
  for (int item : *list) seen.push_back(item);
  EXPECT_EQ(seen, (V{4, 3, 1, 1, 3, 4}));

  // The count is asked on every step.
  Integer count = 3;
  const auto counted =
      New<TBasicListEnumerator<int>>([&] { return count; }, [](Integer AIndex) { return AIndex * 10; });
  ASSERT_TRUE(counted->MoveNext());
  count = 5;
  EXPECT_EQ(Walk<int>(counted), (V{10, 20, 30, 40}));
  counted->Reset();
  count = 1;
  EXPECT_EQ(Walk<int>(counted), (V{0}));
}

// Sort takes a comparison or, for texts, the ordinal case-sensitive default.
TEST(ArrayListTest, SortByComparisonOrByTheOrdinalCaseSensitiveDefault) {
  IntList numbers = Make({3, 1, 2});
  numbers->Sort([](const int& A, const int& B) { return B - A; });
  EXPECT_EQ(Contents(numbers), (V{3, 2, 1}));
  const TRef<IStringArrayList> list = TStringArrayList::CreateArray({"b", "B", "a", "A", "ab"});
  list->Sort();
  EXPECT_EQ(list->ToArray(), (std::vector<String>{"A", "B", "a", "ab", "b"}));
  EXPECT_FALSE(list->FindAndRemoveOne(String("AB")));
}

// Untyped access goes through values of the element type; interfaces and objects keep their kind.
TEST(ArrayListTest, UntypedAccessThroughValues) {
  IntList list = Make({1});
  const TRef<IList> untyped = QueryAs<IList>(TRef<IArrayList<int>>(list));
  untyped->AddValue(TValue(Integer(2)));
  EXPECT_EQ(untyped->GetNewValue().GetTypeInfo(), TypeInfo<int>());
  std::vector<Integer> values;
  for (const TValue& value : Walk(untyped->GetValueEnumerator())) values.push_back(value.AsInteger());
  EXPECT_EQ(values, (V{1, 2}));

  // Interface elements travel as interface values.
  const TRef<TArrayList<TRef<IInterface>>> interfaces = New<TArrayList<TRef<IInterface>>>();
  EXPECT_EQ(TRef<IList>(interfaces)->GetNewValue().GetTypeKind(), tkInterface);
  TRef<IList>(interfaces)->AddValue(TValue::From(TRef<IInterface>(list)));
  ASSERT_EQ(interfaces->GetCount(), 1);
  EXPECT_TRUE(interfaces->GetItem(0) == list);

  // The value walk of an object list forwards the untyped current element.
  const TRef<TTestElement> element = New<TTestElement>();
  const TRef<TObjectArrayList> objects = New<TObjectArrayList>();
  objects->Add(element.get());
  const TRef<IEnumerator<TValue>> walk = objects->GetValueEnumerator();
  ASSERT_TRUE(walk->MoveNext());
  EXPECT_EQ(walk->GetCurrent(), element.get());
}

// A list's query gives new array lists, front to back or back to front, and holds the list.
TEST(ArrayListTest, Queries) {
  const TRef<IArrayList<int>> list = TArrayList<int>::CreateArray({1, 2, 3, 4});
  const TRef<IArrayList<int>> copy = list->Query()->Skip(0);
  EXPECT_FALSE(copy == list);
  list->Add(5);
  EXPECT_EQ(Contents(copy), (V{1, 2, 3, 4}));
  EXPECT_EQ(Contents(list->Query(true)->Take(2)), (V{5, 4}));
  Integer index = 0;
  EXPECT_TRUE(list->Query(true)->IndexOf(1, index));
  EXPECT_EQ(index, 4);
  TRef<IQuery<String>> kept;
  {
    const TRef<IStringArrayList> names = TStringArrayList::CreateArray({"b", "a"});
    kept = names->Query();
  }
  EXPECT_EQ(kept->First(), "b");
}

} // namespace
} // namespace Tarvo::Testing
