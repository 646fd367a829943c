#pragma once
// The registered component classes, a page of buttons for each palette page, in registration
// order. A click asks for a new component of the class.

#include <QToolBox>

#include <functional>

#include "rtl/Object.h"

class QAbstractButton;

namespace Tarvo {

class TComponentPalette : public QToolBox {
  Q_OBJECT
public:
  explicit TComponentPalette(QWidget* AParent = nullptr);

  // Pages and buttons anew from the registry, after a module came or went.
  void Refresh();
  // Called with the class of the button clicked.
  void SetOnCreate(std::function<void(TClass)> AOnCreate) { FOnCreate = std::move(AOnCreate); }
  // The button of the class of that name; nil when the class is not on the palette.
  QAbstractButton* Button(const QString& AClassName) const;

private:
  std::function<void(TClass)> FOnCreate;
};

} // namespace Tarvo
