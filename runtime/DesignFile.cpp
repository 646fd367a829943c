#include "runtime/DesignFile.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "rtl/SysUtils.h"
#include "runtime/Controls.h"

namespace Tarvo {

namespace {

// Keys keep their order: properties are set in the order the file gives them.
using TJson = nlohmann::ordered_json;

[[noreturn]] void Fail(const String& AMessage) { throw EDesignFileError(AMessage); }

// A design reads the same on every machine: numbers and dates go through the invariant settings
// for as long as a file is read or written, whatever the host set.
class TInvariantFormatScope {
public:
  TInvariantFormatScope() : FSaved(std::exchange(FormatSettings, TFormatSettings::Invariant())) {}
  ~TInvariantFormatScope() { FormatSettings = FSaved; }
  TInvariantFormatScope(const TInvariantFormatScope&) = delete;
  TInvariantFormatScope& operator=(const TInvariantFormatScope&) = delete;

private:
  TFormatSettings FSaved;
};

// A member of these types names a component of the design rather than having a text of its own.
bool RefersToComponent(PTypeInfo AType) {
  return AType->Kind == tkInterface ||
         (AType->Kind == tkClass && AType->ClassType->InheritsFrom(TComponent::ClassInfo()));
}

// Values that the members' own conversion reads back from their text.
bool HasTextForm(PTypeInfo AType) {
  return AType->IsOrdinal() || AType->IsString() || AType->Kind == tkFloat || AType->Kind == tkSet ||
         AType->Kind == tkVariant;
}

void CheckKeys(const TJson& AValue, const String& APath, std::initializer_list<std::string_view> AKeys) {
  if (!AValue.is_object()) Fail(APath + " must be an object");
  for (auto item = AValue.begin(); item != AValue.end(); ++item)
    if (std::ranges::find(AKeys, item.key()) == AKeys.end()) Fail(APath + ": unknown key \"" + item.key() + "\"");
}

String TextAt(const TJson& AItem, const char* AKey, const String& APath) {
  const auto found = AItem.find(AKey);
  if (found == AItem.end() || !found->is_string()) Fail(APath + ": \"" + AKey + "\" must be given as a text");
  return found->get<String>();
}

// The published member that a dotted key names, with the object it lives on.
struct TMemberTarget {
  TObject* Object;
  TRef<IValueMemberInfo> Member;
};

class TDesignReader {
public:
  explicit TDesignReader(TComponent* ARoot) : FRoot(ARoot) {}

  std::vector<TComponent*> Read(const TJson& ADesign) {
    CheckKeys(ADesign, "The design", {"components"});
    if (!ADesign.contains("components")) Fail("The design has no \"components\"");
    try {
      // All components first, so that a reference may name one that comes later in the file.
      CreateList(ADesign["components"], "components", dynamic_cast<TWinControl*>(FRoot));
      for (const TPending& pending : FPending) SetProperties(pending);
      for (TComponent* component : FCreated) TComponentHelper::SetIntLoading(component, false);
    } catch (...) {
      // Last made first: children go before their parents.
      for (auto component = FCreated.rbegin(); component != FCreated.rend(); ++component) TObject::Free(*component);
      throw;
    }
    return FCreated;
  }

private:
  struct TPending {
    TComponent* Component;
    const TJson* Properties;
  };

  void CreateList(const TJson& AList, const String& APath, TWinControl* AParent) {
    if (!AList.is_array()) Fail(APath + " must be a list of components");
    for (std::size_t i = 0; i < AList.size(); ++i) Create(AList[i], APath + "[" + std::to_string(i) + "]", AParent);
  }

  void Create(const TJson& AItem, const String& APath, TWinControl* AParent) {
    CheckKeys(AItem, APath, {"class", "name", "properties", "children"});
    const String className = TextAt(AItem, "class", APath);
    const String name = TextAt(AItem, "name", APath);
    const TClass found = FindClass(className);
    if (!found) Fail("Unknown class '" + className + "' for component '" + name + "'");
    if (!found->InheritsFrom(TComponent::ClassInfo()))
      Fail("Class '" + className + "' of component '" + name + "' is no component class");
    if (!IsValidIdent(name)) Fail("Invalid component name '" + name + "' at " + APath);
    if (FRoot->FindComponent(name)) Fail("Duplicate component name '" + name + "' at " + APath);

    TComponent* component = nullptr;
    try {
      component = TComponentHelper::CreateComponent(found, FRoot, FRoot->ComponentState().Contains(csDesigning), true);
    } catch (const Exception& e) {
      Fail("Cannot create component '" + name + "' of class '" + className + "': " + e.Message());
    }
    FCreated.push_back(component);
    component->SetName(name);
    if (auto* control = dynamic_cast<TControl*>(component); control && AParent) control->SetParent(AParent);
    if (const auto properties = AItem.find("properties"); properties != AItem.end()) {
      if (!properties->is_object()) Fail(APath + ".properties must be an object");
      FPending.push_back({component, &*properties});
    }
    if (const auto children = AItem.find("children"); children != AItem.end())
      CreateList(*children, APath + ".children", dynamic_cast<TWinControl*>(component));
  }

  void SetProperties(const TPending& APending) {
    for (auto item = APending.Properties->begin(); item != APending.Properties->end(); ++item) {
      if (!item->is_string())
        Fail("The value of '" + item.key() + "' of component '" + APending.Component->GetName() + "' must be a text");
      SetProperty(APending.Component, item.key(), item->get<String>());
    }
  }

  void SetProperty(TComponent* AComponent, const String& AKey, const String& AText) {
    const TMemberTarget target = Resolve(AComponent, AKey);
    const PTypeInfo type = target.Member->GetTypeInfo()->GetHandle();
    const bool reference = RefersToComponent(type);
    const TValue referenced = reference ? Reference(type, AText, AComponent, AKey) : TValue();
    try {
      if (reference) target.Member->SetValue(target.Object, referenced);
      else target.Member->SetFromString(target.Object, AText);
    } catch (const Exception& e) {
      Fail("Invalid value '" + AText + "' for '" + AKey + "' of component '" + AComponent->GetName() +
           "': " + e.Message());
    }
  }

  TMemberTarget Resolve(TComponent* AComponent, const String& AKey) {
    TObject* object = AComponent;
    const std::vector<std::string_view> names = SplitString(AKey, '.');
    for (std::size_t i = 0;; ++i) {
      const bool last = i + 1 == names.size();
      TRef<IValueMemberInfo> member;
      if (!TRttiObjectHelper::TypeInfo(object, true)->FindMember(String(names[i]), member) ||
          member->GetVisibility() != mvPublished || (!last && member->GetTypeInfo()->GetTypeKind() != tkClass))
        Fail("Unknown property '" + AKey + "' of component '" + AComponent->GetName() + "' (" +
             AComponent->ClassName() + ")");
      if (last) return {object, member};
      object = member->GetValue(object).AsObject();
      if (!object) {
        const std::size_t reached = names[i].data() + names[i].size() - AKey.data();
        Fail("Cannot reach '" + AKey + "' of component '" + AComponent->GetName() + "': '" + AKey.substr(0, reached) +
             "' is nil");
      }
    }
  }

  // The component of the design that AText names, as a value of AType; the empty text is nil.
  TValue Reference(PTypeInfo AType, const String& AText, TComponent* AComponent, const String& AKey) {
    if (AText.empty()) return TValue::Make(nullptr, AType);
    TComponent* component = FRoot->FindComponent(AText);
    if (!component)
      Fail("Unknown component '" + AText + "' for '" + AKey + "' of component '" + AComponent->GetName() + "'");
    TValue value;
    if (!TValue(static_cast<TObject*>(component)).TryCast(AType, value))
      Fail("Component '" + AText + "' is no " + AType->Name + " for '" + AKey + "' of component '" +
           AComponent->GetName() + "'");
    return value;
  }

  TComponent* FRoot;
  std::vector<TComponent*> FCreated;
  std::vector<TPending> FPending;
};

class TDesignWriter {
public:
  explicit TDesignWriter(TComponent* ARoot) : FRoot(ARoot) {}

  TJson Write() const {
    TJson list = TJson::array();
    for (Integer i = 0; i < FRoot->ComponentCount(); ++i)
      if (!WrittenUnderParent(FRoot->Components(i))) list.push_back(Component(FRoot->Components(i)));
    TJson design = TJson::object();
    design["components"] = std::move(list);
    return design;
  }

private:
  bool InDesign(const TComponent* AComponent) const { return AComponent && AComponent->Owner() == FRoot; }

  // A control of the design parented to another of the design is written among its children.
  bool WrittenUnderParent(const TComponent* AComponent) const {
    const auto* control = dynamic_cast<const TControl*>(AComponent);
    return control && InDesign(control->GetParent());
  }

  TJson Component(TComponent* AComponent) const {
    TJson item = TJson::object();
    item["class"] = AComponent->ClassName();
    item["name"] = AComponent->GetName();
    TJson properties = TJson::object();
    Properties(AComponent, String(), properties);
    if (!properties.empty()) item["properties"] = std::move(properties);
    TJson children = TJson::array();
    if (const auto* window = dynamic_cast<const TWinControl*>(AComponent))
      for (Integer i = 0; i < window->ControlCount(); ++i)
        if (InDesign(window->Controls(i))) children.push_back(Component(window->Controls(i)));
    if (!children.empty()) item["children"] = std::move(children);
    return item;
  }

  void Properties(TObject* AObject, const String& APrefix, TJson& AResult) const {
    for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(AObject, true)->GetMembers(mvsPublished)) {
      TRef<ISinglePropertyInfo> property;
      if (!Supports(member, property) || !property->GetIsReadable() || !property->GetIsStored(AObject)) continue;
      const String key = APrefix + member->GetName();
      if (key == "Name") continue; // the component's name is its item's own
      const PTypeInfo type = property->GetTypeInfo()->GetHandle();
      const TValue value = property->GetValue(AObject);
      if (RefersToComponent(type)) {
        if (const String name = ReferenceName(value); !name.empty() && property->GetIsWritable()) AResult[key] = name;
      } else if (type->Kind == tkClass) {
        if (TObject* inner = value.AsObject()) Properties(inner, key + ".", AResult);
      } else if (HasTextForm(type) && property->GetIsWritable() && !property->GetIsDefault(AObject, false)) {
        AResult[key] = value.ToString();
      }
    }
  }

  // The name of a referenced component of the design; empty for nil and for one from outside.
  String ReferenceName(const TValue& AValue) const {
    TObject* object = AValue.IsInterface() ? ObjectOf(AValue.AsInterface()) : AValue.AsObject();
    const auto* component = dynamic_cast<const TComponent*>(object);
    return InDesign(component) ? component->GetName() : String();
  }

  TComponent* FRoot;
};

} // namespace

std::vector<TComponent*> ReadDesign(const String& AText, TComponent* ARoot) {
  TARVO_ASSERT(ARoot != nullptr);
  TJson design;
  try {
    design = TJson::parse(AText);
  } catch (const TJson::parse_error& e) {
    const std::string_view detail = e.what();
    Fail("The design is no valid JSON: " + String(detail.substr(detail.find("] ") + 2)));
  }
  const TInvariantFormatScope invariant;
  return TDesignReader(ARoot).Read(design);
}

std::vector<TComponent*> ReadDesignFile(const String& APath, TComponent* ARoot) {
  std::ifstream file(APath);
  if (!file) Fail("Cannot open design file '" + APath + "'");
  std::ostringstream text;
  text << file.rdbuf();
  try {
    return ReadDesign(text.str(), ARoot);
  } catch (const EDesignFileError& e) {
    Fail(APath + ": " + e.Message());
  }
}

String WriteDesign(TComponent* ARoot) {
  TARVO_ASSERT(ARoot != nullptr);
  const TInvariantFormatScope invariant;
  try {
    return TDesignWriter(ARoot).Write().dump(2) + "\n";
  } catch (const TJson::type_error&) {
    Fail("The design of '" + ARoot->GetName() + "' holds a text that is no valid UTF-8");
  }
}

} // namespace Tarvo
