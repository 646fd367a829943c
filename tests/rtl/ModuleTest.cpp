#include <gtest/gtest.h>

#include <string>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "rtl/Module.h"
#include "rtl/Object.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

// The test module's class as the reflection reads it: members, their types and defaults.
std::string DescribeModuleThing() {
  const TClass thing = FindClass("TTestModuleThing");
  if (!thing) return "no class";
  std::string text;
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::ClassTypeInfo(thing)->GetMembers(mvsPublished)) {
    TRef<IValueMemberInfo> value;
    Supports(member, value);
    text +=
        member->GetName() + ":" + member->GetTypeInfo()->GetName() + "=" + value->GetDefault(nullptr).ToString() + " ";
  }
  return text;
}

// The linked runtime is a module that cannot be unloaded; a missing file fails with its name.
TEST(ModuleTest, LinkedModulesCannotBeUnloadedAndMissingOnesCannotLoad) {
  TModule* rtl = TObject::ClassInfo()->Module();
  ASSERT_NE(rtl, nullptr);
  EXPECT_EQ(FindModule(reinterpret_cast<const void*>(&FindModule)), rtl);
  EXPECT_EQ(TypeInfo_Integer.Module(), rtl);
  EXPECT_NE(rtl->FileName().find("tarvo_rtl"), std::string::npos);
  EXPECT_THROW(UnloadModule(rtl), EModuleError);
  try {
    LoadModule("/nonexistent/libnothing.so");
    FAIL() << "loading a missing library succeeded";
  } catch (const EModuleError& e) {
    EXPECT_NE(std::string(e.what()).find("/nonexistent/libnothing.so"), std::string::npos);
  }
}

// Unload procedures run before the sweep of classes and resources. Two rounds: the second load registers everything afresh after the first unload swept it out.
TEST(ModuleTest, UnloadSweepsTheModulesClassesAndResources) {
  for (int round = 0; round < 2; ++round) {
    SCOPED_TRACE(round);
    std::vector<TModule*> unloaded;
    const int key = AddModuleUnloadProc([&](TModule* AModule) {
      EXPECT_NE(FindClass("TTestModuleThing"), nullptr); // still there while the procedures run
      unloaded.push_back(AModule);
    });
    int removedRuns = 0;
    RemoveModuleUnloadProc(AddModuleUnloadProc([&](TModule*) { ++removedRuns; }));

    TModule* module = LoadModule(TARVO_TEST_MODULE_PATH);
    ASSERT_TRUE(module->IsLoaded());
    EXPECT_EQ(LoadModule(TARVO_TEST_MODULE_PATH), module); // a second load is the same module
    EXPECT_EQ(module->LoadCount(), 2);
    UnloadModule(module); // balances the second load: the module stays
    EXPECT_TRUE(unloaded.empty());
    EXPECT_EQ(module->LoadCount(), 1);
    ASSERT_NE(FindClass("TTestModuleThing"), nullptr);
    EXPECT_EQ(FindClass("TTestModuleThing")->Module(), module);
    EXPECT_EQ(DescribeModuleThing(), "Value:Integer=1 Mood:TTestModuleMood=tmCalm ");
    const auto greeting = module->FindResource("greeting");
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(greeting.data()), greeting.size()), "hello from the module");
    EXPECT_TRUE(module->FindResource("MISSING").empty());

    UnloadModule(module);
    RemoveModuleUnloadProc(key);
    EXPECT_EQ(unloaded, std::vector<TModule*>{module});
    EXPECT_EQ(removedRuns, 0);
    EXPECT_EQ(DescribeModuleThing(), "no class");
  }
}

// What the modules hold: every swept registry's size, and the modules with their classes.
std::map<std::string, std::size_t> RegistrySizes() {
  std::map<std::string, std::size_t> sizes = SweptRegistrySizes();
  for (TModule* module : Modules()) {
    ++sizes["modules"];
    sizes["classes"] += module->Classes().size();
  }
  return sizes;
}

// A module with a mistake fails to load with the class and member named, sweeps out what it
// registered before the failure, and leaves the process as it found it.
TEST(ModuleTest, AModuleWhoseRegistrationFailsIsRefusedByNameAndLeavesNothingBehind) {
  TModule* testModule = LoadModule(TARVO_TEST_MODULE_PATH);
  const std::map<std::string, std::size_t> before = RegistrySizes();
  const struct {
    const char* Name;
    std::string Message;
  } rows[] = {
      {"DuplicateMember", "TFaultyGadget.level: the member is published twice"},
      {"TakenClassName", std::string("TTestModuleThing: the class name is taken by ") + TARVO_TEST_MODULE_PATH},
      {"NonComponent", "TFaultyGadget: only components go on a palette, and TFaultyGadget does not derive from "
                       "TComponent"},
      {"FailingTable", "TFaultyGadget.Level: the gadget cannot publish"},
  };
  Testing::ForEachRow(rows, [&](const auto& ARow) {
    const std::string path = std::string(TARVO_FAULTY_MODULE_DIR) + "/libtarvo_faulty_" + ARow.Name + ".so";
    try {
      LoadModule(path);
      ADD_FAILURE() << "the module loaded";
    } catch (const EModuleError& AError) {
      EXPECT_EQ(std::string(AError.what()), "cannot load module " + path + ": " + ARow.Message);
    }
    EXPECT_EQ(RegistrySizes(), before);
    EXPECT_EQ(FindClass("TFaultyGadget"), nullptr);
    EXPECT_EQ(FindClass("TTestModuleThing")->Module(), testModule);
  });
  UnloadModule(testModule);
}

} // namespace
} // namespace Tarvo
