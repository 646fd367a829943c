#pragma once
// Member infos over the entries of registration tables.

#include "design/reflection/MemberInfo.h"

namespace Tarvo {

// The member info of a table entry: a property, an indexed property, a field or a method.
TRef<IMemberInfo> CreateMemberInfo(const TMemberEntry& AEntry);

} // namespace Tarvo
