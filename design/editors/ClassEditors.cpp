#include "design/editors/ClassEditors.h"

#include <map>
#include <unordered_set>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "reflection/ClassAttributes.h"
#include "reflection/DynamicElements.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "reflection/StringAttributes.h"
#include "runtime/DynamicElement.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TClassPropertyEditor)
TARVO_IMPLEMENT_CLASS(TComponentPropertyEditor)
TARVO_IMPLEMENT_CLASS(TDynamicElementPropertyEditor)
TARVO_IMPLEMENT_CLASS(TInterfacePropertyEditor)

// The registry's answers for the sub-members of objects of one class are the same: a walk over many
// selected objects asks once a member and class.
class TSubEditorClasses {
public:
  TMemberEditorClass Of(const TRef<IMemberInfo>& AMember, TObject* AObject) {
    const auto key = std::make_pair(AMember.get(), AObject->ClassType());
    if (const auto found = FClasses.find(key); found != FClasses.end()) return found->second;
    TRef<IArrayList<TMemberEditorClass>> classes;
    const TMemberEditorClass first = GetMemberEditorClasses(AMember, AObject, classes) && classes->GetCount() > 0
                                         ? classes->GetItem(0)
                                         : TMemberEditorClass();
    return FClasses[key] = first;
  }

private:
  std::map<std::pair<IMemberInfo*, TClass>, TMemberEditorClass> FClasses;
};

namespace {

const char* const NoneText = "(none)";

// The objects whose summary is being built, across the editors a summary builds for its sub-rows:
// an object met again on the way (one that refers to itself) adds nothing.
std::unordered_set<TObject*> GObjectsOnSummaryWalk;

class TSummaryWalkScope {
public:
  explicit TSummaryWalkScope(TObject* AObject) : FObject(AObject), FEntered(GObjectsOnSummaryWalk.insert(AObject).second) {}
  ~TSummaryWalkScope() {
    if (FEntered) GObjectsOnSummaryWalk.erase(FObject);
  }
  TSummaryWalkScope(const TSummaryWalkScope&) = delete;
  TSummaryWalkScope& operator=(const TSummaryWalkScope&) = delete;
  Boolean Entered() const { return FEntered; }

private:
  TObject* FObject;
  Boolean FEntered;
};

TRef<IClassTypeInfo> ClassTypeOf(const TRef<IMemberInfo>& AMember) {
  TRef<IClassTypeInfo> type;
  if (AMember) Supports(AMember->GetTypeInfo(), type);
  return type;
}

Boolean IsProperty(const TRef<IMemberInfo>& AMember) {
  return Supports<IPropertyInfo>(AMember) || Supports<ISinglePropertyInfo>(AMember);
}

// The editor the registry gives AMember on AObject, built on that object alone; nil when none.
TRef<IMemberEditor> EditorOn(const TRef<IMemberInfo>& AMember, TObject* AObject, const TRef<IDesigner>& ADesigner,
                             TSubEditorClasses& AClasses) {
  const TMemberEditorClass editorClass = AClasses.Of(AMember, AObject);
  if (!editorClass) return nullptr;
  return TRef<IMemberEditor>(editorClass.Create(AObject, nullptr, ADesigner, nullptr, AMember->GetName(), AMember));
}

// The same, when it is a property editor that shows.
TRef<IPropertyEditor> VisiblePropertyEditorOn(const TRef<IMemberInfo>& AMember, TObject* AObject,
                                              const TRef<IDesigner>& ADesigner, TSubEditorClasses& AClasses) {
  TRef<IPropertyEditor> editor;
  const TRef<IMemberEditor> built = EditorOn(AMember, AObject, ADesigner, AClasses);
  if (!built || !built->GetIsVisible() || !Supports(built, editor)) return nullptr;
  return editor;
}

TRef<IObjectArrayList> ListOf(TObject* AObject) { return New<TObjectArrayList>()->Add(AObject); }

// An element class by its NameAttribute, else by its class name.
String ElementName(TClass AClass) {
  TCustomAttribute* name = nullptr;
  if (TRttiObjectHelper::ClassTypeInfo(AClass)->GetCustomAttribute(NameAttribute::ClassInfo(), name))
    return static_cast<NameAttribute*>(name)->Name();
  return AClass->ClassName();
}

} // namespace

// ---- TClassPropertyEditor ----

TClassPropertyEditor::~TClassPropertyEditor() {
  if (FModifyNotifier) FDesigner->RemoveSelectionChangeNotify(FModifyNotifier);
}

void TClassPropertyEditor::InitCreate(TSinglePropertyEditor* AInstance) {
  inherited::InitCreate(AInstance);
  if (FDesigner) {
    // The notifier outlives nothing of ours: the destructor takes it back from the designer.
    FModifyNotifier = New<TSelectionChangeNotifier>()->SetOnModified([this] {
      FIsDefaults = nullptr;
      FStringValues = nullptr;
    });
    FDesigner->AddSelectionChangeNotify(FModifyNotifier);
  }
  FStringAccessProperty = nullptr;
  if (const TRef<IClassTypeInfo> type = ClassTypeOf(GetFirstMember()))
    for (const TRef<IMemberInfo>& member : type->GetMembers(mvsAll))
      if (member->HasCustomAttribute(StringDesignAccessAttribute::ClassInfo()) &&
          Supports(member, FStringAccessProperty))
        break;
}

Boolean TClassPropertyEditor::GetIsExpandable() {
  const TRef<IMemberInfo> member = GetFirstMember();
  const TRef<ITypeInfo> type = member ? member->GetTypeInfo() : nullptr;
  return type && !type->HasCustomAttribute(NotExpandableClassAttribute::ClassInfo());
}

TObject* TClassPropertyEditor::FirstValueObject() {
  const TRef<IValueArrayList> values = GetInstanceValues(nullptr);
  return values->GetCount() > 0 ? values->GetItem(0).AsObject() : nullptr;
}

Boolean TClassPropertyEditor::GetSubMembers(TRef<IMembersInfo>& AResult, Boolean APublishedPropertiesOnly) {
  if (FSubMembers) {
    AResult = FSubMembers;
    return true;
  }
  FSubMembers = New<TMembersInfo>();
  AResult = FSubMembers;
  const TMemberVisibilities mask = APublishedPropertiesOnly ? mvsPublished : mvsPublicAndPublished;
  const TRef<IClassTypeInfo> declared = ClassTypeOf(GetFirstMember());
  TObject* object = FirstValueObject();
  TRef<IClassTypeInfo> listed;
  if (!object) {
    if (!declared || declared->GetClass()->InheritsFrom(TComponent::ClassInfo())) return true;
    listed = declared;
  } else {
    // A reference to a component never expands here: the component has its own rows.
    if (object->InheritsFrom(TComponent::ClassInfo())) return true;
    listed = TRttiObjectHelper::TypeInfo(object, true);
  }
  std::unordered_set<String> names;
  for (const TRef<IMemberInfo>& member : listed->GetMembers(mask))
    if (IsProperty(member) && names.insert(member->GetName()).second) FSubMembers->Add(member);
  if (!APublishedPropertiesOnly)
    for (const TRef<IMemberInfo>& field : listed->GetFields())
      if (VisibilityBit(field->GetVisibility()) & mvsPublicAndPublished) FSubMembers->Add(field);
  return true;
}

String TClassPropertyEditor::SummaryOf(TObject* AObject) {
  if (FStringAccessProperty) return AObject ? FStringAccessProperty->GetValue(AObject).ToString() : String();
  if (!AObject) return String();
  const TSummaryWalkScope walk(AObject);
  TRef<IMembersInfo> members;
  if (!walk.Entered() || !GetSubMembers(members, true)) return String();
  String text;
  Boolean first = true;
  TSubEditorClasses classes;
  for (const TRef<IMemberInfo>& member : members) {
    if (member->GetVisibility() != mvPublished) continue;
    const TRef<IPropertyEditor> editor = VisiblePropertyEditorOn(member, AObject, FDesigner, classes);
    String nested;
    if (!editor || !editor->GetDisplayNested(nested, ListOf(AObject))) continue;
    text += (first ? "" : ",") + nested;
    first = false;
  }
  return "(" + text + ")";
}

TRef<IStringArrayList> TClassPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  if (!FStringAccessProperty && FStringValues) return FStringValues;
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  const TRef<IValueArrayList> values = GetInstanceValues(AObjectsList);
  // The row summarises one object: the first.
  if (values->GetCount() > 0) result->Add(SummaryOf(values->GetItem(0).AsObject()));
  FStringValues = result;
  return result;
}

Boolean TClassPropertyEditor::IsDefaultObject(TObject* AObject, TSubEditorClasses& AClasses) {
  if (!AObject) return true;
  if (FStringAccessProperty) return FStringAccessProperty->GetIsDefault(AObject, true);
  TRef<IMembersInfo> members;
  if (!GetSubMembers(members, true)) return true;
  for (const TRef<IMemberInfo>& member : members) {
    if (member->GetVisibility() != mvPublished) continue;
    const TRef<IPropertyEditor> editor = VisiblePropertyEditorOn(member, AObject, FDesigner, AClasses);
    if (editor && !editor->GetIsDefaults(ListOf(AObject))->GetItem(0)) return false;
  }
  return true;
}

TRef<IArrayList<Boolean>> TClassPropertyEditor::GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) {
  if (FIsDefaults) return FIsDefaults;
  const TRef<IArrayList<Boolean>> result = New<TArrayList<Boolean>>();
  TSubEditorClasses classes;
  for (const TValue& value : GetInstanceValues(AObjectsList)) result->Add(IsDefaultObject(value.AsObject(), classes));
  FIsDefaults = result;
  return result;
}

Boolean TClassPropertyEditor::GetHasDefault() {
  return FStringAccessProperty ? FStringAccessProperty->GetHasDefault() : inherited::GetHasDefault();
}

Boolean TClassPropertyEditor::GetIsReadOnly() {
  return !FStringAccessProperty || !FStringAccessProperty->GetIsWritable();
}

void TClassPropertyEditor::SetStringValue(const String& AValue) {
  if (!FStringAccessProperty) return;
  TObject* object = FirstValueObject();
  if (!object) return;
  FStringAccessProperty->SetFromString(object, AValue);
  Modified();
}

void TClassPropertyEditor::ResetValue() {
  if (!FStringAccessProperty) return;
  TObject* object = FirstValueObject();
  if (!object) return;
  FStringAccessProperty->SetValue(object, FStringAccessProperty->GetDefault(object));
  Modified();
}

Boolean TClassPropertyEditor::GetIsVisible() {
  if (!GetFirstMember()->HasCustomAttribute(HideEmptyAttribute::ClassInfo(), true)) return TMemberEditor::GetIsVisible();
  TRef<IMembersInfo> members;
  if (!GetSubMembers(members, true)) return false;
  TObject* object = FirstValueObject();
  if (!object) return TMemberEditor::GetIsVisible();
  TSubEditorClasses classes;
  for (const TRef<IMemberInfo>& member : members)
    if (const TRef<IMemberEditor> editor = EditorOn(member, object, FDesigner, classes); editor && editor->GetIsVisible())
      return TMemberEditor::GetIsVisible();
  return false;
}

TObject* TClassPropertyEditor::GetValueForRootInstance(TObject* AObject) {
  if (FParentEditor) AObject = FParentEditor->GetValueForRootInstance(AObject);
  return GetValueForDirectInstance(AObject);
}

TObject* TClassPropertyEditor::GetValueForDirectInstance(TObject* AObject) {
  TRef<IValueMemberInfo> member;
  if (!AObject || !Supports(GetFirstMember(), member)) return nullptr;
  return member->GetValue(AObject).AsObject();
}

// ---- TComponentPropertyEditor ----

TRef<IStringArrayList> TComponentPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) {
    const auto* component = dynamic_cast<const TComponent*>(value.AsObject());
    result->Add(component ? component->GetName() : String(NoneText));
  }
  return result;
}

void TComponentPropertyEditor::SetStringValue(const String& AValue) {
  TComponent* component = FDesigner->GetComponent(AValue);
  // Typed as what it is, so that a component of another class than the member's is refused.
  SetInstanceValues(TValue::From(component));
}

TRef<IStringArrayList> TComponentPropertyEditor::GetStringListValues() { return FDesigner->GetComponentNames(); }

// ---- TDynamicElementPropertyEditor ----

TRef<IArrayList<TClass>> TDynamicElementPropertyEditor::ElementClasses() {
  const TRef<IClassTypeInfo> type = ClassTypeOf(GetFirstMember());
  return GetDynamicElementsFor(type ? type->GetClass() : nullptr);
}

TRef<IStringArrayList> TDynamicElementPropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TClass elementClass : ElementClasses()) result->Add(ElementName(elementClass));
  return result;
}

TRef<IStringArrayList> TDynamicElementPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) {
    const TObject* element = value.AsObject();
    result->Add(element ? ElementName(element->ClassType()) : String(NoneText));
  }
  return result;
}

void TDynamicElementPropertyEditor::SetStringValue(const String& AValue) {
  TClass chosen = nullptr;
  for (const TClass elementClass : ElementClasses())
    if (AValue == elementClass->ClassName() || AValue == ElementName(elementClass)) {
      chosen = elementClass;
      break;
    }
  if (!chosen) return;
  const TDynamicElementClass elementClass(chosen);
  for (TObject* object : GetOwnerObjects(nullptr)) {
    if (!object) continue;
    const TRef<IValueMemberInfo> member = GetValueMember(object);
    TObject* old = GetValueForDirectInstance(object);
    TOwnedObject<TObject> element(elementClass.Create(dynamic_cast<TPersistent*>(object)));
    member->SetValue(object, TValue::From(element.get()));
    element.release(); // the object holds it now
    TRef<ISinglePropertyInfo> property;
    if (old && (!Supports(member, property) || !property->GetHasWriteMethod())) TObject::Free(old);
  }
  Modified();
  FDesigner->RefreshView();
}

// ---- Start-up ----

void RegisterClassEditors() {
  RegisterPropertyEditor(TypeInfo<TComponent*>(), nullptr, String(), TComponentPropertyEditor::ClassInfo());
  DefaultEditorClasses.ByTypeKind[tkClass] = TClassPropertyEditor::ClassInfo();
  DefaultEditorClasses.ByTypeKind[tkInterface] = TInterfacePropertyEditor::ClassInfo();
  DefaultEditorClasses.DynamicElementEditor = TDynamicElementPropertyEditor::ClassInfo();
}

} // namespace Tarvo
