#include <gtest/gtest.h>

#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using V = std::vector<int>;

TEST(ListEnumeratorTest, NilFunctionsAreAssertionFailures) {
  const TFunc<Integer, int> item = [](Integer AIndex) { return AIndex; };
  EXPECT_THROW(New<TBasicListEnumerator<int>>(nullptr, item), EAssertionFailed);
  EXPECT_THROW(New<TBasicListEnumerator<int>>([] { return 1; }, nullptr), EAssertionFailed);
  EXPECT_THROW(New<TReverseEnumeratorHost<int>>(nullptr), EAssertionFailed);
}

TEST(ListEnumeratorTest, CountIsAskedOnEveryStep) {
  Integer count = 3;
  const auto walk = New<TBasicListEnumerator<int>>([&] { return count; }, [](Integer AIndex) { return AIndex * 10; });
  ASSERT_TRUE(walk->MoveNext());
  count = 5;
  EXPECT_EQ(Walk<int>(walk), (V{10, 20, 30, 40}));
  walk->Reset();
  count = 1;
  EXPECT_EQ(Walk<int>(walk), (V{0}));
}

TEST(ListEnumeratorTest, ValueEnumeratorForwardsTheUntypedCurrent) {
  const TRef<TTestElement> element = New<TTestElement>();
  const TRef<TObjectArrayList> list = New<TObjectArrayList>();
  list->Add(element.get());
  const TRef<IEnumerator<TValue>> walk = list->GetValueEnumerator();
  ASSERT_TRUE(walk->MoveNext());
  EXPECT_EQ(walk->GetCurrent(), element.get());
  EXPECT_EQ(walk->GenericGetCurrent().AsObject(), element.get());
  EXPECT_FALSE(walk->MoveNext());
}

} // namespace
} // namespace Tarvo::Testing
