#pragma once
// The frame the two select dialogs share: the filter panel on top, the list or tree filling the
// middle, and OK and Cancel right-aligned in the bottom panel, 41 high.

class QDialog;
class QPushButton;
class QWidget;

namespace Tarvo {

void LayOutSelectDialog(QDialog& ADialog, QWidget* ATopPanel, QWidget* AMiddle, QWidget* ABottomPanel,
                        QPushButton* AOKButton, QPushButton* ACancelButton);

} // namespace Tarvo
