#include "design/CategorizedValues.h"

namespace Tarvo {

String CategoryCaption(TClassCategoryClass ACategory) { return CreateMemberCategory(ACategory)->GetName(); }

} // namespace Tarvo
