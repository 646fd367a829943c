#pragma once
#pragma GCC visibility push(default)
// Handlers kept by key. Add answers the key that removes the handler again; a run calls the
// handlers present when it starts, in the order they were added, so that a handler may add or
// remove handlers (its own included) while it runs.

#include <functional>
#include <map>
#include <utility>

namespace Tarvo {

template <class... AArgs> class TKeyedHandlers {
public:
  using THandler = std::function<void(AArgs...)>;

  int Add(THandler AHandler) {
    const int key = FNextKey++;
    FHandlers.emplace(key, std::move(AHandler));
    return key;
  }
  void Remove(int AKey) { FHandlers.erase(AKey); }

  void Run(AArgs... AArgsList) const {
    const auto handlers = FHandlers;
    for (const auto& [key, handler] : handlers) handler(AArgsList...);
  }

private:
  std::map<int, THandler> FHandlers;
  int FNextKey = 1;
};

} // namespace Tarvo

#pragma GCC visibility pop
