#pragma once
#pragma GCC visibility push(default)
// Modules: the executable and each shared library. Classes, type records and named resources
// know the module that holds them (found by address), so that when a module goes away every
// registry can sweep out what refers to it.

#include <cstddef>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace Tarvo {

class TMetaClass;

class TModule {
public:
  TModule(const void* ABase, std::string AFileName, void* AHandle);
  TModule(const TModule&) = delete;
  TModule& operator=(const TModule&) = delete;

  const std::string& FileName() const { return FFileName; }
  // Load address of the module; the key by which addresses are mapped to it.
  const void* Base() const { return FBase; }
  // True for modules opened by LoadModule, which UnloadModule may close.
  bool IsLoaded() const { return FHandle != nullptr; }
  // How many LoadModule calls are not yet balanced by UnloadModule.
  int LoadCount() const { return FLoadCount; }

  // A named resource of this module; an empty span when there is none (names are case-insensitive).
  std::span<const std::byte> FindResource(const std::string& AName) const;
  void AddResource(const std::string& AName, std::span<const std::byte> AData);

  // The address of a function or variable that this module exports by name; nil when it exports
  // none of that name. Only this module's own exports count, not those of the libraries it uses.
  void* FindEntryPoint(const std::string& AName) const;

  // The classes this module registered, in registration order; they leave with the module.
  const std::vector<const TMetaClass*>& Classes() const { return FClasses; }
  void AddClass(const TMetaClass* AClass) { FClasses.push_back(AClass); }

private:
  friend TModule* LoadModule(const std::string&);
  friend void UnloadModule(TModule*);

  const void* FBase;
  std::string FFileName;
  void* FHandle;
  int FLoadCount = 0;
  std::map<std::string, std::span<const std::byte>> FResources; // by upper-cased name
  std::vector<const TMetaClass*> FClasses;
};

// The module that holds AAddress (code or data), registered on first sight; nil for an address
// that no module holds.
TModule* FindModule(const void* AAddress);

// Opens a shared library as a module; its static registrations run while it opens. Opening a
// module that is open already gives the same module and counts: each load is balanced by one
// UnloadModule. Raises EModuleError "cannot load module <file>: <reason>" when it cannot be
// opened, or when one of its registrations failed: then what it had registered is swept out and
// it is closed again.
TModule* LoadModule(const std::string& APath);

// Runs one of the registrations a module makes while it opens (a static initialiser, which must
// not throw). What ARegistration raises does not leave: LoadModule refuses the module with the
// first failure's message. A registration of the program itself, outside LoadModule, that fails
// ends the program with the message on the standard error.
void GuardModuleRegistration(const std::function<void()>& ARegistration);
// Balances one LoadModule. The last one runs every unload procedure with the module, then
// forgets its classes and resources and closes it; the module object is gone afterwards.
void UnloadModule(TModule* AModule);

// Procedures run when a module goes away; the key removes one again.
using TModuleUnloadProc = std::function<void(TModule*)>;
int AddModuleUnloadProc(TModuleUnloadProc AProc);
void RemoveModuleUnloadProc(int AKey);

// Every module seen so far, in the order they were met.
std::vector<TModule*> Modules();

// The registries that sweep a module's entries out as it unloads report their sizes by name, so
// that what a module leaves behind can be seen; "classes" counts the classes of every module.
int AddSweptRegistry(std::string AName, std::function<std::size_t()> ASize);
void RemoveSweptRegistry(int AKey);
std::map<std::string, std::size_t> SweptRegistrySizes();

// Names a byte blob compiled into a module; place at namespace scope in the module's source.
struct TResourceRegistration {
  TResourceRegistration(const char* AName, const void* AData, std::size_t ASize);
};

} // namespace Tarvo

#pragma GCC visibility pop
