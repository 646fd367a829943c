// tarvo-inspect: the headless host. Prints the inspector's rows of a design's selected
// components as the package decides them; see --help.

#include <filesystem>
#include <iostream>

#include "host/headless/HostSession.h"

namespace {

// The bundled module and design lie beside the executable.
Tarvo::TInspectPaths BundledPaths() {
  const std::filesystem::path directory = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  return {(directory / "libtarvo_samples.so").string(), (directory / "designs" / "sample.json").string()};
}

} // namespace

int main(int argc, char** argv) {
  try {
    const Tarvo::TInspectOptions options = Tarvo::ParseInspectOptions({argv + 1, argv + argc});
    if (options.Help) {
      std::cout << Tarvo::InspectUsage;
      return 0;
    }
    // Nothing is printed before the whole run has succeeded.
    std::cout << Tarvo::RunInspect(options, BundledPaths());
    return 0;
  } catch (const Tarvo::Exception& error) {
    std::cerr << "error: " << error.Message() << "\n";
    return 2;
  }
}
