#include "package/PackageEntry.h"

#include <iterator>

#include "package/DesignUnit.h"

namespace {

// The package's units in start-up order. Units without set-up keep only their guard.
TPackageUnitEntry GUnits[] = {
    {"Tarvo.VCL.BasicInplaceFormUnit", nullptr, nullptr, 0},
    {"Tarvo.VCL.RangedInplaceFormUnit", nullptr, nullptr, 0},
    {"Tarvo.VCL.ColorInplaceFormUnit", nullptr, nullptr, 0},
    {"Tarvo.VCL.EnumCanvasInplaceFormUnit", nullptr, nullptr, 0},
    {"Tarvo.Design", Tarvo::InitializeDesignUnit, Tarvo::FinalizeDesignUnit, 0},
};

TPackageInfoTable GPackageInfo = {static_cast<int>(std::size(GUnits)), GUnits};

} // namespace

extern "C" {

TPackageInfoTable* GetPackageInfoTable() { return &GPackageInfo; }

void Initialize() {
  for (TPackageUnitEntry& unit : GUnits)
    if (--unit.Counter == -1 && unit.Init) unit.Init();
}

void Finalize() {
  for (auto unit = std::rbegin(GUnits); unit != std::rend(GUnits); ++unit)
    if (++unit->Counter == 0 && unit->FInit) unit->FInit();
}
}
