#include "reflection/MemberTable.h"

#include <map>

#include "reflection/RttiMembers.h"
#include "reflection/RttiTypes.h"
#include "rtl/ModuleSwept.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {
using TTables = std::map<TClass, std::unique_ptr<TClassMemberTable>>;

TTables& Tables() {
  static TModuleSwept<TTables> registry("member tables", KeyBelongsTo);
  return registry.Items();
}
} // namespace

std::vector<TCustomAttribute*> TMemberEntry::AttributeList() const {
  std::vector<TCustomAttribute*> result;
  for (const auto& attribute : Attributes) result.push_back(attribute.get());
  return result;
}

void RegisterMemberTable(std::unique_ptr<TClassMemberTable> ATable) {
  const TClass cls = ATable->Class;
  // Member names are looked up without regard to case: a second "level" would hide "Level".
  for (std::size_t i = 0; i < ATable->Members.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (SameText(ATable->Members[i]->Name, ATable->Members[j]->Name))
        throw EModuleError(String(cls->ClassName()) + "." + ATable->Members[i]->Name +
                           ": the member is published twice");
  Tables()[cls] = std::move(ATable);
  // A module's classes publish while it loads, and a registration hook may have asked for the
  // type of one of them before its table came.
  ReloadClassMembers(cls);
}

const TClassMemberTable* FindMemberTable(TClass AClass) {
  const TTables& tables = Tables();
  const auto found = tables.find(AClass);
  return found == tables.end() ? nullptr : found->second.get();
}

} // namespace Tarvo
