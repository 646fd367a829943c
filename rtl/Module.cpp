#ifndef _GNU_SOURCE
#define _GNU_SOURCE
#endif
#include "rtl/Module.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <exception>
#include <memory>

#include "rtl/Exceptions.h"
#include "rtl/KeyedHandlers.h"

namespace Tarvo {

namespace {

std::string ResourceKey(const std::string& AName) {
  std::string key = AName;
  std::transform(key.begin(), key.end(), key.begin(), [](unsigned char c) { return char(std::toupper(c)); });
  return key;
}

struct TModuleRegistry {
  std::vector<std::unique_ptr<TModule>> Modules;
  TKeyedHandlers<TModule*> UnloadProcs;
  TKeyedHandlers<std::map<std::string, std::size_t>&> SizeReports;
  // While LoadModule opens a module: the first of its registrations that failed, if any.
  std::string* OpeningFailure = nullptr;

  TModule* ByBase(const void* ABase) {
    for (auto& m : Modules)
      if (m->Base() == ABase) return m.get();
    return nullptr;
  }
};

TModuleRegistry& Registry() {
  static TModuleRegistry registry;
  return registry;
}

// Runs the unload procedures with the module, forgets it and closes it.
void Close(TModule* AModule, void* AHandle) {
  TModuleRegistry& registry = Registry();
  registry.UnloadProcs.Run(AModule);
  std::erase_if(registry.Modules, [AModule](const auto& m) { return m.get() == AModule; });
  dlclose(AHandle);
}

} // namespace

TModule::TModule(const void* ABase, std::string AFileName, void* AHandle)
    : FBase(ABase), FFileName(std::move(AFileName)), FHandle(AHandle) {}

std::span<const std::byte> TModule::FindResource(const std::string& AName) const {
  const auto found = FResources.find(ResourceKey(AName));
  return found == FResources.end() ? std::span<const std::byte>() : found->second;
}

void TModule::AddResource(const std::string& AName, std::span<const std::byte> AData) {
  FResources[ResourceKey(AName)] = AData;
}

void* TModule::FindEntryPoint(const std::string& AName) const {
  // A module met by address was not opened here: look it up without opening it a second time.
  void* handle = FHandle ? FHandle : dlopen(FFileName.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (!handle) return nullptr;
  void* address = dlsym(handle, AName.c_str());
  if (handle != FHandle) dlclose(handle);
  Dl_info info{};
  return address && dladdr(address, &info) && info.dli_fbase == FBase ? address : nullptr;
}

TModule* FindModule(const void* AAddress) {
  Dl_info info{};
  if (!AAddress || !dladdr(AAddress, &info) || !info.dli_fbase) return nullptr;
  TModuleRegistry& registry = Registry();
  if (TModule* known = registry.ByBase(info.dli_fbase)) return known;
  registry.Modules.push_back(std::make_unique<TModule>(info.dli_fbase, info.dli_fname ? info.dli_fname : "", nullptr));
  return registry.Modules.back().get();
}

TModule* LoadModule(const std::string& APath) {
  TModuleRegistry& registry = Registry();
  std::string failure;
  std::string* const outer = std::exchange(registry.OpeningFailure, &failure);
  void* handle = dlopen(APath.c_str(), RTLD_NOW | RTLD_LOCAL);
  registry.OpeningFailure = outer;
  const std::string refusal = "cannot load module " + APath + ": ";
  if (!handle) {
    const char* error = dlerror();
    throw EModuleError(refusal + (error ? error : "unknown error"));
  }
  link_map* map = nullptr;
  TModule* module = nullptr;
  if (dlinfo(handle, RTLD_DI_LINKMAP, &map) == 0 && map) module = FindModule(map->l_ld);
  if (!module) {
    dlclose(handle);
    throw EModuleError(refusal + "it cannot be found among the modules after opening");
  }
  if (module->FHandle) {
    dlclose(handle); // opened before: keep one reference
  } else if (!failure.empty()) {
    Close(module, handle);
    throw EModuleError(refusal + failure);
  } else {
    module->FHandle = handle;
  }
  ++module->FLoadCount;
  return module;
}

void UnloadModule(TModule* AModule) {
  if (!AModule || !AModule->IsLoaded()) throw EModuleError("Only a module opened by LoadModule can be unloaded");
  if (--AModule->FLoadCount > 0) return;
  Close(AModule, AModule->FHandle);
}

void GuardModuleRegistration(const std::function<void()>& ARegistration) {
  std::string message;
  try {
    ARegistration();
    return;
  } catch (const std::exception& AError) {
    message = AError.what();
  } catch (...) {
    message = "an exception of an unknown type";
  }
  std::string* const failure = Registry().OpeningFailure;
  if (failure) {
    if (failure->empty()) *failure = message;
    return;
  }
  std::fprintf(stderr, "error: a registration failed at start: %s\n", message.c_str());
  std::abort();
}

int AddModuleUnloadProc(TModuleUnloadProc AProc) { return Registry().UnloadProcs.Add(std::move(AProc)); }

void RemoveModuleUnloadProc(int AKey) { Registry().UnloadProcs.Remove(AKey); }

int AddSweptRegistry(std::string AName, std::function<std::size_t()> ASize) {
  return Registry().SizeReports.Add(
      [AName = std::move(AName), ASize = std::move(ASize)](std::map<std::string, std::size_t>& ASizes) {
        ASizes[AName] += ASize();
      });
}

void RemoveSweptRegistry(int AKey) { Registry().SizeReports.Remove(AKey); }

std::map<std::string, std::size_t> SweptRegistrySizes() {
  std::map<std::string, std::size_t> sizes;
  for (const auto& module : Registry().Modules) sizes["classes"] += module->Classes().size();
  Registry().SizeReports.Run(sizes);
  return sizes;
}

std::vector<TModule*> Modules() {
  std::vector<TModule*> result;
  for (auto& m : Registry().Modules) result.push_back(m.get());
  return result;
}

TResourceRegistration::TResourceRegistration(const char* AName, const void* AData, std::size_t ASize) {
  if (TModule* module = FindModule(AData))
    module->AddResource(AName, std::span<const std::byte>(static_cast<const std::byte*>(AData), ASize));
}

} // namespace Tarvo
