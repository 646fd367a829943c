// What the design core registers for itself at start-up. Each later editor family adds its line
// here; a type that the component model lacks has no line.

#include "design/Registry.h"
#include "design/SinglePropertyEditor.h"
#include "package/DesignUnit.h"
#include "runtime/Collection.h"
#include "runtime/Controls.h"
#include "runtime/NamedTypes.h"
#include "runtime/Popups.h"

namespace Tarvo {

namespace {

struct TEditorRegistration {
  PTypeInfo MemberType;
  TClass OwnerClass; // nil: any class
  const char* MemberName; // empty: any name
  TMemberEditorClass EditorClass;
};

void RegisterAll(std::initializer_list<TEditorRegistration> ARows) {
  for (const TEditorRegistration& row : ARows)
    RegisterPropertyEditor(row.MemberType, row.OwnerClass, row.MemberName, row.EditorClass);
}

void FillFallbackEditors() {
  // Until the typed editor of a kind exists, the base editor shows and writes the value's text.
  const TMemberEditorClass valueEditor = TSinglePropertyEditor::ClassInfo();
  auto& byKind = DefaultEditorClasses.ByTypeKind;
  for (TTypeKind kind : {tkInteger, tkChar, tkEnumeration, tkFloat, tkString, tkSet, tkClass, tkWChar, tkLString,
                         tkWString, tkVariant, tkInterface, tkInt64, tkUString})
    byKind[kind] = valueEditor;
  byKind[tkMethod] = TEventPropertyEditor::ClassInfo();
  DefaultEditorClasses.SetValueEditor = valueEditor;
  DefaultEditorClasses.VariantTypeEditor = valueEditor;
  DefaultEditorClasses.MultiLineStringEditor = valueEditor;
  DefaultEditorClasses.StringEditor = valueEditor;
  DefaultEditorClasses.DynamicElementEditor = valueEditor;
}

} // namespace

void RegisterDesignEditors() {
  const TMemberEditorClass hidden = THiddenEditor::ClassInfo();
  RegisterAll({
      {TypeInfo<TRef<IInterface>>(), TObject::ClassInfo(), "ComObject", hidden},
      {TypeInfo<TCollection*>(), TCollectionItem::ClassInfo(), "Collection", hidden},
      {&TypeInfo_NativeInt, TComponent::ClassInfo(), "Tag", hidden},
  });

  // Members of controls that the designer edits on the surface or elsewhere, not in rows.
  const TClass control = TControl::ClassInfo();
  RegisterAll({
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
