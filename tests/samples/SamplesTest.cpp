// The sample module as a host sees it: loaded from its file, its classes found by name and used
// through the reflection only.
#include <gtest/gtest.h>

#include "reflection/ComponentRegistration.h"
#include "reflection/RttiTypes.h"
#include "rtl/Module.h"
#include "runtime/Component.h"
#include "runtime/DesignFile.h"
#include "runtime/Events.h"
#include "tests/rtl/ExpectError.h"

namespace Tarvo {
namespace {

class SamplesTest : public ::testing::Test {
protected:
  void SetUp() override { FModule = LoadModule(TARVO_SAMPLES_MODULE_PATH); }
  // The module's objects go before the module does.
  void TearDown() override {
    FRoot.reset();
    if (FModule) UnloadModule(FModule);
  }

  TComponent* Create(const char* AClassName) {
    const TClass found = FindClass(AClassName);
    if (!found) throw Exception(String("no class ") + AClassName);
    return TComponentClass(found).Create(FRoot.get());
  }

  static TRef<IMemberInfo> AnyMember(TObject* AObject, const String& AName) {
    for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(AObject, true)->GetAllMembers())
      if (member->GetName() == AName) return member;
    return nullptr;
  }
  static TRef<ISinglePropertyInfo> Property(TObject* AObject, const String& AName) {
    TRef<ISinglePropertyInfo> member;
    TRttiObjectHelper::TypeInfo(AObject, true)->FindSinglePropertyMember(AName, member);
    return member;
  }
  static TValue Read(TObject* AObject, const String& AName) { return Property(AObject, AName)->GetValue(AObject); }
  static TValue Invoke(TObject* AObject, const String& AName, const std::vector<TValue>& AArguments = {}) {
    return QueryAs<IMethodInfo>(AnyMember(AObject, AName))->Invoke(AObject, AArguments);
  }

  TModule* FModule = nullptr;
  TOwnedObject<TComponent> FRoot{Construct<TComponent>(nullptr)};
};

const String SampleDesign = TARVO_SAMPLES_DIR "/designs/sample.json";

TEST_F(SamplesTest, TheModuleRegistersItsClassesAndTakesThemAlongWhenItUnloads) {
  const char* names[] = {"TSignalGenerator", "TSignalFilter", "TSignalScope", "TConfirmButton"};
  // Their pages, and each registered once, are shown by the tool's class list.
  for (const char* name : names) {
    ASSERT_NE(FindClass(name), nullptr) << name;
    EXPECT_EQ(FindClass(name)->Module(), FModule) << name;
  }

  // Its components go first; then designs no longer know its classes.
  ReadDesignFile(SampleDesign, FRoot.get());
  while (FRoot->ComponentCount() > 0) TObject::Free(FRoot->Components(FRoot->ComponentCount() - 1));
  UnloadModule(std::exchange(FModule, nullptr));
  for (const char* name : names) EXPECT_EQ(FindClass(name), nullptr) << name;
  for (const TClass registered : GetRegisteredComponents()->ToArray())
    EXPECT_NE(GetComponentPage(registered), "Signal");
  Testing::ExpectError<EDesignFileError>([&] { ReadDesignFile(SampleDesign, FRoot.get()); },
                                         SampleDesign +
                                             ": Unknown class 'TSignalGenerator' for component 'Generator1'");
}

TEST_F(SamplesTest, MethodsAndSettersRunThroughTheReflection) {
  TComponent* generator = Create("TSignalGenerator");
  Property(generator, "Waveform")->SetFromString(generator, "wfSquare");
  Property(generator, "Amplitude")->SetFromString(generator, "2.5");
  EXPECT_EQ(Invoke(generator, "ValueAt", {TValue(Int64(0))}).AsExtended(), 2.5);
  // Half a period of 440 Hz at 48 kHz is past 54 samples.
  EXPECT_EQ(Invoke(generator, "ValueAt", {TValue(Int64(60))}).AsExtended(), -2.5);

  Invoke(generator, "Advance", {TValue(Integer(100))});
  EXPECT_EQ(Read(generator, "SampleCount").AsInt64(), 100);
  EXPECT_TRUE(Read(generator, "Running").AsBoolean());

  std::vector<TObject*> senders;
  Property(generator, "OnStart")->SetValue(generator, TValue::From(TNotifyEvent([&](TObject* ASender) {
                                             senders.push_back(ASender);
                                           })));
  Invoke(generator, "Start");
  EXPECT_EQ(senders, std::vector<TObject*>{generator});
  EXPECT_EQ(Read(generator, "SampleCount").AsInt64(), 0);
  EXPECT_EQ(Read(generator, "StartCount").AsInteger(), 1);

  // A setter's exception crosses the module boundary as itself, and the value stays.
  EXPECT_THROW(Property(generator, "Frequency")->SetValue(generator, TValue(-5.0)), EConvertError);
  EXPECT_EQ(Read(generator, "Frequency").ToString(), "440");
}

TEST_F(SamplesTest, ReferencesToOtherComponentsAreClearedWhenTheyGo) {
  TComponent* generator = Create("TSignalGenerator");
  TComponent* filter = Create("TSignalFilter");
  TComponent* scope = Create("TSignalScope");
  Property(filter, "Input")->SetValue(filter, TValue(generator));
  Property(filter, "Options")->SetFromString(filter, "[foBypass]");
  Property(scope, "Source")->SetValue(scope, TValue(filter));
  EXPECT_EQ(Read(filter, "Input").AsObject(), generator);
  EXPECT_EQ(Read(scope, "Source").AsObject(), filter);
  // A bypassed filter passes the sine through: its peak over a period is the amplitude.
  EXPECT_NEAR(Invoke(scope, "Peak", {TValue(Integer(110))}).AsExtended(), 1.0, 1e-3);

  TObject::Free(generator);
  EXPECT_EQ(Read(filter, "Input").AsObject(), nullptr);
  EXPECT_EQ(Invoke(scope, "Peak", {TValue(Integer(10))}).AsExtended(), 0);
  TObject::Free(filter);
  EXPECT_EQ(Read(scope, "Source").AsObject(), nullptr);
}

// Values, references and a nested object of the module's classes, and the design written back the
// same; the children of a window control are the design file test's.
TEST_F(SamplesTest, TheBundledDesignReadsWithItsValuesReferencesAndChildrenAndWritesBackTheSame) {
  const std::vector<TComponent*> made = ReadDesignFile(SampleDesign, FRoot.get());
  ASSERT_EQ(made.size(), 7u);
  TComponent *generator1 = FRoot->FindComponent("Generator1"), *generator2 = FRoot->FindComponent("Generator2");
  TComponent *filter = FRoot->FindComponent("Filter1"), *scope = FRoot->FindComponent("Scope1");
  ASSERT_TRUE(generator1 && generator2 && filter && scope);
  EXPECT_EQ(generator1->ClassType(), generator2->ClassType());

  EXPECT_EQ(Read(filter, "Options").ToString(), "[foInvert]");
  EXPECT_EQ(Read(filter, "Calibrated").ToString(), "2024-03-02 14:30:00");
  EXPECT_EQ(Read(filter, "Input").AsObject(), generator1);
  EXPECT_EQ(Read(Read(filter, "Response").AsObject(), "Ripple").AsExtended(), Extended(0.25));
  EXPECT_EQ(Read(scope, "Source").AsObject(), filter);

  const String written = WriteDesign(FRoot.get());
  TOwnedObject<TComponent> copy(Construct<TComponent>(nullptr));
  ReadDesign(written, copy.get());
  EXPECT_EQ(WriteDesign(copy.get()), written);
  EXPECT_EQ(Read(copy->FindComponent("Filter1"), "Input").AsObject(), copy->FindComponent("Generator1"));
}

} // namespace
} // namespace Tarvo
