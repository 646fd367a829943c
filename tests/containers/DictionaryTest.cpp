#include <gtest/gtest.h>

#include <map>

#include "containers/Dictionary.h"

namespace Tarvo {
namespace {

using TAges = IDictionary<String, Integer>;
using TAgePair = TPair<String, Integer>;

TRef<TAges> Ages(std::initializer_list<TAgePair> APairs) {
  TRef<TAges> result = New<TDictionary<String, Integer>>();
  for (const auto& pair : APairs) result->Add(pair.Key, pair.Value);
  return result;
}

std::map<String, Integer> Contents(const TRef<TAges>& ADictionary) {
  std::map<String, Integer> result;
  for (const auto& pair : *ADictionary) EXPECT_TRUE(result.emplace(pair.Key, pair.Value).second) << pair.Key;
  return result;
}

using TContents = std::map<String, Integer>;

// ---- Storing and reading ----

TEST(DictionaryTest, AddReplacesAndIsFluent) {
  const auto ages = Ages({{"ann", 30}});
  EXPECT_EQ(ages->Add("bob", 40)->Add("ann", 31), ages);
  EXPECT_EQ(Contents(ages), (TContents{{"ann", 31}, {"bob", 40}}));
  ages->SetItem("bob", 41);
  EXPECT_EQ(ages->GetItem("bob"), 41);
  EXPECT_EQ(ages->GetCount(), 2);
  EXPECT_THROW(ages->GetItem("cid"), EListError);

  Integer age = 99;
  EXPECT_TRUE(ages->TryGetValue("ann", age));
  EXPECT_EQ(age, 31);
  EXPECT_FALSE(ages->TryGetValue("cid", age));
  EXPECT_EQ(age, 0);
  EXPECT_TRUE(ages->ContainsValue(41));
  EXPECT_FALSE(ages->ContainsValue(40));
}

TEST(DictionaryTest, GetOrAddCreatesOnlyWhenMissing) {
  const auto ages = Ages({{"ann", 30}});
  int made = 0;
  const TFunc<Integer> make = [&] { return ++made, 50; };
  EXPECT_EQ(ages->GetOrAdd("ann", make), 30);
  EXPECT_EQ(made, 0);
  EXPECT_EQ(ages->GetOrAdd("bob", make), 50);
  EXPECT_EQ(ages->GetOrAdd("bob", make), 50);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(ages->GetItem("bob"), 50);
}

TEST(DictionaryTest, ForKeyCallsOnlyForAPresentKey) {
  const auto ages = Ages({{"ann", 30}});
  std::vector<Integer> seen;
  const TConstProc<Integer> collect = [&](const Integer& A) { seen.push_back(A); };
  EXPECT_EQ(ages->ForKey("ann", collect)->ForKey("bob", collect), ages);
  EXPECT_EQ(seen, std::vector<Integer>{30});
}

// ---- Removing ----

TEST(DictionaryTest, RemoveWithAndWithoutProcedure) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}, {"cid", 50}});
  std::vector<Integer> seen;
  const TConstProc<Integer> collect = [&](const Integer& A) { seen.push_back(A); };
  EXPECT_EQ(ages->Remove("ann", collect)->Remove("zed", collect)->Remove("bob"), ages);
  EXPECT_EQ(seen, std::vector<Integer>{30});
  EXPECT_EQ(Contents(ages), (TContents{{"cid", 50}}));
}

TEST(DictionaryTest, RemoveOneTakesASingleMatch) {
  const auto ages = Ages({{"ann", 30}, {"bob", 30}, {"cid", 50}});
  ages->RemoveOne([](const String&, const Integer& A) { return A == 30; });
  EXPECT_EQ(ages->GetCount(), 2);
  EXPECT_TRUE(ages->ContainsKey("cid"));
}

TEST(DictionaryTest, RemoveAllCallsTheProcedureBeforeRemoving) {
  const auto ages = Ages({{"ann", 30}, {"bob", 30}, {"cid", 50}});
  TContents seen;
  ages->RemoveAll([](const String&, const Integer& A) { return A == 30; },
                  [&](const String& AKey, const Integer& A) {
                    EXPECT_TRUE(ages->ContainsKey(AKey)) << "still there while the procedure runs";
                    seen.emplace(AKey, A);
                  });
  EXPECT_EQ(seen, (TContents{{"ann", 30}, {"bob", 30}}));
  EXPECT_EQ(Contents(ages), (TContents{{"cid", 50}}));
  ages->RemoveAll([](const String&, const Integer&) { return true; });
  EXPECT_EQ(ages->GetCount(), 0);
}

TEST(DictionaryTest, ExtractPairTakesThePairOut) {
  const auto ages = Ages({{"ann", 30}});
  EXPECT_EQ(ages->ExtractPair("ann"), (TAgePair{"ann", 30}));
  EXPECT_FALSE(ages->ContainsKey("ann"));
  EXPECT_EQ(ages->ExtractPair("bob"), (TAgePair{"bob", 0}));
  EXPECT_EQ(ages->Add("x", 1)->TrimExcess()->Clear()->GetCount(), 0);
}

// ---- Walking and querying ----

TEST(DictionaryTest, WalkEndsWithAnErrorWhenTheKeysChange) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}});
  for (const auto& pair : *ages) ages->SetItem(pair.Key, pair.Value + 1); // values may change
  EXPECT_EQ(Contents(ages), (TContents{{"ann", 31}, {"bob", 41}}));
  const auto walk = ages->GetEnumerator();
  ASSERT_TRUE(walk->MoveNext());
  ages->Add("cid", 50);
  EXPECT_THROW(walk->MoveNext(), EListError);
  walk->Reset();
  int count = 0;
  while (walk->MoveNext()) ++count;
  EXPECT_EQ(count, 3);
}

TEST(DictionaryTest, QueryRunsOverThePairs) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}, {"cid", 50}});
  const auto query = ages->Query();
  const auto older = query->Filter([](const TAgePair& A) { return A.Value > 35; });
  EXPECT_NE(older, ages);
  EXPECT_EQ(Contents(older), (TContents{{"bob", 40}, {"cid", 50}}));
  EXPECT_TRUE(query->Contains(TAgePair{"bob", 40}));
  EXPECT_FALSE(query->Contains(TAgePair{"bob", 41}));
  ages->Remove("bob");
  EXPECT_EQ(query->Count([](const TAgePair& A) { return A.Value > 35; }), 1);
  EXPECT_EQ(query->ForEach([](const TAgePair&) {}), ages);
  EXPECT_EQ(query->Take(0)->GetCount(), 0);
}

TEST(DictionaryTest, InterfacesWithoutIdentityAreNotFoundByAQuery) {
  const TRef<IInterface> ages = Ages({});
  void* found = &found;
  EXPECT_EQ(ages->QueryInterface(TGUID{}, &found), E_NOINTERFACE);
  EXPECT_EQ(found, nullptr);
  EXPECT_FALSE((Supports<IDictionary<Integer, String>>(ages)));
  EXPECT_TRUE((Supports<IEnumerable<TAgePair>>(ages)));
  EXPECT_TRUE(Supports<IChangeNotification>(ages));
}

TEST(DictionaryTest, KeysAndValuesAreNewListsInTheSameOrder) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}, {"cid", 50}});
  const auto keys = ages->Keys();
  const auto values = ages->Values();
  ASSERT_EQ(keys->GetCount(), 3);
  ASSERT_EQ(values->GetCount(), 3);
  for (Integer i = 0; i < 3; ++i) EXPECT_EQ(ages->GetItem(keys->GetItem(i)), values->GetItem(i));
  EXPECT_NE(ages->Keys(), keys);
  TRef<IArrayList<String>> handed;
  EXPECT_EQ(ages->Remove("bob")->Keys([&](const TRef<IArrayList<String>>& AList) { handed = AList; }), ages);
  EXPECT_EQ(handed->GetCount(), 2);
  EXPECT_EQ(keys->GetCount(), 3);
}

TEST(DictionaryTest, NilArgumentsAreAssertionFailures) {
  const auto ages = Ages({{"ann", 30}});
  EXPECT_THROW(ages->RemoveOne(nullptr), EAssertionFailed);
  EXPECT_THROW(ages->RemoveAll(nullptr), EAssertionFailed);
  EXPECT_THROW(ages->GetOrAdd("bob", nullptr), EAssertionFailed);
  EXPECT_THROW(ages->ForKey("bob", nullptr), EAssertionFailed);
  EXPECT_THROW(ages->Keys(nullptr), EAssertionFailed);
  EXPECT_THROW(ages->Values(nullptr), EAssertionFailed);
}

} // namespace
} // namespace Tarvo
