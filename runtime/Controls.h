#pragma once
#pragma GCC visibility push(default)
// Controls: components with a place on a surface. A control is owned by a component (which
// destroys it) and shown inside a window control, its parent (which destroys it too, if it
// goes first). A window control holds child controls and orders its window children for tabbing.

#include "containers/ComponentEnumerators.h"
#include "containers/List.h"
#include "runtime/Graphics.h"

namespace Tarvo {

class TControl;
class TWinControl;
class TPopupMenu;
class TCustomHint;

// The room a control keeps around itself when it is aligned.
class TMargins : public TChangeNotifyPersistent {
  TARVO_CLASS(TMargins, TChangeNotifyPersistent)

public:
  static constexpr Integer DefaultMargin = 3;

  explicit TMargins(TControl* AControl) : FControl(AControl) {}
  void Assign(TPersistent* ASource) override;
  TPersistent* GetOwner() const override;

  Integer GetLeft() const { return FData.Left; }
  void SetLeft(Integer AValue) { Change(FData.Left, AValue); }
  Integer GetTop() const { return FData.Top; }
  void SetTop(Integer AValue) { Change(FData.Top, AValue); }
  Integer GetRight() const { return FData.Right; }
  void SetRight(Integer AValue) { Change(FData.Right, AValue); }
  Integer GetBottom() const { return FData.Bottom; }
  void SetBottom(Integer AValue) { Change(FData.Bottom, AValue); }

private:
  struct TData {
    Integer Left = DefaultMargin, Top = DefaultMargin, Right = DefaultMargin, Bottom = DefaultMargin;
    friend bool operator==(const TData&, const TData&) = default;
  };
  TControl* FControl;
  TData FData;
};

// Limits of a control's size; 0 is no limit. A maximum set below the minimum takes the minimum
// down with it, and a minimum set above a maximum takes the maximum up.
class TSizeConstraints : public TChangeNotifyPersistent {
  TARVO_CLASS(TSizeConstraints, TChangeNotifyPersistent)

public:
  explicit TSizeConstraints(TControl* AControl) : FControl(AControl) {}
  void Assign(TPersistent* ASource) override;
  TPersistent* GetOwner() const override;

  Integer GetMinWidth() const { return FData.MinWidth; }
  void SetMinWidth(Integer AValue) { SetLimit(&TData::MinWidth, AValue); }
  Integer GetMinHeight() const { return FData.MinHeight; }
  void SetMinHeight(Integer AValue) { SetLimit(&TData::MinHeight, AValue); }
  Integer GetMaxWidth() const { return FData.MaxWidth; }
  void SetMaxWidth(Integer AValue) { SetLimit(&TData::MaxWidth, AValue); }
  Integer GetMaxHeight() const { return FData.MaxHeight; }
  void SetMaxHeight(Integer AValue) { SetLimit(&TData::MaxHeight, AValue); }

  // AValue within the limits of one dimension.
  static Integer Constrain(Integer AValue, Integer AMin, Integer AMax);

private:
  struct TData {
    Integer MinWidth = 0, MinHeight = 0, MaxWidth = 0, MaxHeight = 0;
    friend bool operator==(const TData&, const TData&) = default;
  };
  // The limit just set wins when a minimum and its maximum cross.
  void SetLimit(Integer TData::*ALimit, Integer AValue);

  TControl* FControl;
  TData FData;
};

class TControl : public TComponent {
  TARVO_CLASS(TControl, TComponent)

public:
  explicit TControl(TComponent* AOwner);
  ~TControl() override;

  TWinControl* GetParent() const { return FParent; }
  // Moves the control into AParent's children; nil takes it out.
  void SetParent(TWinControl* AParent);

  Integer GetLeft() const { return FLeft; }
  void SetLeft(Integer AValue) { SetBounds(AValue, FTop, FWidth, FHeight); }
  Integer GetTop() const { return FTop; }
  void SetTop(Integer AValue) { SetBounds(FLeft, AValue, FWidth, FHeight); }
  Integer GetWidth() const { return FWidth; }
  void SetWidth(Integer AValue) { SetBounds(FLeft, FTop, AValue, FHeight); }
  Integer GetHeight() const { return FHeight; }
  void SetHeight(Integer AValue) { SetBounds(FLeft, FTop, FWidth, AValue); }
  // The size is kept within the constraints.
  void SetBounds(Integer ALeft, Integer ATop, Integer AWidth, Integer AHeight);

  Boolean GetVisible() const { return FVisible; }
  void SetVisible(Boolean AValue) { FVisible = AValue; }
  Boolean GetEnabled() const { return FEnabled; }
  void SetEnabled(Boolean AValue) { FEnabled = AValue; }
  TColor GetColor() const { return FColor; }
  void SetColor(TColor AValue) { FColor = AValue; }
  TCursor GetCursor() const { return FCursor; }
  void SetCursor(TCursor AValue) { FCursor = AValue; }
  const String& GetHint() const { return FHint; }
  void SetHint(const String& AValue) { FHint = AValue; }
  TAlign GetAlign() const { return FAlign; }
  void SetAlign(TAlign AValue) { FAlign = AValue; }
  TAnchors GetAnchors() const { return FAnchors; }
  void SetAnchors(TAnchors AValue) { FAnchors = AValue; }

  // The font, margins and constraints are the control's own: setting one copies the value in.
  TFont* GetFont() const { return FFont.get(); }
  void SetFont(TFont* AValue) { FFont->Assign(AValue); }
  TMargins* GetMargins() const { return FMargins.get(); }
  void SetMargins(TMargins* AValue) { FMargins->Assign(AValue); }
  TSizeConstraints* GetConstraints() const { return FConstraints.get(); }
  void SetConstraints(TSizeConstraints* AValue) { FConstraints->Assign(AValue); }

  // References to components that may go first: cleared when they do.
  TPopupMenu* GetPopupMenu() const { return FPopupMenu; }
  void SetPopupMenu(TPopupMenu* AValue);
  TCustomHint* GetCustomHint() const { return FCustomHint; }
  void SetCustomHint(TCustomHint* AValue);
  Boolean GetParentCustomHint() const { return FParentCustomHint; }
  void SetParentCustomHint(Boolean AValue) { FParentCustomHint = AValue; }

  // Giving a keyword or a context outside loading chooses how help is looked up.
  THelpType GetHelpType() const { return FHelpType; }
  void SetHelpType(THelpType AValue) { FHelpType = AValue; }
  const String& GetHelpKeyword() const { return FHelpKeyword; }
  void SetHelpKeyword(const String& AValue);
  THelpContext GetHelpContext() const { return FHelpContext; }
  void SetHelpContext(THelpContext AValue);

protected:
  void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
  friend class TWinControl;

  TWinControl* FParent = nullptr;
  Integer FLeft = 0, FTop = 0, FWidth = 0, FHeight = 0;
  Boolean FVisible = true;
  Boolean FEnabled = true;
  TColor FColor = clWindow;
  TCursor FCursor = crDefault;
  String FHint;
  TAlign FAlign = alNone;
  TAnchors FAnchors{akLeft, akTop};
  TOwnedObject<TFont> FFont;
  TOwnedObject<TMargins> FMargins;
  TOwnedObject<TSizeConstraints> FConstraints;
  TPopupMenu* FPopupMenu = nullptr;
  TCustomHint* FCustomHint = nullptr;
  Boolean FParentCustomHint = true;
  THelpType FHelpType = htContext;
  String FHelpKeyword;
  THelpContext FHelpContext = 0;
};

using TControlList = TRef<IArrayList<TControl*>>;

class TWinControl : public TControl {
  TARVO_CLASS(TWinControl, TControl)

public:
  using TControl::TControl;
  // The children that are left go with their parent, last first.
  ~TWinControl() override;

  Integer ControlCount() const { return static_cast<Integer>(FControls.size()); }
  TControl* Controls(Integer AIndex) const;
  // Takes AControl from its parent, if any; a control cannot contain itself or an ancestor.
  void InsertControl(TControl* AControl);
  void RemoveControl(TControl* AControl);

  // The place among the parent's window children; -1 without a parent. A value out of range
  // moves the control to the end.
  TTabOrder GetTabOrder() const;
  void SetTabOrder(TTabOrder AValue);

  // The children (ARecursive: the whole subtree, each before its own children), first to last or
  // last to first; the query's results are new lists.
  TRef<IContainerQuery<TWinControl*, TControlList, TControl*>> QueryControls(Boolean ARecursive, Boolean AReverse);

private:
  std::vector<TControl*> FControls;
  std::vector<TWinControl*> FTabList;
};

} // namespace Tarvo

#pragma GCC visibility pop
