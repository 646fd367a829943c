#pragma once
#pragma GCC visibility push(default)
// A registry whose entries leave with the module they refer to. The registry says, for each entry,
// whether it refers to a module; when that module unloads, those entries are erased. The sweep is
// removed again when the registry ends, so a registry that lives in a module that is itself
// unloaded leaves nothing behind.

#include <iterator>
#include <utility>

#include "rtl/Module.h"

namespace Tarvo {

// TContainer is any container std::erase_if accepts (vector, map, unordered_map, ...).
template <class TContainer> class TModuleSwept {
public:
  using TEntry = std::iter_value_t<typename TContainer::iterator>;
  using TRefersTo = bool (*)(const TEntry& AEntry, const TModule* AModule);

  // AName is the registry's name among the sizes SweptRegistrySizes reports.
  TModuleSwept(std::string AName, TRefersTo ARefersTo)
      : FKey(AddModuleUnloadProc([this, ARefersTo](TModule* AModule) {
          std::erase_if(FItems, [&](const TEntry& AEntry) { return ARefersTo(AEntry, AModule); });
        })),
        FSizeKey(AddSweptRegistry(std::move(AName), [this] { return std::size(FItems); })) {}
  TModuleSwept(const TModuleSwept&) = delete;
  TModuleSwept& operator=(const TModuleSwept&) = delete;
  ~TModuleSwept() {
    RemoveSweptRegistry(FSizeKey);
    RemoveModuleUnloadProc(FKey);
  }

  TContainer& Items() { return FItems; }
  const TContainer& Items() const { return FItems; }

private:
  TContainer FItems;
  int FKey;
  int FSizeKey;
};

// The usual question for maps keyed by class or type record: is the key the module's.
template <class TEntry> bool KeyBelongsTo(const TEntry& AEntry, const TModule* AModule) {
  return AEntry.first->Module() == AModule;
}

} // namespace Tarvo

#pragma GCC visibility pop
