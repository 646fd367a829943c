#pragma once
// Lists and dialogs a component author gives a property by attributes alone, with no editor
// class: the editor answers a query for a list or a dialog with an object made at that moment
// from its member's attributes. The object holds the editor, so the editor lives as long as a
// caller uses it, and a query made anew reads the list anew.

#include "design/CategorizedValues.h"
#include "design/Interfaced.h"
#include "design/SinglePropertyEditor.h"

namespace Tarvo {

// An object made for an editor: its own interfaces first, then every interface of the editor.
class TARVO_API TInjectedInterface : public TInterfaced {
  TARVO_CLASS(TInjectedInterface, TInterfaced)
public:
  explicit TInjectedInterface(TSinglePropertyEditor* AOwner);
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;

protected:
  TSinglePropertyEditor* Owner() const { return FOwnerEditor; }

private:
  TSinglePropertyEditor* FOwnerEditor;
  TRef<IPropertyEditor> FOwner; // keeps the editor alive
};

// The literal values of the member, before and after those a method gives, optionally sorted.
class TARVO_API TInjectedPropertyEditorDropDownList
    : public TImplements<TInjectedInterface, IPropertyEditorDropDownStringList> {
public:
  TInjectedPropertyEditorDropDownList(TSinglePropertyEditor* AOwner, Boolean ASort);
  void AddValue(const String& AValue, Boolean AAfter);
  TRef<IStringArrayList> GetStringListValues() override;

protected:
  // The values between the two literal lists.
  virtual void AddMethodValues(const TRef<IStringArrayList>&) {}

private:
  TRef<IStringArrayList> FAdditionalList = New<TStringArrayList>();
  TRef<IStringArrayList> FAdditionalAfterList = New<TStringArrayList>();
  Boolean FSort;
};

// The same over values with categories; the plain list of their names is answered too, for a
// host that shows names only.
class TARVO_API TInjectedPropertyEditorDropDownCategorizedList
    : public TImplements<TInjectedInterface, IPropertyEditorDropDownCategorizedStringList,
                         IPropertyEditorDropDownStringList> {
public:
  TInjectedPropertyEditorDropDownCategorizedList(TSinglePropertyEditor* AOwner, Boolean ASort);
  void AddValue(const String& AValue, Boolean AAfter);
  TRef<ICategorizedValueList> GetCategorizedStringListValues() override;
  TRef<IStringArrayList> GetStringListValues() override;

protected:
  virtual void AddMethodValues(const TRef<ICategorizedValueList>&) {}

private:
  TRef<ICategorizedValueList> FAdditionalList = New<TArrayList<TCategorizedValue>>();
  TRef<ICategorizedValueList> FAdditionalAfterList = New<TArrayList<TCategorizedValue>>();
  Boolean FSort;
};

// A value-source method of the selected object: a function answering the list, or a procedure
// taking the list to fill. TList is one of the two lists above, TItem the item of its list.
template <class TList, class TItem> class TInjectedListByMethod : public TList {
public:
  TInjectedListByMethod(TSinglePropertyEditor* AOwner, TObject* AInstance, TRef<IMethodInfo> AMethod, Boolean ASort)
      : TList(AOwner, ASort), FInstance(AInstance), FMethod(std::move(AMethod)) {}

protected:
  void AddMethodValues(const TRef<IArrayList<TItem>>& AList) override;

private:
  TObject* FInstance;
  TRef<IMethodInfo> FMethod;
};

// Both are compiled once, in the source.
using TInjectedPropertyEditorDropDownListByMethod = TInjectedListByMethod<TInjectedPropertyEditorDropDownList, String>;
using TInjectedPropertyEditorDropDownCategorizedListByMethod =
    TInjectedListByMethod<TInjectedPropertyEditorDropDownCategorizedList, TCategorizedValue>;
extern template class TInjectedListByMethod<TInjectedPropertyEditorDropDownList, String>;
extern template class TInjectedListByMethod<TInjectedPropertyEditorDropDownCategorizedList, TCategorizedValue>;

// The list select dialog over the editor's list; the pick is written through the editor.
class TARVO_API TInjectedPropertyEditorDialog : public TImplements<TInjectedInterface, IPropertyEditorDialog> {
public:
  using TImplements::TImplements;
  void Execute(QWidget* AOwner) override;
};

// The tree select dialog over the editor's values with categories.
class TARVO_API TInjectedCategorizedPropertyEditorDialog
    : public TImplements<TInjectedInterface, IPropertyEditorDialog> {
public:
  using TImplements::TImplements;
  void Execute(QWidget* AOwner) override;
};

// The query the package installs into every single property editor.
Boolean QueryInjectedInterface(TSinglePropertyEditor& AEditor, const TGUID& AIID, void** AObj);

} // namespace Tarvo
