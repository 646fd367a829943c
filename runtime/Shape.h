#pragma once
#pragma GCC visibility push(default)
// A control that draws a geometric shape with its own pen and brush.

#include "runtime/Controls.h"

namespace Tarvo {

class TShape : public TControl {
  TARVO_CLASS(TShape, TControl)

public:
  explicit TShape(TComponent* AOwner);

  TShapeType GetShape() const { return FShape; }
  void SetShape(TShapeType AValue) { FShape = AValue; }
  // The pen and brush are the shape's own: setting one copies the value in.
  TPen* GetPen() const { return FPen.get(); }
  void SetPen(TPen* AValue) { FPen->Assign(AValue); }
  TBrush* GetBrush() const { return FBrush.get(); }
  void SetBrush(TBrush* AValue) { FBrush->Assign(AValue); }

private:
  TShapeType FShape = stRectangle;
  TOwnedObject<TPen> FPen;
  TOwnedObject<TBrush> FBrush;
};

} // namespace Tarvo

#pragma GCC visibility pop
