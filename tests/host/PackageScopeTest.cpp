// A host with functions of its own named like the package's entry points still starts and stops
// the package, and its own functions are left alone.
#include <gtest/gtest.h>

#include <string_view>

#include "host/headless/PackageScope.h"
#include "package/PackageEntry.h"

namespace {
int GHostInitializeCalls = 0;
int GHostFinalizeCalls = 0;
} // namespace

extern "C" void Initialize() { ++GHostInitializeCalls; }
extern "C" void Finalize() { ++GHostFinalizeCalls; }

namespace Tarvo {
namespace {

int DesignUnitCounter() {
  const TPackageInfoTable& table = *GetPackageInfoTable();
  for (int i = 0; i < table.UnitCount; ++i)
    if (std::string_view(table.Units[i].Name) == "Tarvo.Design") return table.Units[i].Counter;
  ADD_FAILURE() << "no unit Tarvo.Design";
  return 0;
}

TEST(PackageScopeTest, StartsAndStopsThePackageNotTheHostsFunctionsOfTheSameName) {
  {
    const TPackageScope package;
    EXPECT_EQ(DesignUnitCounter(), -1);
  }
  EXPECT_EQ(DesignUnitCounter(), 0);
  EXPECT_EQ(GHostInitializeCalls, 0);
  EXPECT_EQ(GHostFinalizeCalls, 0);
}

} // namespace
} // namespace Tarvo
