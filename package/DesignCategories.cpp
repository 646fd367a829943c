// The categories the design core puts the members of controls into at start-up, in this order.

#include "design/MemberCategoryRegistry.h"
#include "package/DesignUnit.h"
#include "runtime/Controls.h"
#include "runtime/Graphics.h"
#include "runtime/NamedTypes.h"
#include "runtime/Shape.h"

namespace Tarvo {

void RegisterDesignCategories() {
  const TClass control = TControl::ClassInfo();
  const TMemberCategoryClass visual = TVisualMemberCategory::ClassInfo(), layout = TLayoutMemberCategory::ClassInfo(),
                             behavior = TBehaviorMemberCategory::ClassInfo();
  RegisterPropertiesInCategories({visual, layout}, control, TypeInfo<Integer>(), {"Left", "Top", "Width", "Height"});
  RegisterPropertiesInCategories(
      {layout}, control,
      {TypeInfo<TMargins*>(), TypeInfo<TAnchors>(), TypeInfo<TSizeConstraints*>(), TypeInfo<TAlign>()});
  RegisterPropertiesInCategories({visual}, control, TypeInfo<Boolean>(), {"Visible", "Enabled"});
  RegisterPropertiesInCategories({behavior}, control, TypeInfo<Boolean>(), {"Enabled", "TabStop"});
  RegisterPropertyInCategories({visual}, control, &TypeInfo_TColor, "Color");
  RegisterPropertyInCategories({behavior}, control, &TypeInfo_TTabOrder, "TabOrder");
  RegisterPropertyInCategories({visual}, TShape::ClassInfo(), TypeInfo<TShapeType>());
  RegisterPropertiesInCategories({visual}, nullptr, {TypeInfo<TPen*>(), TypeInfo<TBrush*>(), &TypeInfo_TCursor});
}

} // namespace Tarvo
