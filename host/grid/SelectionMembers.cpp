#include "host/grid/SelectionMembers.h"

#include <unordered_set>

#include "design/MemberCategoryRegistry.h"
#include "reflection/RttiTypes.h"

namespace Tarvo {

std::vector<TRef<IMemberInfo>> CommonMembers(const TRef<IObjectArrayList>& ASelection) {
  std::vector<TRef<IMemberInfo>> result;
  if (ASelection->GetCount() == 0) return result;
  for (const TRef<IMemberInfo>& member :
       TRttiObjectHelper::TypeInfo(ASelection->GetItem(0), true)->GetMembers(mvsPublicAndPublished))
    result.push_back(member);
  std::unordered_set<TClass> seen{ASelection->GetItem(0)->ClassType()};
  for (TObject* object : ASelection) {
    if (!seen.insert(object->ClassType()).second) continue;
    std::unordered_set<String> names;
    for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(object, true)->GetAllMembers())
      names.insert(member->GetName());
    std::erase_if(result, [&](const TRef<IMemberInfo>& AMember) { return !names.contains(AMember->GetName()); });
  }
  return result;
}

TMemberKind MemberKindOf(const TRef<IMemberInfo>& AMember) {
  if (Supports<IMethodInfo>(AMember)) return mkMethod;
  if (Supports<IIndexedPropertyInfo>(AMember)) return mkIndexedProperty;
  if (Supports<IFieldInfo>(AMember)) return mkField;
  const TRef<ITypeInfo> type = AMember->GetTypeInfo();
  return type && type->GetTypeKind() == tkMethod ? mkEvent : mkSingleProperty;
}

std::vector<String> CategoryNamesOf(const TRef<IMemberInfo>& AMember, TClass AClass) {
  std::vector<String> names;
  for (const auto& category :
       GetMemberCategories(MemberKindOf(AMember), AClass, AMember->GetName(), AMember->GetTypeInfo()))
    names.push_back(category->GetCategoryName());
  return names;
}

Boolean HasSubRows(const TRef<IMemberEditor>& AEditor) {
  if (Supports<ISubPropertyEditors>(AEditor)) return true;
  TRef<IMembersInfo> members;
  return AEditor->GetSubMembers(members, true) && members->GetCount() > 0;
}

} // namespace Tarvo
