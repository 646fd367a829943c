#include <gtest/gtest.h>

#include "design/reflection/MemberInfo.h"
#include "design/reflection/Publish.h"

namespace Tarvo {

// ---- Attribute classes of the tests ----

class TTestMarkAttribute : public TCustomAttribute {
  TARVO_CLASS(TTestMarkAttribute, TCustomAttribute)
public:
  explicit TTestMarkAttribute(String AText = String()) : Text(std::move(AText)) {}
  String Text;
};
class TTestSpecialMarkAttribute : public TTestMarkAttribute {
  TARVO_CLASS(TTestSpecialMarkAttribute, TTestMarkAttribute)
public:
  using TTestMarkAttribute::TTestMarkAttribute;
};
class TTestOtherAttribute : public TCustomAttribute {
  TARVO_CLASS(TTestOtherAttribute, TCustomAttribute)
};
TARVO_IMPLEMENT_CLASS(TTestMarkAttribute)
TARVO_IMPLEMENT_CLASS(TTestSpecialMarkAttribute)
TARVO_IMPLEMENT_CLASS(TTestOtherAttribute)

TARVO_ENUM(TTestLevel, tlLow, tlMiddle, tlHigh)
TARVO_IMPLEMENT_ENUM(TTestLevel)

// ---- Reflected classes of the tests ----

class TTestPart : public TObject {
  TARVO_CLASS(TTestPart, TObject)
public:
  int FSize = 0;
};
TARVO_IMPLEMENT_CLASS(TTestPart)
TARVO_PUBLISH(TTestPart) {
  Property("Size", &TTestPart::FSize, &TTestPart::FSize);
  ClassAttr<TTestMarkAttribute>("on the type");
}

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
  TTestPart* FPart = nullptr;
  int FSecret = 7;
  int FCount = 0;
  std::vector<Integer> FGears{10, 20, 30};
  String FCode;
};
TARVO_IMPLEMENT_CLASS(TTestMachine)
TARVO_PUBLISH(TTestMachine) {
  Property("Speed", &TTestMachine::GetSpeed, &TTestMachine::SetSpeed).Default(3).Limits(0, 100);
  Property("Name", &TTestMachine::FName, &TTestMachine::FName).Stored(&TTestMachine::IsNameStored);
  Property("Level", &TTestMachine::FLevel, &TTestMachine::FLevel).Default(tlMiddle).Attr<TTestSpecialMarkAttribute>("own");
  Property("Part", &TTestMachine::FPart, &TTestMachine::FPart).Attr<TTestOtherAttribute>();
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

TRef<IValueMemberInfo> MemberOf(TObject* AObject, const String& AName) {
  TRef<IValueMemberInfo> member;
  EXPECT_TRUE(TRttiObjectHelper::TypeInfo(AObject, false)->FindMember(AName, member)) << AName;
  return member;
}

std::vector<String> Names(const TRef<IMembersInfo>& AMembers) {
  std::vector<String> names;
  for (const TRef<IMemberInfo>& member : AMembers) names.push_back(member->GetName());
  return names;
}

TEST(ReflectionTest, TypeInfoIsUniquePerType) {
  EXPECT_EQ(TTypeInfoHelper::TypeInfo(&TypeInfo_Integer).get(), TRttiInfo::GetTypeInfoType(&TypeInfo_Integer).get());
  TTestMachine machine;
  EXPECT_TRUE(TRttiObjectHelper::TypeInfo(&machine, false) == TRttiObjectHelper::ClassTypeInfo(TTestMachine::ClassInfo()));
  EXPECT_TRUE(MemberOf(&machine, "Part")->GetTypeInfo() == TTypeInfoHelper::TypeInfo(TTestPart::ClassInfo()->ClassTypeRecord()));
}

TEST(ReflectionTest, TypeViewsAnswerByKind) {
  const TRef<ITypeInfo> level = TTypeInfoHelper::TypeInfo(TypeInfo<TTestLevel>());
  TRef<IEnumerationTypeInfo> enumeration;
  ASSERT_TRUE(Supports(level, enumeration));
  EXPECT_EQ(enumeration->GetNames()->ToArray(), (std::vector<String>{"tlLow", "tlMiddle", "tlHigh"}));
  EXPECT_FALSE(Supports<ISetTypeInfo>(level));
  TRef<IOrdinalTypeInfo> cardinal;
  ASSERT_TRUE(Supports(TTypeInfoHelper::TypeInfo(&TypeInfo_Cardinal), cardinal));
  EXPECT_EQ(cardinal->GetMaxValue(), -1);
  EXPECT_FALSE(Supports<IOrdinalTypeInfo>(TTypeInfoHelper::TypeInfo(&TypeInfo_Double)));
}

TEST(ReflectionTest, ClassTypesInheritAndInterfacesFollowTheirParents) {
  const TRef<ITypeInfo> fast = TTypeInfoHelper::TypeInfo(TTestFastMachine::ClassInfo()->ClassTypeRecord());
  const TRef<ITypeInfo> machine = TTypeInfoHelper::TypeInfo(TTestMachine::ClassInfo()->ClassTypeRecord());
  EXPECT_TRUE(fast->InheritsFrom(machine, false));
  EXPECT_FALSE(machine->InheritsFrom(fast, false));
  const TRef<ITypeInfo> valueMember = TTypeInfoHelper::TypeInfo(TypeInfo<TRef<IValueMemberInfo>>());
  const TRef<ITypeInfo> memberInfo = TTypeInfoHelper::TypeInfo(TypeInfo<TRef<IMemberInfo>>());
  EXPECT_TRUE(valueMember->InheritsFrom(memberInfo, true));
  EXPECT_FALSE(memberInfo->InheritsFrom(valueMember, true));
  EXPECT_EQ(valueMember->GetGuid(), IValueMemberInfo::IID);
}

TEST(ReflectionTest, VisibilityFiltersAndAncestorsFirst) {
  const TRef<IClassTypeInfo> fast = TRttiObjectHelper::ClassTypeInfo(TTestFastMachine::ClassInfo());
  EXPECT_EQ(mvsPublished, 8);
  EXPECT_EQ(Names(fast->GetMembers(mvsPublished)), (std::vector<String>{"Speed", "Name", "Level", "Part", "Count", "Turbo"}));
  EXPECT_EQ(Names(fast->GetMembers(VisibilityBit(mvPublic))), (std::vector<String>{"Describe", "Stop", "Gears", "Code"}));
  EXPECT_EQ(Names(fast->GetMembers(VisibilityBit(mvProtected) | VisibilityBit(mvPrivate))),
            (std::vector<String>{"Hidden", "FSecret"}));
  EXPECT_EQ(Names(fast->GetAllMethods()), (std::vector<String>{"Describe", "Stop"}));
  EXPECT_EQ(Names(fast->GetFields()), (std::vector<String>{"FSecret"}));
  EXPECT_EQ(fast->GetAllMembers()->GetCount(), 12);
}

TEST(ReflectionTest, MemberKindsAnswerTheirInterfaces) {
  TTestMachine machine;
  const TRef<IClassTypeInfo> type = TRttiObjectHelper::TypeInfo(&machine, false);
  TRef<ISinglePropertyInfo> speed;
  ASSERT_TRUE(type->FindSinglePropertyMember("Speed", speed));
  EXPECT_TRUE(Supports<IPropertyInfo>(speed));
  EXPECT_TRUE(speed->GetHasReadMethod());
  EXPECT_TRUE(speed->GetHasWriteMethod());
  TRef<ISinglePropertyInfo> count;
  ASSERT_TRUE(type->FindSinglePropertyMember("Count", count));
  EXPECT_TRUE(count->GetIsReadable());
  EXPECT_FALSE(count->GetIsWritable());
  EXPECT_FALSE(count->GetHasReadMethod());
  TRef<ISinglePropertyInfo> secret;
  EXPECT_FALSE(type->FindSinglePropertyMember("FSecret", secret)); // a field, not a property
  EXPECT_TRUE(Supports<IFieldInfo>(MemberOf(&machine, "FSecret")));
  TRef<IValueMemberInfo> none;
  EXPECT_FALSE(type->FindMember("speed", none)); // names are exact
}

TEST(ReflectionTest, IndexedAndWriteOnlyProperties) {
  TTestMachine machine;
  const TRef<IClassTypeInfo> type = TRttiObjectHelper::TypeInfo(&machine, false);
  TRef<IIndexedPropertyInfo> gears;
  for (const TRef<IMemberInfo>& member : type->GetAllMembers())
    if (member->GetName() == "Gears") Supports(member, gears);
  ASSERT_TRUE(gears);
  EXPECT_TRUE(Supports<IPropertyInfo>(gears));
  EXPECT_FALSE(Supports<IValueMemberInfo>(gears)); // no value of its own, so no default editor
  EXPECT_EQ(gears->GetIndexTypes()->GetItem(0)->GetHandle(), &TypeInfo_Integer);
  EXPECT_EQ(gears->GetValue(&machine, {TValue(1)}).AsInteger(), 20);
  gears->SetValue(&machine, {TValue(2)}, TValue(33));
  EXPECT_EQ(machine.FGears[2], 33);

  TRef<ISinglePropertyInfo> code;
  ASSERT_TRUE(type->FindSinglePropertyMember("Code", code));
  EXPECT_FALSE(code->GetIsReadable());
  EXPECT_TRUE(code->GetHasWriteMethod());
  code->SetValue(&machine, TValue("abc"));
  EXPECT_EQ(machine.FCode, "abc");
  EXPECT_THROW(code->GetValue(&machine), Exception);
  EXPECT_FALSE(code->GetIsDefault(&machine, false));
}

TEST(ReflectionTest, ReadWriteAndSetterExceptionsPassThrough) {
  TTestMachine machine;
  const TRef<IValueMemberInfo> speed = MemberOf(&machine, "Speed");
  EXPECT_EQ(speed->GetValue(&machine).AsInteger(), 3);
  speed->SetValue(&machine, TValue(Int64(42)));
  EXPECT_EQ(machine.FSpeed, 42);
  EXPECT_THROW(speed->SetValue(&machine, TValue(-1)), EConvertError);
  EXPECT_EQ(machine.FSpeed, 42);
  speed->SetFromString(&machine, "$10");
  EXPECT_EQ(machine.FSpeed, 16);
  EXPECT_THROW(speed->SetFromString(&machine, "fast"), EConvertError);
  MemberOf(&machine, "Level")->SetFromString(&machine, "tlHigh");
  EXPECT_EQ(machine.FLevel, tlHigh);
  EXPECT_THROW(MemberOf(&machine, "Count")->SetValue(&machine, TValue(1)), Exception);
}

TEST(ReflectionTest, DefaultsAndStoredAnswers) {
  TTestMachine machine;
  TRef<ISinglePropertyInfo> speed, name, count;
  const TRef<IClassTypeInfo> type = TRttiObjectHelper::TypeInfo(&machine, false);
  type->FindSinglePropertyMember("Speed", speed);
  type->FindSinglePropertyMember("Name", name);
  type->FindSinglePropertyMember("Count", count);

  EXPECT_TRUE(speed->GetHasDefault());
  EXPECT_EQ(speed->GetDefault(&machine).AsInteger(), 3);
  EXPECT_TRUE(speed->GetIsDefault(&machine, false));
  machine.FSpeed = 4;
  EXPECT_FALSE(speed->GetIsDefault(&machine, true));
  EXPECT_FALSE(speed->GetHasStored(&machine));
  EXPECT_TRUE(speed->GetIsStored(&machine));

  // A stored method asked per object: an unstored value counts as default only when asked to.
  EXPECT_TRUE(name->GetHasStored(&machine));
  EXPECT_FALSE(name->GetIsStored(&machine));
  EXPECT_FALSE(name->GetIsDefault(&machine, false));
  EXPECT_TRUE(name->GetIsDefault(&machine, true));
  machine.FName = "";
  EXPECT_TRUE(name->GetIsStored(&machine));
  EXPECT_TRUE(name->GetIsDefault(&machine, false)); // an empty text without a declared default

  EXPECT_TRUE(count->GetHasStored(&machine));
  EXPECT_FALSE(count->GetIsStored(&machine));
}

TEST(ReflectionTest, LimitsAreReportedOnlyWhereDeclared) {
  TTestMachine machine;
  TRef<IValueLimitsInfo> limits;
  ASSERT_TRUE(Supports(MemberOf(&machine, "Speed"), limits));
  EXPECT_EQ(limits->GetMaxValue().AsInteger(), 100);
  EXPECT_FALSE(Supports<IValueLimitsInfo>(MemberOf(&machine, "Name")));
}

TEST(ReflectionTest, AttributesOfTheMemberComeBeforeThoseOfItsType) {
  TTestMachine machine;
  const TRef<IValueMemberInfo> level = MemberOf(&machine, "Level");
  TCustomAttribute* found = nullptr;
  // A descendant attribute class matches the class asked for.
  ASSERT_TRUE(level->GetCustomAttribute(TTestMarkAttribute::ClassInfo(), false, found));
  EXPECT_EQ(static_cast<TTestMarkAttribute*>(found)->Text, "own");

  const TRef<IValueMemberInfo> part = MemberOf(&machine, "Part");
  EXPECT_FALSE(part->HasCustomAttribute(TTestMarkAttribute::ClassInfo(), false));
  ASSERT_TRUE(part->GetCustomAttribute(TTestMarkAttribute::ClassInfo(), true, found));
  EXPECT_EQ(static_cast<TTestMarkAttribute*>(found)->Text, "on the type");
  EXPECT_FALSE(part->HasCustomAttribute(TTestSpecialMarkAttribute::ClassInfo(), true));

  const TRef<IAttributeList> access = part->GetMemberAccessAttributes()->GetCustomAttributes();
  ASSERT_EQ(access->GetCount(), 2);
  EXPECT_TRUE(access->GetItem(0)->Is<TTestOtherAttribute>());
  EXPECT_TRUE(access->GetItem(1)->Is<TTestMarkAttribute>());
}

TEST(ReflectionTest, MethodsInvokeWithTheirParameterText) {
  TTestMachine machine;
  const TRef<IClassTypeInfo> type = TRttiObjectHelper::TypeInfo(&machine, false);
  const TRef<IMembersInfo> methods = type->GetAllMethods();
  TRef<IMethodInfo> describe, stop;
  ASSERT_TRUE(Supports(methods->GetItem(0), describe));
  ASSERT_TRUE(Supports(methods->GetItem(1), stop));
  EXPECT_EQ(describe->GetMethodKind(), mkFunction);
  EXPECT_EQ(stop->GetMethodKind(), mkProcedure);
  EXPECT_FALSE(stop->GetTypeInfo());
  EXPECT_TRUE(describe->GetHasExtendedInfo());
  std::vector<String> texts;
  for (const TRef<IParameterInfo>& parameter : describe->GetParameters()) texts.push_back(parameter->GetParameterText());
  EXPECT_EQ(texts, (std::vector<String>{"ATimes: Integer", "AWhat: string"}));
  EXPECT_EQ(describe->Invoke(&machine, {TValue(Int64(2)), TValue("gear")}).AsString(), "gear x2");
  stop->Invoke(&machine, {});
  EXPECT_EQ(machine.FSpeed, 0);
  EXPECT_THROW(describe->Invoke(&machine, {TValue(1)}), EAssertionFailed);
}

TEST(ReflectionTest, DynamicMembersCountOnlyWithTheFlag) {
  TTestDynamicThing thing;
  TRef<IValueMemberInfo> extra;
  EXPECT_FALSE(TRttiObjectHelper::TypeInfo(&thing, false)->FindMember("Extra", extra));
  ASSERT_TRUE(TRttiObjectHelper::TypeInfo(&thing, true)->FindMember("Extra", extra));
  extra->SetFromString(&thing, "12");
  EXPECT_EQ(thing.Extra, 12);
  EXPECT_EQ(Names(TRttiObjectHelper::TypeInfo(&thing, true)->GetMembers(mvsPublished)), (std::vector<String>{"Extra"}));

  TRef<IDynamicTypeInfo> dynamic;
  ASSERT_TRUE(Supports(TRttiObjectHelper::ClassTypeInfo(TTestDynamicThing::ClassInfo()), dynamic));
  dynamic->InitInstance(&thing);
  EXPECT_TRUE(thing.Prepared);
  EXPECT_FALSE(Supports<IDynamicTypeInfo>(TRttiObjectHelper::ClassTypeInfo(TTestMachine::ClassInfo())));
}

TEST(ReflectionTest, MemberValueChangeListenersAreTold) {
  TTestDynamicThing thing;
  std::vector<TObject*> told;
  const int key = AddTypeInfoMemberValueChangesHandler([&](TObject* AInstance) { told.push_back(AInstance); });
  NotifyTypeInfoMemberValueChanges(&thing);
  RemoveTypeInfoMemberValueChangesHandler(key);
  NotifyTypeInfoMemberValueChanges(&thing);
  EXPECT_EQ(told, (std::vector<TObject*>{&thing}));
}

} // namespace
} // namespace Tarvo
