#include <deque>
#include <memory>

#include "containers/ComponentEnumerators.h"
#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

struct TNode {
  String Name;
  std::vector<TNode*> Children;
};

using TNames = std::vector<String>;

// root: A (A1 (A1a), A2), B, C (C1)
class ComponentEnumeratorTest : public ::testing::Test {
protected:
  TNode* Add(TNode* AParent, String AName) {
    TNode* node = &FNodes.emplace_back(TNode{std::move(AName), {}});
    AParent->Children.push_back(node);
    return node;
  }
  void SetUp() override {
    TNode* a = Add(&Root, "A");
    Add(Add(a, "A1"), "A1a");
    Add(a, "A2");
    Add(&Root, "B");
    Add(Add(&Root, "C"), "C1");
  }

  template <class TWalk> static TRef<IEnumerator<TNode*>> Make(TNode* ARoot) {
    return New<TWalk>(ARoot, GetCount, GetItem);
  }
  static TNames Names(const TRef<IEnumerator<TNode*>>& AEnumerator) {
    TNames result;
    for (TNode* node : Walk(AEnumerator)) result.push_back(node->Name);
    return result;
  }

  static inline const TFunc<TNode*, Integer> GetCount = [](TNode* A) {
    return static_cast<Integer>(A->Children.size());
  };
  static inline const TFunc<TNode*, Integer, TNode*> GetItem = [](TNode* A, Integer AIndex) {
    return A->Children.at(AIndex);
  };

  TNode Root{"Root", {}};

private:
  std::deque<TNode> FNodes;
};

using TForward = TComponentEnumerator<TNode*>;
using TReverse = TComponentReverseEnumerator<TNode*>;
using TForwardRecursive = TComponentEnumeratorRecursive<TNode*>;
using TReverseRecursive = TComponentReverseEnumeratorRecursive<TNode*>;

TEST_F(ComponentEnumeratorTest, WalkOrders) {
  TNode leaf{"Leaf", {}};
  const struct {
    const char* Name;
    TNames Walked, Expected;
  } walks[] = {{"forward", Names(Make<TForward>(&Root)), {"A", "B", "C"}},
               {"reverse", Names(Make<TReverse>(&Root)), {"C", "B", "A"}},
               {"forward recursive", Names(Make<TForwardRecursive>(&Root)), {"A", "A1", "A1a", "A2", "B", "C", "C1"}},
               {"reverse recursive", Names(Make<TReverseRecursive>(&Root)), {"C1", "C", "B", "A2", "A1a", "A1", "A"}},
               {"forward over a leaf", Names(Make<TForward>(&leaf)), {}},
               {"reverse over a leaf", Names(Make<TReverse>(&leaf)), {}},
               {"forward recursive over a leaf", Names(Make<TForwardRecursive>(&leaf)), {}},
               {"reverse recursive over a leaf", Names(Make<TReverseRecursive>(&leaf)), {}}};
  ForEachRow(walks, [](const auto& AWalk) { EXPECT_EQ(AWalk.Walked, AWalk.Expected); });

  const auto leaves = New<TFilterEnumerator<TNode*>>(Make<TForwardRecursive>(&Root),
                                                     [](TNode* const& A) { return A->Children.empty(); });
  EXPECT_EQ(Names(leaves), (TNames{"A1a", "A2", "B", "C1"}));
  leaves->Reset();
  EXPECT_EQ(Names(leaves), (TNames{"A1a", "A2", "B", "C1"}));
}

TEST_F(ComponentEnumeratorTest, ResetInsideASubtreeStartsOverAndLostChildrenEndAWalk) {
  const TRef<IEnumerator<TNode*>> forward = Make<TForwardRecursive>(&Root), reverse = Make<TReverseRecursive>(&Root);
  for (const auto& walk : {forward, reverse}) {
    for (int i = 0; i < 4; ++i) walk->MoveNext(); // inside the subtree of A either way
    walk->Reset();
  }
  EXPECT_EQ(Names(forward), Names(Make<TForwardRecursive>(&Root)));
  EXPECT_EQ(Names(reverse), Names(Make<TReverseRecursive>(&Root)));

  const TRef<IEnumerator<TNode*>> walk = Make<TForward>(&Root);
  ASSERT_TRUE(walk->MoveNext());
  Root.Children.resize(1);
  EXPECT_FALSE(walk->MoveNext());
  EXPECT_FALSE(walk->MoveNext());
}

TEST_F(ComponentEnumeratorTest, NilArgumentsAreAssertionFailures) {
  ExpectAssertions(
      {{"a filter's predicate", [&] { New<TFilterEnumerator<TNode*>>(Make<TForward>(&Root), nullptr); }},
       {"a filter's walk", [] { New<TFilterEnumerator<TNode*>>(nullptr, [](TNode* const&) { return true; }); }},
       {"a walk's count", [&] { New<TForwardRecursive>(&Root, nullptr, GetItem); }},
       {"a walk's item", [&] { New<TReverse>(&Root, GetCount, nullptr); }}});
}

// ---- The query over child components ----

using TNodeList = std::shared_ptr<TNames>;

TRef<IContainerQuery<TNode*, TNodeList, TNode*>> QueryChildren(TNode* ARoot, bool ARecursive, bool AReverse,
                                                               TConstFunc<TNode*, Boolean> AFilter) {
  return CreateComponentQuery<TNode*, TNodeList, TNode*>(
      ARoot, [](TNode* A) { return static_cast<Integer>(A->Children.size()); },
      [](TNode* A, Integer AIndex) { return A->Children.at(AIndex); }, ARecursive, AReverse, std::move(AFilter),
      [] { return std::make_shared<TNames>(); }, [](TNodeList AInto, TNode* A) { AInto->push_back(A->Name); });
}

const TConstFunc<TNode*, Boolean> NotB = [](TNode* const& A) { return A->Name[0] != 'B'; };
const TConstFunc<TNode*, Boolean> Every = [](TNode* const&) { return true; };

TEST_F(ComponentEnumeratorTest, QueryPicksTheWalkByItsFlagsAndRunsOverTheTreeAsItStands) {
  const struct {
    const char* Name;
    bool Recursive, Reverse;
    TNames Expected;
  } cases[] = {{"forward", false, false, {"A", "C"}},
               {"reverse", false, true, {"C", "A"}},
               {"forward recursive", true, false, {"A", "A1", "A1a", "A2", "C", "C1"}},
               {"reverse recursive", true, true, {"C1", "C", "A2", "A1a", "A1", "A"}}};
  ForEachRow(cases, [this](const auto& ACase) {
    EXPECT_EQ(*QueryChildren(&Root, ACase.Recursive, ACase.Reverse, NotB)->Skip(0), ACase.Expected);
  });

  const auto query = QueryChildren(&Root, true, false, NotB);
  EXPECT_EQ(query->Count(Every), 6);
  Add(&Root, "D");
  EXPECT_EQ(query->Count(Every), 7);
  TNodeList handed;
  EXPECT_EQ(query->Do([&](TNodeList AList) { handed = AList; }), &Root); // hands back the root
  ASSERT_TRUE(handed);
  EXPECT_EQ(handed->back(), "D");
  EXPECT_EQ(query->ForEach([](TNode* const&) {}), &Root);
  EXPECT_THROW(QueryChildren(&Root, false, false, nullptr), EAssertionFailed);
}

} // namespace
} // namespace Tarvo::Testing
