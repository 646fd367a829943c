#include "host/designer/ComponentPalette.h"

#include <QToolButton>
#include <QVBoxLayout>

#include <map>

#include "reflection/ComponentRegistration.h"

namespace Tarvo {

TComponentPalette::TComponentPalette(QWidget* AParent) : QToolBox(AParent) { Refresh(); }

void TComponentPalette::Refresh() {
  while (count() > 0) {
    QWidget* page = widget(0);
    removeItem(0);
    delete page;
  }
  std::map<String, QVBoxLayout*> pages;
  for (const TClass componentClass : GetRegisteredComponents()->ToArray()) {
    String pageName = GetComponentPage(componentClass);
    QVBoxLayout*& layout = pages[pageName];
    if (!layout) {
      auto* page = new QWidget;
      layout = new QVBoxLayout(page);
      layout->setContentsMargins(2, 2, 2, 2);
      layout->addStretch();
      addItem(page, QString::fromStdString(pageName));
    }
    auto* button = new QToolButton;
    button->setText(componentClass->ClassName());
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button, &QToolButton::clicked, this, [this, componentClass] {
      if (FOnCreate) FOnCreate(componentClass);
    });
    // Above the stretch, so that the buttons stay at the top in their order.
    layout->insertWidget(layout->count() - 1, button);
  }
}

QAbstractButton* TComponentPalette::Button(const QString& AClassName) const {
  for (QToolButton* button : findChildren<QToolButton*>())
    if (button->text() == AClassName) return button;
  return nullptr;
}

} // namespace Tarvo
