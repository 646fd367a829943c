#pragma once
#pragma GCC visibility push(default)
// The named types of the component model. Most share a representation with a base type (a TColor
// is an Integer, a TFontName a string) and differ only by their type record, which is what the
// design core registers editors by.

#include "rtl/Sets.h"

namespace Tarvo {

// ---- Colours ----

// Low three bytes blue, green, red; a high byte of 0xFF marks a system colour whose index is the
// low byte, resolved by the platform.
using TColor = Integer;
extern const TTypeInfo TypeInfo_TColor;

inline constexpr TColor clBlack = 0x000000;
inline constexpr TColor clWhite = 0xFFFFFF;
inline constexpr TColor clWindow = static_cast<TColor>(0xFF000005);
inline constexpr TColor clWindowText = static_cast<TColor>(0xFF000008);
inline constexpr TColor clBtnFace = static_cast<TColor>(0xFF00000F);
inline constexpr TColor clNone = 0x1FFFFFFF;
inline constexpr TColor clDefault = 0x20000000;

// 0xAARRGGBB.
using TAlphaColor = Cardinal;
extern const TTypeInfo TypeInfo_TAlphaColor;

// ---- Cursors ----

// Stock cursors have the negative ids; a program adds its own above zero.
using TCursor = SmallInt;
extern const TTypeInfo TypeInfo_TCursor;

inline constexpr TCursor crDefault = 0;
inline constexpr TCursor crNone = -1;
inline constexpr TCursor crArrow = -2;
inline constexpr TCursor crCross = -3;
inline constexpr TCursor crIBeam = -4;
inline constexpr TCursor crSizeNESW = -6;
inline constexpr TCursor crSizeNS = -7;
inline constexpr TCursor crSizeNWSE = -8;
inline constexpr TCursor crSizeWE = -9;
inline constexpr TCursor crUpArrow = -10;
inline constexpr TCursor crHourGlass = -11;
inline constexpr TCursor crDrag = -12;
inline constexpr TCursor crNoDrop = -13;
inline constexpr TCursor crHSplit = -14;
inline constexpr TCursor crVSplit = -15;
inline constexpr TCursor crMultiDrag = -16;
inline constexpr TCursor crSQLWait = -17;
inline constexpr TCursor crNo = -18;
inline constexpr TCursor crAppStart = -19;
inline constexpr TCursor crHelp = -20;
inline constexpr TCursor crHandPoint = -21;
inline constexpr TCursor crSizeAll = -22;

// ---- Fonts and input ----

using TFontName = String;
extern const TTypeInfo TypeInfo_TFontName;

using TFontCharset = Byte;
extern const TTypeInfo TypeInfo_TFontCharset;
// The charset that follows the system's locale.
inline constexpr TFontCharset DEFAULT_CHARSET = 1;

TARVO_ENUM(TFontStyle, fsBold, fsItalic, fsUnderline, fsStrikeOut)
TARVO_SET(TFontStyles, TFontStyle)

using TImeName = String;
extern const TTypeInfo TypeInfo_TImeName;

// ---- Files ----

// A file's path, picked in an open dialog at design time; FileNameDesignAttribute on the member
// gives the dialog its filter.
using TAttributedFileName = String;
extern const TTypeInfo TypeInfo_TAttributedFileName;

// ---- Drawing styles ----

TARVO_ENUM(TBrushStyle, bsSolid, bsClear, bsHorizontal, bsVertical, bsFDiagonal, bsBDiagonal, bsCross, bsDiagCross)
TARVO_ENUM(TPenStyle, psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame, psUserStyle, psAlternate)
TARVO_ENUM(TShapeType, stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle)

// ---- Components and controls ----

using TComponentName = String;
extern const TTypeInfo TypeInfo_TComponentName;

using TModalResult = Integer;
extern const TTypeInfo TypeInfo_TModalResult;

inline constexpr TModalResult mrNone = 0;
inline constexpr TModalResult mrOk = 1;
inline constexpr TModalResult mrCancel = 2;
inline constexpr TModalResult mrAbort = 3;
inline constexpr TModalResult mrRetry = 4;
inline constexpr TModalResult mrIgnore = 5;
inline constexpr TModalResult mrYes = 6;
inline constexpr TModalResult mrNo = 7;
inline constexpr TModalResult mrClose = 8;
inline constexpr TModalResult mrHelp = 9;
inline constexpr TModalResult mrTryAgain = 10;
inline constexpr TModalResult mrContinue = 11;
inline constexpr TModalResult mrAll = 12;
inline constexpr TModalResult mrNoToAll = 13;
inline constexpr TModalResult mrYesToAll = 14;

// A virtual key code with modifier flags; 0 is no shortcut.
using TShortCut = Word;
extern const TTypeInfo TypeInfo_TShortCut;

inline constexpr TShortCut scNone = 0;
inline constexpr TShortCut scShift = 0x2000;
inline constexpr TShortCut scCtrl = 0x4000;
inline constexpr TShortCut scAlt = 0x8000;

// -1 for a control that has no place in a tab order.
using TTabOrder = SmallInt;
extern const TTypeInfo TypeInfo_TTabOrder;

using THelpContext = Integer;
extern const TTypeInfo TypeInfo_THelpContext;

TARVO_ENUM(THelpType, htKeyword, htContext)
TARVO_ENUM(TAlign, alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom)
TARVO_ENUM(TAnchorKind, akLeft, akTop, akRight, akBottom)
TARVO_SET(TAnchors, TAnchorKind)

} // namespace Tarvo

#pragma GCC visibility pop
