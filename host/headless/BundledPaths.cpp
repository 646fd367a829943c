#include "host/headless/BundledPaths.h"

#include <filesystem>

namespace Tarvo {

TInspectPaths BundledPaths() {
  namespace fs = std::filesystem;
  const fs::path directory = fs::read_symlink("/proc/self/exe").parent_path();
  const fs::path beside = directory / "libtarvo_samples.so";
  if (fs::exists(beside)) return {beside.string(), (directory / "designs" / "sample.json").string()};
  const fs::path prefix = directory.parent_path();
  return {(prefix / "lib" / "tarvo" / "libtarvo_samples.so").string(),
          (prefix / "share" / "tarvo" / "designs" / "sample.json").string()};
}

} // namespace Tarvo
