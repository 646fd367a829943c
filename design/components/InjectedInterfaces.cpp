#include "design/components/InjectedInterfaces.h"

#include "forms/ListSelectDialog.h"
#include "forms/TreeSelectDialog.h"
#include "reflection/ListAttributes.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TInjectedInterface)

namespace {

template <class A> A* MemberAttribute(const TRef<IMemberInfo>& AMember) { return FindMemberAttribute<A>(AMember); }

// How a value-source method hands its list back.
enum class TListSource { None, Result, Parameter };

template <class TItem> TListSource ListSourceOf(const TRef<IMethodInfo>& AMethod) {
  const PTypeInfo listType = TypeInfo<TRef<IArrayList<TItem>>>();
  const TRef<ITypeInfo> result = AMethod->GetTypeInfo();
  if (AMethod->GetMethodKind() == mkFunction && result && result->GetHandle() == listType) return TListSource::Result;
  const TRef<IArrayList<TRef<IParameterInfo>>> parameters = AMethod->GetParameters();
  if (AMethod->GetMethodKind() == mkProcedure && parameters->GetCount() == 1 &&
      parameters->GetItem(0)->GetTypeInfo()->GetHandle() == listType)
    return TListSource::Parameter;
  return TListSource::None;
}

// Calls the method for its list: the list it answers, or the one it filled.
template <class TItem>
void AddFromMethod(TObject* AInstance, const TRef<IMethodInfo>& AMethod, const TRef<IArrayList<TItem>>& ATo) {
  TRef<IArrayList<TItem>> values;
  if (ListSourceOf<TItem>(AMethod) == TListSource::Parameter) {
    values = New<TArrayList<TItem>>();
    AMethod->Invoke(AInstance, {TValue::From(values)});
  } else {
    AMethod->Invoke(AInstance, {}).TryAsType(values);
  }
  if (values) ATo->Append(values->ToArray());
}

// The member's literal values, in attribute order.
template <class TList> void AddLiteralValues(const TRef<IMemberInfo>& AMember, TList& AList) {
  for (TCustomAttribute* attribute : AMember->GetCustomAttributes(PropertyListDesignValueAttribute::ClassInfo())) {
    const auto* value = static_cast<PropertyListDesignValueAttribute*>(attribute);
    AList.AddValue(value->Value(), value->After());
  }
}

Boolean IsListInterface(const TGUID& AIID) {
  return AIID == IPropertyEditorDropDownStringList::IID || AIID == IPropertyEditorDropDownCategorizedStringList::IID;
}

Boolean Answer(const TRef<TInjectedInterface>& AObject, const TGUID& AIID, void** AObj) {
  return AObject->QueryInterface(AIID, AObj) == S_OK;
}

Boolean ListWithheld(TSinglePropertyEditor& AEditor) {
  TRef<IOptionalPropertyEditorDropDownList> optional;
  return Supports(TRef<IPropertyEditor>(&AEditor), optional) && !optional->GetDropDownListAvailable();
}

// Step one: a method of the first selected object associated with the member gives the list.
Boolean QueryListByMethod(TSinglePropertyEditor& AEditor, const TRef<IMemberInfo>& AMember, const TGUID& AIID,
                          void** AObj) {
  const auto* association = MemberAttribute<PropertyListDesignAssociationAttribute>(AMember);
  TObject* instance = nullptr;
  if (!association || !AEditor.GetFirstOwnerInstance(instance)) return false;
  const Boolean sort = AMember->HasCustomAttribute(PropertySortListDesignAttribute::ClassInfo(), true);
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(instance, true)->GetAllMethods()) {
    const auto* source = static_cast<DesignAssociationAttribute*>(nullptr);
    if (TCustomAttribute* found = nullptr; member->GetCustomAttribute(DesignAssociationAttribute::ClassInfo(), found))
      source = static_cast<DesignAssociationAttribute*>(found);
    TRef<IMethodInfo> method;
    if (!source || source->Identity() != association->Identity() || !Supports(member, method)) continue;
    if (AIID == IPropertyEditorDropDownStringList::IID && ListSourceOf<String>(method) != TListSource::None) {
      const auto list = New<TInjectedPropertyEditorDropDownListByMethod>(&AEditor, instance, method, sort);
      AddLiteralValues(AMember, *list);
      return Answer(list, AIID, AObj);
    }
    if (ListSourceOf<TCategorizedValue>(method) != TListSource::None) {
      const auto list = New<TInjectedPropertyEditorDropDownCategorizedListByMethod>(&AEditor, instance, method, sort);
      AddLiteralValues(AMember, *list);
      return Answer(list, AIID, AObj);
    }
  }
  return false;
}

// Step three: the literal values alone. They carry no categories, so they make a plain list, and
// the list dialog over it.
Boolean QueryLiteralList(TSinglePropertyEditor& AEditor, const TRef<IMemberInfo>& AMember, const TGUID& AIID,
                         void** AObj) {
  if (AIID != IPropertyEditorDropDownStringList::IID ||
      !AMember->HasCustomAttribute(PropertyListDesignValueAttribute::ClassInfo(), false))
    return false;
  const auto list =
      New<TInjectedPropertyEditorDropDownList>(&AEditor, AMember->HasCustomAttribute(PropertySortListDesignAttribute::ClassInfo(), true));
  AddLiteralValues(AMember, *list);
  return Answer(list, AIID, AObj);
}

// Step two: every editor with a list gets the dialog over it, unless it withholds the dialog.
Boolean QueryDialog(TSinglePropertyEditor& AEditor, const TGUID& AIID, void** AObj) {
  const TRef<IPropertyEditor> editor(&AEditor);
  const Boolean categorized = Supports<IPropertyEditorDropDownCategorizedStringList>(editor);
  if (!categorized && !Supports<IPropertyEditorDropDownStringList>(editor)) return false;
  if (TRef<IOptionalPropertyEditorDialog> optional; Supports(editor, optional) && !optional->GetDialogAvailable())
    return false;
  if (categorized) return Answer(New<TInjectedCategorizedPropertyEditorDialog>(&AEditor), AIID, AObj);
  return Answer(New<TInjectedPropertyEditorDialog>(&AEditor), AIID, AObj);
}

// The dialog's caption: the member's own, else the row's name.
String DialogCaption(TSinglePropertyEditor& AEditor) {
  const auto* caption = MemberAttribute<PropertyListDialogDesignAttribute>(AEditor.GetFirstMember());
  return caption ? caption->Caption() : AEditor.GetName();
}

String CurrentText(TSinglePropertyEditor& AEditor) {
  const TRef<IStringArrayList> values = AEditor.GetStringValues(nullptr);
  return values->GetCount() > 0 ? values->GetItem(0) : String();
}

} // namespace

Boolean QueryInjectedInterface(TSinglePropertyEditor& AEditor, const TGUID& AIID, void** AObj) {
  // Most queries are for other interfaces: they cost one comparison here.
  const Boolean list = IsListInterface(AIID);
  // An object made now holds the editor: during its construction, while nobody holds it yet,
  // that hold would be the only one and end it.
  if ((!list && AIID != IPropertyEditorDialog::IID) || AEditor.RefCount() == 0) return false;
  const TRef<IMemberInfo> member = AEditor.GetFirstMember();
  if (!member) return false;
  if (!list) return QueryDialog(AEditor, AIID, AObj);
  if (ListWithheld(AEditor)) return false;
  return QueryListByMethod(AEditor, member, AIID, AObj) || QueryLiteralList(AEditor, member, AIID, AObj);
}

// ---- TInjectedInterface ----

TInjectedInterface::TInjectedInterface(TSinglePropertyEditor* AOwner) : FOwnerEditor(AOwner), FOwner(AOwner) {}

HRESULT TInjectedInterface::QueryInterface(const TGUID& AIID, void** AObj) {
  if (inherited::QueryInterface(AIID, AObj) == S_OK) return S_OK;
  return FOwner->QueryInterface(AIID, AObj);
}

// ---- Lists ----

TInjectedPropertyEditorDropDownList::TInjectedPropertyEditorDropDownList(TSinglePropertyEditor* AOwner, Boolean ASort)
    : TImplements(AOwner), FSort(ASort) {}

void TInjectedPropertyEditorDropDownList::AddValue(const String& AValue, Boolean AAfter) {
  (AAfter ? FAdditionalAfterList : FAdditionalList)->Add(AValue);
}

TRef<IStringArrayList> TInjectedPropertyEditorDropDownList::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  result->Append(FAdditionalList->ToArray());
  AddMethodValues(result);
  result->Append(FAdditionalAfterList->ToArray());
  if (FSort) result->Sort();
  return result;
}

TInjectedPropertyEditorDropDownCategorizedList::TInjectedPropertyEditorDropDownCategorizedList(
    TSinglePropertyEditor* AOwner, Boolean ASort)
    : TImplements(AOwner), FSort(ASort) {}

void TInjectedPropertyEditorDropDownCategorizedList::AddValue(const String& AValue, Boolean AAfter) {
  (AAfter ? FAdditionalAfterList : FAdditionalList)->Add(TCategorizedValue{AValue, nullptr, {}});
}

TRef<ICategorizedValueList> TInjectedPropertyEditorDropDownCategorizedList::GetCategorizedStringListValues() {
  const TRef<ICategorizedValueList> result = New<TArrayList<TCategorizedValue>>();
  result->Append(FAdditionalList->ToArray());
  AddMethodValues(result);
  result->Append(FAdditionalAfterList->ToArray());
  if (FSort)
    result->Sort([](const TCategorizedValue& A, const TCategorizedValue& B) { return A.Name.compare(B.Name); });
  return result;
}

TRef<IStringArrayList> TInjectedPropertyEditorDropDownCategorizedList::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TCategorizedValue& value : GetCategorizedStringListValues()) result->Add(value.Name);
  return result;
}

template <class TList, class TItem>
void TInjectedListByMethod<TList, TItem>::AddMethodValues(const TRef<IArrayList<TItem>>& AList) {
  AddFromMethod<TItem>(FInstance, FMethod, AList);
}

template class TInjectedListByMethod<TInjectedPropertyEditorDropDownList, String>;
template class TInjectedListByMethod<TInjectedPropertyEditorDropDownCategorizedList, TCategorizedValue>;

// ---- Dialogs ----

void TInjectedPropertyEditorDialog::Execute(QWidget* AOwner) {
  TSinglePropertyEditor& editor = *Owner();
  const TRef<IPropertyEditorDropDownStringList> list = QueryAs<IPropertyEditorDropDownStringList>(TRef<IPropertyEditor>(&editor));
  TTarvoListSelectDialogForm form(AOwner);
  form.SetCaller(list);
  form.SetKBListBoxItems(list->GetStringListValues());
  if (form.Execute(DialogCaption(editor), CurrentText(editor))) editor.SetStringValue(form.GetSelection());
}

void TInjectedCategorizedPropertyEditorDialog::Execute(QWidget* AOwner) {
  TSinglePropertyEditor& editor = *Owner();
  const TRef<IPropertyEditorDropDownCategorizedStringList> list =
      QueryAs<IPropertyEditorDropDownCategorizedStringList>(TRef<IPropertyEditor>(&editor));
  TTarvoTreeSelectDialogForm form(AOwner);
  form.SetCaller(list);
  form.SetList(list->GetCategorizedStringListValues());
  const Boolean sort = editor.GetFirstMember()->HasCustomAttribute(PropertySortListDesignAttribute::ClassInfo(), true);
  if (form.Execute(DialogCaption(editor), CurrentText(editor), sort)) editor.SetStringValue(form.GetSelection());
}

} // namespace Tarvo
