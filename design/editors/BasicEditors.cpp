#include "design/editors/BasicEditors.h"

#include <unordered_set>

#include "design/Registry.h"
#include "design/SinglePropertyEditor.h"
#include "design/editors/EditorFamilies.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "runtime/Collection.h"
#include "runtime/Controls.h"
#include "runtime/NamedTypes.h"
#include "runtime/Popups.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(THiddenEditor)
TARVO_IMPLEMENT_CLASS(TMethodEditor)
TARVO_IMPLEMENT_CLASS(TEventPropertyEditor)

String TMethodEditor::GetFunctionParamString() {
  TRef<IMethodInfo> method;
  Supports(GetFirstMember(), method);
  if (!method->GetHasExtendedInfo()) return "(?\?\?)"; // escaped: not a trigraph
  String parameters;
  for (const TRef<IParameterInfo>& parameter : method->GetParameters())
    parameters += (parameters.empty() ? "" : "; ") + parameter->GetParameterText();
  String result = "(" + parameters + ")";
  if (method->GetMethodKind() == mkFunction) result += " : " + method->GetTypeInfo()->GetName();
  return result;
}

// ---- Hidden members of registered components ----

namespace {
void VisitHiddenMembers(const TRef<IClassTypeInfo>& AType, std::unordered_set<PTypeInfo>& AVisited) {
  for (const TRef<IMemberInfo>& member : AType->GetMembers(mvsPublished)) {
    const TRef<ITypeInfo> type = member->GetTypeInfo();
    if (!type || !AVisited.insert(type->GetHandle()).second) continue;
    if (member->HasCustomAttribute(HiddenDesignAttribute::ClassInfo(), true)) {
      RegisterPropertyEditor(type->GetHandle(), TObject::ClassInfo(), member->GetName(), THiddenEditor::ClassInfo());
    } else if (TRef<IClassTypeInfo> classType; Supports(type, classType)) {
      VisitHiddenMembers(classType, AVisited);
    }
  }
}
} // namespace

void RegisterHiddenMembers(TClass AComponentClass) {
  const TEditorRegistrationOrigin origin(AComponentClass->Module());
  std::unordered_set<PTypeInfo> visited;
  VisitHiddenMembers(TRttiObjectHelper::ClassTypeInfo(AComponentClass), visited);
}

// ---- Start-up ----

namespace {

void FillFallbackEditors() {
  // Until the typed editor of a kind exists, the base editor shows and writes the value's text.
  const TMemberEditorClass valueEditor = TSinglePropertyEditor::ClassInfo();
  auto& byKind = DefaultEditorClasses.ByTypeKind;
  for (TTypeKind kind : {tkInteger, tkChar, tkEnumeration, tkFloat, tkString, tkSet, tkClass, tkWChar, tkLString,
                         tkWString, tkVariant, tkInterface, tkInt64, tkUString})
    byKind[kind] = valueEditor;
  byKind[tkMethod] = TEventPropertyEditor::ClassInfo();
  DefaultEditorClasses.MethodEditor = TMethodEditor::ClassInfo();
  DefaultEditorClasses.SetValueEditor = valueEditor;
  DefaultEditorClasses.VariantTypeEditor = valueEditor;
  DefaultEditorClasses.MultiLineStringEditor = valueEditor;
  DefaultEditorClasses.StringEditor = valueEditor;
  DefaultEditorClasses.DynamicElementEditor = valueEditor;
}

} // namespace

void RegisterBasicEditors() {
  const TMemberEditorClass hidden = THiddenEditor::ClassInfo();
  RegisterPropertyEditors({
      {TypeInfo<TRef<IInterface>>(), TObject::ClassInfo(), "ComObject", hidden},
      {TypeInfo<TCollection*>(), TCollectionItem::ClassInfo(), "Collection", hidden},
      {&TypeInfo_NativeInt, TComponent::ClassInfo(), "Tag", hidden},
  });

  // Members of controls that the designer edits on the surface or elsewhere, not in rows.
  const TClass control = TControl::ClassInfo();
  RegisterPropertyEditors({
      {TypeInfo<Integer>(), control, "Left", hidden},
      {TypeInfo<Integer>(), control, "Top", hidden},
      {TypeInfo<Integer>(), control, "Width", hidden},
      {TypeInfo<Integer>(), control, "Height", hidden},
      {&TypeInfo_TTabOrder, control, "TabOrder", hidden},
      {TypeInfo<THelpType>(), control, "HelpType", hidden},
      {TypeInfo<String>(), control, "HelpKeyword", hidden},
      {&TypeInfo_THelpContext, control, "HelpContext", hidden},
      {TypeInfo<TPopupMenu*>(), control, "PopupMenu", hidden},
      {TypeInfo<TCustomHint*>(), control, "CustomHint", hidden},
      {TypeInfo<Boolean>(), control, "ParentCustomHint", hidden},
      {TypeInfo<TAlign>(), control, "Align", hidden},
      {TypeInfo<TAnchors>(), control, "Anchors", hidden},
      {TypeInfo<TSizeConstraints*>(), control, "Constraints", hidden},
      {TypeInfo<TMargins*>(), control, "Margins", hidden},
  });

  FillFallbackEditors();
}

} // namespace Tarvo
