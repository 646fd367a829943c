#pragma once
// Member infos over the entries of registration tables, and the class types made of them.

#include "design/reflection/MemberInfo.h"

namespace Tarvo {

// The member info of a table entry: a property, an indexed property, a field or a method.
TRef<IMemberInfo> CreateMemberInfo(const TMemberEntry& AEntry);

// Brings the type info of AClass, if one was made already, up to the class's current table.
void ReloadClassMembers(TClass AClass);

} // namespace Tarvo
