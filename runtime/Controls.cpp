#include "runtime/Controls.h"

#include <algorithm>

#include "reflection/Publish.h"
#include "rtl/SysUtils.h"
#include "runtime/Popups.h"

namespace Tarvo {

// ---- TMargins ----

TARVO_IMPLEMENT_CLASS(TMargins)
TARVO_PUBLISH(TMargins) {
  Property("Left", &TMargins::GetLeft, &TMargins::SetLeft).Default(TMargins::DefaultMargin);
  Property("Top", &TMargins::GetTop, &TMargins::SetTop).Default(TMargins::DefaultMargin);
  Property("Right", &TMargins::GetRight, &TMargins::SetRight).Default(TMargins::DefaultMargin);
  Property("Bottom", &TMargins::GetBottom, &TMargins::SetBottom).Default(TMargins::DefaultMargin);
}

void TMargins::Assign(TPersistent* ASource) {
  if (!AssignData(ASource, &TMargins::FData)) inherited::Assign(ASource);
}

TPersistent* TMargins::GetOwner() const { return FControl; }

// ---- TSizeConstraints ----

TARVO_IMPLEMENT_CLASS(TSizeConstraints)
TARVO_PUBLISH(TSizeConstraints) {
  Property("MaxHeight", &TSizeConstraints::GetMaxHeight, &TSizeConstraints::SetMaxHeight).Default(0);
  Property("MaxWidth", &TSizeConstraints::GetMaxWidth, &TSizeConstraints::SetMaxWidth).Default(0);
  Property("MinHeight", &TSizeConstraints::GetMinHeight, &TSizeConstraints::SetMinHeight).Default(0);
  Property("MinWidth", &TSizeConstraints::GetMinWidth, &TSizeConstraints::SetMinWidth).Default(0);
}

void TSizeConstraints::Assign(TPersistent* ASource) {
  if (!AssignData(ASource, &TSizeConstraints::FData)) inherited::Assign(ASource);
}

TPersistent* TSizeConstraints::GetOwner() const { return FControl; }

Integer TSizeConstraints::Constrain(Integer AValue, Integer AMin, Integer AMax) {
  if (AMax > 0) AValue = std::min(AValue, AMax);
  return std::max(AValue, AMin);
}

void TSizeConstraints::SetLimit(Integer TData::*ALimit, Integer AValue) {
  TData data = FData;
  data.*ALimit = AValue;
  const bool maxSet = ALimit == &TData::MaxWidth || ALimit == &TData::MaxHeight;
  for (auto [min, max] :
       {std::pair(&TData::MinWidth, &TData::MaxWidth), std::pair(&TData::MinHeight, &TData::MaxHeight)}) {
    if (data.*max <= 0 || data.*min <= data.*max) continue;
    if (maxSet) data.*min = data.*max;
    else data.*max = data.*min;
  }
  Change(FData, data);
}

// ---- TControl ----

TARVO_IMPLEMENT_CLASS(TControl)
TARVO_PUBLISH(TControl) {
  Property("Left", &TControl::GetLeft, &TControl::SetLeft);
  Property("Top", &TControl::GetTop, &TControl::SetTop);
  Property("Width", &TControl::GetWidth, &TControl::SetWidth);
  Property("Height", &TControl::GetHeight, &TControl::SetHeight);
  Property("Visible", &TControl::GetVisible, &TControl::SetVisible).Default(true);
  Property("Enabled", &TControl::GetEnabled, &TControl::SetEnabled).Default(true);
  Property("Color", &TControl::GetColor, &TControl::SetColor, &TypeInfo_TColor).Default(clWindow);
  Property("Font", &TControl::GetFont, &TControl::SetFont);
  Property("Cursor", &TControl::GetCursor, &TControl::SetCursor, &TypeInfo_TCursor).Default(crDefault);
  Property("Hint", &TControl::GetHint, &TControl::SetHint);
  Property("PopupMenu", &TControl::GetPopupMenu, &TControl::SetPopupMenu);
  Property("Align", &TControl::GetAlign, &TControl::SetAlign).Default(alNone);
  Property("Anchors", &TControl::GetAnchors, &TControl::SetAnchors).Default(TAnchors{akLeft, akTop});
  Property("Margins", &TControl::GetMargins, &TControl::SetMargins);
  Property("Constraints", &TControl::GetConstraints, &TControl::SetConstraints);
  Property("HelpType", &TControl::GetHelpType, &TControl::SetHelpType).Default(htContext);
  Property("HelpKeyword", &TControl::GetHelpKeyword, &TControl::SetHelpKeyword);
  Property("HelpContext", &TControl::GetHelpContext, &TControl::SetHelpContext, &TypeInfo_THelpContext).Default(0);
  Property("CustomHint", &TControl::GetCustomHint, &TControl::SetCustomHint);
  Property("ParentCustomHint", &TControl::GetParentCustomHint, &TControl::SetParentCustomHint).Default(true);
  Public();
  Property("Parent", &TControl::GetParent, &TControl::SetParent);
  Method("SetBounds", &TControl::SetBounds, {"ALeft", "ATop", "AWidth", "AHeight"});
}

TControl::TControl(TComponent* AOwner)
    : TComponent(AOwner), FFont(Construct<TFont>()), FMargins(Construct<TMargins>(this)),
      FConstraints(Construct<TSizeConstraints>(this)) {
  FConstraints->AddChangeHandler([this] { SetBounds(FLeft, FTop, FWidth, FHeight); });
}

TControl::~TControl() { SetParent(nullptr); }

void TControl::SetParent(TWinControl* AParent) {
  if (AParent) AParent->InsertControl(this);
  else if (FParent) FParent->RemoveControl(this);
}

void TControl::SetBounds(Integer ALeft, Integer ATop, Integer AWidth, Integer AHeight) {
  FLeft = ALeft;
  FTop = ATop;
  FWidth = TSizeConstraints::Constrain(AWidth, FConstraints->GetMinWidth(), FConstraints->GetMaxWidth());
  FHeight = TSizeConstraints::Constrain(AHeight, FConstraints->GetMinHeight(), FConstraints->GetMaxHeight());
}

void TControl::SetPopupMenu(TPopupMenu* AValue) { SetComponentReference(FPopupMenu, AValue); }

void TControl::SetCustomHint(TCustomHint* AValue) { SetComponentReference(FCustomHint, AValue); }

void TControl::SetHelpKeyword(const String& AValue) {
  FHelpKeyword = AValue;
  if (!ComponentState().Contains(csLoading)) FHelpType = htKeyword;
}

void TControl::SetHelpContext(THelpContext AValue) {
  FHelpContext = AValue;
  if (!ComponentState().Contains(csLoading)) FHelpType = htContext;
}

void TControl::Notification(TComponent* AComponent, TOperation AOperation) {
  inherited::Notification(AComponent, AOperation);
  if (AOperation != opRemove) return;
  if (AComponent == FPopupMenu) FPopupMenu = nullptr;
  if (AComponent == FCustomHint) FCustomHint = nullptr;
}

// ---- TWinControl ----

TARVO_IMPLEMENT_CLASS(TWinControl)
TARVO_PUBLISH(TWinControl) {
  Property("TabOrder", &TWinControl::GetTabOrder, &TWinControl::SetTabOrder, &TypeInfo_TTabOrder)
      .Default(TTabOrder(-1));
  Public();
  Property("ControlCount", &TWinControl::ControlCount);
  IndexedProperty("Controls", &TWinControl::Controls);
}

TWinControl::~TWinControl() {
  while (!FControls.empty()) Free(FControls.back());
}

TControl* TWinControl::Controls(Integer AIndex) const {
  if (AIndex < 0 || AIndex >= ControlCount()) RaiseListIndexError(AIndex);
  return FControls[std::size_t(AIndex)];
}

void TWinControl::InsertControl(TControl* AControl) {
  TARVO_ASSERT(AControl != nullptr);
  if (AControl->FParent == this) return;
  for (const TControl* ancestor = this; ancestor; ancestor = ancestor->FParent)
    if (ancestor == AControl)
      throw EInvalidOperation(
          Format("Control '%s' cannot contain itself or one of its parents", {AControl->GetName()}));
  if (AControl->FParent) AControl->FParent->RemoveControl(AControl);
  FControls.push_back(AControl);
  if (auto* windowed = dynamic_cast<TWinControl*>(AControl)) FTabList.push_back(windowed);
  AControl->FParent = this;
}

void TWinControl::RemoveControl(TControl* AControl) {
  TARVO_ASSERT(AControl != nullptr && AControl->FParent == this);
  // By address alone: a child that is being destroyed is no TWinControl any more.
  std::erase(FControls, AControl);
  std::erase_if(FTabList, [AControl](const TControl* AChild) { return AChild == AControl; });
  AControl->FParent = nullptr;
}

TTabOrder TWinControl::GetTabOrder() const {
  if (!FParent) return -1;
  const std::vector<TWinControl*>& list = FParent->FTabList;
  return static_cast<TTabOrder>(std::find(list.begin(), list.end(), this) - list.begin());
}

void TWinControl::SetTabOrder(TTabOrder AValue) {
  if (!FParent) return; // a place in a tab order exists only among siblings
  std::vector<TWinControl*>& list = FParent->FTabList;
  std::erase(list, this);
  const auto index = AValue < 0 || std::size_t(AValue) > list.size() ? list.size() : std::size_t(AValue);
  list.insert(list.begin() + std::ptrdiff_t(index), this);
}

TRef<IContainerQuery<TWinControl*, TControlList, TControl*>> TWinControl::QueryControls(Boolean ARecursive,
                                                                                        Boolean AReverse) {
  return CreateComponentQuery<TWinControl*, TControlList, TControl*>(
      this,
      [](TControl* AControl) {
        const auto* windowed = dynamic_cast<const TWinControl*>(AControl);
        return windowed ? windowed->ControlCount() : 0;
      },
      [](TControl* AControl, Integer AIndex) { return static_cast<TWinControl*>(AControl)->Controls(AIndex); },
      ARecursive, AReverse, [](TControl* const&) { return true; },
      [] { return TControlList(New<TArrayList<TControl*>>()); },
      [](TControlList AList, TControl* AControl) { AList->Add(AControl); });
}

} // namespace Tarvo
