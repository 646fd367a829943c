#pragma once
// What a host finds in the package by name: the table of its units and the two calls that start
// and stop them. A unit reached twice starts on the first initialisation and stops on the last
// finalisation, so hosts and tests may balance the calls as they like. A host finds the entry
// points by name in the package's module (TModule::FindEntryPoint) rather than linking to them,
// so that functions of its own with the same names cannot stand in for them.

#include "rtl/Export.h"

extern "C" {

// One unit of the package. Counter is the start-up guard: 0 while the unit is down.
struct TPackageUnitEntry {
  const char* Name;
  void (*Init)();  // nil for a unit with nothing to set up
  void (*FInit)(); // nil for a unit with nothing to tear down
  int Counter;
};

struct TPackageInfoTable {
  int UnitCount;
  TPackageUnitEntry* Units;
};

// The units in the order they start.
TARVO_API TPackageInfoTable* GetPackageInfoTable();
// Runs each unit's initialisation in table order.
TARVO_API void Initialize();
// Runs each unit's finalisation in reverse table order.
TARVO_API void Finalize();
}
