#pragma once
#pragma GCC visibility push(default)
// Fonts and string formats of the drawing wrapper: what text looks like, and how it is laid
// out in its rectangle.

#include <QFont>

#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

// Flags; combine with |.
enum TIGXFontStyle : Integer { gfsRegular = 0, gfsBold = 1, gfsItalic = 2, gfsUnderline = 4, gfsStrikeout = 8 };
constexpr TIGXFontStyle operator|(TIGXFontStyle A, TIGXFontStyle B) { return TIGXFontStyle(Integer(A) | Integer(B)); }

// Units numbered as stored in designs; fonts take these two.
enum TIGXFontUnit : Integer { fuPixel = 2, fuPoint = 3 };

class IGXFont : public virtual IInterface {
  TARVO_INTERFACE(IGXFont, "{C6F2185A-93D4-4B07-8E2C-51A7D0B3F948}", IInterface)
public:
  virtual String GetFamily() = 0;
  virtual Single GetSize() = 0;
  virtual TIGXFontUnit GetUnit() = 0;
  virtual TIGXFontStyle GetStyle() = 0;
  virtual QFont ToQFont() = 0;
};

class TIGXFont : public TImplements<TInterfacedObject, IGXFont> {
public:
  // Raises EArgumentOutOfRangeException for a size that is not positive.
  TIGXFont(String AFamily, Single ASize, TIGXFontStyle AStyle = gfsRegular, TIGXFontUnit AUnit = fuPoint);

  String GetFamily() override { return FFamily; }
  Single GetSize() override { return FSize; }
  TIGXFontUnit GetUnit() override { return FUnit; }
  TIGXFontStyle GetStyle() override { return FStyle; }
  QFont ToQFont() override;

private:
  String FFamily;
  Single FSize;
  TIGXFontStyle FStyle;
  TIGXFontUnit FUnit;
};

// Format flags with the values stored in designs.
inline constexpr Cardinal sfNoWrap = 0x1000;
inline constexpr Cardinal sfNoClip = 0x4000;

enum TIGXStringAlignment : Integer { saNear, saCenter, saFar };
enum TIGXStringTrimming : Integer { stNone, stCharacter, stWord, stEllipsisCharacter, stEllipsisWord, stEllipsisPath };

class IGXStringFormat : public virtual IInterface {
  TARVO_INTERFACE(IGXStringFormat, "{7A1D4E90-B5C3-4F68-92E1-0C8B6A357D21}", IInterface)
public:
  virtual Cardinal GetFormatFlags() = 0;
  virtual void SetFormatFlags(Cardinal AFlags) = 0;
  // Horizontal placement in the layout rectangle.
  virtual TIGXStringAlignment GetAlignment() = 0;
  virtual void SetAlignment(TIGXStringAlignment AAlignment) = 0;
  // Vertical placement in the layout rectangle.
  virtual TIGXStringAlignment GetLineAlignment() = 0;
  virtual void SetLineAlignment(TIGXStringAlignment AAlignment) = 0;
  virtual TIGXStringTrimming GetTrimming() = 0;
  virtual void SetTrimming(TIGXStringTrimming ATrimming) = 0;
};

// By default text wraps, is clipped to its rectangle, sits at the top left and is cut off
// without an ellipsis.
class TIGXStringFormat : public TImplements<TInterfacedObject, IGXStringFormat> {
public:
  explicit TIGXStringFormat(Cardinal AFlags = 0) : FFlags(AFlags) {}

  Cardinal GetFormatFlags() override { return FFlags; }
  void SetFormatFlags(Cardinal AFlags) override { FFlags = AFlags; }
  TIGXStringAlignment GetAlignment() override { return FAlignment; }
  void SetAlignment(TIGXStringAlignment AAlignment) override { FAlignment = AAlignment; }
  TIGXStringAlignment GetLineAlignment() override { return FLineAlignment; }
  void SetLineAlignment(TIGXStringAlignment AAlignment) override { FLineAlignment = AAlignment; }
  TIGXStringTrimming GetTrimming() override { return FTrimming; }
  void SetTrimming(TIGXStringTrimming ATrimming) override { FTrimming = ATrimming; }

private:
  Cardinal FFlags;
  TIGXStringAlignment FAlignment = saNear;
  TIGXStringAlignment FLineAlignment = saNear;
  TIGXStringTrimming FTrimming = stNone;
};

} // namespace Tarvo

#pragma GCC visibility pop
