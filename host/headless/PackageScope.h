#pragma once
// The design package started for as long as the scope lives. Its start and stop are found by
// name in the package's module, as a host that loads a package finds them, never linked to: a
// function of the host's own called Initialize or Finalize is never taken for the package's.

namespace Tarvo {

class TPackageScope {
public:
  // Raises EModuleError when the package does not export its entry points.
  TPackageScope();
  ~TPackageScope();
  TPackageScope(const TPackageScope&) = delete;
  TPackageScope& operator=(const TPackageScope&) = delete;

private:
  using TEntryPoint = void (*)();
  TEntryPoint FFinalize;
};

} // namespace Tarvo
