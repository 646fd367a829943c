#pragma once
// TSinglePropertyEditor: the base of every editor of one value property over a multi-selection.
// It holds no value of its own: it reads the property from every selected object, turns the
// values into the row's text and writes a new value to every object. Typed editors override the
// conversions; which objects are touched, in which order, what counts as default and when the
// view is reset are decided here for the whole grid.

#include <functional>

#include "design/MemberEditor.h"

class QWidget;

namespace Tarvo {

class TSinglePropertyEditor;

// Implemented by the host: redraw the row.
class TARVO_API IRefreshMemberNotify : public virtual IInterface {
  TARVO_INTERFACE(IRefreshMemberNotify, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A66}", IInterface)
public:
  virtual void RefreshMember() = 0;
};

using IValueArrayList = IArrayList<TValue>;

class TARVO_API IPropertyEditor : public virtual IMemberEditor {
  TARVO_INTERFACE(IPropertyEditor, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A65}", IMemberEditor)
public:
  // How the row shows in its parent's summary; AValue is filled also when the result is false.
  virtual Boolean GetDisplayNested(String& AValue, const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual TRef<IValueArrayList> GetInstanceValues(const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual void SetInstanceValues(const TValue& AValue) = 0;
  virtual void SetInstanceValue(TObject* AObject, const TValue& AValue) = 0;
  virtual String GetDisplayValue(const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual TRef<IStringArrayList> GetDisplayValues(const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual void SetStringValue(const String& AValue) = 0;
  virtual Boolean GetIsAllDefault() = 0;
  virtual TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual Boolean GetIsWriteOnly() = 0;
  virtual Boolean GetHasDefault() = 0;
  virtual TValue GetDefaultValue() = 0;
  virtual String GetDefaultStringValue() = 0;
  virtual Boolean GetAutoUpdate() = 0;
  virtual void ResetValue() = 0;
  virtual void AddRefreshNotify(const TRef<IRefreshMemberNotify>& ANotify) = 0;
  virtual void RemoveRefreshNotify(const TRef<IRefreshMemberNotify>& ANotify) = 0;
};

// The editors a row expands into (ISubPropertyEditors). Its objects are plain lists of editors;
// the interface adds no operation, it only names the list.
class TARVO_API IPropertyEditors : public virtual IArrayList<TRef<IPropertyEditor>> {
  TARVO_INTERFACE(IPropertyEditors, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A67}", IArrayList<TRef<IPropertyEditor>>)
};

// The editors a row that answers ISubPropertyEditors expands into: an array list that says so.
class TARVO_API TPropertyEditors : public TImplements<TArrayList<TRef<IPropertyEditor>>, IPropertyEditors> {};

// An editor that offers a list of values to pick from.
class TARVO_API IPropertyEditorDropDownStringList : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorDropDownStringList, "{00E16386-0F34-4CAE-9CFA-85AEC8707DD0}", IInterface)
public:
  virtual TRef<IStringArrayList> GetStringListValues() = 0;
};

// An editor that edits its value in a dialog of its own. AOwner, the host's window, may be nil.
class TARVO_API IPropertyEditorDialog : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorDialog, "{DC06C4E5-BF66-45FA-ADF1-6680B3EE426D}", IInterface)
public:
  virtual void Execute(QWidget* AOwner) = 0;
};

// An editor class that has a list implements these to withhold, for the value at hand, the list
// dialog or the list that the member's attributes would give it.
class TARVO_API IOptionalPropertyEditorDialog : public virtual IInterface {
  TARVO_INTERFACE(IOptionalPropertyEditorDialog, "{558F4530-50FE-488D-BC83-4E07356D866E}", IInterface)
public:
  virtual Boolean GetDialogAvailable() = 0;
};

class TARVO_API IOptionalPropertyEditorDropDownList : public virtual IInterface {
  TARVO_INTERFACE(IOptionalPropertyEditorDropDownList, "{BE938703-32BC-4F47-AED6-D4DB480E8392}", IInterface)
public:
  virtual Boolean GetDropDownListAvailable() = 0;
};

// Answers, for an interface the editor's class does not implement, an object made from the
// member's attributes (a drop-down list, the list dialog); false when it makes none. The package
// installs it at start-up; nil leaves every editor with its class's interfaces alone.
using TInjectedInterfaceQuery = Boolean (*)(TSinglePropertyEditor& AEditor, const TGUID& AIID, void** AObj);
TARVO_API void SetInjectedInterfaceQuery(TInjectedInterfaceQuery AQuery);

class TARVO_API TSinglePropertyEditor : public TImplements<TMemberEditor, IPropertyEditor> {
  TARVO_CLASS(TSinglePropertyEditor, TImplements<TMemberEditor, IPropertyEditor>)

public:
  // The one virtual constructor of the base; subclasses declare none and set up in InitCreate.
  using TImplements::TImplements;

  // Runs InitCreate of the class being built. A virtual call from a C++ constructor would not
  // reach the subclass, so the setup runs here: the factory calls it right after the
  // constructor, before anyone holds the object.
  void AfterConstruction() override;
  // After the interfaces of the editor's class, those its member's attributes give it.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;

  TRef<IArrayList<TIsDefaultByStrored>> GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList) override;
  // True at once when the editor class carries ReadOnlyAttribute; else the member decides.
  Boolean GetIsReadOnly() override;

  Boolean GetDisplayNested(String& AValue, const TRef<IObjectArrayList>& AObjectsList) override;
  // One value a object, in object order; an empty value for a nil object.
  TRef<IValueArrayList> GetInstanceValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Writes to every object of GetSelection (not the root selection), then one Modified. A
  // setter's exception passes through: objects written stay written, Modified is not called.
  void SetInstanceValues(const TValue& AValue) override;
  // An editor bound to an owner object ignores any other object, without notice.
  void SetInstanceValue(TObject* AObject, const TValue& AValue) override;
  TValue GetDefaultValue() override;
  String GetDefaultStringValue() override { return GetDefaultValue().ToString(); }
  // True for an empty selection.
  Boolean GetIsAllDefault() override;
  TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) override;
  Boolean GetHasDefault() override;
  Boolean GetIsWriteOnly() override;
  virtual void Modified() { FDesigner->Modified(); }
  virtual void BeginModify() { FDesigner->BeginModify(); }
  virtual void EndModify() { FDesigner->EndModify(); }
  // Applied anew for each object written; ranged editors clamp here.
  virtual TValue ApplyConstraints(const TValue& AValue) { return AValue; }
  // One text when all values agree, else all of them joined by ";".
  String GetDisplayValue(const TRef<IObjectArrayList>& AObjectsList) override;
  TRef<IStringArrayList> GetDisplayValues(const TRef<IObjectArrayList>& AObjectsList) override {
    return GetStringValues(AObjectsList);
  }
  // The one place where a value turns into display text.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Text outside a fixed list is dropped silently; text the converter rejects by raising resets
  // the property to its default.
  void SetStringValue(const String& AValue) override;
  Boolean GetAutoUpdate() override { return false; }
  void ResetValue() override;

  void AddRefreshNotify(const TRef<IRefreshMemberNotify>& ANotify) final { FRefreshNotifyList->Add(ANotify); }
  void RemoveRefreshNotify(const TRef<IRefreshMemberNotify>& ANotify) final { FRefreshNotifyList->RemoveOne(ANotify); }
  // For the host and subclasses: tells each listener, in the order they were added.
  void RefreshView();

  // The member of AObject: the shared one, else found by name on the object's type (dynamic
  // members included), else among the parent's sub-members; nil when none.
  TRef<IValueMemberInfo> GetValueMember(TObject* AObject);
  // The owner object, or the first object of the root selection mapped through the parent.
  Boolean GetFirstOwnerInstance(TObject*& AInstance);

protected:
  // Subclasses set up here, calling the inherited one first.
  virtual void InitCreate(TSinglePropertyEditor* AInstance);
  // For editors that compare values by text: a stored specifier's answer where an object has one,
  // else whether the value's text equals the default's exactly.
  TRef<IArrayList<Boolean>> GetIsDefaultsByText(const TRef<IObjectArrayList>& AObjectsList,
                                                String (*AText)(const TValue&));
  // The same with any test of a value against the default.
  TRef<IArrayList<Boolean>> GetIsDefaultsBy(const TRef<IObjectArrayList>& AObjectsList,
                                            const std::function<Boolean(const TValue&)>& AIsDefault);

  TRef<IArrayList<TRef<IRefreshMemberNotify>>> FRefreshNotifyList;

private:
  // A selected object mapped to the object the member lives on.
  TObject* RootToInstance(TObject* AObject);
  // Writes one instance; true when the member asks for the inspector to be reset.
  Boolean WriteInstance(const TRef<IValueMemberInfo>& AMember, TObject* AInstance, const TValue& AValue);
  // The first member, or for a set element the property the set belongs to.
  TRef<IMemberInfo> GetOwnerFirstMember();
  // The value of a Boolean attribute, on the member first, then on the editor class.
  Boolean GetBooleanAttribute(const TRef<IMemberInfo>& AMember, TClass AAttribute, Boolean ADefault);
};

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IRefreshMemberNotify>)
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IPropertyEditor>)

} // namespace Tarvo
