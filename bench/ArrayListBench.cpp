// TArrayList<int> against std::vector<int>: appending, walking and sorting.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

#include "containers/List.h"

namespace {

using namespace Tarvo;

std::vector<int> Shuffled(std::int64_t ACount) {
  std::vector<int> result(static_cast<std::size_t>(ACount));
  std::mt19937 random(42);
  for (int& item : result) item = static_cast<int>(random());
  return result;
}

TRef<TArrayList<int>> Filled(std::int64_t ACount) {
  const TRef<TArrayList<int>> list = New<TArrayList<int>>();
  list->Append(Shuffled(ACount));
  return list;
}

void BM_ArrayList_Add(benchmark::State& AState) {
  for (auto _ : AState) {
    const TRef<TArrayList<int>> list = New<TArrayList<int>>();
    for (int i = 0; i < AState.range(0); ++i) list->Add(i);
    benchmark::DoNotOptimize(list.get());
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

void BM_Vector_Add(benchmark::State& AState) {
  for (auto _ : AState) {
    std::vector<int> list;
    for (int i = 0; i < AState.range(0); ++i) list.push_back(i);
    benchmark::DoNotOptimize(list.data());
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

void BM_ArrayList_SumEnumerator(benchmark::State& AState) {
  const TRef<TArrayList<int>> list = Filled(AState.range(0));
  for (auto _ : AState) {
    long long sum = 0;
    for (const TRef<IEnumerator<int>> walk = list->GetEnumerator(); walk->MoveNext();) sum += walk->GenericGetCurrent();
    benchmark::DoNotOptimize(sum);
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

void BM_ArrayList_SumRangeFor(benchmark::State& AState) {
  const TRef<TArrayList<int>> list = Filled(AState.range(0));
  for (auto _ : AState) {
    long long sum = 0;
    for (int item : *list) sum += item;
    benchmark::DoNotOptimize(sum);
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

void BM_Vector_Sum(benchmark::State& AState) {
  const std::vector<int> list = Shuffled(AState.range(0));
  for (auto _ : AState) {
    long long sum = 0;
    for (int item : list) sum += item;
    benchmark::DoNotOptimize(sum);
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

void BM_ArrayList_Sort(benchmark::State& AState) {
  const std::vector<int> source = Shuffled(AState.range(0));
  for (auto _ : AState) {
    AState.PauseTiming();
    const TRef<TArrayList<int>> list = New<TArrayList<int>>();
    list->Append(source);
    AState.ResumeTiming();
    list->Sort();
    benchmark::DoNotOptimize(list.get());
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

void BM_Vector_Sort(benchmark::State& AState) {
  const std::vector<int> source = Shuffled(AState.range(0));
  for (auto _ : AState) {
    AState.PauseTiming();
    std::vector<int> list = source;
    AState.ResumeTiming();
    std::sort(list.begin(), list.end());
    benchmark::DoNotOptimize(list.data());
  }
  AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

BENCHMARK(BM_ArrayList_Add)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Vector_Add)->Arg(1000)->Arg(100000);
BENCHMARK(BM_ArrayList_SumEnumerator)->Arg(1000)->Arg(100000);
BENCHMARK(BM_ArrayList_SumRangeFor)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Vector_Sum)->Arg(1000)->Arg(100000);
BENCHMARK(BM_ArrayList_Sort)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Vector_Sort)->Arg(1000)->Arg(100000);

} // namespace
