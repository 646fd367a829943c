#include "design/SinglePropertyEditor.h"

#include <algorithm>

#include "design/MemberKinds.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "runtime/LockItem.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TSinglePropertyEditor)

namespace {

// A member that a search did not find, or of the wrong kind, fails here rather than at its use.
template <class I, class J> TRef<I> MemberAs(const TRef<J>& AMember, const String& AName) {
  TRef<I> result;
  if (!Supports(AMember, result))
    throw EInvalidCast("Invalid class typecast: member " + AName + " is no " + I::InterfaceName);
  return result;
}

TInjectedInterfaceQuery GInjectedInterfaceQuery = nullptr;

} // namespace

void SetInjectedInterfaceQuery(TInjectedInterfaceQuery AQuery) { GInjectedInterfaceQuery = AQuery; }

HRESULT TSinglePropertyEditor::QueryInterface(const TGUID& AIID, void** AObj) {
  // Reached when no class between the editor's and this one implements AIID.
  const HRESULT own = inherited::QueryInterface(AIID, AObj);
  if (own == S_OK || !GInjectedInterfaceQuery) return own;
  return GInjectedInterfaceQuery(*this, AIID, AObj) ? S_OK : own;
}

void TSinglePropertyEditor::AfterConstruction() {
  inherited::AfterConstruction();
  InitCreate(this);
}

void TSinglePropertyEditor::InitCreate(TSinglePropertyEditor* AInstance) {
  AInstance->FRefreshNotifyList = New<TArrayList<TRef<IRefreshMemberNotify>>>();
}

TRef<IValueMemberInfo> TSinglePropertyEditor::GetValueMember(TObject* AObject) {
  if (FSharedMember) return QueryAs<IValueMemberInfo>(FSharedMember);
  TRef<IValueMemberInfo> found;
  if (AObject && TRttiObjectHelper::TypeInfo(AObject, true)->FindMember(FMemberName, found)) return found;
  TRef<IMembersInfo> subMembers;
  TRef<IMemberInfo> match;
  if (FParentEditor && !FMemberName.empty() && FParentEditor->GetSubMembers(subMembers, false))
    subMembers->Query()->Find([this](const TRef<IMemberInfo>& AMember) { return AMember->GetName() == FMemberName; },
                              match);
  return QueryAs<IValueMemberInfo>(match);
}

TObject* TSinglePropertyEditor::RootToInstance(TObject* AObject) {
  return FParentEditor ? FParentEditor->GetValueForRootInstance(AObject) : AObject;
}

TRef<IValueArrayList> TSinglePropertyEditor::GetInstanceValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IValueArrayList> result = New<TArrayList<TValue>>();
  if (!FDesigner) return result;
  const auto add = [this, &result](TObject* AInstance) {
    result->Add(AInstance ? MemberAs<IValueMemberInfo>(GetValueMember(AInstance), FMemberName)->GetValue(AInstance)
                          : TValue());
  };
  if (AObjectsList)
    for (TObject* object : AObjectsList) add(object);
  else if (FOwnerObject) add(FOwnerObject);
  else
    for (TObject* object : FDesigner->GetRootSelection()) add(RootToInstance(object));
  return result;
}

TRef<IStringArrayList> TSinglePropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) result->Add(value.ToString());
  return result;
}

String TSinglePropertyEditor::GetDisplayValue(const TRef<IObjectArrayList>& AObjectsList) {
  const std::vector<String> values = GetDisplayValues(AObjectsList)->ToArray();
  if (!values.empty() &&
      std::all_of(values.begin(), values.end(), [&](const String& AText) { return AText == values[0]; }))
    return values[0];
  String result;
  for (std::size_t i = 0; i < values.size(); ++i) result += (i > 0 ? ";" : "") + values[i];
  return result;
}

Boolean TSinglePropertyEditor::WriteInstance(const TRef<IValueMemberInfo>& AMember, TObject* AInstance,
                                             const TValue& AValue) {
  AMember->SetValue(AInstance, ApplyConstraints(AValue));
  const Boolean refresh = AMember->HasCustomAttribute(RefreshPropertiesAttribute::ClassInfo(), true);
  NotifyLockItem(AInstance);
  return refresh;
}

void TSinglePropertyEditor::SetInstanceValues(const TValue& AValue) {
  Boolean wrote = false;
  Boolean refresh = false;
  const auto write = [&](TObject* AInstance) {
    // A nested object that is nil has nothing to write to.
    if (!AInstance) return;
    refresh =
        WriteInstance(MemberAs<IValueMemberInfo>(GetValueMember(AInstance), FMemberName), AInstance, AValue) || refresh;
    wrote = true;
  };
  if (FOwnerObject) write(FOwnerObject);
  else
    for (TObject* object : FDesigner->GetSelection()) write(RootToInstance(object));
  if (!wrote) return;
  FDesigner->Modified();
  if (refresh) FDesigner->ResetObjectInspector();
}

void TSinglePropertyEditor::SetInstanceValue(TObject* AObject, const TValue& AValue) {
  if (FOwnerObject && FOwnerObject != AObject) return;
  // The member is the one of the object given, also when the write goes to a mapped instance.
  const TRef<IValueMemberInfo> member = MemberAs<IValueMemberInfo>(GetValueMember(AObject), FMemberName);
  const Boolean refresh = WriteInstance(member, FOwnerObject ? FOwnerObject : RootToInstance(AObject), AValue);
  Modified();
  if (refresh) FDesigner->ResetObjectInspector();
}

void TSinglePropertyEditor::SetStringValue(const String& AValue) {
  TRef<IPropertyEditorDropDownStringList> list;
  if (GetFirstMember()->HasCustomAttribute(PropertyFixedListDesignAttribute::ClassInfo(), true) &&
      Supports(static_cast<IPropertyEditor*>(this), list) && !list->GetStringListValues()->Query()->Contains(AValue))
    return;
  const TRef<IValueArrayList> values = GetInstanceValues(nullptr);
  if (values->GetCount() == 0) return;
  TValue value = values->GetItem(0);
  try {
    if (!value.FromString(AValue)) return;
  } catch (const Exception&) {
    value = GetDefaultValue();
  }
  SetInstanceValues(value);
}

TRef<IArrayList<Boolean>> TSinglePropertyEditor::GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IArrayList<Boolean>> result = New<TArrayList<Boolean>>();
  for (TObject* object : GetOwnerObjects(AObjectsList))
    result->Add(MemberAs<IValueMemberInfo>(GetValueMember(object), FMemberName)->GetIsDefault(object, true));
  return result;
}

TRef<IArrayList<Boolean>> TSinglePropertyEditor::GetIsDefaultsByText(const TRef<IObjectArrayList>& AObjectsList,
                                                                     String (*AText)(const TValue&)) {
  const String defaultText = AText(GetDefaultValue());
  return GetIsDefaultsBy(AObjectsList, [&](const TValue& AValue) { return AText(AValue) == defaultText; });
}

TRef<IArrayList<Boolean>>
TSinglePropertyEditor::GetIsDefaultsBy(const TRef<IObjectArrayList>& AObjectsList,
                                       const std::function<Boolean(const TValue&)>& AIsDefault) {
  const TRef<IArrayList<TIsDefaultByStrored>> stored = GetIsDefaultsByStored(AObjectsList);
  const TRef<IValueArrayList> values = GetInstanceValues(AObjectsList);
  const TRef<IArrayList<Boolean>> result = New<TArrayList<Boolean>>();
  for (Integer i = 0; i < values->GetCount(); ++i) {
    if (i < stored->GetCount() && stored->GetItem(i).HasStored) result->Add(stored->GetItem(i).IsDefault);
    else result->Add(AIsDefault(values->GetItem(i)));
  }
  return result;
}

Boolean TSinglePropertyEditor::GetIsAllDefault() { return !GetIsDefaults(nullptr)->Query()->Contains(false); }

TRef<IArrayList<TIsDefaultByStrored>>
TSinglePropertyEditor::GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IArrayList<TIsDefaultByStrored>> result = New<TArrayList<TIsDefaultByStrored>>();
  TRef<ISinglePropertyInfo> member; // taken at the first object, so that an empty list asks for none
  for (TObject* object : GetOwnerObjects(AObjectsList)) {
    if (object && !member) member = MemberAs<ISinglePropertyInfo>(GetFirstMember(), FMemberName);
    if (object && member->GetHasStored(object))
      result->Add(TIsDefaultByStrored::Create(true, !member->GetIsStored(object)));
    else result->Add(TIsDefaultByStrored::Create(false, false));
  }
  return result;
}

TRef<IMemberInfo> TSinglePropertyEditor::GetOwnerFirstMember() {
  const TRef<IMemberInfo> member = GetFirstMember();
  if (TRef<ISetValueMemberInfo> element; Supports(member, element)) return element->GetOwnerMember();
  if (TRef<INestedValueMemberInfo> nested; Supports(member, nested)) return nested->GetOwnerMember();
  return member;
}

Boolean TSinglePropertyEditor::GetHasDefault() {
  TRef<ISinglePropertyInfo> property;
  return Supports(GetOwnerFirstMember(), property) && property->GetHasDefault();
}

Boolean TSinglePropertyEditor::GetIsReadOnly() {
  if (ClassTypeInfo()->HasCustomAttribute(ReadOnlyAttribute::ClassInfo())) return true;
  TRef<ISinglePropertyInfo> property;
  return !Supports(GetOwnerFirstMember(), property) || !property->GetIsWritable();
}

Boolean TSinglePropertyEditor::GetIsWriteOnly() {
  TRef<ISinglePropertyInfo> property;
  return !Supports(GetOwnerFirstMember(), property) || !property->GetIsReadable();
}

Boolean TSinglePropertyEditor::GetFirstOwnerInstance(TObject*& AInstance) {
  if (FOwnerObject) {
    AInstance = FOwnerObject;
    return true;
  }
  const TRef<IObjectArrayList> selection = FDesigner->GetRootSelection();
  AInstance = selection->GetCount() > 0 ? RootToInstance(selection->GetItem(0)) : nullptr;
  return AInstance != nullptr;
}

TValue TSinglePropertyEditor::GetDefaultValue() {
  TObject* instance = nullptr;
  if (!GetFirstOwnerInstance(instance)) return TValue();
  return MemberAs<IValueMemberInfo>(GetFirstMember(), FMemberName)->GetDefault(instance);
}

void TSinglePropertyEditor::ResetValue() {
  if (Supports<ISinglePropertyInfo>(GetOwnerFirstMember())) SetInstanceValues(GetDefaultValue());
}

Boolean TSinglePropertyEditor::GetBooleanAttribute(const TRef<IMemberInfo>& AMember, TClass AAttribute,
                                                   Boolean ADefault) {
  TCustomAttribute* found = nullptr;
  if (AMember->GetCustomAttribute(AAttribute, true, found) || ClassTypeInfo()->GetCustomAttribute(AAttribute, found))
    return static_cast<TBasicBooleanAttribute*>(found)->Value();
  return ADefault;
}

Boolean TSinglePropertyEditor::GetDisplayNested(String& AValue, const TRef<IObjectArrayList>& AObjectsList) {
  AValue.clear();
  const TRef<IMemberInfo> member = GetFirstMember();
  const Boolean isShort = GetBooleanAttribute(member, DisplayNestedShortAttribute::ClassInfo(), false);
  const Boolean hideDefault = GetBooleanAttribute(member, HideNestedDefaultAttribute::ClassInfo(), false);
  const Boolean display =
      GetBooleanAttribute(member, DisplayNestedAttribute::ClassInfo(), member->GetVisibility() == mvPublished);
  if (hideDefault && GetIsAllDefault()) return false;
  AValue = isShort ? GetDisplayValue(AObjectsList) : GetName() + "=" + GetDisplayValue(AObjectsList);
  return display;
}

void TSinglePropertyEditor::RefreshView() {
  // Over a copy: a listener may remove itself on the way.
  for (const TRef<IRefreshMemberNotify>& listener : FRefreshNotifyList->ToArray()) listener->RefreshMember();
}

} // namespace Tarvo
