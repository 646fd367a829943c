#include "reflection/StringAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(AutoUpdateAttribute)
TARVO_IMPLEMENT_CLASS(IdentifierStringAttribute)
TARVO_IMPLEMENT_CLASS(StringDesignAccessAttribute)
TARVO_IMPLEMENT_CLASS(FileNameDesignAttribute)

} // namespace Tarvo
