#include "runtime/NamedTypes.h"

namespace Tarvo {

constinit const TTypeInfo TypeInfo_TColor = OrdinalTypeRecord<Integer>("TColor");
constinit const TTypeInfo TypeInfo_TAlphaColor = OrdinalTypeRecord<Cardinal>("TAlphaColor");
constinit const TTypeInfo TypeInfo_TCursor = OrdinalTypeRecord<SmallInt>("TCursor");
constinit const TTypeInfo TypeInfo_TFontName = StringTypeRecord("TFontName", tkUString);
constinit const TTypeInfo TypeInfo_TFontCharset = OrdinalTypeRecord<Byte>("TFontCharset", 0, 255);
constinit const TTypeInfo TypeInfo_TImeName = StringTypeRecord("TImeName", tkUString);
constinit const TTypeInfo TypeInfo_TAttributedFileName = StringTypeRecord("TAttributedFileName", tkUString);
constinit const TTypeInfo TypeInfo_TComponentName = StringTypeRecord("TComponentName", tkUString);
constinit const TTypeInfo TypeInfo_TModalResult = OrdinalTypeRecord<Integer>("TModalResult");
constinit const TTypeInfo TypeInfo_TShortCut = OrdinalTypeRecord<Word>("TShortCut");
constinit const TTypeInfo TypeInfo_TTabOrder = OrdinalTypeRecord<SmallInt>("TTabOrder", -1, 32767);
constinit const TTypeInfo TypeInfo_THelpContext = OrdinalTypeRecord<Integer>("THelpContext");

TARVO_IMPLEMENT_ENUM(TFontStyle)
TARVO_IMPLEMENT_SET(TFontStyles, TFontStyle)
TARVO_IMPLEMENT_ENUM(TBrushStyle)
TARVO_IMPLEMENT_ENUM(TPenStyle)
TARVO_IMPLEMENT_ENUM(TShapeType)
TARVO_IMPLEMENT_ENUM(THelpType)
TARVO_IMPLEMENT_ENUM(TAlign)
TARVO_IMPLEMENT_ENUM(TAnchorKind)
TARVO_IMPLEMENT_SET(TAnchors, TAnchorKind)

} // namespace Tarvo
