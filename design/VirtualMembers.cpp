#include "design/VirtualMembers.h"

#include "reflection/RttiTypes.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {
PTypeInfo ClassRecordOf(TObject* AObject) {
  return (AObject ? AObject->ClassType() : TObject::ClassInfo())->ClassTypeRecord();
}
} // namespace

TVirtualMember::TVirtualMember(TObject* AObject, String AName, String ASaveName)
    : TImplements(ClassRecordOf(AObject), nullptr, AName), FObject(AObject), FName(std::move(AName)),
      FSaveName(std::move(ASaveName)) {}

TRef<ITypeInfo> TVirtualMember::GetTypeInfo() {
  return FObject ? TRef<ITypeInfo>(TRttiObjectHelper::TypeInfo(FObject, true)) : TMemberInfo::GetTypeInfo();
}

TNamedVirtualMember::TNamedVirtualMember(TObject* AObject, Integer AIndex, std::function<String()> AOnGetName)
    : TVirtualMember(AObject, "Item [" + IntToStr(AIndex) + "]", "_" + IntToStr(AIndex)),
      FOnGetName(std::move(AOnGetName)) {}

TNestedValueMemberInfo::TNestedValueMemberInfo(TRef<IValueMemberInfo> AOwner, PTypeInfo AType, String AName)
    : TValueMemberInfo(AType, nullptr, std::move(AName)), FOwner(std::move(AOwner)) {}

TRef<IAttributesInfo> TNestedValueMemberInfo::CreateAccessAttributes() { return New<TVirtualObjectInfo>(GetName()); }

} // namespace Tarvo
