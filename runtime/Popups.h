#pragma once
#pragma GCC visibility push(default)
// Components that a control shows over itself on demand: its context menu and its custom hint.
// A control refers to them with a free notification, so its reference clears when they go.

#include "runtime/Component.h"

namespace Tarvo {

class TPopupMenu : public TComponent {
  TARVO_CLASS(TPopupMenu, TComponent)

public:
  using TComponent::TComponent;

  // Whether a right click opens the menu by itself.
  Boolean GetAutoPopup() const { return FAutoPopup; }
  void SetAutoPopup(Boolean AValue) { FAutoPopup = AValue; }

private:
  Boolean FAutoPopup = true;
};

class TCustomHint : public TComponent {
  TARVO_CLASS(TCustomHint, TComponent)

public:
  using TComponent::TComponent;

  const String& GetTitle() const { return FTitle; }
  void SetTitle(const String& AValue) { FTitle = AValue; }
  // Milliseconds before the hint shows.
  Cardinal GetDelay() const { return FDelay; }
  void SetDelay(Cardinal AValue) { FDelay = AValue; }
  // Milliseconds before it hides again; -1 keeps it until the mouse leaves.
  Integer GetHideAfter() const { return FHideAfter; }
  void SetHideAfter(Integer AValue) { FHideAfter = AValue; }

private:
  String FTitle;
  Cardinal FDelay = 500;
  Integer FHideAfter = -1;
};

} // namespace Tarvo

#pragma GCC visibility pop
