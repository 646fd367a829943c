#include "tests/support/ModuleCycle.h"

#include "host/grid/GridRows.h"
#include "host/headless/HostDesigner.h"
#include "reflection/ComponentRegistration.h"
#include "rtl/Module.h"

namespace Tarvo::Testing {

namespace {

// Builds and reads every row of the component, and writes the first writable row's text back
// through its editor: a real write, that ends in the designer's Modified.
Integer UseRows(const TRef<THostDesigner>& ADesigner, TComponent* AComponent) {
  TObject* selected[] = {AComponent};
  ADesigner->SetSelection(selected);
  TGridRows rows;
  rows.SetDesigner(ADesigner);
  rows.Rebuild();
  rows.ExpandAll(3);
  Integer count = 0;
  TGridRow* writable = nullptr;
  for (TGridRow* row : rows.Shown()) {
    if (!rows.Prepare(*row)) continue;
    ++count;
    if (!writable && row->Property && !row->ReadOnly && row->Depth == 0) writable = row;
  }
  if (writable) writable->Property->SetStringValue(writable->Value);
  return count;
}

} // namespace

Integer RunModuleCycle(const String& AModulePath) {
  TModule* module = LoadModule(AModulePath);
  Integer count = 0;
  {
    const TOwnedObject<TComponent> root(
        TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
    for (const TClass componentClass : GetRegisteredComponents()->ToArray()) {
      if (componentClass->Module() != module) continue;
      TComponent* component =
          TComponentHelper::CreateComponent(TComponentClass(componentClass), root.get(), true, false);
      component->SetName(root->UniqueComponentName(String(componentClass->ClassName()).substr(1)));
    }
    const TRef<THostDesigner> designer = New<THostDesigner>(root.get());
    for (Integer i = 0; i < root->ComponentCount(); ++i) count += UseRows(designer, root->Components(i));
  }
  UnloadModule(module);
  return count;
}

std::map<std::string, std::size_t> RegistrySizes() {
  std::map<std::string, std::size_t> sizes = SweptRegistrySizes();
  std::erase_if(sizes, [](const auto& AEntry) { return AEntry.second == 0; });
  return sizes;
}

} // namespace Tarvo::Testing
