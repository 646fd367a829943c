#pragma once
#pragma GCC visibility push(default)
// Member infos over the entries of registration tables, and the class types made of them.

#include "reflection/MemberInfo.h"

namespace Tarvo {

// The member info of a table entry: a property, an indexed property, a field or a method.
TRef<IMemberInfo> CreateMemberInfo(const TMemberEntry& AEntry);

} // namespace Tarvo

#pragma GCC visibility pop
