#pragma once
// The package started, the sample module loaded and the bundled design read into a root, with a
// host designer over it: what every host test stands on. Taken down in reverse order.

#include <optional>

#include "host/headless/HostDesigner.h"
#include "host/headless/PackageScope.h"
#include "reflection/RttiTypes.h"
#include "rtl/Module.h"
#include "runtime/DesignFile.h"

namespace Tarvo::Testing {

class TSampleSession {
public:
  TSampleSession() {
    FPackage.emplace();
    FModule = LoadModule(TARVO_SAMPLES_MODULE_PATH);
    FRoot.reset(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
    ReadDesignFile(TARVO_SAMPLE_DESIGN, FRoot.get());
    FDesigner = New<THostDesigner>(FRoot.get());
  }
  ~TSampleSession() {
    FDesigner = nullptr;
    FRoot.reset();
    UnloadModule(FModule);
    FPackage.reset();
  }
  TSampleSession(const TSampleSession&) = delete;
  TSampleSession& operator=(const TSampleSession&) = delete;

  void Select(std::initializer_list<const char*> ANames) {
    const TRef<IObjectArrayList> selection = New<TObjectArrayList>();
    for (const char* name : ANames) selection->Add(Component(name));
    FDesigner->SetSelection(selection);
  }
  TComponent* Component(const char* AName) const { return FRoot->FindComponent(AName); }
  // The member's text on the named component, through its own conversion.
  String Text(const char* AComponent, const char* AMember) const;
  const TRef<THostDesigner>& Designer() const { return FDesigner; }
  TComponent* Root() const { return FRoot.get(); }

private:
  std::optional<TPackageScope> FPackage;
  TModule* FModule = nullptr;
  TOwnedObject<TComponent> FRoot;
  TRef<THostDesigner> FDesigner;
};

inline String TSampleSession::Text(const char* AComponent, const char* AMember) const {
  TObject* object = Component(AComponent);
  TRef<IValueMemberInfo> member;
  if (!TRttiObjectHelper::TypeInfo(object, true)->FindMember(AMember, member)) return "<no member>";
  return member->GetValue(object).ToString();
}

} // namespace Tarvo::Testing
