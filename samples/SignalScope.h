#pragma once
// A scope: a panel that shows a signal and holds controls of its own (markers, labels). Every
// write the designer makes to it asks for a redraw.

#include "runtime/Controls.h"
#include "runtime/Graphics.h"
#include "runtime/LockItem.h"
#include "samples/DisplaySettings.h"
#include "samples/SignalSource.h"

namespace Signals {

using namespace Tarvo;

// How the input reaches the scope.
TARVO_ENUM(TCoupling, cpDC, cpAC, cpGround)
// When a sweep starts; offered sorted by name.
TARVO_ENUM(TTriggerMode, tmNormal, tmAuto, tmSingle, tmExternal)
// The inputs of a multi-channel probe, more than fit in 32 bits.
TARVO_ENUM(TScopeChannel, ch1, ch2, ch3, ch4, ch5, ch6, ch7, ch8, ch9, ch10, ch11, ch12, ch13, ch14, ch15, ch16, ch17, ch18, ch19, ch20, ch21, ch22, ch23, ch24, ch25, ch26, ch27, ch28, ch29, ch30, ch31, ch32, ch33, ch34, ch35, ch36, ch37, ch38, ch39, ch40)
TARVO_SET(TScopeChannels, TScopeChannel)

class TSignalScope : public TImplements<TWinControl, ILockItem> {
  TARVO_CLASS(TSignalScope, TImplements<TWinControl, ILockItem>)

public:
  static constexpr TColor DefaultTraceColor = 0x00FF00;
  // Half transparent, so that the panel's colour shows through the screen.
  static constexpr TAlphaColor DefaultBackground = 0x80204060u;
  static constexpr Cardinal DefaultSampleCount = 1000;
  static constexpr Integer MaxChannel = 8;
  static constexpr Integer MaxOffset = 100;

  explicit TSignalScope(TComponent* AOwner);

  // A generator or a filter of the same owner; cleared when it goes.
  TRef<ISignalSource> GetSource() const;
  // A source that is no component cannot be followed, and is refused.
  void SetSource(const TRef<ISignalSource>& AValue);
  // The source as the designer picks it: a component of the design; one that gives no signal is
  // refused.
  TComponent* GetSourceComponent() const { return FSource; }
  void SetSourceComponent(TComponent* AValue);
  // The units of the vertical axis.
  const String& GetVerticalUnit() const { return FVerticalUnit; }
  void SetVerticalUnit(const String& AValue) { FVerticalUnit = AValue; }
  // The scope's own: setting one copies the value in.
  TFont* GetTitleFont() const { return FTitleFont.get(); }
  void SetTitleFont(TFont* AValue) { FTitleFont->Assign(AValue); }
  // The trace's line and the screen's fill; the scope's own, as the title font is.
  TPen* GetTracePen() const { return FTracePen.get(); }
  void SetTracePen(TPen* AValue) { FTracePen->Assign(AValue); }
  TBrush* GetScreenBrush() const { return FScreenBrush.get(); }
  void SetScreenBrush(TBrush* AValue) { FScreenBrush->Assign(AValue); }
  // The key that freezes the trace; 0 for none.
  TShortCut GetFreezeShortCut() const { return FFreezeShortCut; }
  void SetFreezeShortCut(TShortCut AValue) { FFreezeShortCut = AValue; }
  TDisplaySettings* GetDisplay() const { return FDisplay.get(); }
  void SetDisplay(TDisplaySettings* AValue) { FDisplay->Assign(AValue); }
  // Seconds per division.
  Double GetTimebase() const { return FTimebase; }
  void SetTimebase(Double AValue) { FTimebase = AValue; }
  Byte GetDivisions() const { return FDivisions; }
  void SetDivisions(Byte AValue) { FDivisions = AValue; }
  Boolean GetGrid() const { return FGrid; }
  void SetGrid(Boolean AValue) { FGrid = AValue; }
  TColor GetTraceColor() const { return FTraceColor; }
  void SetTraceColor(TColor AValue) { FTraceColor = AValue; }
  // The screen behind the trace.
  TAlphaColor GetBackground() const { return FBackground; }
  void SetBackground(TAlphaColor AValue) { FBackground = AValue; }
  const String& GetCaption() const { return FCaption; }
  void SetCaption(const String& AValue) { FCaption = AValue; }
  // Vertical amplification, 1 to 255.
  Byte GetGain() const { return FGain; }
  void SetGain(Byte AValue) { FGain = AValue; }
  // Samples across the screen.
  Cardinal GetSampleCount() const { return FSampleCount; }
  void SetSampleCount(Cardinal AValue) { FSampleCount = AValue; }
  // The sample the trigger stands at, before (negative) or after the start.
  Int64 GetPosition() const { return FPosition; }
  void SetPosition(Int64 AValue) { FPosition = AValue; }
  // The input the scope shows, of MaxChannel.
  Integer GetChannel() const { return FChannel; }
  void SetChannel(Integer AValue) { FChannel = AValue; }
  // The trace's shift in pixels, within plus and minus MaxOffset.
  Integer GetOffset() const { return FOffset; }
  void SetOffset(Integer AValue) { FOffset = AValue; }
  // The trace's name in exported data: an identifier.
  const String& GetTraceName() const { return FTraceName; }
  void SetTraceName(const String& AValue) { FTraceName = AValue; }
  const String& GetExportFile() const { return FExportFile; }
  void SetExportFile(const String& AValue) { FExportFile = AValue; }
  const String& GetCaptionFont() const { return FCaptionFont; }
  void SetCaptionFont(const String& AValue) { FCaptionFont = AValue; }
  TCoupling GetCoupling() const { return FCoupling; }
  void SetCoupling(TCoupling AValue) { FCoupling = AValue; }
  TTriggerMode GetTriggerMode() const { return FTriggerMode; }
  void SetTriggerMode(TTriggerMode AValue) { FTriggerMode = AValue; }
  // The channels shown; only the first 32 are told apart by the inspector's set rows.
  TScopeChannels GetChannels() const { return FChannels; }
  void SetChannels(TScopeChannels AValue) { FChannels = AValue; }

  // The largest magnitude among the first ACount samples of the source.
  Double Peak(Integer ACount) const;
  Integer GetRedrawCount() const { return FRedrawCount; }

  TProc<> GetNotifier() override;

protected:
  void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
  TComponent* FSource = nullptr;
  String FVerticalUnit = "V";
  TOwnedObject<TFont> FTitleFont{Construct<TFont>()};
  TOwnedObject<TPen> FTracePen{Construct<TPen>()};
  TOwnedObject<TBrush> FScreenBrush{Construct<TBrush>()};
  TShortCut FFreezeShortCut = 0;
  TOwnedObject<TDisplaySettings> FDisplay{Construct<TDisplaySettings>()};
  Double FTimebase = 0.01;
  Byte FDivisions = 10;
  Boolean FGrid = true;
  TColor FTraceColor = DefaultTraceColor;
  TAlphaColor FBackground = DefaultBackground;
  String FCaption;
  Byte FGain = 1;
  Cardinal FSampleCount = DefaultSampleCount;
  Int64 FPosition = 0;
  Integer FChannel = 1;
  Integer FOffset = 0;
  String FTraceName = "Trace";
  String FExportFile;
  String FCaptionFont;
  TCoupling FCoupling = cpDC;
  TTriggerMode FTriggerMode = tmNormal;
  TScopeChannels FChannels{ch1};
  Integer FRedrawCount = 0;
};

} // namespace Signals
