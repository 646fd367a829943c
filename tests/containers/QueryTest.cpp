#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

// A collection that counts how it is walked, so that tests see when and how far a query runs.
class TInts : public TImplements<TInterfacedObject, IEnumerable<Integer>> {
public:
  class TWalk : public TBasicEnumerator<Integer> {
  public:
    explicit TWalk(TRef<TInts> AOwner) : FOwner(std::move(AOwner)) {}
    void Reset() override { FIndex = -1; }
    bool MoveNext() override {
      ++FOwner->MoveNextCalls;
      return ++FIndex < static_cast<Integer>(FOwner->Items.size());
    }
    Integer GenericGetCurrent() override { return FOwner->Items.at(FIndex); }

  private:
    TRef<TInts> FOwner;
    Integer FIndex = -1;
  };

  explicit TInts(std::vector<Integer> AItems = {}) : Items(std::move(AItems)) {}
  TRef<IEnumerator<Integer>> GetEnumerator() override {
    ++Walks;
    return New<TWalk>(TRef<TInts>(this));
  }

  std::vector<Integer> Items;
  int Walks = 0;
  int MoveNextCalls = 0;
};

using TIntsRef = TRef<TInts>;
using TIntQuery = IContainerQuery<TIntsRef, TIntsRef, Integer>;

TRef<TIntQuery> QueryOf(const TIntsRef& ASource) {
  return New<TContainerQuery<TIntsRef, TIntsRef, Integer>>(
      [ASource] { return ASource->GetEnumerator(); }, [] { return New<TInts>(); },
      [](TIntsRef AInto, Integer AItem) { AInto->Items.push_back(AItem); }, ASource);
}

TRef<IEnumerable<Integer>> Ints(std::vector<Integer> AItems) { return New<TInts>(std::move(AItems)); }

const TConstFunc<Integer, Boolean> IsEvenItem = [](const Integer& AItem) { return AItem % 2 == 0; };

// Equals walks both to the end, by the default comparer or a given one.
TEST(QueryTest, EqualsWalksBothToTheEnd) {
  const auto query = QueryOf(New<TInts>(std::vector<Integer>{1, 2, 3}));
  const TConstFunc<Integer, Integer, Boolean> sameLastDigit = [](const Integer& A, const Integer& B) {
    return A % 10 == B % 10;
  };
  struct TCase {
    const char* Name;
    std::vector<Integer> Other;
    bool ByComparer, ByLastDigit;
  } cases[] = {{"same items", {1, 2, 3}, true, true},
               {"shorter", {1, 2}, false, false},
               {"longer", {1, 2, 3, 4}, false, false},
               {"same last digits", {11, 2, 23}, false, true}};
  ForEachRow(cases, [&](const TCase& ACase) {
    EXPECT_EQ(query->Equals(Ints(ACase.Other)), ACase.ByComparer);
    EXPECT_EQ(query->Equals(Ints(ACase.Other), sameLastDigit), ACase.ByLastDigit);
  });
  EXPECT_TRUE(QueryOf(New<TInts>())->Equals(Ints({})));
}

// Failed searches give the defaults.
TEST(QueryTest, Searches) {
  const auto query = QueryOf(New<TInts>(std::vector<Integer>{3, 4, 5, 4}));
  EXPECT_FALSE(query->Contains(7));
  EXPECT_EQ(query->Count(4), 2);
  EXPECT_TRUE(query->ContainsAny(Ints({9, 8, 5})));
  EXPECT_FALSE(query->ContainsAny(Ints({9, 8})));
  Integer item = 99, index = 99;
  IQuery<Integer>& asked = *query; // the Boolean Find; the container query's own is fluent
  EXPECT_TRUE(asked.Find(IsEvenItem, item));
  EXPECT_EQ(item, 4);
  EXPECT_FALSE(asked.Find([](const Integer& A) { return A > 9; }, item));
  EXPECT_EQ(item, 0);
  EXPECT_FALSE(query->IndexOf(7, index));
  EXPECT_EQ(index, -1);

  const auto empty = QueryOf(New<TInts>());
  item = 99;
  EXPECT_TRUE(empty->IsEmpty());
  EXPECT_EQ(empty->First(), 0);
  EXPECT_FALSE(empty->First(item));
  EXPECT_EQ(item, 0);
}

// A query reruns over its source as it stands, while Filter runs at once; the query holds its source.
TEST(QueryTest, EveryRunWalksTheSourceAsItStandsWhileFilterIsEager) {
  auto source = New<TInts>(std::vector<Integer>{1, 2, 3, 4});
  const auto query = QueryOf(source);
  int calls = 0;
  const auto evens = query->Filter([&](const Integer& A) { return ++calls, A % 2 == 0; });
  EXPECT_EQ(calls, 4);
  source->Items = {2, 4, 6};
  EXPECT_EQ(evens->Items, (std::vector<Integer>{2, 4}));
  EXPECT_EQ(query->Count(IsEvenItem), 3);
  EXPECT_EQ(source->Walks, 2);
  source = nullptr; // the query holds its source
  EXPECT_EQ(query->First(), 2);
}

// Skip and Take at and past their ends, always into a copy; Take reads no further than it must.
TEST(QueryTest, SkipAndTakeBoundaries) {
  const std::vector<Integer> items{1, 2, 3, 4, 5};
  struct TCase {
    const char* Name;
    Integer Count;
    std::vector<Integer> Skipped, Taken;
  } cases[] = {{"a negative count", -2, items, {}},
               {"some", 2, {3, 4, 5}, {1, 2}},
               {"all", 5, {}, items},
               {"more than there are", 9, {}, items}};
  ForEachRow(cases, [&](const TCase& ACase) {
    const auto source = New<TInts>(items);
    const auto skipped = QueryOf(source)->Skip(ACase.Count);
    const auto taken = QueryOf(source)->Take(ACase.Count);
    EXPECT_EQ(skipped->Items, ACase.Skipped);
    EXPECT_EQ(taken->Items, ACase.Taken);
    EXPECT_NE(skipped.get(), source.get()) << "a copy, never the source";
  });
  // Take stops one step past the last taken.
  const auto source = New<TInts>(items);
  QueryOf(source)->Take(2);
  EXPECT_EQ(source->MoveNextCalls, 3);
}

// The fluent operations run in order and hand back the source.
TEST(QueryTest, FluentOperationsHandBackTheSource) {
  const auto source = New<TInts>(std::vector<Integer>{3, 4, 6});
  const auto query = QueryOf(source);
  std::vector<Integer> seen, indices;
  EXPECT_EQ(query->ForEach([&](const Integer& A) { seen.push_back(A); }), source);
  EXPECT_EQ(query->ForEach([&](const Integer& AIndex, const Integer& A) { indices.push_back(AIndex * 10 + A); }),
            source);
  EXPECT_EQ(seen, (std::vector<Integer>{3, 4, 6}));
  EXPECT_EQ(indices, (std::vector<Integer>{3, 14, 26}));

  seen.clear();
  const TConstProc<Integer> collect = [&](const Integer& A) { seen.push_back(A); };
  EXPECT_EQ(query->ForFirst(collect), source);
  EXPECT_EQ(query->ForFirstMatch(IsEvenItem, collect), source);
  EXPECT_EQ(query->ForFirstMatch([](const Integer& A) { return A > 9; }, collect), source);
  EXPECT_EQ(seen, (std::vector<Integer>{3, 4}));

  Integer item = 99;
  EXPECT_EQ(query->Find([](const Integer& A) { return A > 9; }, item), source);
  EXPECT_EQ(item, 0);
  TIntsRef handed;
  EXPECT_EQ(query->Do([&](TIntsRef A) { handed = A; }), source);
  EXPECT_EQ(handed, source);

  // The access object behind them is made once, and walks only when asked.
  const auto fresh = QueryOf(source);
  const int walks = source->Walks;
  EXPECT_EQ(fresh->Access(), fresh->Access());
  EXPECT_EQ(source->Walks, walks);
}

} // namespace
} // namespace Tarvo::Testing
