#pragma once
// The kinds of members and the member interfaces that virtual members of the design core add.

#include "reflection/TypeInfo.h"
#include "rtl/Sets.h"

namespace Tarvo {

// In a stored set bit 0 is mkSingleProperty and bit 5 mkSet.
TARVO_ENUM(TMemberKind, mkSingleProperty, mkIndexedProperty, mkEvent, mkMethod, mkField, mkSet)
TARVO_SET(TMemberKinds, TMemberKind)

// A member inside another member's value, such as a variant's type: it reads and writes through
// its owner, and its row takes the owner's access.
class TARVO_API INestedValueMemberInfo : public virtual IValueMemberInfo {
  TARVO_INTERFACE(INestedValueMemberInfo, "{3E8A61D4-2C7F-4B95-A0D3-7F1E9C52B846}", IValueMemberInfo)
public:
  virtual TRef<IValueMemberInfo> GetOwnerMember() = 0;
};

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
