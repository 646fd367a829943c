#include <gtest/gtest.h>

#include <string>

#include "design/reflection/TypeInfo.h"
#include "rtl/Module.h"
#include "rtl/Object.h"

namespace Tarvo {
namespace {

TEST(ModuleTest, AddressesMapToTheirModule) {
  TModule* rtl = TObject::ClassInfo()->Module();
  ASSERT_NE(rtl, nullptr);
  EXPECT_EQ(FindModule(reinterpret_cast<const void*>(&FindModule)), rtl);
  EXPECT_EQ(TypeInfo_Integer.Module(), rtl);
  EXPECT_NE(rtl->FileName().find("tarvo_rtl"), std::string::npos);
  EXPECT_FALSE(rtl->IsLoaded());
  EXPECT_THROW(UnloadModule(rtl), EModuleError);
}

TEST(ModuleTest, LoadingFailsWithTheReason) {
  try {
    LoadModule("/nonexistent/libnothing.so");
    FAIL() << "loading a missing library succeeded";
  } catch (const EModuleError& e) {
    EXPECT_NE(std::string(e.what()).find("/nonexistent/libnothing.so"), std::string::npos);
  }
}

TEST(ModuleTest, LoadedModuleRegistersAndUnloadSweepsIt) {
  std::vector<TModule*> unloaded;
  const int key = AddModuleUnloadProc([&](TModule* AModule) {
    // The module's classes are still there while the procedures run.
    EXPECT_NE(FindClass("TTestModuleThing"), nullptr);
    unloaded.push_back(AModule);
  });

  TModule* module = LoadModule(TARVO_TEST_MODULE_PATH);
  ASSERT_TRUE(module->IsLoaded());
  EXPECT_EQ(LoadModule(TARVO_TEST_MODULE_PATH), module); // a second load is the same module

  const TClass thing = FindClass("TTestModuleThing");
  ASSERT_NE(thing, nullptr);
  EXPECT_EQ(thing->Module(), module);
  EXPECT_TRUE(thing->InheritsFrom(TObject::ClassInfo()));

  const auto greeting = module->FindResource("greeting");
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(greeting.data()), greeting.size()), "hello from the module");
  EXPECT_TRUE(module->FindResource("MISSING").empty());

  UnloadModule(module);
  RemoveModuleUnloadProc(key);
  ASSERT_EQ(unloaded.size(), 1u);
  EXPECT_EQ(unloaded[0], module);
  EXPECT_EQ(FindClass("TTestModuleThing"), nullptr);
}

// Reads the module's class through the reflection: its members, their types and defaults.
std::string DescribeModuleThing() {
  const TClass thing = FindClass("TTestModuleThing");
  if (!thing) return "no class";
  std::string text;
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::ClassTypeInfo(thing)->GetMembers(mvsPublished)) {
    TRef<IValueMemberInfo> value;
    Supports(member, value);
    text += member->GetName() + ":" + member->GetTypeInfo()->GetName() + "=" + value->GetDefault(nullptr).ToString() + " ";
  }
  return text;
}

TEST(ModuleTest, ReflectionForgetsAnUnloadedModule) {
  UnloadModule(LoadModule(TARVO_TEST_MODULE_PATH));
  for (int round = 0; round < 2; ++round) {
    TModule* module = LoadModule(TARVO_TEST_MODULE_PATH);
    EXPECT_EQ(DescribeModuleThing(), "Value:Integer=1 Mood:TTestModuleMood=tmCalm ") << "round " << round;
    UnloadModule(module);
    EXPECT_EQ(DescribeModuleThing(), "no class");
  }
}

TEST(ModuleTest, RemovedUnloadProcIsNotRun) {
  int runs = 0;
  RemoveModuleUnloadProc(AddModuleUnloadProc([&](TModule*) { ++runs; }));
  UnloadModule(LoadModule(TARVO_TEST_MODULE_PATH));
  EXPECT_EQ(runs, 0);
}

} // namespace
} // namespace Tarvo
