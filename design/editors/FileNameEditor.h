#pragma once
// File names picked in an open dialog whose filter the member's FileNameDesignAttribute gives.

#include <utility>

#include "design/editors/StringEditors.h"

namespace Tarvo {

class TARVO_API TAttributedFileNameEdit : public TImplements<TStringPropertyEditor, IPropertyEditorDialog> {
  TARVO_CLASS(TAttributedFileNameEdit, TImplements<TStringPropertyEditor, IPropertyEditorDialog>)
public:
  using TImplements::TImplements;
  // The filter ("Text files (*.txt)|*.txt|...") and the default extension; empty without the
  // attribute.
  virtual std::pair<String, String> GetFilterDefaultExt();
  // The dialog starts afresh, not at the current value; a cancelled one changes nothing.
  void Execute(QWidget* AOwner) override;
};

} // namespace Tarvo
