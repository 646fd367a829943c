#include "design/reflection/DesignComponents.h"

#include <algorithm>
#include <map>

#include "rtl/Module.h"

namespace Tarvo {

// ---- Member categories ----

TARVO_IMPLEMENT_CLASS(TMemberCategory)
TARVO_IMPLEMENT_MEMBER_CATEGORY(TVisualMemberCategory, "Visual")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TLayoutMemberCategory, "Layout")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TBehaviorMemberCategory, "Behavior")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TActionMemberCategory, "Action")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TDragDropMemberCategory, "Drag, Drop and Docking")
TARVO_IMPLEMENT_MEMBER_CATEGORY(THelpMemberCategory, "Help and Hints")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TInputMemberCategory, "Input")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TLinkageMemberCategory, "Linkage")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TLocalizableMemberCategory, "Localizable")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TMiscellaneousMemberCategory, "Miscellaneous")

TARVO_IMPLEMENT_CLASS(TMemberCategoryAttribute)

TRef<IMemberCategory> CreateMemberCategory(TMemberCategoryClass AClass) {
  TARVO_ASSERT(AClass);
  return TRef<IMemberCategory>(AClass.Create());
}

// ---- Component classes ----

namespace {

// Hooks by key; the key order is the order they were added in.
using THooks = std::map<int, TProc<TClass>>;

struct TRegisteredComponent {
  String Page;
  TClass Class;
};

struct TComponentRegistry {
  std::vector<TRegisteredComponent> Components;
  THooks Procedures;
  THooks Notifies;
  int NextKey = 1;

  TComponentRegistry() {
    AddModuleUnloadProc([this](TModule* AModule) {
      std::erase_if(Components, [AModule](const TRegisteredComponent& AEntry) { return AEntry.Class->Module() == AModule; });
    });
  }

  const TRegisteredComponent* Find(TClass AClass) const {
    const auto found = std::ranges::find(Components, AClass, &TRegisteredComponent::Class);
    return found == Components.end() ? nullptr : &*found;
  }
};

TComponentRegistry& ComponentRegistry() {
  static TComponentRegistry registry;
  return registry;
}

// Runs the hooks present now, so that a hook may add or remove hooks.
void RunHooks(const THooks& AHooks, TClass AClass) {
  const THooks hooks = AHooks;
  for (const auto& [key, hook] : hooks) hook(AClass);
}

int AddHook(THooks& AHooks, TProc<TClass> AHook) {
  TComponentRegistry& registry = ComponentRegistry();
  const int key = registry.NextKey++;
  AHooks.emplace(key, AHook);
  // Catch up on the classes registered before; one that the hook registers meanwhile is
  // announced to it by that registration. A hook that fails here is not kept, since its caller
  // never gets the key to remove it.
  std::vector<TClass> earlier;
  for (const TRegisteredComponent& entry : registry.Components) earlier.push_back(entry.Class);
  try {
    for (TClass componentClass : earlier) AHook(componentClass);
  } catch (...) {
    AHooks.erase(key);
    throw;
  }
  return key;
}

} // namespace

void RegisterComponents(const String& APage, const std::vector<TClass>& AClasses) {
  TComponentRegistry& registry = ComponentRegistry();
  for (TClass componentClass : AClasses) {
    TARVO_ASSERT(componentClass != nullptr);
    if (registry.Find(componentClass)) continue;
    registry.Components.push_back({APage, componentClass});
    RunHooks(registry.Procedures, componentClass);
    RunHooks(registry.Notifies, componentClass);
  }
}

TRef<IArrayList<TClass>> GetRegisteredComponents() {
  const TRef<IArrayList<TClass>> result = New<TArrayList<TClass>>();
  for (const TRegisteredComponent& entry : ComponentRegistry().Components) result->Add(entry.Class);
  return result;
}

String GetComponentPage(TClass AClass) {
  const TRegisteredComponent* entry = ComponentRegistry().Find(AClass);
  return entry ? entry->Page : String();
}

int RegisterComponentRegisteredNotify(TProc<TClass> ANotify) {
  return AddHook(ComponentRegistry().Notifies, std::move(ANotify));
}

void UnregisterComponentRegisteredNotify(int AKey) { ComponentRegistry().Notifies.erase(AKey); }

int AddComponentRegistrationProcedure(TProc<TClass> AProcedure) {
  return AddHook(ComponentRegistry().Procedures, std::move(AProcedure));
}

void RemoveComponentRegistrationProcedure(int AKey) { ComponentRegistry().Procedures.erase(AKey); }

String GetClassNameBase(TClass AClass) {
  if (!AClass) return String();
  const String name = AClass->ClassName();
  // A class named "T" alone keeps its name rather than giving an empty base.
  return name.size() > 1 && name[0] == 'T' ? name.substr(1) : name;
}

String GetClassNameBase(TObject* AObject) { return AObject ? GetClassNameBase(AObject->ClassType()) : String(); }

// ---- Dynamic elements ----

namespace {

struct TDynamicElement {
  TClass Base;
  TClass Element;
  bool operator==(const TDynamicElement&) const = default;
};

struct TDynamicElementRegistry {
  std::vector<TDynamicElement> Elements;

  TDynamicElementRegistry() {
    AddModuleUnloadProc([this](TModule* AModule) {
      std::erase_if(Elements, [AModule](const TDynamicElement& AEntry) {
        return AEntry.Base->Module() == AModule || AEntry.Element->Module() == AModule;
      });
    });
  }
};

TDynamicElementRegistry& DynamicElementRegistry() {
  static TDynamicElementRegistry registry;
  return registry;
}

} // namespace

void RegisterDynamicElement(TClass ABase, TClass AElementClass) {
  // A member of type ABase could not hold an element of any other class.
  TARVO_ASSERT(ABase != nullptr && AElementClass != nullptr && AElementClass->InheritsFrom(ABase));
  std::vector<TDynamicElement>& elements = DynamicElementRegistry().Elements;
  const TDynamicElement element{ABase, AElementClass};
  if (std::ranges::find(elements, element) == elements.end()) elements.push_back(element);
}

TRef<IArrayList<TClass>> GetDynamicElementsFor(TClass ABase) {
  const TRef<IArrayList<TClass>> result = New<TArrayList<TClass>>();
  if (!ABase) return result;
  for (const TDynamicElement& entry : DynamicElementRegistry().Elements)
    if (ABase->InheritsFrom(entry.Base) && entry.Element->InheritsFrom(ABase)) result->AddUnique(entry.Element);
  return result;
}

} // namespace Tarvo
