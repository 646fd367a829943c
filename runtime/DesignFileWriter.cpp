#include "reflection/RttiTypes.h"
#include "runtime/Controls.h"
#include "runtime/DesignFileForm.h"

namespace Tarvo {

using namespace DesignFile;

namespace {

// Each component's item is filled in place in its list, and the names of the components above it
// are the only state that grows with the depth.
class TDesignWriter {
public:
  explicit TDesignWriter(TComponent* ARoot) : FRoot(ARoot) {}

  // How deep the components of the last Write nest.
  std::size_t Deepest() const { return FDeepest; }

  TJson Write() {
    TJson design = TJson::object();
    TJson& list = design["components"] = TJson::array();
    for (Integer i = 0; i < FRoot->ComponentCount(); ++i)
      if (!WrittenUnderParent(FRoot->Components(i))) Component(FRoot->Components(i), list);
    return design;
  }

private:
  bool InDesign(const TComponent* AComponent) const { return AComponent && AComponent->Owner() == FRoot; }

  // A control of the design parented to another of the design is written among its children.
  bool WrittenUnderParent(const TComponent* AComponent) const {
    const auto* control = dynamic_cast<const TControl*>(AComponent);
    return control && InDesign(control->GetParent());
  }

  // Appends the item of AComponent, with its children, to AList.
  void Component(TComponent* AComponent, TJson& AList) {
    if (FNames.size() == MaxNesting) FailNesting(FNames);
    TJson& item = AList.emplace_back(TJson::object());
    item["class"] = AComponent->ClassName();
    item["name"] = AComponent->GetName();
    TJson properties = TJson::object();
    Properties(AComponent, AComponent, String(), properties);
    if (!properties.empty()) item["properties"] = std::move(properties);
    const auto* window = dynamic_cast<const TWinControl*>(AComponent);
    if (!window) return;
    FNames.push_back(AComponent->GetName());
    FDeepest = std::max(FDeepest, FNames.size());
    TJson children = TJson::array();
    for (Integer i = 0; i < window->ControlCount(); ++i)
      if (InDesign(window->Controls(i))) Component(window->Controls(i), children);
    if (!children.empty()) item["children"] = std::move(children);
    FNames.pop_back();
  }

  // The members of AObject, AComponent itself or an object of one of its members.
  void Properties(const TComponent* AComponent, TObject* AObject, const String& APrefix, TJson& AResult) const {
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
        if (TObject* inner = value.AsObject()) Properties(AComponent, inner, key + ".", AResult);
      } else if (HasTextForm(type) && property->GetIsWritable() && !property->GetIsDefault(AObject, false)) {
        String text = value.ToString();
        if (!IsValidUtf8(text))
          Fail("The text " + Quoted(text) + " of '" + key + "' of component '" + AComponent->GetName() +
               "' is no valid UTF-8");
        AResult[key] = std::move(text);
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
  std::vector<std::string_view> FNames;
  std::size_t FDeepest = 0;
};

} // namespace

String WriteDesign(TComponent* ARoot) {
  TARVO_ASSERT(ARoot != nullptr);
  const TInvariantFormatScope invariant;
  TDesignWriter writer(ARoot);
  const TJson design = writer.Write();
  return DesignText(design, ARoot->GetName(), writer.Deepest() <= IndentedNesting);
}

} // namespace Tarvo
