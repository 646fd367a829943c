#pragma once
// The kinds of members and the member interfaces that virtual members of the design core add.

#include "reflection/TypeInfo.h"
#include "rtl/Sets.h"

namespace Tarvo {

// In a stored set bit 0 is mkSingleProperty and bit 5 mkSet.
TARVO_ENUM(TMemberKind, mkSingleProperty, mkIndexedProperty, mkEvent, mkMethod, mkField, mkSet)
TARVO_SET(TMemberKinds, TMemberKind)

// The element of a set shown as a Boolean sub-row; it answers the property it belongs to.
class TARVO_API ISetValueMemberInfo : public virtual IValueMemberInfo {
  TARVO_INTERFACE(ISetValueMemberInfo, "{A941F981-4EDB-47A9-A4AB-2322C0127AFB}", IValueMemberInfo)
public:
  virtual TRef<IValueMemberInfo> GetOwnerMember() = 0;
};

// The "Type" sub-row of a variant.
class TARVO_API IVariantTypeMemberInfo : public virtual IValueMemberInfo {
  TARVO_INTERFACE(IVariantTypeMemberInfo, "{D0555EA1-2B8A-4EDF-88BE-65AEBB5E6EF3}", IValueMemberInfo)
};

} // namespace Tarvo
