#pragma once
// Rows whose value is an object: the object expands into its own rows and shows as a summary of
// them, a reference to a component is picked by name, and an owned element is replaced by one of
// the classes registered for the member's type.

#include "design/SinglePropertyEditor.h"

namespace Tarvo {

class TSubEditorClasses;

class TARVO_API TClassPropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TClassPropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  ~TClassPropertyEditor() override;

  // Writes the string access property's default back; without one, nothing.
  void ResetValue() override;
  // One answer a value, kept until the designer reports a modification: a nil object is default,
  // else the string access property decides, else every published sub-row that shows.
  TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) override;
  Boolean GetHasDefault() override;
  // The summary "(a,b,…)" of the first value's object, or the string access property's text;
  // kept until the designer reports a modification.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Into the string access property of the first value's object; without one, nothing.
  void SetStringValue(const String& AValue) override;
  // Read-only unless the object has a writable string access property.
  Boolean GetIsReadOnly() override;
  // The properties of the object's run-time class (of the declared type for nil, none for a
  // component), each name once. The first answer is kept for the editor's life.
  Boolean GetSubMembers(TRef<IMembersInfo>& AResult, Boolean APublishedPropertiesOnly) override;
  // Unless the type says NotExpandableClassAttribute.
  Boolean GetIsExpandable() override;
  TObject* GetValueForRootInstance(TObject* AObject) override;
  TObject* GetValueForDirectInstance(TObject* AObject) override;
  // Under HideEmptyAttribute, hidden when no sub-row of the object would show.
  Boolean GetIsVisible() override;

  void InvalidateCaches() { FIsDefaults = nullptr; }

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  // The object a value names, or nil.
  TObject* FirstValueObject();

private:
  String SummaryOf(TObject* AObject);
  Boolean IsDefaultObject(TObject* AObject, TSubEditorClasses& AClasses);

  TRef<IArrayList<Boolean>> FIsDefaults;
  TRef<IStringArrayList> FStringValues;
  TRef<ISelectionChangeNotifier> FModifyNotifier;
  TRef<ISinglePropertyInfo> FStringAccessProperty;
  TRef<IMembersInfo> FSubMembers;
};

// A reference to another component of the design, by its name.
class TARVO_API TComponentPropertyEditor
    : public TImplements<TClassPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TComponentPropertyEditor, TImplements<TClassPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  Boolean GetIsReadOnly() override { return false; }
  // The components' names; "(none)" for nil.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // The designer's component of that name; a name it does not know writes nil.
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;
};

// An element the object owns, whose class is chosen among those registered for the member's type.
class TARVO_API TDynamicElementPropertyEditor
    : public TImplements<TClassPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TDynamicElementPropertyEditor, TImplements<TClassPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  // Shown also when the element has no rows.
  Boolean GetIsVisible() override { return true; }
  // A class is picked from the list wherever the member can be written; the row's text is no
  // string access property's.
  Boolean GetIsReadOnly() override { return TSinglePropertyEditor::GetIsReadOnly(); }
  // The element's class by its NameAttribute, else by class name; "(none)" for nil.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // A new element of the class named (by either name) on every selected object. The old element
  // goes to the setter; where the member has no write method, this editor frees it.
  void SetStringValue(const String& AValue) override;
  TRef<IStringArrayList> GetStringListValues() override;

private:
  TRef<IArrayList<TClass>> ElementClasses();
};

class TARVO_API TInterfacePropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TInterfacePropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
};

} // namespace Tarvo
