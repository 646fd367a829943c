#include <map>

#include "containers/Dictionary.h"
#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using TAges = IDictionary<String, Integer>;
using TAgePair = TPair<String, Integer>;
using TContents = std::map<String, Integer>;

TRef<TAges> Ages(std::initializer_list<TAgePair> APairs) {
  TRef<TAges> result = New<TDictionary<String, Integer>>();
  for (const auto& pair : APairs) result->Add(pair.Key, pair.Value);
  return result;
}

TContents Entries(const TRef<TAges>& ADictionary) {
  TContents result;
  for (const auto& pair : *ADictionary) EXPECT_TRUE(result.emplace(pair.Key, pair.Value).second) << pair.Key;
  return result;
}

// Add replaces; failed look-ups give defaults; GetOrAdd makes a value only for a missing key.
TEST(DictionaryTest, StoringAndReading) {
  const auto ages = Ages({{"ann", 30}});
  EXPECT_EQ(ages->Add("bob", 40)->Add("ann", 31), ages); // Add replaces
  ages->SetItem("bob", 41);
  EXPECT_EQ(Entries(ages), (TContents{{"ann", 31}, {"bob", 41}}));
  EXPECT_THROW(ages->GetItem("cid"), EListError);
  Integer age = 99;
  EXPECT_FALSE(ages->TryGetValue("cid", age));
  EXPECT_EQ(age, 0);
  EXPECT_FALSE(ages->ContainsValue(40));

  int made = 0;
  const TFunc<Integer> make = [&] { return ++made, 50; };
  EXPECT_EQ(ages->GetOrAdd("ann", make), 31);
  EXPECT_EQ(ages->GetOrAdd("cid", make), 50);
  EXPECT_EQ(ages->GetOrAdd("cid", make), 50);
  EXPECT_EQ(made, 1);

  std::vector<Integer> seen;
  ages->ForKey("ann", [&](const Integer& A) { seen.push_back(A); })->ForKey("zed", [&](const Integer&) { FAIL(); });
  EXPECT_EQ(seen, std::vector<Integer>{31});
}

// Removal forms: a procedure sees the removed value while its key is still there; absent keys extract defaults.
TEST(DictionaryTest, Removing) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}, {"cid", 50}, {"dan", 30}, {"eve", 30}});
  std::vector<Integer> seen;
  const TConstProc<Integer> collect = [&](const Integer& A) { seen.push_back(A); };
  EXPECT_EQ(ages->Remove("bob", collect)->Remove("zed", collect)->Remove("cid"), ages);
  EXPECT_EQ(seen, std::vector<Integer>{40});
  ages->Add("cid", 50)->RemoveOne([](const String&, const Integer& A) { return A == 30; });
  EXPECT_EQ(ages->GetCount(), 3); // a single match goes

  TContents removed, expected = Entries(ages);
  expected.erase("cid");
  ages->RemoveAll([](const String&, const Integer& A) { return A == 30; },
                  [&](const String& AKey, const Integer& A) {
                    EXPECT_TRUE(ages->ContainsKey(AKey)) << "still there while the procedure runs";
                    removed.emplace(AKey, A);
                  });
  EXPECT_EQ(removed, expected);
  EXPECT_EQ(Entries(ages), (TContents{{"cid", 50}}));
  EXPECT_EQ(ages->ExtractPair("cid"), (TAgePair{"cid", 50}));
  EXPECT_EQ(ages->ExtractPair("bob"), (TAgePair{"bob", 0}));
  EXPECT_EQ(ages->Add("x", 1)->TrimExcess()->Clear()->GetCount(), 0);
}

// Changing values during a walk is fine; adding a key ends the walk with an error until Reset.
TEST(DictionaryTest, WalkEndsWithAnErrorWhenTheKeysChange) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}});
  for (const auto& pair : *ages) ages->SetItem(pair.Key, pair.Value + 1); // values may change
  EXPECT_EQ(Entries(ages), (TContents{{"ann", 31}, {"bob", 41}}));
  const auto walk = ages->GetEnumerator();
  ASSERT_TRUE(walk->MoveNext());
  ages->Add("cid", 50);
  EXPECT_THROW(walk->MoveNext(), EListError);
  walk->Reset();
  EXPECT_EQ(Walk(walk).size(), 3u);
}

// Queries give new dictionaries; Keys and Values are new lists in matching order.
TEST(DictionaryTest, QueriesAndTheirKeysAndValues) {
  const auto ages = Ages({{"ann", 30}, {"bob", 40}, {"cid", 50}});
  const auto query = ages->Query();
  const auto older = query->Filter([](const TAgePair& A) { return A.Value > 35; });
  EXPECT_NE(older, ages);
  EXPECT_EQ(Entries(older), (TContents{{"bob", 40}, {"cid", 50}}));
  EXPECT_FALSE(query->Contains(TAgePair{"bob", 41}));
  const auto keys = ages->Keys();
  const auto values = ages->Values();
  ASSERT_EQ(values->GetCount(), 3);
  for (Integer i = 0; i < 3; ++i) EXPECT_EQ(ages->GetItem(keys->GetItem(i)), values->GetItem(i));
  TRef<IArrayList<String>> handed;
  EXPECT_EQ(ages->Remove("bob")->Keys([&](const TRef<IArrayList<String>>& AList) { handed = AList; }), ages);
  EXPECT_EQ(handed->GetCount(), 2);
  EXPECT_EQ(keys->GetCount(), 3);
  EXPECT_EQ(query->Count([](const TAgePair& A) { return A.Value > 35; }), 1); // reruns over the dictionary
}

// The interfaces a dictionary answers.
TEST(DictionaryTest, InterfacesAndArgumentChecks) {
  const auto ages = Ages({{"ann", 30}});
  const TRef<IInterface> asInterface = ages;
  EXPECT_FALSE((Supports<IDictionary<Integer, String>>(asInterface))); // an interface without an identifier
  EXPECT_TRUE(Supports<IChangeNotification>(asInterface));
}

} // namespace
} // namespace Tarvo::Testing
