#include "runtime/Shape.h"

#include "reflection/Publish.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TShape)
TARVO_PUBLISH(TShape) {
  Property("Brush", &TShape::GetBrush, &TShape::SetBrush);
  Property("Pen", &TShape::GetPen, &TShape::SetPen);
  Property("Shape", &TShape::GetShape, &TShape::SetShape).Default(stRectangle);
}

TShape::TShape(TComponent* AOwner) : TControl(AOwner), FPen(Construct<TPen>()), FBrush(Construct<TBrush>()) {
  SetBounds(GetLeft(), GetTop(), 65, 65);
}

} // namespace Tarvo
