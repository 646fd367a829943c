// The load-and-unload soak: the sample module loaded, one component of each of its classes made
// and every row built, read and one written, everything freed and the module unloaded, 500 times.
// After the run every registry must be back at its count before the first load; the benchmark
// fails otherwise. Counter: the rows each cycle built.

#include <benchmark/benchmark.h>

#include "host/headless/PackageScope.h"
#include "rtl/Module.h"
#include "tests/support/ModuleCycle.h"

namespace {

void BM_LoadUseUnload(benchmark::State& AState) {
  const Tarvo::TPackageScope package;
  // One cycle first fills the cache of the runtime's own type records (see ModuleSoakTest).
  Tarvo::Testing::RunModuleCycle(TARVO_SAMPLES_MODULE_PATH);
  const std::map<std::string, std::size_t> baseline = Tarvo::Testing::RegistrySizes();
  Tarvo::Integer rows = 0;
  for (auto _ : AState) rows = Tarvo::Testing::RunModuleCycle(TARVO_SAMPLES_MODULE_PATH);
  AState.counters["rows"] = double(rows);
  if (Tarvo::Testing::RegistrySizes() != baseline) AState.SkipWithError("a registry is not back at its count");
}
BENCHMARK(BM_LoadUseUnload)->Iterations(500)->Unit(benchmark::kMillisecond);

} // namespace
