#pragma once
// Values that carry categories: what an editor offers when its choices fall into groups (element
// classes by kind, say). The tree select dialog shows them as a tree of categories or as a flat
// list; the grid's drop-down shows their names.

#include <vector>

#include "containers/List.h"
#include "platform/GXImages.h"
#include "reflection/MemberCategories.h"

namespace Tarvo {

// A category of values is named by the same classes as the categories of members.
using TClassCategoryClass = TMemberCategoryClass;

struct TCategorizedValue {
  String Name;
  // The value's icon; nil when it has none.
  TRef<IGXImage> Image;
  // Empty: the value stands at the top level. A value in two categories shows under both.
  std::vector<TClassCategoryClass> Categories;
};

using ICategorizedValueList = IArrayList<TCategorizedValue>;

class TARVO_API IPropertyEditorDropDownCategorizedStringList : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorDropDownCategorizedStringList, "{A7DCD18C-9739-47B8-9607-1592549425B8}", IInterface)
public:
  virtual TRef<ICategorizedValueList> GetCategorizedStringListValues() = 0;
};

// The heading of a category: the name its class gives.
TARVO_API String CategoryCaption(TClassCategoryClass ACategory);

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TCategorizedValue)

} // namespace Tarvo
