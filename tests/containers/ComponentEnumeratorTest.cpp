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
using TForwardRecursive = TComponentEnumeratorRecursive<TNode*>;
using TReverseRecursive = TComponentReverseEnumeratorRecursive<TNode*>;
using TNodeList = std::shared_ptr<TNames>;

// The query over child components, which picks one of the four walks by its flags.
TRef<IContainerQuery<TNode*, TNodeList, TNode*>> QueryChildren(TNode* ARoot, bool ARecursive, bool AReverse,
                                                               TConstFunc<TNode*, Boolean> AFilter) {
  return CreateComponentQuery<TNode*, TNodeList, TNode*>(
      ARoot, [](TNode* A) { return static_cast<Integer>(A->Children.size()); },
      [](TNode* A, Integer AIndex) { return A->Children.at(AIndex); }, ARecursive, AReverse, std::move(AFilter),
      [] { return std::make_shared<TNames>(); }, [](TNodeList AInto, TNode* A) { AInto->push_back(A->Name); });
}

const TConstFunc<TNode*, Boolean> NotB = [](TNode* const& A) { return A->Name[0] != 'B'; };
const TConstFunc<TNode*, Boolean> Every = [](TNode* const&) { return true; };

// The four walk orders over a tree and over a leaf, each with and without a filter.
TEST_F(ComponentEnumeratorTest, WalkOrders) {
  TNode leaf{"Leaf", {}};
  const struct {
    const char* Name;
    TNode* From;
    bool Recursive, Reverse;
    TConstFunc<TNode*, Boolean> Filter;
    TNames Expected;
  } walks[] = {{"forward", &Root, false, false, Every, {"A", "B", "C"}},
               {"reverse", &Root, false, true, Every, {"C", "B", "A"}},
               {"forward recursive", &Root, true, false, Every, {"A", "A1", "A1a", "A2", "B", "C", "C1"}},
               {"reverse recursive", &Root, true, true, Every, {"C1", "C", "B", "A2", "A1a", "A1", "A"}},
               {"filtered forward", &Root, false, false, NotB, {"A", "C"}},
               {"filtered reverse recursive", &Root, true, true, NotB, {"C1", "C", "A2", "A1a", "A1", "A"}},
               {"reverse over a leaf", &leaf, false, true, Every, {}},
               {"forward recursive over a leaf", &leaf, true, false, Every, {}}};
  ForEachRow(walks, [](const auto& AWalk) {
    EXPECT_EQ(*QueryChildren(AWalk.From, AWalk.Recursive, AWalk.Reverse, AWalk.Filter)->Skip(0), AWalk.Expected);
  });
}

// Reset from inside a subtree, or of a filter, starts over; children lost during a walk end it.
TEST_F(ComponentEnumeratorTest, ResetInsideASubtreeStartsOverAndLostChildrenEndAWalk) {
  const TRef<IEnumerator<TNode*>> forward = Make<TForwardRecursive>(&Root), reverse = Make<TReverseRecursive>(&Root);
  for (const auto& walk : {forward, reverse}) {
    for (int i = 0; i < 4; ++i) walk->MoveNext(); // inside the subtree of A either way
    walk->Reset();
  }
  EXPECT_EQ(Names(forward), Names(Make<TForwardRecursive>(&Root)));
  EXPECT_EQ(Names(reverse), Names(Make<TReverseRecursive>(&Root)));
  const auto leaves = New<TFilterEnumerator<TNode*>>(Make<TForwardRecursive>(&Root),
                                                     [](TNode* const& A) { return A->Children.empty(); });
  Names(leaves);
  leaves->Reset();
  EXPECT_EQ(Names(leaves), (TNames{"A1a", "A2", "B", "C1"}));

  const TRef<IEnumerator<TNode*>> walk = Make<TForward>(&Root);
  ASSERT_TRUE(walk->MoveNext());
  Root.Children.resize(1);
  EXPECT_FALSE(walk->MoveNext());
  EXPECT_FALSE(walk->MoveNext());
}

// A query reruns over the tree as it stands and hands back its root.
TEST_F(ComponentEnumeratorTest, QueryRunsOverTheTreeAsItStands) {
  const auto query = QueryChildren(&Root, true, false, NotB);
  EXPECT_EQ(query->Count(Every), 6);
  Add(&Root, "D");
  EXPECT_EQ(query->Count(Every), 7);
  TNodeList handed;
  EXPECT_EQ(query->Do([&](TNodeList AList) { handed = AList; }), &Root);
  ASSERT_TRUE(handed);
  EXPECT_EQ(handed->back(), "D");
}

} // namespace
} // namespace Tarvo::Testing
