#include <gtest/gtest.h>

#include "design/reflection/Publish.h"
#include "runtime/Component.h"
#include "runtime/Events.h"

namespace Tarvo {

TARVO_EVENT(TTestStepEvent, TObject*, Integer)
TARVO_IMPLEMENT_EVENT(TTestStepEvent)
// The signature of TNotifyEvent under another name.
TARVO_EVENT(TTestOtherNotifyEvent, TObject*)
TARVO_IMPLEMENT_EVENT(TTestOtherNotifyEvent)

class TTestEventSource : public TComponent {
  TARVO_CLASS(TTestEventSource, TComponent)
public:
  using TComponent::TComponent;
  void Change() {
    if (FOnChange) FOnChange(this);
  }
  void Step(Integer ACount) {
    if (FOnStep) FOnStep(this, ACount);
  }
  TNotifyEvent FOnChange;
  TTestStepEvent FOnStep;
};
TARVO_IMPLEMENT_CLASS(TTestEventSource)
TARVO_PUBLISH(TTestEventSource) {
  Property("OnChange", &TTestEventSource::FOnChange, &TTestEventSource::FOnChange);
  Property("OnStep", &TTestEventSource::FOnStep, &TTestEventSource::FOnStep);
}

namespace {

TRef<IValueMemberInfo> EventMember(TObject* AObject, const String& AName) {
  TRef<IValueMemberInfo> member;
  TRttiObjectHelper::TypeInfo(AObject, true)->FindMember(AName, member);
  return member;
}

class EventsTest : public ::testing::Test {
protected:
  TOwnedObject<TTestEventSource> FSource{Construct<TTestEventSource>(nullptr)};
};

TEST(EventTypeTest, EachEventTypeHasARecordOfKindMethod) {
  EXPECT_EQ(TypeInfo<TNotifyEvent>(), &TypeInfo_TNotifyEvent);
  EXPECT_EQ(TypeInfo_TNotifyEvent.Kind, tkMethod);
  EXPECT_STREQ(TypeInfo_TNotifyEvent.Name, "TNotifyEvent");
  EXPECT_EQ(TTypeInfoHelper::TypeInfo(&TypeInfo_TTestStepEvent)->GetTypeKind(), tkMethod);
  // One signature, two names, two types.
  EXPECT_NE(TypeInfo<TTestOtherNotifyEvent>(), TypeInfo<TNotifyEvent>());
  TValue cast;
  EXPECT_FALSE(TValue::From(TNotifyEvent()).TryCast(&TypeInfo_TTestOtherNotifyEvent, cast));
}

TEST_F(EventsTest, AnUnassignedEventReadsAsAnEmptyHandlerOfItsTypeAndThatIsTheDefault) {
  const TRef<IValueMemberInfo> member = EventMember(FSource.get(), "OnChange");
  ASSERT_TRUE(member);
  EXPECT_EQ(member->GetTypeInfo()->GetTypeKind(), tkMethod);

  const TValue value = member->GetValue(FSource.get());
  EXPECT_EQ(value.GetTypeInfo(), &TypeInfo_TNotifyEvent);
  EXPECT_FALSE(value.AsType<TNotifyEvent>());
  const TValue byDefault = member->GetDefault(FSource.get());
  EXPECT_EQ(byDefault.GetTypeInfo(), &TypeInfo_TNotifyEvent);
  EXPECT_FALSE(byDefault.AsType<TNotifyEvent>());
  EXPECT_EQ(value.ToString(), "nil");
  EXPECT_TRUE(member->GetIsDefault(FSource.get(), false));
}

TEST_F(EventsTest, AHandlerWrittenThroughReflectionIsFiredWithTheSenderAndReadsBack) {
  std::vector<TObject*> senders;
  const TRef<IValueMemberInfo> member = EventMember(FSource.get(), "OnChange");
  member->SetValue(FSource.get(), TValue::From(TNotifyEvent([&](TObject* ASender) { senders.push_back(ASender); })));

  FSource->Change();
  ASSERT_EQ(senders.size(), 1u);
  EXPECT_EQ(senders[0], FSource.get());
  EXPECT_FALSE(member->GetIsDefault(FSource.get(), false)); // an assigned handler is no default
  EXPECT_EQ(member->GetValue(FSource.get()).ToString(), "(TNotifyEvent)");

  // The handler read back is the one written: calling it reaches the same list.
  member->GetValue(FSource.get()).AsType<TNotifyEvent>()(nullptr);
  ASSERT_EQ(senders.size(), 2u);
  EXPECT_EQ(senders[1], nullptr);

  // Writing the default clears it again.
  member->SetValue(FSource.get(), member->GetDefault(FSource.get()));
  FSource->Change();
  EXPECT_EQ(senders.size(), 2u);
}

TEST_F(EventsTest, AnEventWithMoreParametersPassesThemAll) {
  Integer total = 0;
  EventMember(FSource.get(), "OnStep")->SetValue(FSource.get(), TValue::From(TTestStepEvent([&](TObject* ASender, Integer ACount) {
    EXPECT_EQ(ASender, FSource.get());
    total += ACount;
  })));
  FSource->Step(3);
  FSource->Step(4);
  EXPECT_EQ(total, 7);
}

TEST_F(EventsTest, AnEventHasNoTextFormAndSaysWhichType) {
  const TRef<IValueMemberInfo> member = EventMember(FSource.get(), "OnStep");
  try {
    member->SetFromString(FSource.get(), "Handler1");
    FAIL() << "an event took a text";
  } catch (const EConvertError& e) {
    EXPECT_NE(std::string(e.what()).find("TTestStepEvent"), std::string::npos) << e.what();
  }
}

} // namespace
} // namespace Tarvo
