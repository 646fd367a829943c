#include "reflection/RttiTypes.h"
#include "runtime/Controls.h"
#include "runtime/DesignFileForm.h"

namespace Tarvo {

using namespace DesignFile;

namespace {

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

String WriteDesign(TComponent* ARoot) {
  TARVO_ASSERT(ARoot != nullptr);
  const TInvariantFormatScope invariant;
  return DesignText(TDesignWriter(ARoot).Write(), ARoot->GetName());
}

} // namespace Tarvo
