#include "reflection/ClassAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(ExcludeSystemColorsAttribute)
TARVO_IMPLEMENT_CLASS(NotExpandableClassAttribute)
TARVO_IMPLEMENT_CLASS(HideEmptyAttribute)
TARVO_IMPLEMENT_CLASS(FixedCollectionAttribute)
TARVO_IMPLEMENT_CLASS(FixedOrderCollectionAttribute)
TARVO_IMPLEMENT_CLASS(AllowCollectionExpantionAttribute)

} // namespace Tarvo
