#pragma once
// A component with a member of each type the identifier list editors edit, two of them selected.

#include "runtime/Component.h"
#include "runtime/Graphics.h"
#include "runtime/NamedTypes.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

class TIdentGadget : public TComponent {
  TARVO_CLASS(TIdentGadget, TComponent)
public:
  TIdentGadget() : TComponent(nullptr) {}
  TFont* GetFont() const { return FFont.get(); }
  void SetFont(TFont* AValue) { FFont->Assign(AValue); }

  TModalResult FResult = mrNone;
  TShortCut FShortCut = 0;
  TFontCharset FCharset = DEFAULT_CHARSET;
  TCursor FCursor = crDefault;
  TBrushStyle FBrush = bsSolid;
  TPenStyle FPen = psSolid;
  TOwnedObject<TFont> FFont{Construct<TFont>()};
};

template <class D> using IdentEditorTest = Testing::GadgetEditorTest<TIdentGadget, D>;

} // namespace Tarvo
