#include "design/MemberEditor.h"

#include "design/SinglePropertyEditor.h"
#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TMemberEditor)

TMemberEditor::TMemberEditor(TObject* AOwnerObject, TMemberEditor* AParentEditor, TRef<IDesigner> ADesigner,
                             TRef<IMemberInfo> ASharedMember, String AMemberName, TRef<IMemberInfo> AFirstMember)
    : FDesigner(std::move(ADesigner)), FMemberName(std::move(AMemberName)), FSharedMember(std::move(ASharedMember)),
      FFirstMember(std::move(AFirstMember)), FParentEditor(AParentEditor), FOwnerObject(AOwnerObject) {}

TRef<IArrayList<TIsDefaultByStrored>> TMemberEditor::GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IArrayList<TIsDefaultByStrored>> result = New<TArrayList<TIsDefaultByStrored>>();
  const TRef<IObjectArrayList> objects = AObjectsList ? AObjectsList : FDesigner->GetRootSelection();
  for (Integer i = 0; i < objects->GetCount(); ++i) result->Add(TIsDefaultByStrored::Create(false, false));
  return result;
}

String TMemberEditor::GetDisplayName() {
  if (FMemberName.empty()) return GetName();
  const TRef<IMemberInfo> member = GetFirstMember();
  TCustomAttribute* name = nullptr;
  if (member->GetMemberAccessAttributes()->GetCustomAttribute(NameAttribute::ClassInfo(), name))
    return static_cast<NameAttribute*>(name)->Name();
  return member->GetDisplayName();
}

TRef<IMemberInfo> TMemberEditor::GetFirstMember() {
  return FFirstMember ? FFirstMember : GetMembers(nullptr)->GetItem(0);
}

TRef<IMemberInfoList> TMemberEditor::GetMembers(const TRef<IObjectArrayList>& AObjectsList) {
  if (FMemberInfos) return FMemberInfos;
  FMemberInfos = New<TArrayList<TRef<IMemberInfo>>>();
  for (TObject* object : GetOwnerObjects(AObjectsList)) {
    TRef<IValueMemberInfo> found;
    if (FSharedMember) FMemberInfos->Add(FSharedMember);
    else if (object && TRttiObjectHelper::TypeInfo(object, true)->FindMember(FMemberName, found))
      FMemberInfos->Add(found);
    else if (FFirstMember) FMemberInfos->Add(FFirstMember);
    else if (TRef<IMembersInfo> subMembers;
             FParentEditor && !FMemberName.empty() && FParentEditor->GetSubMembers(subMembers, false)) {
      TRef<IMemberInfo> match;
      if (subMembers->Query()->Find(
              [this](const TRef<IMemberInfo>& AMember) { return AMember->GetName() == FMemberName; }, match))
        FMemberInfos->Add(match);
    }
  }
  return FMemberInfos;
}

Boolean TMemberEditor::GetIsExpandable() { return Supports<ISubPropertyEditors>(TRef<IMemberEditor>(this)); }

Boolean TMemberEditor::GetSubMembers(TRef<IMembersInfo>& AResult, Boolean) {
  AResult = nullptr;
  return false;
}

TObject* TMemberEditor::GetValueForRootInstance(TObject* AObject) {
  return FParentEditor ? FParentEditor->GetValueForRootInstance(AObject) : GetValueForDirectInstance(AObject);
}

TObject* TMemberEditor::GetOwnerObject() {
  if (FOwnerObject) return FOwnerObject;
  if (FParentEditor) {
    if (!FParentEditor->Is<TSinglePropertyEditor>())
      throw EInvalidCast(String("Invalid class typecast: the parent editor ") + FParentEditor->ClassName() +
                         " is no single property editor");
    const TRef<IArrayList<TValue>> values =
        static_cast<TSinglePropertyEditor*>(FParentEditor)->GetInstanceValues(nullptr);
    return values->GetCount() > 0 ? values->GetItem(0).AsObject() : nullptr;
  }
  const TRef<IObjectArrayList> selection = FDesigner->GetSelection();
  return selection->GetCount() > 0 ? selection->GetItem(0) : nullptr;
}

TRef<IObjectArrayList> TMemberEditor::GetOwnerObjects(const TRef<IObjectArrayList>& AObjectsList) {
  if (AObjectsList) return AObjectsList;
  if (FOwnerObject) return New<TObjectArrayList>()->Add(FOwnerObject);
  const TRef<IObjectArrayList> selection = FDesigner->GetSelection();
  if (!FParentEditor) return selection;
  const TRef<IObjectArrayList> result = New<TObjectArrayList>();
  for (TObject* object : selection) result->Add(FParentEditor->GetValueForRootInstance(object));
  return result;
}

} // namespace Tarvo
