// The inspector over the sample module with the package started: one registry lookup for
// typical members, and a full refresh of the rows (an editor built for every row, its display
// text and default flag) for 1, 10 and 100 selected filters, against the same rows read
// straight through the reflection.

#include <benchmark/benchmark.h>

#include <vector>

#include "design/Registry.h"
#include "host/headless/HostDesigner.h"
#include "host/headless/RowModel.h"
#include "package/PackageEntry.h"
#include "reflection/RttiTypes.h"
#include "rtl/Module.h"
#include "runtime/Shape.h"

namespace {

using namespace Tarvo;

// The package, the sample module and a design of 100 filters, made once for every benchmark.
class TBenchDesign {
public:
  static constexpr Integer MaxSelected = 100;

  TBenchDesign() {
    Initialize();
    FModule = LoadModule(TARVO_SAMPLES_MODULE_PATH);
    FRoot.reset(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
    const TComponentClass filterClass(FindClass("TSignalFilter"));
    for (Integer i = 0; i < MaxSelected; ++i) {
      TComponent* filter = TComponentHelper::CreateComponent(filterClass, FRoot.get(), true, false);
      filter->SetName("Filter" + std::to_string(i + 1));
    }
    FDesigner = New<THostDesigner>(FRoot.get());
  }
  ~TBenchDesign() {
    FDesigner = nullptr;
    FRoot.reset();
    UnloadModule(FModule);
    Finalize();
  }

  TRef<IDesigner> Select(Integer ACount) {
    const TRef<IObjectArrayList> selection = New<TObjectArrayList>();
    for (Integer i = 0; i < ACount; ++i) selection->Add(FRoot->Components(i));
    FDesigner->SetSelection(selection);
    return FDesigner;
  }
  TObject* First() { return FRoot->Components(0); }

private:
  TModule* FModule = nullptr;
  TOwnedObject<TComponent> FRoot;
  TRef<IDesigner> FDesigner;
};

TBenchDesign& Design() {
  static TBenchDesign design;
  return design;
}

TRef<IMemberInfo> MemberOf(TObject* AObject, const String& AName) {
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(AObject, false)->GetAllMembers())
    if (member->GetName() == AName) return member;
  return nullptr;
}

void BM_RegistryLookup(benchmark::State& AState) {
  TObject* filter = Design().First();
  TOwnedObject<TShape> shape(Construct<TShape>(nullptr));
  TOwnedObject<TComponent> generator(
      TComponentHelper::CreateComponent(TComponentClass(FindClass("TSignalGenerator")), nullptr, true, false));
  // A float, a name, an enumeration and a class-valued member of a filter; a generator's event;
  // a hidden member of a control and an ordinary one; integers, characters and strings that the
  // typed editors serve, by kind (Order, Separator, Description) and by registered type
  // (SampleRate, a Cardinal).
  const std::vector<std::pair<TObject*, TRef<IMemberInfo>>> members = {
      {filter, MemberOf(filter, "Cutoff")},
      {filter, MemberOf(filter, "Name")},
      {filter, MemberOf(filter, "Kind")},
      {filter, MemberOf(filter, "Font")},
      {generator.get(), MemberOf(generator.get(), "OnStart")},
      {shape.get(), MemberOf(shape.get(), "Left")},
      {shape.get(), MemberOf(shape.get(), "Shape")},
      {filter, MemberOf(filter, "Order")},
      {filter, MemberOf(filter, "Separator")},
      {filter, MemberOf(filter, "Description")},
      {generator.get(), MemberOf(generator.get(), "SampleRate")}};
  for (const auto& [object, member] : members)
    if (!member) AState.SkipWithError("a member of the benchmark is missing");
  for (auto _ : AState)
    for (const auto& [object, member] : members) {
      TRef<IArrayList<TMemberEditorClass>> classes;
      benchmark::DoNotOptimize(GetMemberEditorClasses(member, object, classes));
    }
  AState.SetItemsProcessed(AState.iterations() * static_cast<std::int64_t>(members.size()));
  AState.counters["entries"] = static_cast<double>(GMemberEditors->GetCount());
}

void BM_InspectorRefresh(benchmark::State& AState) {
  TRowModel inspector(Design().Select(static_cast<Integer>(AState.range(0))));
  for (auto _ : AState) {
    inspector.Refresh();
    benchmark::DoNotOptimize(inspector.Rows().data());
  }
  AState.counters["rows"] = static_cast<double>(inspector.Rows().size());
}

// The value rows of the inspector, each read from every selected object as text with its
// default flag, through members looked up once.
void BM_ReflectionBaseline(benchmark::State& AState) {
  const TRef<IDesigner> designer = Design().Select(static_cast<Integer>(AState.range(0)));
  TRowModel inspector(designer);
  inspector.Refresh();
  std::vector<TRef<ISinglePropertyInfo>> members;
  for (const TInspectorRow& row : inspector.Rows())
    if (TRef<ISinglePropertyInfo> member;
        inspector.Find(row.Path).Property &&
        TRttiObjectHelper::TypeInfo(Design().First(), false)->FindSinglePropertyMember(row.Name, member))
      members.push_back(member);
  const TRef<IObjectArrayList> selection = designer->GetSelection();
  for (auto _ : AState)
    for (const TRef<ISinglePropertyInfo>& member : members)
      for (TObject* object : selection) {
        benchmark::DoNotOptimize(member->GetValue(object).ToString());
        benchmark::DoNotOptimize(member->GetIsDefault(object, true));
      }
  AState.counters["rows"] = static_cast<double>(members.size());
}

BENCHMARK(BM_RegistryLookup);
BENCHMARK(BM_InspectorRefresh)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ReflectionBaseline)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

} // namespace
