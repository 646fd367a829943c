#include "reflection/MemberCategories.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TMemberCategory)
TARVO_IMPLEMENT_MEMBER_CATEGORY(TVisualMemberCategory, "Visual")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TLayoutMemberCategory, "Layout")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TBehaviorMemberCategory, "Behavior")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TActionMemberCategory, "Action")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TDragDropMemberCategory, "Drag, Drop and Docking")
TARVO_IMPLEMENT_MEMBER_CATEGORY(THelpMemberCategory, "Help and Hints")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TInputMemberCategory, "Input")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TLinkageMemberCategory, "Linkage")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TLocalizableMemberCategory, "Localizable")
TARVO_IMPLEMENT_MEMBER_CATEGORY(TMiscellaneousMemberCategory, "Miscellaneous")

TARVO_IMPLEMENT_CLASS(TMemberCategoryAttribute)

TRef<IMemberCategory> CreateMemberCategory(TMemberCategoryClass AClass) {
  TARVO_ASSERT(AClass);
  return TRef<IMemberCategory>(AClass.Create());
}

} // namespace Tarvo
