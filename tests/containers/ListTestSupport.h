#pragma once
// Shared pieces of the container tests: an element that counts the handlers installed on it, a
// notification counter, walks that collect what an enumerator yields, and argument checks.
// The lists of int that several of the tests make are compiled once, in ListInstances.cpp.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "containers/List.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {

class TTestElement : public TInterfacedChangeNotifyObject {
public:
  TNotifyHandler AddChangeHandler(TProc<> AHandler) override {
    ++ChangeHandlers;
    return TInterfacedChangeNotifyObject::AddChangeHandler(std::move(AHandler));
  }
  void RemoveChangeHandler(const TNotifyHandler& AHandler) override {
    --ChangeHandlers;
    TInterfacedChangeNotifyObject::RemoveChangeHandler(AHandler);
  }
  TNotifyHandler AddDestructionHandler(TProc<> AHandler) override {
    ++DestructionHandlers;
    return TInterfacedChangeNotifyObject::AddDestructionHandler(std::move(AHandler));
  }
  void RemoveDestructionHandler(const TNotifyHandler& AHandler) override {
    --DestructionHandlers;
    TInterfacedChangeNotifyObject::RemoveDestructionHandler(AHandler);
  }

  int ChangeHandlers = 0;
  int DestructionHandlers = 0;
};

struct TCounter {
  int Count = 0;
  TProc<> Handler() {
    return [this] { ++Count; };
  }
};

template <class T> std::vector<T> Walk(const TRef<IEnumerator<T>>& AEnumerator) {
  std::vector<T> result;
  while (AEnumerator->MoveNext()) result.push_back(AEnumerator->GenericGetCurrent());
  return result;
}

template <class L> auto Contents(const TRef<L>& AList) { return Walk(AList->GetEnumerator()); }

struct TNamedCall {
  const char* Name;
  std::function<void()> Call;
};

// Each call must fail its argument check (or raise E).
template <class E = EAssertionFailed> void ExpectAssertions(std::initializer_list<TNamedCall> ACalls) {
  ForEachRow(ACalls, [](const TNamedCall& ACall) { EXPECT_THROW(ACall.Call(), E); });
}

} // namespace Tarvo::Testing

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(extern, int)
TARVO_LINKED_LIST_INSTANCES(extern, int)
} // namespace Tarvo
