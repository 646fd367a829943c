#include "tests/containers/ListTestSupport.h"

namespace Tarvo::Testing {
namespace {

using Element = TRef<TTestElement>;

// A listened-to object list and two elements.
struct ArrayListSubscriptionTest : ::testing::Test {
  ArrayListSubscriptionTest() { List->AddChangeHandler(Counter.Handler()); }

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

// Add notifies before it subscribes, and only a listened-to container subscribes to its elements.
TEST_F(ArrayListSubscriptionTest, AddNotifiesThenSubscribesWhenTheContainerIsListenedTo) {
  int handlersSeen = -1;
  List->AddChangeHandler([&] { handlersSeen = A->ChangeHandlers; });
  List->Add(A.get());
  EXPECT_EQ(handlersSeen, 0);
  EXPECT_TRUE(Subscribed(A));
  A->ChangeNotify();
  EXPECT_EQ(Counter.Count, 2);
  const TRef<TObjectArrayList> quiet = New<TObjectArrayList>(); // nobody listens to this one
  quiet->Add(B.get());
  EXPECT_FALSE(Subscribed(B));
}

// Insert and Delete change subscriptions without notifying.
TEST_F(ArrayListSubscriptionTest, InsertAndDeleteChangeSubscriptionsSilently) {
  List->Insert(0, A.get())->Insert(1, B.get());
  EXPECT_TRUE(Subscribed(A) && Subscribed(B));
  List->Delete(0);
  List->Delete(0, 1);
  EXPECT_FALSE(Subscribed(A) || Subscribed(B));
  EXPECT_EQ(Counter.Count, 0);
}

// Clear keeps the subscriptions while ClearValues drops them.
TEST_F(ArrayListSubscriptionTest, ClearKeepsSubscriptionsWhileClearValuesDropsThem) {
  List->Add(A.get())->Add(B.get());
  List->Clear();
  A->ChangeNotify();
  EXPECT_EQ(Counter.Count, 3); // still subscribed
  List->Add(A.get());
  List->ClearValues();
  EXPECT_EQ(Counter.Count, 5);
  EXPECT_FALSE(Subscribed(A) || Subscribed(B));
}

// An element that goes takes only its subscription with it, not its place.
TEST_F(ArrayListSubscriptionTest, AnElementsDestructionRemovesOnlyTheSubscription) {
  List->Add(A.get())->Add(B.get());
  A = nullptr;
  EXPECT_EQ(List->GetCount(), 2); // the element stays in the container
  B->ChangeNotify();
  EXPECT_EQ(Counter.Count, 3);
  List->Delete(1);
  EXPECT_FALSE(Subscribed(B));
}

// A container that goes leaves no handler on its elements.
TEST_F(ArrayListSubscriptionTest, ADyingContainerLeavesNoHandlerOnItsElements) {
  List->Add(A.get())->Add(B.get());
  List = nullptr;
  EXPECT_FALSE(Subscribed(A) || Subscribed(B));
  A->ChangeNotify();
}

// Interface elements subscribe and unsubscribe like objects.
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

// Removal during a walk unsubscribes at once though the node stays; Clear drops every subscription.
TEST(LinkedListSubscriptionTest, RemovalDuringAWalkUnsubscribesAtOnceAndClearDropsAll) {
  TCounter counter;
  const TRef<TLinkedList<TObject*>> list = New<TLinkedList<TObject*>>();
  list->AddChangeHandler(counter.Handler());
  const Element a = New<TTestElement>(), b = New<TTestElement>();
  list->Add(a.get());
  {
    const TRef<IEnumerator<TObject*>> walk = list->GetEnumerator();
    list->PopFirst();
    EXPECT_EQ(a->ChangeHandlers, 0);
    a->ChangeNotify();
    EXPECT_EQ(counter.Count, 2);
  }
  EXPECT_EQ(counter.Count, 3); // the release step freed the node
  list->Add(b.get());
  list->Clear();
  EXPECT_EQ(counter.Count, 5);
  EXPECT_EQ(b->ChangeHandlers + b->DestructionHandlers, 0);
}

} // namespace
} // namespace Tarvo::Testing
