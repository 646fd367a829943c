// Every row of every sample component, written with any text through the editor the package
// chooses for it. The input picks a component of the bundled design (and maybe a second one of
// its class), a row among the writable ones with their sub-rows, and the text. Afterwards the text
// was taken, or EDesignPropertyError or EConvertError was raised and every member of every
// selected object reads as before; any other exception, a fault or a leak is a finding.

#include <QApplication>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "host/grid/GridRows.h"
#include "host/grid/MemberSnapshot.h"
#include "host/headless/HostDesigner.h"
#include "host/headless/Modules.h"
#include "host/headless/PackageScope.h"
#include "runtime/DesignFile.h"

using namespace Tarvo;

namespace {

String GDesign;

TRef<IObjectArrayList> Selection(TComponent* ARoot, uint8_t AFirst, uint8_t ASecond) {
  const TRef<IObjectArrayList> selection = New<TObjectArrayList>();
  TComponent* first = ARoot->Components(AFirst % ARoot->ComponentCount());
  selection->Add(first);
  if (ASecond % 2 == 0) return selection;
  for (Integer i = 0; i < ARoot->ComponentCount(); ++i)
    if (TComponent* other = ARoot->Components((AFirst + 1 + i) % ARoot->ComponentCount());
        other != first && other->ClassType() == first->ClassType()) {
      selection->Add(other);
      break;
    }
  return selection;
}

std::vector<TGridRow*> WritableRows(TGridRows& ARows) {
  std::vector<TGridRow*> writable;
  for (TGridRow* row : ARows.Shown())
    if (ARows.Prepare(*row) && row->Property && !row->ReadOnly) writable.push_back(row);
  return writable;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* AArgc, char*** AArgv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  new QApplication(*AArgc, *AArgv);
  new TPackageScope;
  (new TModulesScope)->Load(TARVO_SAMPLES_MODULE_PATH);
  std::ostringstream design;
  design << std::ifstream(TARVO_SAMPLE_DESIGN_PATH).rdbuf();
  GDesign = design.str();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* AData, size_t ASize) {
  if (ASize < 3) return 0;
  const TOwnedObject<TComponent> root(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  ReadDesign(GDesign, root.get());
  const TRef<THostDesigner> designer = New<THostDesigner>(root.get());
  const TRef<IObjectArrayList> selection = Selection(root.get(), AData[0], AData[1]);
  designer->SetSelection(selection);
  TGridRows rows;
  rows.SetDesigner(designer);
  rows.Rebuild();
  rows.ExpandAll(2);
  const std::vector<TGridRow*> writable = WritableRows(rows);
  if (writable.empty()) return 0;
  TGridRow& row = *writable[AData[2] % writable.size()];
  const String text(reinterpret_cast<const char*>(AData + 3), ASize - 3);

  std::vector<TMemberSnapshot> before;
  for (const auto& top : rows.Top())
    if (top->Member) before.emplace_back(selection, top->Member->GetName());
  try {
    row.Property->SetStringValue(text);
  } catch (const Exception& e) {
    if (!dynamic_cast<const EDesignPropertyError*>(&e) && !dynamic_cast<const EConvertError*>(&e)) throw;
    for (const TMemberSnapshot& snapshot : before)
      if (snapshot.Differs(snapshot.Retake())) {
        std::fprintf(stderr, "a refused text changed the objects: %s\n", e.Message().c_str());
        std::abort();
      }
  }
  return 0;
}
