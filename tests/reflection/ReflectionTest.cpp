#include <gtest/gtest.h>

#include "reflection/MemberInfo.h"
#include "reflection/Publish.h"
#include "reflection/RttiTypes.h"

namespace Tarvo {

TARVO_ENUM(TTestLevel, tlLow, tlMiddle, tlHigh)
TARVO_IMPLEMENT_ENUM(TTestLevel)

class TTestMachine : public TObject {
  TARVO_CLASS(TTestMachine, TObject)
public:
  Integer GetSpeed() const { return FSpeed; }
  void SetSpeed(Integer AValue) {
    if (AValue < 0) throw EConvertError("negative speed");
    FSpeed = AValue;
  }
  bool IsNameStored() const { return FName != "unnamed"; }
  String Describe(Integer ATimes, const String& AWhat) { return AWhat + " x" + std::to_string(ATimes); }
  void Stop() { FSpeed = 0; }
  Integer GetGear(Integer AIndex) const { return FGears.at(AIndex); }
  void SetGear(Integer AIndex, Integer AValue) { FGears.at(AIndex) = AValue; }
  void SetCode(String AValue) { FCode = std::move(AValue); }

  Integer FSpeed = 3;
  String FName = "unnamed";
  TTestLevel FLevel = tlMiddle;
  TTestMachine* FPart = nullptr;
  int FSecret = 7;
  int FCount = 0;
  std::vector<Integer> FGears{10, 20, 30};
  String FCode;
};
TARVO_IMPLEMENT_CLASS(TTestMachine)
TARVO_PUBLISH(TTestMachine) {
  Property("Speed", &TTestMachine::GetSpeed, &TTestMachine::SetSpeed).Default(3).Limits(0, 100);
  Property("Name", &TTestMachine::FName, &TTestMachine::FName).Stored(&TTestMachine::IsNameStored);
  Property("Level", &TTestMachine::FLevel, &TTestMachine::FLevel).Default(tlMiddle);
  Property("Part", &TTestMachine::FPart, &TTestMachine::FPart);
  Property("Count", &TTestMachine::FCount).Stored(false);
  Public();
  Method("Describe", &TTestMachine::Describe, {"ATimes", "AWhat"});
  Method("Stop", &TTestMachine::Stop);
  IndexedProperty("Gears", &TTestMachine::GetGear, &TTestMachine::SetGear);
  WriteOnlyProperty("Code", &TTestMachine::SetCode);
  Protected();
  Property("Hidden", &TTestMachine::FSecret, &TTestMachine::FSecret);
  Private();
  Field("FSecret", &TTestMachine::FSecret);
}

class TTestFastMachine : public TTestMachine {
  TARVO_CLASS(TTestFastMachine, TTestMachine)
public:
  Integer FTurbo = 1;
};
TARVO_IMPLEMENT_CLASS(TTestFastMachine)
TARVO_PUBLISH(TTestFastMachine) { Property("Turbo", &TTestFastMachine::FTurbo, &TTestFastMachine::FTurbo); }

// A member that no class declares, added by an instance at run time.
class TTestExtraMember : public TValueMemberInfo {
public:
  explicit TTestExtraMember(Integer* AStore) : TValueMemberInfo(&TypeInfo_Integer, nullptr, "Extra"), FStore(AStore) {}
  TValue GetDefault(TObject*) override { return TValue(0); }
  bool GetHasDefault() override { return true; }
  bool GetIsDefault(TObject*, bool) override { return *FStore == 0; }
  TValue GetValue(TObject*) override { return TValue(*FStore); }
  void SetValue(TObject*, const TValue& AValue) override { *FStore = AValue.AsInteger(); }

private:
  Integer* FStore;
};

class TTestDynamicThing : public TObject {
  TARVO_CLASS(TTestDynamicThing, TObject)
public:
  TRef<IMembersInfo> GetExtraMembers() {
    const TRef<IMembersInfo> members = New<TMembersInfo>();
    members->Add(New<TTestExtraMember>(&Extra));
    return members;
  }
  void Prepare() { Prepared = true; }
  Integer Extra = 5;
  bool Prepared = false;
};
TARVO_IMPLEMENT_CLASS(TTestDynamicThing)
TARVO_PUBLISH(TTestDynamicThing) { DynamicMembers(&TTestDynamicThing::GetExtraMembers, &TTestDynamicThing::Prepare); }

namespace {

using TNames = std::vector<String>;

template <class I = IValueMemberInfo> TRef<I> MemberOf(TObject* AObject, const String& AName) {
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(AObject, false)->GetAllMembers())
    if (member->GetName() == AName) return QueryAs<I>(member);
  ADD_FAILURE() << "no member " << AName;
  return nullptr;
}

TNames Names(const TRef<IMembersInfo>& AMembers) {
  TNames names;
  for (const TRef<IMemberInfo>& member : AMembers) names.push_back(member->GetName());
  return names;
}

TRef<ITypeInfo> TypeOf(PTypeInfo ARecord) { return TTypeInfoHelper::TypeInfo(ARecord); }
TRef<ITypeInfo> TypeOf(TClass AClass) { return TypeOf(AClass->ClassTypeRecord()); }

// One type info per type; each kind answers its own interfaces.
TEST(ReflectionTest, TypeInfosAreUniqueAndAnswerByKind) {
  TTestMachine machine;
  EXPECT_TRUE(TRttiObjectHelper::TypeInfo(&machine, false) ==
              TRttiObjectHelper::ClassTypeInfo(TTestMachine::ClassInfo()));
  EXPECT_TRUE(MemberOf(&machine, "Part")->GetTypeInfo() == TypeOf(TTestMachine::ClassInfo()));
  TRef<IEnumerationTypeInfo> enumeration;
  ASSERT_TRUE(Supports(TypeOf(TypeInfo<TTestLevel>()), enumeration));
  EXPECT_EQ(enumeration->GetNames()->ToArray(), (TNames{"tlLow", "tlMiddle", "tlHigh"}));
  EXPECT_FALSE(Supports<ISetTypeInfo>(enumeration));
  TRef<IOrdinalTypeInfo> cardinal;
  ASSERT_TRUE(Supports(TypeOf(&TypeInfo_Cardinal), cardinal));
  EXPECT_EQ(cardinal->GetMaxValue(), -1); // read as a 32-bit signed number
  EXPECT_FALSE(Supports<IOrdinalTypeInfo>(TypeOf(&TypeInfo_Double)));

  EXPECT_TRUE(TypeOf(TTestFastMachine::ClassInfo())->InheritsFrom(TypeOf(TTestMachine::ClassInfo()), false));
  EXPECT_FALSE(TypeOf(TTestMachine::ClassInfo())->InheritsFrom(TypeOf(TTestFastMachine::ClassInfo()), false));
  const TRef<ITypeInfo> valueMember = TypeOf(TypeInfo<TRef<IValueMemberInfo>>());
  EXPECT_TRUE(valueMember->InheritsFrom(TypeOf(TypeInfo<TRef<IMemberInfo>>()), true));
  EXPECT_EQ(valueMember->GetGuid(), IValueMemberInfo::IID);
}

// Members come by visibility, an ancestor's before its descendant's.
TEST(ReflectionTest, VisibilityFiltersKeepAncestorsFirst) {
  const TRef<IClassTypeInfo> fast = TRttiObjectHelper::ClassTypeInfo(TTestFastMachine::ClassInfo());
  EXPECT_EQ(Names(fast->GetMembers(mvsPublished)), (TNames{"Speed", "Name", "Level", "Part", "Count", "Turbo"}));
  EXPECT_EQ(Names(fast->GetMembers(VisibilityBit(mvPublic))), (TNames{"Describe", "Stop", "Gears", "Code"}));
  EXPECT_EQ(Names(fast->GetMembers(VisibilityBit(mvProtected) | VisibilityBit(mvPrivate))),
            (TNames{"Hidden", "FSecret"}));
  EXPECT_EQ(Names(fast->GetAllMethods()), (TNames{"Describe", "Stop"}));
  EXPECT_EQ(Names(fast->GetFields()), TNames{"FSecret"});
}

// Read-only, indexed and write-only properties and fields answer what they can do, and writes reach the object.
TEST(ReflectionTest, MemberKindsAnswerTheirInterfacesAndAccess) {
  TTestMachine machine;
  const TRef<IClassTypeInfo> type = TRttiObjectHelper::TypeInfo(&machine, false);
  TRef<ISinglePropertyInfo> count, code, secret;
  ASSERT_TRUE(type->FindSinglePropertyMember("Count", count));
  EXPECT_TRUE(count->GetIsReadable());
  EXPECT_FALSE(count->GetIsWritable() || count->GetHasReadMethod());
  EXPECT_FALSE(type->FindSinglePropertyMember("FSecret", secret)); // a field, not a property
  TRef<IValueMemberInfo> none;
  EXPECT_FALSE(type->FindMember("speed", none)); // names are exact

  const TRef<IIndexedPropertyInfo> gears = MemberOf<IIndexedPropertyInfo>(&machine, "Gears");
  ASSERT_TRUE(gears);
  EXPECT_FALSE(Supports<IValueMemberInfo>(gears)); // no value of its own, so no default editor
  EXPECT_EQ(gears->GetIndexTypes()->GetItem(0)->GetHandle(), &TypeInfo_Integer);
  EXPECT_EQ(gears->GetValue(&machine, {TValue(1)}).AsInteger(), 20);
  gears->SetValue(&machine, {TValue(2)}, TValue(33));
  EXPECT_EQ(machine.FGears[2], 33);

  ASSERT_TRUE(type->FindSinglePropertyMember("Code", code));
  EXPECT_FALSE(code->GetIsReadable());
  code->SetValue(&machine, TValue("abc"));
  EXPECT_EQ(machine.FCode, "abc");
  EXPECT_THROW(code->GetValue(&machine), Exception);
  EXPECT_FALSE(code->GetIsDefault(&machine, false));

  // A setter's exception reaches the caller and leaves the value; text goes through the member's type.
  const TRef<IValueMemberInfo> speed = MemberOf(&machine, "Speed");
  speed->SetValue(&machine, TValue(Int64(42)));
  EXPECT_THROW(speed->SetValue(&machine, TValue(-1)), EConvertError);
  EXPECT_THROW(speed->SetFromString(&machine, "fast"), EConvertError);
  EXPECT_EQ(machine.FSpeed, 42);
  MemberOf(&machine, "Level")->SetFromString(&machine, "tlHigh");
  EXPECT_EQ(machine.FLevel, tlHigh);
  EXPECT_THROW(MemberOf(&machine, "Count")->SetValue(&machine, TValue(1)), Exception);
}

// Declared defaults, stored methods asked per object, and limits.
TEST(ReflectionTest, DefaultsStoredFlagsAndLimits) {
  TTestMachine machine;
  const auto speed = MemberOf<ISinglePropertyInfo>(&machine, "Speed");
  const auto name = MemberOf<ISinglePropertyInfo>(&machine, "Name");
  EXPECT_TRUE(speed->GetIsDefault(&machine, false));
  machine.FSpeed = 4;
  EXPECT_FALSE(speed->GetIsDefault(&machine, true));
  EXPECT_FALSE(speed->GetHasStored(&machine));
  EXPECT_TRUE(speed->GetIsStored(&machine));

  // An unstored value counts as default only when asked to.
  EXPECT_TRUE(name->GetHasStored(&machine));
  EXPECT_FALSE(name->GetIsStored(&machine));
  EXPECT_FALSE(name->GetIsDefault(&machine, false));
  EXPECT_TRUE(name->GetIsDefault(&machine, true));
  machine.FName = "";
  EXPECT_TRUE(name->GetIsStored(&machine));
  EXPECT_TRUE(name->GetIsDefault(&machine, false)); // an empty text without a declared default
  EXPECT_FALSE(MemberOf<ISinglePropertyInfo>(&machine, "Count")->GetIsStored(&machine));

  TRef<IValueLimitsInfo> limits;
  ASSERT_TRUE(Supports(speed, limits));
  EXPECT_EQ(limits->GetMaxValue().AsInteger(), 100);
  EXPECT_FALSE(Supports<IValueLimitsInfo>(name));
}

// Methods run with checked arguments (their parameter texts are the method rows' test).
TEST(ReflectionTest, MethodsInvokeWithTheirParameterText) {
  TTestMachine machine;
  const TRef<IMethodInfo> describe = MemberOf<IMethodInfo>(&machine, "Describe");
  const TRef<IMethodInfo> stop = MemberOf<IMethodInfo>(&machine, "Stop");
  ASSERT_TRUE(describe && stop);
  EXPECT_EQ(describe->Invoke(&machine, {TValue(Int64(2)), TValue("gear")}).AsString(), "gear x2");
  stop->Invoke(&machine, {});
  EXPECT_EQ(machine.FSpeed, 0);
  EXPECT_THROW(describe->Invoke(&machine, {TValue(1)}), EAssertionFailed);
}

// Dynamic members count only when asked for; value change handlers hear until removed.
TEST(ReflectionTest, DynamicMembersCountOnlyWithTheFlagAndChangesAreTold) {
  TTestDynamicThing thing;
  TRef<IValueMemberInfo> extra;
  EXPECT_FALSE(TRttiObjectHelper::TypeInfo(&thing, false)->FindMember("Extra", extra));
  ASSERT_TRUE(TRttiObjectHelper::TypeInfo(&thing, true)->FindMember("Extra", extra));
  extra->SetFromString(&thing, "12");
  EXPECT_EQ(thing.Extra, 12);

  TRef<IDynamicTypeInfo> dynamic;
  ASSERT_TRUE(Supports(TRttiObjectHelper::ClassTypeInfo(TTestDynamicThing::ClassInfo()), dynamic));
  dynamic->InitInstance(&thing);
  EXPECT_TRUE(thing.Prepared);
  EXPECT_FALSE(Supports<IDynamicTypeInfo>(TRttiObjectHelper::ClassTypeInfo(TTestMachine::ClassInfo())));

  std::vector<TObject*> told;
  const int key = AddTypeInfoMemberValueChangesHandler([&](TObject* AInstance) { told.push_back(AInstance); });
  NotifyTypeInfoMemberValueChanges(&thing);
  RemoveTypeInfoMemberValueChangesHandler(key);
  NotifyTypeInfoMemberValueChanges(&thing);
  EXPECT_EQ(told, std::vector<TObject*>{&thing});
}

} // namespace
} // namespace Tarvo
