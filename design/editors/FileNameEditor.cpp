#include "design/editors/FileNameEditor.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "platform/OpenFileDialog.h"
#include "reflection/StringAttributes.h"
#include "runtime/NamedTypes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TAttributedFileNameEdit)

std::pair<String, String> TAttributedFileNameEdit::GetFilterDefaultExt() {
  if (const auto* attribute = FindMemberAttribute<FileNameDesignAttribute>(GetFirstMember()))
    return {attribute->Filter(), attribute->DefaultExt()};
  return {};
}

void TAttributedFileNameEdit::Execute(QWidget*) {
  const auto [filter, defaultExt] = GetFilterDefaultExt();
  String fileName;
  if (ExecuteOpenFileDialog(filter, defaultExt, fileName)) SetStringValue(fileName);
}

void RegisterFileNameEditors() {
  RegisterPropertyEditor(&TypeInfo_TAttributedFileName, TAttributedFileNameEdit::ClassInfo());
}

} // namespace Tarvo
