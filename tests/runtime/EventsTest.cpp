#include <gtest/gtest.h>

#include "reflection/Publish.h"
#include "reflection/RttiTypes.h"
#include "runtime/Component.h"
#include "runtime/Events.h"
#include "tests/rtl/ExpectError.h"

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
  TNotifyEvent FOnChange;
  TTestStepEvent FOnStep;
};
TARVO_IMPLEMENT_CLASS(TTestEventSource)
TARVO_PUBLISH(TTestEventSource) {
  Property("OnChange", &TTestEventSource::FOnChange, &TTestEventSource::FOnChange);
  Property("OnStep", &TTestEventSource::FOnStep, &TTestEventSource::FOnStep);
}

namespace {

class EventsTest : public ::testing::Test {
protected:
  TRef<IValueMemberInfo> Member(const String& AName) {
    TRef<IValueMemberInfo> member;
    EXPECT_TRUE(TRttiObjectHelper::TypeInfo(FSource.get(), true)->FindMember(AName, member)) << AName;
    return member;
  }
  TOwnedObject<TTestEventSource> FSource{Construct<TTestEventSource>(nullptr)};
};

// The design core tells events by kind; one signature under two names is two types.
TEST(EventTypeTest, EachEventTypeHasARecordOfItsOwnOfKindMethod) {
  EXPECT_EQ(TTypeInfoHelper::TypeInfo(&TypeInfo_TTestStepEvent)->GetTypeKind(), tkMethod);
  EXPECT_NE(TypeInfo<TTestOtherNotifyEvent>(), TypeInfo<TNotifyEvent>());
  TValue cast;
  EXPECT_FALSE(TValue::From(TNotifyEvent()).TryCast(&TypeInfo_TTestOtherNotifyEvent, cast));
}

// An unassigned event reads as the empty handler of its type, which is also its default.
TEST_F(EventsTest, AnUnassignedEventIsTheEmptyHandlerOfItsTypeAndTheDefault) {
  const TRef<IValueMemberInfo> member = Member("OnChange");
  const TValue value = member->GetValue(FSource.get());
  EXPECT_EQ(value.GetTypeInfo(), &TypeInfo_TNotifyEvent);
  EXPECT_FALSE(value.AsType<TNotifyEvent>());
  EXPECT_EQ(value.ToString() + member->GetDefault(FSource.get()).ToString(), "nilnil");
  EXPECT_TRUE(member->GetIsDefault(FSource.get(), false));
}

// A handler written through reflection fires with its arguments, reads back, and the default clears it.
TEST_F(EventsTest, AHandlerWrittenThroughReflectionIsFiredWithItsArgumentsAndReadsBack) {
  std::vector<TObject*> senders;
  const TRef<IValueMemberInfo> member = Member("OnChange");
  member->SetValue(FSource.get(), TValue::From(TNotifyEvent([&](TObject* ASender) { senders.push_back(ASender); })));
  FSource->FOnChange(FSource.get());
  EXPECT_FALSE(member->GetIsDefault(FSource.get(), false)); // an assigned handler is no default
  EXPECT_EQ(member->GetValue(FSource.get()).ToString(), "(TNotifyEvent)");
  member->GetValue(FSource.get()).AsType<TNotifyEvent>()(nullptr); // the one written
  EXPECT_EQ(senders, (std::vector<TObject*>{FSource.get(), nullptr}));
  member->SetValue(FSource.get(), member->GetDefault(FSource.get())); // writing the default clears it
  EXPECT_FALSE(FSource->FOnChange);

  Integer total = 0;
  Member("OnStep")->SetValue(FSource.get(),
                             TValue::From(TTestStepEvent([&](TObject*, Integer ACount) { total += ACount; })));
  FSource->FOnStep(FSource.get(), 3);
  FSource->FOnStep(FSource.get(), 4);
  EXPECT_EQ(total, 7);
}

// An event cannot be set from text, and the error names its type.
TEST_F(EventsTest, AnEventHasNoTextFormAndSaysWhichType) {
  Testing::ExpectError([&] { Member("OnStep")->SetFromString(FSource.get(), "Handler1"); },
                       "Cannot convert text to a value of type TTestStepEvent");
}

} // namespace
} // namespace Tarvo
