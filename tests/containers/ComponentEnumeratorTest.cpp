#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <vector>

#include "containers/ComponentEnumerators.h"

namespace Tarvo {
namespace {

struct TNode {
  String Name;
  std::vector<TNode*> Children;
};

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

  template <class TWalk> static std::vector<String> Names(TNode* ARoot) {
    return Walk(New<TWalk>(ARoot, GetCount, GetItem));
  }
  static std::vector<String> Walk(const TRef<IEnumerator<TNode*>>& AEnumerator) {
    std::vector<String> result;
    while (AEnumerator->MoveNext()) result.push_back(AEnumerator->GenericGetCurrent()->Name);
    return result;
  }

  static inline const TFunc<TNode*, Integer> GetCount = [](TNode* ANode) {
    return static_cast<Integer>(ANode->Children.size());
  };
  static inline const TFunc<TNode*, Integer, TNode*> GetItem = [](TNode* ANode, Integer AIndex) {
    return ANode->Children.at(AIndex);
  };

  TNode Root{"Root", {}};

private:
  std::deque<TNode> FNodes;
};

using TNames = std::vector<String>;

TEST_F(ComponentEnumeratorTest, WalkOrders) {
  TNode leaf{"Leaf", {}};
  const std::pair<TNames, TNames> walks[] = {
      {Names<TComponentEnumerator<TNode*>>(&Root), {"A", "B", "C"}},
      {Names<TComponentReverseEnumerator<TNode*>>(&Root), {"C", "B", "A"}},
      {Names<TComponentEnumeratorRecursive<TNode*>>(&Root), {"A", "A1", "A1a", "A2", "B", "C", "C1"}},
      {Names<TComponentReverseEnumeratorRecursive<TNode*>>(&Root), {"C1", "C", "B", "A2", "A1a", "A1", "A"}},
      {Names<TComponentEnumerator<TNode*>>(&leaf), {}},
      {Names<TComponentReverseEnumerator<TNode*>>(&leaf), {}},
      {Names<TComponentEnumeratorRecursive<TNode*>>(&leaf), {}},
      {Names<TComponentReverseEnumeratorRecursive<TNode*>>(&leaf), {}}};
  for (std::size_t i = 0; i < std::size(walks); ++i) EXPECT_EQ(walks[i].first, walks[i].second) << "walk " << i;
}

TEST_F(ComponentEnumeratorTest, ResetInsideASubtreeStartsOver) {
  const TRef<IEnumerator<TNode*>> forward = New<TComponentEnumeratorRecursive<TNode*>>(&Root, GetCount, GetItem);
  const TRef<IEnumerator<TNode*>> reverse =
      New<TComponentReverseEnumeratorRecursive<TNode*>>(&Root, GetCount, GetItem);
  for (const auto& walk : {forward, reverse}) {
    for (int i = 0; i < 4; ++i) walk->MoveNext(); // inside the subtree of A either way
    walk->Reset();
  }
  EXPECT_EQ(Walk(forward), Names<TComponentEnumeratorRecursive<TNode*>>(&Root));
  EXPECT_EQ(Walk(reverse), Names<TComponentReverseEnumeratorRecursive<TNode*>>(&Root));
}

TEST_F(ComponentEnumeratorTest, ChildrenThatGoDuringAWalkEndItEarly) {
  const TRef<IEnumerator<TNode*>> walk = New<TComponentEnumerator<TNode*>>(&Root, GetCount, GetItem);
  ASSERT_TRUE(walk->MoveNext());
  Root.Children.resize(1);
  EXPECT_FALSE(walk->MoveNext());
  EXPECT_FALSE(walk->MoveNext());
}

TEST_F(ComponentEnumeratorTest, FilterKeepsOnlyMatches) {
  const auto walk = New<TFilterEnumerator<TNode*>>(New<TComponentEnumeratorRecursive<TNode*>>(&Root, GetCount, GetItem),
                                                   [](TNode* const& ANode) { return ANode->Children.empty(); });
  EXPECT_EQ(Walk(walk), (TNames{"A1a", "A2", "B", "C1"}));
  walk->Reset();
  EXPECT_EQ(Walk(walk), (TNames{"A1a", "A2", "B", "C1"}));
}

TEST_F(ComponentEnumeratorTest, NilArgumentsAreAssertionFailures) {
  const TRef<IEnumerator<TNode*>> walk = New<TComponentEnumerator<TNode*>>(&Root, GetCount, GetItem);
  EXPECT_THROW(New<TFilterEnumerator<TNode*>>(walk, nullptr), EAssertionFailed);
  EXPECT_THROW(New<TFilterEnumerator<TNode*>>(nullptr, [](TNode* const&) { return true; }), EAssertionFailed);
  EXPECT_THROW(New<TComponentEnumeratorRecursive<TNode*>>(&Root, nullptr, GetItem), EAssertionFailed);
  EXPECT_THROW(New<TComponentReverseEnumerator<TNode*>>(&Root, GetCount, nullptr), EAssertionFailed);
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

TEST_F(ComponentEnumeratorTest, QueryPicksTheWalkByItsFlags) {
  struct TCase {
    bool Recursive, Reverse;
    TNames Expected;
  } cases[] = {{false, false, {"A", "C"}},
               {false, true, {"C", "A"}},
               {true, false, {"A", "A1", "A1a", "A2", "C", "C1"}},
               {true, true, {"C1", "C", "A2", "A1a", "A1", "A"}}};
  for (const auto& c : cases)
    EXPECT_EQ(*QueryChildren(&Root, c.Recursive, c.Reverse, NotB)->Skip(0), c.Expected) << c.Recursive << c.Reverse;
}

TEST_F(ComponentEnumeratorTest, QueryRunsOverTheTreeAsItStandsAndHandsBackTheRoot) {
  const auto query = QueryChildren(&Root, true, false, NotB);
  EXPECT_EQ(query->Count([](TNode* const&) { return true; }), 6);
  Add(&Root, "D");
  EXPECT_EQ(query->Count([](TNode* const&) { return true; }), 7);

  TNodeList handed;
  EXPECT_EQ(query->Do([&](TNodeList AList) { handed = AList; }), &Root);
  ASSERT_TRUE(handed);
  EXPECT_EQ(handed->back(), "D");
  EXPECT_EQ(query->ForEach([](TNode* const&) {}), &Root);
  EXPECT_THROW(QueryChildren(&Root, false, false, nullptr), EAssertionFailed);
}

} // namespace
} // namespace Tarvo
