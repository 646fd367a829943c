#include "forms/SelectDialogLayout.h"

#include <QBoxLayout>
#include <QDialog>
#include <QPushButton>

namespace Tarvo {

void LayOutSelectDialog(QDialog& ADialog, QWidget* ATopPanel, QWidget* AMiddle, QWidget* ABottomPanel,
                        QPushButton* AOKButton, QPushButton* ACancelButton) {
  ABottomPanel->setFixedHeight(41);
  AOKButton->setDefault(true);
  auto* bottom = new QHBoxLayout(ABottomPanel);
  bottom->setContentsMargins(8, 8, 8, 8);
  bottom->addStretch();
  bottom->addWidget(AOKButton);
  bottom->addWidget(ACancelButton);

  auto* layout = new QVBoxLayout(&ADialog);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(ATopPanel);
  layout->addWidget(AMiddle, 1);
  layout->addWidget(ABottomPanel);
}

} // namespace Tarvo
