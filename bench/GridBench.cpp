// The inspector grid on the offscreen platform: a component with 5,000 members (run-time members
// of one wide class) selected and painted for the first time, and the repaint after one
// modification with 40 rows on screen.

#include <benchmark/benchmark.h>

#include <QImage>

#include "host/grid/GridView.h"
#include "host/grid/GridWidget.h"
#include "host/headless/HostDesigner.h"
#include "package/PackageEntry.h"
#include "reflection/MemberInfo.h"
#include "reflection/Publish.h"

namespace Tarvo {

class TBenchWideComponent : public TComponent {
  TARVO_CLASS(TBenchWideComponent, TComponent)
public:
  static constexpr Integer MemberCount = 5000;
  using TComponent::TComponent;
  TRef<IMembersInfo> GetValueMembers();
  std::vector<Integer> Values = std::vector<Integer>(MemberCount, 0);
};

namespace {

class TBenchValueMember : public TValueMemberInfo {
public:
  explicit TBenchValueMember(Integer AIndex)
      : TValueMemberInfo(&TypeInfo_Integer, nullptr, "Value" + std::to_string(10000 + AIndex).substr(1)),
        FIndex(AIndex) {}
  TValue GetDefault(TObject*) override { return TValue(0); }
  bool GetHasDefault() override { return true; }
  bool GetIsDefault(TObject* AObject, bool) override { return Store(AObject) == 0; }
  TValue GetValue(TObject* AObject) override { return TValue(Store(AObject)); }
  void SetValue(TObject* AObject, const TValue& AValue) override { Store(AObject) = AValue.AsInteger(); }

private:
  Integer& Store(TObject* AObject) { return static_cast<TBenchWideComponent*>(AObject)->Values[FIndex]; }
  Integer FIndex;
};

} // namespace

TRef<IMembersInfo> TBenchWideComponent::GetValueMembers() {
  static const TRef<IMembersInfo> members = [] {
    const TRef<IMembersInfo> list = New<TMembersInfo>();
    for (Integer i = 0; i < MemberCount; ++i) list->Add(New<TBenchValueMember>(i));
    return list;
  }();
  return members;
}

TARVO_IMPLEMENT_CLASS(TBenchWideComponent)
TARVO_PUBLISH(TBenchWideComponent) { DynamicMembers(&TBenchWideComponent::GetValueMembers); }

namespace {

// Two wide components, so that each selection change makes the rows anew, and a grid 40 rows high.
class TBenchGrid {
public:
  TBenchGrid() {
    Initialize();
    FRoot.reset(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
    for (const char* name : {"Wide1", "Wide2"}) {
      TComponent* wide = TComponentHelper::CreateComponent(TBenchWideComponent::ClassInfo(), FRoot.get(), true, false);
      wide->SetName(name);
    }
    FDesigner = New<THostDesigner>(FRoot.get());
    FGrid.emplace();
    FGrid->SetDesigner(FDesigner);
    FGrid->show();
    const int chrome = FGrid->height() - FGrid->View()->viewport()->height();
    FGrid->resize(480, chrome + 40 * FGrid->View()->Metrics().RowHeight);
    FImage = QImage(FGrid->View()->viewport()->size(), QImage::Format_ARGB32_Premultiplied);
  }
  ~TBenchGrid() {
    FGrid.reset();
    FDesigner = nullptr;
    FRoot.reset();
    Finalize();
  }

  void Select(Integer AIndex) { FDesigner->SetSelection(New<TObjectArrayList>()->Add(FRoot->Components(AIndex))); }
  void Paint() { FGrid->View()->viewport()->render(&FImage); }
  TBenchWideComponent& Wide(Integer AIndex) { return *static_cast<TBenchWideComponent*>(FRoot->Components(AIndex)); }
  TRef<IDesigner> Designer() const { return FDesigner; }
  TGridView& View() { return *FGrid->View(); }

private:
  TOwnedObject<TComponent> FRoot;
  TRef<IDesigner> FDesigner;
  std::optional<TInspectorGrid> FGrid;
  QImage FImage;
};

TBenchGrid& Grid() {
  static TBenchGrid grid;
  return grid;
}

void BM_GridBuildAndFirstPaint(benchmark::State& AState) {
  Integer next = 0;
  for (auto _ : AState) {
    Grid().Select(next);
    Grid().Paint();
    next = 1 - next;
  }
  AState.counters["rows"] = double(Grid().View().Rows().Shown().size());
}
BENCHMARK(BM_GridBuildAndFirstPaint)->Unit(benchmark::kMillisecond);

void BM_GridRefreshAfterModification(benchmark::State& AState) {
  Grid().Select(0);
  Grid().Paint();
  Integer value = 0;
  for (auto _ : AState) {
    Grid().Wide(0).Values[3] = ++value;
    Grid().Designer()->Modified();
    Grid().Paint();
  }
  AState.counters["rows_on_screen"] = double(Grid().View().viewport()->height() / Grid().View().Metrics().RowHeight);
}
BENCHMARK(BM_GridRefreshAfterModification)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace Tarvo
