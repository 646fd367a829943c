#pragma once
// The design surface as the editors see it: the selection they work on, the listeners of the
// selection, and the modification notices. TDesigner is the stock surface a host subclasses;
// TNestedDesigner narrows the selection to one nested object; TSelectionChangeNotifier turns
// the listener interface into optional procedures.

#include <span>
#include <type_traits>

#include "containers/List.h"
#include "reflection/BasicDesigner.h"
#include "reflection/TypeInfo.h"
#include "runtime/Component.h"

namespace Tarvo {

class TARVO_API ISelectionChange : public virtual IInterface {
  TARVO_INTERFACE(ISelectionChange, "{ED64C9B5-2992-4CB4-9DB9-B3D6303627A9}", IInterface)
public:
  virtual void SelectionChangingBegin() = 0;
  virtual void SelectionChanged() = 0;
  virtual void BeginModify() = 0;
  virtual void EndModify() = 0;
  virtual void ItemModified() = 0;
  virtual void ItemAdded(TPersistent* AItem) = 0;
  virtual void ItemDeleted(TPersistent* AItem) = 0;
  virtual void RefreshView() = 0;
  virtual void ResetObjectInspector() = 0;
  virtual void BindingAdded(TObject* ABinding) = 0;
  virtual void BindingRemoved(TObject* ABinding) = 0;
  virtual void DesignerClosing() = 0;
};

// The setters return the notifier, so that they chain.
class TARVO_API ISelectionChangeNotifier : public virtual ISelectionChange {
  TARVO_INTERFACE(ISelectionChangeNotifier, "{D3085545-D1C4-4D4C-9963-01E9B834A268}", ISelectionChange)
public:
  virtual TRef<ISelectionChangeNotifier> SetOnSelectionChanged(TProc<> AProc) = 0;
  virtual TRef<ISelectionChangeNotifier> SetOnModified(TProc<> AProc) = 0;
  virtual TRef<ISelectionChangeNotifier> SetOnRefreshView(TProc<> AProc) = 0;
};

class TARVO_API IDesigner : public virtual IBasicDesigner {
  TARVO_INTERFACE(IDesigner, "{2D285DB6-EA44-41B9-8D6B-BD111CB10A31}", IBasicDesigner)
public:
  virtual void BeginUpdate() = 0;
  virtual void EndUpdate() = 0;
  virtual TRef<IObjectArrayList> GetRootSelection() = 0;
  virtual TRef<IObjectArrayList> GetSelection() = 0;
  virtual void SetSelection(const TRef<IObjectArrayList>& ASelection) = 0;
  // The span carries the array and its highest index together.
  virtual void SetSelection(std::span<TObject* const> ASelection) = 0;
  virtual void AddSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) = 0;
  virtual void RemoveSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) = 0;
  virtual TRef<IStringArrayList> GetComponentNames() = 0;
  virtual TComponent* GetComponent(const String& AName) = 0;
  virtual void ResetObjectInspector() = 0;
  virtual void RefreshView() = 0;
  virtual TComponent* CreateComponent(const TRef<IClassTypeInfo>& AClass, Boolean ALoading) = 0;
  virtual void DeleteComponent(TComponent* AComponent) = 0;
  virtual String UniqueName(const String& ABaseName) = 0;
  virtual void BindingAdded(TObject* ABinding) = 0;
  virtual void BindingRemoved(TObject* ABinding) = 0;
};

// While an update bracket is open, the notices are dropped, not queued; the end of the
// outermost bracket sends SelectionChanged alone.
class TARVO_API TDesigner : public TImplements<TInterfacedObject, IDesigner> {
protected:
  virtual Boolean GetInDesignMode() { return true; }
  // ANotify is kept for subclasses; the change test alone decides.
  virtual void SetSelectionImpl(const TRef<IObjectArrayList>& ASelection, Boolean ANotify);

public:
  void BeginUpdate() override;
  void EndUpdate() override;
  TRef<IObjectArrayList> GetRootSelection() override { return GetSelection(); }
  // A copy, so that the caller can't change the selection through it.
  TRef<IObjectArrayList> GetSelection() override { return TObjectArrayList::CreateCopy(FSelection); }
  void SetSelection(const TRef<IObjectArrayList>& ASelection) override { SetSelectionImpl(ASelection, true); }
  void SetSelection(std::span<TObject* const> ASelection) override;
  void AddSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) override;
  void RemoveSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) override;
  void BeginModify() override { NotifyOutsideUpdate(&ISelectionChange::BeginModify); }
  void EndModify() override { NotifyOutsideUpdate(&ISelectionChange::EndModify); }
  void Modified() override;
  TRef<IStringArrayList> GetComponentNames() override { return New<TStringArrayList>(); }
  TComponent* GetComponent(const String&) override { return nullptr; }
  void ResetObjectInspector() override { NotifyOutsideUpdate(&ISelectionChange::ResetObjectInspector); }
  void RefreshView() override { NotifyOutsideUpdate(&ISelectionChange::RefreshView); }
  TComponent* CreateComponent(const TRef<IClassTypeInfo>& AClass, Boolean ALoading) override;
  void DeleteComponent(TComponent* AComponent) override { TObject::Free(AComponent); }
  String UniqueName(const String& ABaseName) override { return ABaseName; }
  void BindingAdded(TObject* ABinding) final { NotifyOutsideUpdate(&ISelectionChange::BindingAdded, ABinding); }
  void BindingRemoved(TObject* ABinding) final { NotifyOutsideUpdate(&ISelectionChange::BindingRemoved, ABinding); }

protected:
  // The owner of the components that CreateComponent makes.
  virtual TComponent* GetEditRoot() { return nullptr; }

  // Calls AOperation on each listener in the order they were added; how a subclass sends the
  // notices TDesigner never sends (ItemAdded, ItemDeleted, DesignerClosing). The walk goes over
  // a copy: a listener added or removed on the way counts from the next walk on.
  template <class... A>
  void NotifyListeners(void (ISelectionChange::*AOperation)(A...), std::type_identity_t<A>... AArgs) {
    for (const TRef<ISelectionChange>& listener : FSelecttionNotifications->ToArray())
      (listener.get()->*AOperation)(AArgs...);
  }

private:
  template <class... A>
  void NotifyOutsideUpdate(void (ISelectionChange::*AOperation)(A...), std::type_identity_t<A>... AArgs) {
    if (FInUpdateCount == 0) NotifyListeners(AOperation, AArgs...);
  }

  TRef<IObjectArrayList> FSelection = New<TObjectArrayList>();
  TRef<IArrayList<TRef<ISelectionChange>>> FSelecttionNotifications = New<TArrayList<TRef<ISelectionChange>>>();
  Boolean FInModified = false;
  Integer FInUpdateCount = 0;
};

// An editor of a nested object works on that object alone and can't move the outer selection.
class TARVO_API TNestedDesigner : public TImplements<TInterfacedObject, IDesigner> {
public:
  // AObject is not owned; it must outlive the designer.
  TNestedDesigner(TRef<IDesigner> ANestedDesigner, TObject* AObject);

  void BeginModify() override { FNestedDesigner->BeginModify(); }
  void EndModify() override { FNestedDesigner->EndModify(); }
  void Modified() override { FNestedDesigner->Modified(); }
  void BeginUpdate() override { FNestedDesigner->BeginUpdate(); }
  void EndUpdate() override { FNestedDesigner->EndUpdate(); }
  TRef<IObjectArrayList> GetRootSelection() override { return GetSelection(); }
  TRef<IObjectArrayList> GetSelection() override { return New<TObjectArrayList>()->Add(FObject); }
  void SetSelection(const TRef<IObjectArrayList>&) override {}
  void SetSelection(std::span<TObject* const>) override {}
  void AddSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) override {
    FNestedDesigner->AddSelectionChangeNotify(ANotify);
  }
  void RemoveSelectionChangeNotify(const TRef<ISelectionChange>& ANotify) override {
    FNestedDesigner->RemoveSelectionChangeNotify(ANotify);
  }
  TRef<IStringArrayList> GetComponentNames() override { return FNestedDesigner->GetComponentNames(); }
  TComponent* GetComponent(const String& AName) override { return FNestedDesigner->GetComponent(AName); }
  void ResetObjectInspector() override { FNestedDesigner->ResetObjectInspector(); }
  void RefreshView() override { FNestedDesigner->RefreshView(); }
  TComponent* CreateComponent(const TRef<IClassTypeInfo>& AClass, Boolean ALoading) override {
    return FNestedDesigner->CreateComponent(AClass, ALoading);
  }
  void DeleteComponent(TComponent* AComponent) override { FNestedDesigner->DeleteComponent(AComponent); }
  String UniqueName(const String& ABaseName) override { return FNestedDesigner->UniqueName(ABaseName); }
  void BindingAdded(TObject* ABinding) override { FNestedDesigner->BindingAdded(ABinding); }
  void BindingRemoved(TObject* ABinding) override { FNestedDesigner->BindingRemoved(ABinding); }

private:
  TRef<IDesigner> FNestedDesigner;
  TObject* FObject;
};

// The procedures don't receive the item or binding; an unassigned one is skipped.
class TARVO_API TSelectionChangeNotifier : public TImplements<TInterfacedObject, ISelectionChangeNotifier> {
public:
  TSelectionChangeNotifier() = default;
  TSelectionChangeNotifier(TProc<> AOnSelectionChangingBegin, TProc<> AOnSelectionChanged, TProc<> AOnModified,
                           TProc<> AOnRefreshView, TProc<> AOnResetObjectInspector);

  void SelectionChangingBegin() override { Call(FOnSelectionChangingBegin); }
  void SelectionChanged() override { Call(FOnSelectionChanged); }
  void BeginModify() override {}
  void EndModify() override { Call(FOnModified); }
  void ItemModified() override { Call(FOnModified); }
  void ItemAdded(TPersistent*) override { Call(FOnModified); }
  void ItemDeleted(TPersistent*) override { Call(FOnModified); }
  void RefreshView() override { Call(FOnRefreshView); }
  void ResetObjectInspector() override { Call(FOnResetObjectInspector); }
  void BindingAdded(TObject*) override { Call(FOnModified); }
  void BindingRemoved(TObject*) override { Call(FOnModified); }
  void DesignerClosing() override {}

  // The two setters the interface lacks return the class, so a chain can start with them.
  TRef<TSelectionChangeNotifier> SetOnSelectionChangingBegin(TProc<> AProc);
  TRef<ISelectionChangeNotifier> SetOnSelectionChanged(TProc<> AProc) override;
  TRef<ISelectionChangeNotifier> SetOnModified(TProc<> AProc) override;
  TRef<ISelectionChangeNotifier> SetOnRefreshView(TProc<> AProc) override;
  TRef<TSelectionChangeNotifier> SetOnResetObjectInspector(TProc<> AProc);

private:
  static void Call(const TProc<>& AProc) {
    if (AProc) AProc();
  }

  TProc<> FOnSelectionChangingBegin;
  TProc<> FOnSelectionChanged;
  TProc<> FOnModified;
  TProc<> FOnRefreshView;
  TProc<> FOnResetObjectInspector;
};

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<ISelectionChange>)

} // namespace Tarvo
