#include <algorithm>
#include <fstream>
#include <sstream>
#include <string_view>

#include "reflection/RttiTypes.h"
#include "runtime/Controls.h"
#include "runtime/DesignFileForm.h"

namespace Tarvo {

TARVO_IMPLEMENT_EXCEPTION(EDesignFileError)

using namespace DesignFile;

namespace {

template <class F> void CheckKeys(const TJson& AValue, F APlace, std::initializer_list<std::string_view> AKeys) {
  if (!AValue.is_object()) Fail(APlace() + " must be an object");
  for (auto item = AValue.begin(); item != AValue.end(); ++item)
    if (std::ranges::find(AKeys, item.key()) == AKeys.end())
      Fail(APlace() + ": unknown key \"" + EscapedUtf8(item.key()) + "\"");
}

// The published member that a dotted key names, with the object it lives on.
struct TMemberTarget {
  TObject* Object;
  TRef<IValueMemberInfo> Member;
};

// One walk over the document, by reference: the place of the component being read is a stack of
// list indexes and names, turned into text only for a message.
class TDesignReader {
public:
  explicit TDesignReader(TComponent* ARoot) : FRoot(ARoot) {}

  std::vector<TComponent*> Read(const TJson& ADesign) {
    CheckKeys(ADesign, [] { return String("The design"); }, {"components"});
    const auto components = ADesign.find("components");
    if (components == ADesign.end()) Fail("The design has no \"components\"");
    try {
      // All components first, so that a reference may name one that comes later in the file.
      CreateList(*components, dynamic_cast<TWinControl*>(FRoot));
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
  struct TLevel {
    std::size_t Index;
    std::string_view Name;
  };

  // "components[1].children[0]"
  String Place() const {
    String place = "components";
    for (const TLevel& level : FLevels)
      place += (&level == FLevels.data() ? "[" : ".children[") + std::to_string(level.Index) + "]";
    return place;
  }

  const String& TextAt(const TJson& AItem, const char* AKey) const {
    const auto found = AItem.find(AKey);
    if (found == AItem.end() || !found->is_string()) Fail(Place() + ": \"" + AKey + "\" must be given as a text");
    return Bounded(found->get_ref<const String&>(), [&] { return Place() + ": \"" + AKey + "\""; });
  }

  template <class F> static const String& Bounded(const String& AText, F AWhat) {
    if (AText.size() > MaxTextBytes)
      Fail(AWhat() + " holds " + std::to_string(AText.size()) + " bytes; a text of a design holds at most " +
           std::to_string(MaxTextBytes));
    return AText;
  }

  void CreateList(const TJson& AList, TWinControl* AParent) {
    if (!AList.is_array())
      Fail((FLevels.empty() ? String("components") : Place() + ".children") + " must be a list of components");
    if (FLevels.size() == MaxNesting && !AList.empty()) {
      std::vector<std::string_view> names;
      for (const TLevel& level : FLevels) names.push_back(level.Name);
      FailNesting(names);
    }
    FLevels.push_back({0, {}});
    for (const TJson& item : AList) {
      Create(item, AParent);
      ++FLevels.back().Index;
    }
    FLevels.pop_back();
  }

  void Create(const TJson& AItem, TWinControl* AParent) {
    CheckKeys(AItem, [this] { return Place(); }, {"class", "name", "properties", "children"});
    const String& className = TextAt(AItem, "class");
    const String& name = TextAt(AItem, "name");
    FLevels.back().Name = name;
    const TClass found = FindClass(className);
    if (!found) Fail("Unknown class " + Quoted(className) + " for component " + Quoted(name));
    if (!found->InheritsFrom(TComponent::ClassInfo()))
      Fail("Class " + Quoted(className) + " of component " + Quoted(name) + " is no component class");
    if (!IsValidIdent(name)) Fail("Invalid component name " + Quoted(name) + " at " + Place());
    if (FRoot->FindComponent(name)) Fail("Duplicate component name " + Quoted(name) + " at " + Place());

    TComponent* component = nullptr;
    try {
      component = TComponentHelper::CreateComponent(found, FRoot, FRoot->ComponentState().Contains(csDesigning), true);
    } catch (const Exception& e) {
      Fail("Cannot create component " + Quoted(name) + " of class " + Quoted(className) + ": " + e.Message());
    }
    FCreated.push_back(component);
    component->SetName(name);
    if (auto* control = dynamic_cast<TControl*>(component); control && AParent) control->SetParent(AParent);
    if (const auto properties = AItem.find("properties"); properties != AItem.end()) {
      if (!properties->is_object()) Fail(Place() + ".properties must be an object");
      FPending.push_back({component, &*properties});
    }
    if (const auto children = AItem.find("children"); children != AItem.end())
      CreateList(*children, dynamic_cast<TWinControl*>(component));
  }

  void SetProperties(const TPending& APending) {
    for (auto item = APending.Properties->begin(); item != APending.Properties->end(); ++item) {
      if (!item->is_string())
        Fail("The value of " + Quoted(item.key()) + " of component '" + APending.Component->GetName() +
             "' must be a text");
      SetProperty(APending.Component, item.key(), Bounded(item->get_ref<const String&>(), [&] {
                    return "The value of " + Quoted(item.key()) + " of component '" + APending.Component->GetName() + "'";
                  }));
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
      Fail("Invalid value " + Quoted(AText) + " for " + Quoted(AKey) + " of component '" + AComponent->GetName() +
           "': " + EscapedUtf8Excerpt(e.Message(), MaxMessageBytes));
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
        Fail("Unknown property " + Quoted(AKey) + " of component '" + AComponent->GetName() + "' (" +
             AComponent->ClassName() + ")");
      if (last) return {object, member};
      object = member->GetValue(object).AsObject();
      if (!object) {
        const std::size_t reached = names[i].data() + names[i].size() - AKey.data();
        Fail("Cannot reach " + Quoted(AKey) + " of component '" + AComponent->GetName() +
             "': " + Quoted(AKey.substr(0, reached)) + " is nil");
      }
    }
  }

  // The component of the design that AText names, as a value of AType; the empty text is nil.
  TValue Reference(PTypeInfo AType, const String& AText, TComponent* AComponent, const String& AKey) {
    if (AText.empty()) return TValue::Make(nullptr, AType);
    TComponent* component = FRoot->FindComponent(AText);
    if (!component)
      Fail("Unknown component " + Quoted(AText) + " for " + Quoted(AKey) + " of component '" + AComponent->GetName() +
           "'");
    TValue value;
    if (!TValue(static_cast<TObject*>(component)).TryCast(AType, value))
      Fail("Component " + Quoted(AText) + " is no " + AType->Name + " for " + Quoted(AKey) + " of component '" +
           AComponent->GetName() + "'");
    return value;
  }

  TComponent* FRoot;
  std::vector<TComponent*> FCreated;
  std::vector<TPending> FPending;
  std::vector<TLevel> FLevels;
};

} // namespace

std::vector<TComponent*> ReadDesign(const String& AText, TComponent* ARoot) {
  TARVO_ASSERT(ARoot != nullptr);
  const TJson design = ParseDesignText(AText);
  const TInvariantFormatScope invariant;
  return TDesignReader(ARoot).Read(design);
}

std::vector<TComponent*> ReadDesignFile(const String& APath, TComponent* ARoot) {
  std::ifstream file(APath);
  if (!file) Fail("Cannot open design file " + Quoted(APath));
  std::ostringstream text;
  text << file.rdbuf();
  try {
    return ReadDesign(text.str(), ARoot);
  } catch (const EDesignFileError& e) {
    Fail(EscapedUtf8(APath) + ": " + e.Message());
  }
}

} // namespace Tarvo
