#include "design/editors/FontEditor.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "platform/FontDialog.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TFontPropertyEditor)

void TFontPropertyEditor::Execute(QWidget*) {
  // The dialog works on a copy: the objects change only through the write.
  const TOwnedObject<TFont> font{Construct<TFont>()};
  if (auto* current = dynamic_cast<TFont*>(FirstValueObject())) font->Assign(current);
  if (ExecuteFontDialog(*font)) SetInstanceValues(TValue(static_cast<TObject*>(font.get())));
}

void RegisterFontEditors() { RegisterPropertyEditor(TypeInfo<TFont*>(), TFontPropertyEditor::ClassInfo()); }

} // namespace Tarvo
