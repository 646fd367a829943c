#pragma once
// TMemberEditor: the root of every editor that the host places in a grid row. It binds one
// reflected member, by name or by a shared member object, to a designer and to a place in the
// tree of rows, and answers what does not depend on the value: the row's name, whether it shows
// and expands, which objects it stands for.

#include "design/Designer.h"
#include "design/Interfaced.h"

namespace Tarvo {

class TMemberEditor;

// Whether a property has a stored specifier that can be asked on an object, and whether the
// value counts as default because the object says it is not stored.
struct TIsDefaultByStrored {
  Boolean HasStored = false;
  Boolean IsDefault = false;
  static TIsDefaultByStrored Create(Boolean AHasStored, Boolean AIsDefault) { return {AHasStored, AIsDefault}; }
};

using IMemberInfoList = IArrayList<TRef<IMemberInfo>>;

class TARVO_API IMemberEditor : public virtual IInterface {
  TARVO_INTERFACE(IMemberEditor, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A61}", IInterface)
public:
  virtual TMemberEditor* GetInstance() = 0;
  virtual String GetEditorName() = 0;
  virtual String GetName() = 0;
  virtual String GetDisplayName() = 0;
  virtual TRef<IMemberInfo> GetFirstMember() = 0;
  virtual TRef<IMemberInfoList> GetMembers(const TRef<IObjectArrayList>& AObjectsList) = 0;
  virtual Boolean GetIsExpandable() = 0;
  virtual Boolean GetIsReadOnly() = 0;
  virtual Boolean GetIsSortable() = 0;
  virtual Boolean GetSubMembers(TRef<IMembersInfo>& AResult, Boolean APublishedPropertiesOnly) = 0;
  virtual Boolean GetIsVisible() = 0;
  virtual TRef<IDesigner> GetDesigner() = 0;
};

class TARVO_API TMemberEditor : public TImplements<TInterfaced, IMemberEditor> {
  TARVO_CLASS(TMemberEditor, TImplements<TInterfaced, IMemberEditor>)

public:
  // The one virtual constructor of every editor; subclasses declare none of their own.
  using TConstructor =
      TConstructorSignature<TObject*, TMemberEditor*, TRef<IDesigner>, TRef<IMemberInfo>, String, TRef<IMemberInfo>>;
  TMemberEditor(TObject* AOwnerObject, TMemberEditor* AParentEditor, TRef<IDesigner> ADesigner,
                TRef<IMemberInfo> ASharedMember, String AMemberName, TRef<IMemberInfo> AFirstMember);

  virtual TRef<IArrayList<TIsDefaultByStrored>> GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList);
  // Called when the row takes the focus.
  virtual void Activate() {}

  TMemberEditor* GetInstance() override { return this; }
  String GetEditorName() override { return ClassName(); }
  String GetName() override { return FMemberName; }
  String GetDisplayName() override;
  TRef<IMemberInfo> GetFirstMember() override;
  // Built once and kept: a later call returns the first result, whatever list it passes.
  TRef<IMemberInfoList> GetMembers(const TRef<IObjectArrayList>& AObjectsList) override;
  Boolean GetIsExpandable() override;
  Boolean GetIsReadOnly() override { return true; }
  Boolean GetIsSortable() override { return true; }
  Boolean GetSubMembers(TRef<IMembersInfo>& AResult, Boolean APublishedPropertiesOnly) override;
  Boolean GetIsVisible() override { return true; }
  TRef<IDesigner> GetDesigner() override { return FDesigner; }

  // Maps a selected object to the object this row's member lives on.
  virtual TObject* GetValueForRootInstance(TObject* AObject);
  virtual TObject* GetValueForDirectInstance(TObject* AObject) { return AObject; }
  virtual TObject* GetOwnerObject();
  virtual TRef<IObjectArrayList> GetOwnerObjects(const TRef<IObjectArrayList>& AObjectsList);

protected:
  TRef<IDesigner> FDesigner;
  String FMemberName;
  TRef<IMemberInfo> FSharedMember;
  TRef<IMemberInfo> FFirstMember;
  TMemberEditor* FParentEditor; // not owned: the parent outlives the row
  TRef<IMemberInfoList> FMemberInfos;
  Boolean FHasHosted = false;
  TObject* FOwnerObject; // not owned
};

using TMemberEditorClass = TClassOf<TMemberEditor>;

class IPropertyEditors;

// An editor's row that expands into the listed editors instead of into reflected sub-members.
class TARVO_API ISubPropertyEditors : public virtual IInterface {
  TARVO_INTERFACE(ISubPropertyEditors, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A64}", IInterface)
public:
  virtual TRef<IPropertyEditors> GetPropertyEditors() = 0;
};

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TIsDefaultByStrored)
TARVO_ARRAY_LIST_INSTANCES(extern, TMemberEditorClass)

} // namespace Tarvo
