#include "platform/MessageDlg.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <array>

#include "platform/ModalSeam.h"

namespace Tarvo {

TARVO_IMPLEMENT_ENUM(TMsgDlgType)
TARVO_IMPLEMENT_ENUM(TMsgDlgBtn)
TARVO_IMPLEMENT_SET(TMsgDlgButtons, TMsgDlgBtn)

namespace {

struct TButtonEntry {
  QMessageBox::StandardButton Button;
  // Set where the standard button's own caption says something else.
  const char* Caption;
};

// Qt has no plain "All" button; the save-all button stands in for it under its own caption.
constexpr std::array<TButtonEntry, TEnumTraits<TMsgDlgBtn>::Count> ButtonTable = {{
    {QMessageBox::Yes, nullptr},
    {QMessageBox::No, nullptr},
    {QMessageBox::Ok, nullptr},
    {QMessageBox::Cancel, nullptr},
    {QMessageBox::Abort, nullptr},
    {QMessageBox::Retry, nullptr},
    {QMessageBox::Ignore, nullptr},
    {QMessageBox::SaveAll, "&All"},
    {QMessageBox::NoToAll, nullptr},
    {QMessageBox::YesToAll, nullptr},
    {QMessageBox::Help, nullptr},
    {QMessageBox::Close, nullptr},
}};

struct TTypeEntry {
  QMessageBox::Icon Icon;
  const char* Title;
};

constexpr std::array<TTypeEntry, TEnumTraits<TMsgDlgType>::Count> TypeTable = {{
    {QMessageBox::Warning, "Warning"},
    {QMessageBox::Critical, "Error"},
    {QMessageBox::Information, "Information"},
    {QMessageBox::Question, "Confirm"},
    {QMessageBox::NoIcon, nullptr},
}};

} // namespace

TMsgDlgBtn MessageDlg(const String& AMessage, TMsgDlgType AType, TMsgDlgButtons AButtons, TMsgDlgBtn ADefault) {
  const TTypeEntry& type = TypeTable[AType];
  QMessageBox box(QApplication::activeWindow());
  box.setIcon(type.Icon);
  box.setWindowTitle(type.Title ? QString(type.Title) : QApplication::applicationDisplayName());
  box.setText(QString::fromStdString(AMessage));
  for (std::size_t i = 0; i < ButtonTable.size(); ++i) {
    if (!AButtons.Contains(TMsgDlgBtn(i))) continue;
    QPushButton* button = box.addButton(ButtonTable[i].Button);
    if (ButtonTable[i].Caption) button->setText(ButtonTable[i].Caption);
    if (TMsgDlgBtn(i) == ADefault) box.setDefaultButton(button);
  }
  const int result = ExecuteModal(box);
  for (std::size_t i = 0; i < ButtonTable.size(); ++i)
    if (AButtons.Contains(TMsgDlgBtn(i)) && ButtonTable[i].Button == result) return TMsgDlgBtn(i);
  return mbCancel;
}

} // namespace Tarvo
