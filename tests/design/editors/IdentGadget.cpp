#include "tests/design/editors/IdentGadget.h"

#include "reflection/Publish.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TIdentGadget)
TARVO_PUBLISH(TIdentGadget) {
  using T = TIdentGadget;
  Property("Result", &T::FResult, &T::FResult, &TypeInfo_TModalResult);
  Property("ShortCut", &T::FShortCut, &T::FShortCut, &TypeInfo_TShortCut);
  Property("Charset", &T::FCharset, &T::FCharset, &TypeInfo_TFontCharset);
  Property("Cursor", &T::FCursor, &T::FCursor, &TypeInfo_TCursor).Default(crDefault);
  Property("Brush", &T::FBrush, &T::FBrush).Default(bsSolid);
  Property("Pen", &T::FPen, &T::FPen).Default(psSolid);
  Property("Font", &T::GetFont, &T::SetFont);
  Public();
  Property("InnerCursor", &T::FCursor, &T::FCursor, &TypeInfo_TCursor);
  Property("InnerPen", &T::FPen, &T::FPen);
}

} // namespace Tarvo
