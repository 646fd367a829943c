#include <gtest/gtest.h>

#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using Element = TRef<TTestElement>;

struct ObjectListFixture : ::testing::Test {
  ObjectListFixture() { List->AddChangeHandler(Counter.Handler()); }

  // Whether the element holds the container's change and destruction handlers.
  static bool Subscribed(const Element& AElement) {
    EXPECT_EQ(AElement->ChangeHandlers, AElement->DestructionHandlers);
    return AElement->ChangeHandlers > 0;
  }

  TCounter Counter;
  TRef<TObjectArrayList> List = New<TObjectArrayList>();
  Element A = New<TTestElement>();
  Element B = New<TTestElement>();
};

using ArrayListSubscriptionTest = ObjectListFixture;

TEST_F(ArrayListSubscriptionTest, AChangeInAnElementNotifiesTheContainer) {
  List->Add(A.get());
  EXPECT_EQ(Counter.Count, 1);
  EXPECT_TRUE(Subscribed(A));
  A->ChangeNotify();
  EXPECT_EQ(Counter.Count, 2);
}

TEST_F(ArrayListSubscriptionTest, OnlyAContainerWithAListenerSubscribes) {
  const TRef<TObjectArrayList> quiet = New<TObjectArrayList>();
  quiet->Add(A.get());
  EXPECT_FALSE(Subscribed(A));
}

TEST_F(ArrayListSubscriptionTest, AddNotifiesBeforeItSubscribes) {
  int handlersSeen = -1;
  List->AddChangeHandler([&] { handlersSeen = A->ChangeHandlers; });
  List->Add(A.get());
  EXPECT_EQ(handlersSeen, 0);
  EXPECT_TRUE(Subscribed(A));
}

TEST_F(ArrayListSubscriptionTest, InsertAndDeleteChangeSubscriptionsSilently) {
  List->Insert(0, A.get())->Insert(1, B.get());
  EXPECT_TRUE(Subscribed(A));
  EXPECT_TRUE(Subscribed(B));
  List->Delete(0);
  EXPECT_FALSE(Subscribed(A));
  List->Delete(0, 1);
  EXPECT_FALSE(Subscribed(B));
  EXPECT_EQ(Counter.Count, 0);
}

TEST_F(ArrayListSubscriptionTest, ClearKeepsSubscriptionsWhileClearValuesDropsThem) {
  List->Add(A.get())->Add(B.get());
  List->Clear();
  EXPECT_EQ(Counter.Count, 2);
  A->ChangeNotify();
  EXPECT_EQ(Counter.Count, 3); // still subscribed
  List->Add(A.get());
  List->ClearValues();
  EXPECT_EQ(Counter.Count, 5);
  EXPECT_FALSE(Subscribed(A));
  EXPECT_FALSE(Subscribed(B));
}

TEST_F(ArrayListSubscriptionTest, AnElementsDestructionRemovesOnlyTheSubscription) {
  List->Add(A.get())->Add(B.get());
  A = nullptr;
  EXPECT_EQ(List->GetCount(), 2); // the element stays in the container
  EXPECT_EQ(Counter.Count, 2);
  B->ChangeNotify();
  EXPECT_EQ(Counter.Count, 3);
  List->Delete(1);
  EXPECT_FALSE(Subscribed(B));
}

TEST_F(ArrayListSubscriptionTest, ADyingContainerLeavesNoHandlerOnItsElements) {
  List->Add(A.get())->Add(B.get());
  List = nullptr;
  EXPECT_FALSE(Subscribed(A));
  EXPECT_FALSE(Subscribed(B));
  A->ChangeNotify();
}

TEST(InterfaceListSubscriptionTest, InterfaceElementsSubscribeAndUnsubscribe) {
  TCounter counter;
  const Element element = New<TTestElement>();
  const auto list = New<TArrayList<TRef<IChangeNotification>>>();
  list->AddChangeHandler(counter.Handler());
  list->Add(TRef<IChangeNotification>(element));
  element->ChangeNotify();
  EXPECT_EQ(counter.Count, 2);
  EXPECT_EQ(list->RemoveOne(TRef<IChangeNotification>(element)), 0);
  EXPECT_EQ(element->ChangeHandlers, 0);
}

struct LinkedListSubscriptionTest : ::testing::Test {
  LinkedListSubscriptionTest() { List->AddChangeHandler(Counter.Handler()); }

  TCounter Counter;
  const TRef<TLinkedList<TObject*>> List = New<TLinkedList<TObject*>>();
  const Element A = New<TTestElement>();
};

TEST_F(LinkedListSubscriptionTest, ClearNotifiesAndUnsubscribes) {
  List->Add(A.get());
  List->Clear();
  EXPECT_EQ(Counter.Count, 2);
  EXPECT_EQ(A->ChangeHandlers, 0);
  EXPECT_EQ(A->DestructionHandlers, 0);
}

TEST_F(LinkedListSubscriptionTest, RemovalDuringAWalkUnsubscribesAtOnce) {
  List->Add(A.get());
  {
    const TRef<IEnumerator<TObject*>> walk = List->GetEnumerator();
    List->PopFirst();
    EXPECT_EQ(A->ChangeHandlers, 0);
    A->ChangeNotify();
    EXPECT_EQ(Counter.Count, 2);
  }
  EXPECT_EQ(Counter.Count, 3); // the release step freed the node
}

} // namespace
} // namespace Tarvo::Testing
