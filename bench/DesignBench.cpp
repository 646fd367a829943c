// Designs of growing size through the whole cycle of the tool: load the file, select every
// component, refresh the inspector's rows, save. Flat designs of 1,000 to 100,000 scopes and
// scopes nested 100 and 256 deep. Counters: microseconds of processor time per component for
// each step, and the peak of heap memory in use during the cycle (in all and per component) and
// during loading (per component), so that growth with the size shows at a glance.

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <new>
#include <utility>

#include "host/headless/HostDesigner.h"
#include "host/headless/RowModel.h"
#include "package/PackageEntry.h"
#include "rtl/Module.h"
#include "runtime/DesignFile.h"

// The heap in use and its peak, counted by the global allocation functions of this program,
// which every library of the process allocates through.
namespace {
std::size_t GHeapInUse = 0;
std::size_t GHeapPeak = 0;
} // namespace

void* operator new(std::size_t ASize) {
  void* block = std::malloc(ASize ? ASize : 1);
  if (!block) throw std::bad_alloc();
  GHeapInUse += malloc_usable_size(block);
  GHeapPeak = std::max(GHeapPeak, GHeapInUse);
  return block;
}
void operator delete(void* ABlock) noexcept {
  if (!ABlock) return;
  GHeapInUse -= malloc_usable_size(ABlock);
  std::free(ABlock);
}
void operator delete(void* ABlock, std::size_t) noexcept { operator delete(ABlock); }

namespace {

using namespace Tarvo;

// The package and the sample module, started once for every benchmark.
class TBenchPackage {
public:
  TBenchPackage() {
    Initialize();
    FModule = LoadModule(TARVO_SAMPLES_MODULE_PATH);
  }
  ~TBenchPackage() {
    UnloadModule(FModule);
    Finalize();
  }

private:
  TModule* FModule = nullptr;
};

String ScopeItem(Integer ANumber) {
  return R"({"class": "TSignalScope", "name": "Scope)" + std::to_string(ANumber) + R"(", "properties": {"Gain": "2"})";
}

String FlatDesign(Integer ACount) {
  String list;
  for (Integer i = 1; i <= ACount; ++i) list += (i > 1 ? ",\n" : "") + ScopeItem(i) + "}";
  return R"({"components": [)" + list + "]}";
}

// Each scope holds the next among its children.
String NestedDesign(Integer ADepth) {
  String text = R"({"components": [)";
  for (Integer i = 1; i <= ADepth; ++i) text += ScopeItem(i) + (i < ADepth ? R"(, "children": [)" : "}");
  for (Integer i = 1; i < ADepth; ++i) text += "]}";
  return text + "]}";
}

void RunCycle(benchmark::State& AState, const String& ADesign, Integer ACount) {
  static TBenchPackage package;
  double load = 0, select = 0, refresh = 0, save = 0;
  std::size_t peak = 0, loadPeak = 0;
  // Processor time: the machine is shared, and waiting for it is no cost of the design.
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
  };
  const auto seconds = [&](double& AFrom) {
    const double to = now();
    return to - std::exchange(AFrom, to);
  };
  for (auto _ : AState) {
    const std::size_t before = GHeapInUse;
    GHeapPeak = before;
    double at = now();
    {
      const TOwnedObject<TComponent> root(
          TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
      const std::vector<TComponent*> components = ReadDesign(ADesign, root.get());
      load += seconds(at);
      loadPeak = std::max(loadPeak, GHeapPeak - before);
      const TRef<THostDesigner> designer = New<THostDesigner>(root.get());
      const TRef<IObjectArrayList> all = New<TObjectArrayList>();
      for (TComponent* component : components) all->Add(component);
      designer->SetSelection(all);
      select += seconds(at);
      TRowModel inspector(designer);
      inspector.Refresh();
      benchmark::DoNotOptimize(inspector.Rows().size());
      refresh += seconds(at);
      benchmark::DoNotOptimize(WriteDesign(root.get()));
      save += seconds(at);
      if (static_cast<Integer>(components.size()) != ACount) AState.SkipWithError("the design lost components");
    }
    peak = std::max(peak, GHeapPeak - before);
  }
  const double perComponent = 1e6 / static_cast<double>(AState.iterations()) / ACount;
  AState.counters["load_us"] = load * perComponent;
  AState.counters["select_us"] = select * perComponent;
  AState.counters["refresh_us"] = refresh * perComponent;
  AState.counters["save_us"] = save * perComponent;
  AState.counters["peak_MB"] = static_cast<double>(peak) / 1e6;
  AState.counters["peak_KB_per_component"] = static_cast<double>(peak) / 1e3 / ACount;
  AState.counters["load_peak_KB_per_component"] = static_cast<double>(loadPeak) / 1e3 / ACount;
}

void BM_FlatDesign(benchmark::State& AState) {
  const auto count = static_cast<Integer>(AState.range(0));
  RunCycle(AState, FlatDesign(count), count);
}

void BM_NestedDesign(benchmark::State& AState) {
  const auto depth = static_cast<Integer>(AState.range(0));
  RunCycle(AState, NestedDesign(depth), depth);
}

BENCHMARK(BM_FlatDesign)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
// One cycle is long enough to measure, and a second would double the run.
BENCHMARK(BM_FlatDesign)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NestedDesign)->Arg(100)->Arg(256)->Unit(benchmark::kMillisecond);

} // namespace
