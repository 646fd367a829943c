#include "reflection/CategoryAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(CategoryAttribute)
TARVO_IMPLEMENT_CLASS(AlternateCategoryAttribute)

} // namespace Tarvo
