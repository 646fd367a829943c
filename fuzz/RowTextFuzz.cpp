// Every row of every sample component, written with any text through the editor the package
// chooses for it. The input picks a component of the bundled design (and maybe a second one of
// its class), a row, perhaps a sub-row and a sub-row of that (only the rows on the way are
// expanded, which keeps a run fast), and the text. Afterwards the text
// was taken, or it was refused, by the editor (EDesignPropertyError), by a conversion
// (EConvertError, or EVariantError where a variant is cast) or by a component (EComponentError: a
// name), and every member of the last selected object reads as before (the objects are written in
// order, and those written before the one that refused stay written); any other exception, a fault
// or a leak is a finding.

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

// The row that AChoices lead to: the first picks a top row, each further one with its low bit set
// goes down to the child its other bits pick. Nil when a choice picks a row that is not shown.
TGridRow* PickRow(TGridRows& ARows, const uint8_t* AChoices, std::size_t ACount) {
  std::vector<TGridRow*> candidates;
  for (const auto& top : ARows.Top()) candidates.push_back(top.get());
  TGridRow* row = nullptr;
  for (std::size_t i = 0; i < ACount; ++i) {
    if (i > 0) {
      if (!(AChoices[i] & 1) || !row->Expandable) break;
      ARows.Expand(*row);
      candidates.clear();
      for (const auto& child : row->Children) candidates.push_back(child.get());
    }
    if (candidates.empty()) break;
    row = candidates[(i == 0 ? AChoices[i] : AChoices[i] >> 1) % candidates.size()];
    if (!ARows.Prepare(*row)) return nullptr;
  }
  return row;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* AArgc, char*** AArgv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Taken down at exit in reverse order: the module, the package, the application.
  static QApplication application(*AArgc, *AArgv);
  static const TPackageScope package;
  static TModulesScope modules;
  modules.Load(TARVO_SAMPLES_MODULE_PATH);
  std::ostringstream design;
  design << std::ifstream(TARVO_SAMPLE_DESIGN_PATH).rdbuf();
  GDesign = design.str();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* AData, size_t ASize) {
  constexpr std::size_t Choices = 3;
  if (ASize < 2 + Choices) return 0;
  const TOwnedObject<TComponent> root(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  ReadDesign(GDesign, root.get());
  const TRef<THostDesigner> designer = New<THostDesigner>(root.get());
  const TRef<IObjectArrayList> selection = Selection(root.get(), AData[0], AData[1]);
  designer->SetSelection(selection);
  TGridRows rows;
  rows.SetDesigner(designer);
  rows.Rebuild();
  TGridRow* const picked = PickRow(rows, AData + 2, Choices);
  if (!picked || !picked->Property || picked->ReadOnly) return 0;
  TGridRow& row = *picked;
  const String text(reinterpret_cast<const char*>(AData + 2 + Choices), ASize - 2 - Choices);

  const TRef<IObjectArrayList> last = New<TObjectArrayList>()->Add(selection->GetItem(selection->GetCount() - 1));
  std::vector<TMemberSnapshot> before;
  for (const auto& top : rows.Top())
    if (top->Member) before.emplace_back(last, top->Member->GetName());
  try {
    row.Property->SetStringValue(text);
  } catch (const Exception& e) {
    if (!dynamic_cast<const EDesignPropertyError*>(&e) && !dynamic_cast<const EConvertError*>(&e) &&
        !dynamic_cast<const EVariantError*>(&e) && !dynamic_cast<const EComponentError*>(&e))
      throw;
    for (const TMemberSnapshot& snapshot : before)
      if (snapshot.Differs(snapshot.Retake())) {
        std::fprintf(stderr, "a refused text changed the last object: %s\n", e.Message().c_str());
        std::abort();
      }
  }
  return 0;
}
