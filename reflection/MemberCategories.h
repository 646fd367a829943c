#pragma once
#pragma GCC visibility push(default)
// Member categories: the category classes, built through their class reference, and the
// attribute that puts a member or a type into one.

#include "reflection/Attributes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

class IMemberCategory : public virtual IInterface {
  TARVO_INTERFACE(IMemberCategory, "{981BB9F0-9B52-4C3E-A079-0599082A1DCD}", IInterface)
public:
  virtual String GetName() = 0;
  // The name of a bitmap resource of the category class's module; empty for none.
  virtual String GetBitmapName() = 0;
};

// The base of the category classes, which are built through their class reference.
class TMemberCategory : public TImplements<TInterfacedObject, IMemberCategory> {
  TARVO_CLASS(TMemberCategory, TImplements<TInterfacedObject, IMemberCategory>)
public:
  using TConstructor = TConstructorSignature<>;
  String GetBitmapName() override { return String(); }
};
using TMemberCategoryClass = TClassOf<TMemberCategory>;

// Builds the category that AClass stands for.
TRef<IMemberCategory> CreateMemberCategory(TMemberCategoryClass AClass);

// A category class that only names itself; TARVO_IMPLEMENT_MEMBER_CATEGORY gives the name.
#define TARVO_MEMBER_CATEGORY(AClass)                                                                                  \
  class AClass : public TMemberCategory {                                                                              \
    TARVO_CLASS(AClass, TMemberCategory)                                                                               \
  public:                                                                                                              \
    String GetName() override;                                                                                         \
  };

#define TARVO_IMPLEMENT_MEMBER_CATEGORY(AClass, AName)                                                                 \
  TARVO_IMPLEMENT_CLASS(AClass)                                                                                        \
  String AClass::GetName() { return AName; }

TARVO_MEMBER_CATEGORY(TVisualMemberCategory)
TARVO_MEMBER_CATEGORY(TLayoutMemberCategory)
TARVO_MEMBER_CATEGORY(TBehaviorMemberCategory)
TARVO_MEMBER_CATEGORY(TActionMemberCategory)
TARVO_MEMBER_CATEGORY(TDragDropMemberCategory)
TARVO_MEMBER_CATEGORY(THelpMemberCategory)
TARVO_MEMBER_CATEGORY(TInputMemberCategory)
TARVO_MEMBER_CATEGORY(TLinkageMemberCategory)
TARVO_MEMBER_CATEGORY(TLocalizableMemberCategory)
TARVO_MEMBER_CATEGORY(TMiscellaneousMemberCategory)

// Puts the member it stands on, or every member of the type it stands on, into a category.
TARVO_ATTRIBUTE_1(TMemberCategoryAttribute, TCustomAttribute, TMemberCategoryClass, CategoryClass)

} // namespace Tarvo

#pragma GCC visibility pop
