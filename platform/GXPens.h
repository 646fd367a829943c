#pragma once
#pragma GCC visibility push(default)
// Pens of the drawing wrapper: colour, width, dash style, line join and alignment. Dash lengths
// are in multiples of the pen width.

#include <QPen>

#include <vector>

#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

enum TIGXDashStyle : Integer { dsSolid, dsDash, dsDot, dsDashDot, dsDashDotDot, dsCustom };
enum TIGXLineJoin : Integer { ljMiter, ljBevel, ljRound, ljMiterClipped };
// Centre strokes on the outline; inset keeps a closed figure's outline inside its bounds.
enum TIGXPenAlignment : Integer { paCenter, paInset };

class IGXPen : public virtual IInterface {
  TARVO_INTERFACE(IGXPen, "{5B0E7A43-2C61-4D8A-9F35-7E1C0B94A6D2}", IInterface)
public:
  virtual TAlphaColor GetColor() = 0;
  virtual void SetColor(TAlphaColor AColor) = 0;
  virtual Single GetWidth() = 0;
  virtual void SetWidth(Single AWidth) = 0;
  virtual TIGXDashStyle GetDashStyle() = 0;
  // dsCustom keeps the dash pattern last set. The setters raise EArgumentOutOfRangeException
  // for a value outside the enumeration.
  virtual void SetDashStyle(TIGXDashStyle AStyle) = 0;
  // Dash and gap lengths in turn; raises EArgumentException when empty or not all positive.
  // Setting a pattern makes the style dsCustom.
  virtual std::vector<Single> GetDashPattern() = 0;
  virtual void SetDashPattern(const std::vector<Single>& APattern) = 0;
  virtual TIGXLineJoin GetLineJoin() = 0;
  virtual void SetLineJoin(TIGXLineJoin AJoin) = 0;
  virtual TIGXPenAlignment GetAlignment() = 0;
  virtual void SetAlignment(TIGXPenAlignment AAlignment) = 0;
  // The pen as QPainter strokes it.
  virtual QPen ToQPen() = 0;
};

class TIGXPen : public TImplements<TInterfacedObject, IGXPen> {
public:
  explicit TIGXPen(TAlphaColor AColor, Single AWidth = 1.0f);

  TAlphaColor GetColor() override { return FColor; }
  void SetColor(TAlphaColor AColor) override { FColor = AColor; }
  Single GetWidth() override { return FWidth; }
  void SetWidth(Single AWidth) override { FWidth = AWidth; }
  TIGXDashStyle GetDashStyle() override { return FDashStyle; }
  void SetDashStyle(TIGXDashStyle AStyle) override;
  std::vector<Single> GetDashPattern() override;
  void SetDashPattern(const std::vector<Single>& APattern) override;
  TIGXLineJoin GetLineJoin() override { return FLineJoin; }
  void SetLineJoin(TIGXLineJoin AJoin) override;
  TIGXPenAlignment GetAlignment() override { return FAlignment; }
  void SetAlignment(TIGXPenAlignment AAlignment) override;
  QPen ToQPen() override;

private:
  TAlphaColor FColor;
  Single FWidth;
  TIGXDashStyle FDashStyle = dsSolid;
  std::vector<Single> FDashPattern{1.0f};
  TIGXLineJoin FLineJoin = ljMiter;
  TIGXPenAlignment FAlignment = paCenter;
};

} // namespace Tarvo

#pragma GCC visibility pop
