#include "design/reflection/MemberTable.h"

#include <map>

#include "design/reflection/RttiMembers.h"

namespace Tarvo {

namespace {
struct TMemberTableRegistry {
  std::map<TClass, std::unique_ptr<TClassMemberTable>> Tables;

  TMemberTableRegistry() {
    AddModuleUnloadProc([this](TModule* AModule) {
      std::erase_if(Tables, [AModule](const auto& AEntry) { return AEntry.first->Module() == AModule; });
    });
  }
};

TMemberTableRegistry& MemberTableRegistry() {
  static TMemberTableRegistry registry;
  return registry;
}
} // namespace

std::vector<TCustomAttribute*> TMemberEntry::AttributeList() const {
  std::vector<TCustomAttribute*> result;
  for (const auto& attribute : Attributes) result.push_back(attribute.get());
  return result;
}

void RegisterMemberTable(std::unique_ptr<TClassMemberTable> ATable) {
  const TClass cls = ATable->Class;
  MemberTableRegistry().Tables[cls] = std::move(ATable);
  // A module's classes publish while it loads, and a registration hook may have asked for the
  // type of one of them before its table came.
  ReloadClassMembers(cls);
}

const TClassMemberTable* FindMemberTable(TClass AClass) {
  const auto& tables = MemberTableRegistry().Tables;
  const auto found = tables.find(AClass);
  return found == tables.end() ? nullptr : found->second.get();
}

} // namespace Tarvo
