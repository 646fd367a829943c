#pragma once
// Font objects, expanded into their rows like any object and picked whole in the font dialog.

#include "design/editors/ClassEditors.h"

namespace Tarvo {

class TARVO_API TFontPropertyEditor : public TImplements<TClassPropertyEditor, IPropertyEditorDialog> {
  TARVO_CLASS(TFontPropertyEditor, TImplements<TClassPropertyEditor, IPropertyEditorDialog>)
public:
  using TImplements::TImplements;
  // Opens on the first object's font; OK writes the choice to every selected object, cancel
  // nothing.
  void Execute(QWidget* AOwner) override;
};

} // namespace Tarvo
