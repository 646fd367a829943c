#include "host/headless/PackageScope.h"

#include "design/Registry.h"
#include "rtl/Module.h"

namespace Tarvo {

namespace {

using TEntryPoint = void (*)();

TEntryPoint PackageEntryPoint(const char* AName) {
  // The package is the module that holds its host-facing API.
  const TModule* package = FindModule(reinterpret_cast<const void*>(&GetMemberEditorEntries));
  void* address = package ? package->FindEntryPoint(AName) : nullptr;
  if (!address)
    throw EModuleError("The design package" + (package ? " '" + package->FileName() + "'" : String()) +
                       " exports no entry point '" + AName + "'");
  return reinterpret_cast<TEntryPoint>(address);
}

} // namespace

TPackageScope::TPackageScope() : FFinalize(PackageEntryPoint("Finalize")) { PackageEntryPoint("Initialize")(); }

TPackageScope::~TPackageScope() { FFinalize(); }

} // namespace Tarvo
