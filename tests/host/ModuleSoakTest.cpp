// A module loaded, used and unloaded again and again leaves every registry as it found it. The
// benchmark SoakBench runs the 500 cycles; a few here keep the property under test.
#include <gtest/gtest.h>

#include "host/headless/PackageScope.h"
#include "rtl/Module.h"
#include "tests/support/ModuleCycle.h"

namespace Tarvo {
namespace {

TEST(ModuleSoakTest, EveryRegistryIsBackAtItsCountAfterEachCycle) {
  const TPackageScope package;
  const std::map<std::string, std::size_t> before = Testing::RegistrySizes();
  // What the module brings shows in the counts while it is loaded.
  TModule* module = LoadModule(TARVO_SAMPLES_MODULE_PATH);
  std::map<std::string, std::size_t> loaded = Testing::RegistrySizes();
  UnloadModule(module);
  for (const char* name : {"classes", "editor entries", "category filters", "member tables", "type infos",
                           "type attributes", "component registrations", "dynamic elements"})
    EXPECT_GT(loaded[name], before.contains(name) ? before.at(name) : 0) << name;

  // The first use fills the cache of records of the runtime's own types (a font's style, a date),
  // which no module holds; nothing else may stay.
  Testing::RunModuleCycle(TARVO_SAMPLES_MODULE_PATH);
  const std::map<std::string, std::size_t> baseline = Testing::RegistrySizes();
  auto withoutCache = [](std::map<std::string, std::size_t> ASizes) {
    ASizes.erase("type infos");
    return ASizes;
  };
  EXPECT_EQ(withoutCache(baseline), withoutCache(before));
  for (int cycle = 0; cycle < 3; ++cycle) {
    EXPECT_GT(Testing::RunModuleCycle(TARVO_SAMPLES_MODULE_PATH), 100);
    EXPECT_EQ(Testing::RegistrySizes(), baseline) << "after cycle " << cycle;
  }
}

} // namespace
} // namespace Tarvo
