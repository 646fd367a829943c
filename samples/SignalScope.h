#pragma once
// A scope: a panel that shows a signal and holds controls of its own (markers, labels). Every
// write the designer makes to it asks for a redraw.

#include "runtime/Controls.h"
#include "runtime/LockItem.h"
#include "samples/SignalSource.h"

namespace Signals {

using namespace Tarvo;

class TSignalScope : public TImplements<TWinControl, ILockItem> {
  TARVO_CLASS(TSignalScope, TImplements<TWinControl, ILockItem>)

public:
  static constexpr TColor DefaultTraceColor = 0x00FF00;

  explicit TSignalScope(TComponent* AOwner);

  // A generator or a filter of the same owner; cleared when it goes.
  TRef<ISignalSource> GetSource() const;
  // A source that is no component cannot be followed, and is refused.
  void SetSource(const TRef<ISignalSource>& AValue);
  // Seconds per division.
  Double GetTimebase() const { return FTimebase; }
  void SetTimebase(Double AValue) { FTimebase = AValue; }
  Byte GetDivisions() const { return FDivisions; }
  void SetDivisions(Byte AValue) { FDivisions = AValue; }
  Boolean GetGrid() const { return FGrid; }
  void SetGrid(Boolean AValue) { FGrid = AValue; }
  TColor GetTraceColor() const { return FTraceColor; }
  void SetTraceColor(TColor AValue) { FTraceColor = AValue; }
  const String& GetCaption() const { return FCaption; }
  void SetCaption(const String& AValue) { FCaption = AValue; }

  // The largest magnitude among the first ACount samples of the source.
  Double Peak(Integer ACount) const;
  Integer GetRedrawCount() const { return FRedrawCount; }

  TProc<> GetNotifier() override;

protected:
  void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
  TComponent* FSource = nullptr;
  Double FTimebase = 0.01;
  Byte FDivisions = 10;
  Boolean FGrid = true;
  TColor FTraceColor = DefaultTraceColor;
  String FCaption;
  Integer FRedrawCount = 0;
};

} // namespace Signals
