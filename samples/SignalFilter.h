#pragma once
// A filter over a generator's signal: cascaded moving averages whose window follows the cutoff.

#include "rtl/Variant.h"
#include "runtime/Graphics.h"
#include "samples/FilterResponse.h"
#include "samples/SignalGenerator.h"

namespace Signals {

using namespace Tarvo;

TARVO_ENUM(TFilterKind, fkLowPass, fkHighPass, fkBandPass, fkBandStop)
TARVO_ENUM(TFilterOption, foBypass, foInvert, foRectify)
TARVO_SET(TFilterOptions, TFilterOption)

class TSignalFilter : public TImplements<TComponent, ISignalSource> {
  TARVO_CLASS(TSignalFilter, TImplements<TComponent, ISignalSource>)

public:
  // The limits of the two stepped settings.
  static constexpr SmallInt MaxOrder = 4;
  static constexpr Byte MaxDecimation = 16;

  explicit TSignalFilter(TComponent* AOwner);

  TFilterKind GetKind() const { return FKind; }
  void SetKind(TFilterKind AValue) { FKind = AValue; }
  Double GetCutoff() const { return FCutoff; }
  void SetCutoff(Double AValue) { FCutoff = AValue; }
  TFilterOptions GetOptions() const { return FOptions; }
  void SetOptions(TFilterOptions AValue) { FOptions = AValue; }
  // Moving averages in cascade, 1 to MaxOrder.
  SmallInt GetOrder() const { return FOrder; }
  void SetOrder(SmallInt AValue) { FOrder = AValue; }
  // Every n-th input sample makes an output sample, 1 to MaxDecimation.
  Byte GetDecimation() const { return FDecimation; }
  void SetDecimation(Byte AValue) { FDecimation = AValue; }
  // Delay in input samples.
  Word GetLatency() const { return FLatency; }
  void SetLatency(Word AValue) { FLatency = AValue; }
  ShortInt GetGainDb() const { return FGainDb; }
  void SetGainDb(ShortInt AValue) { FGainDb = AValue; }
  // Between the numbers of Coefficients.
  AnsiChar GetSeparator() const { return FSeparator; }
  void SetSeparator(AnsiChar AValue) { FSeparator = AValue; }
  // The block's mark in a diagram.
  WideChar GetSymbol() const { return FSymbol; }
  void SetSymbol(WideChar AValue) { FSymbol = AValue; }
  const String& GetDescription() const { return FDescription; }
  void SetDescription(const String& AValue) { FDescription = AValue; }
  const String& GetUnits() const { return FUnits; }
  void SetUnits(const String& AValue) { FUnits = AValue; }
  const String& GetCaption() const { return FCaption; }
  void SetCaption(const String& AValue) { FCaption = AValue; }
  const String& GetCode() const { return FCode; }
  void SetCode(const String& AValue) { FCode = AValue; }
  TDate GetDesigned() const { return FDesigned; }
  void SetDesigned(TDate AValue) { FDesigned = AValue; }
  TDateTime GetCalibrated() const { return FCalibrated; }
  void SetCalibrated(TDateTime AValue) { FCalibrated = AValue; }
  TTime GetWarmUp() const { return FWarmUp; }
  void SetWarmUp(TTime AValue) { FWarmUp = AValue; }
  const Variant& GetUserData() const { return FUserData; }
  void SetUserData(const Variant& AValue) { FUserData = AValue; }
  // Cleared when the generator goes.
  TSignalGenerator* GetInput() const { return FInput; }
  void SetInput(TSignalGenerator* AValue) { SetComponentReference(FInput, AValue); }
  // The response and font are the filter's own: setting one copies the value in.
  TFilterResponse* GetResponse() const { return FResponse.get(); }
  void SetResponse(TFilterResponse* AValue) { FResponse->Assign(AValue); }
  TFont* GetFont() const { return FFont.get(); }
  void SetFont(TFont* AValue) { FFont->Assign(AValue); }

  Cardinal GetSampleRate() const override;
  // The filtered input at AIndex; silence without input.
  Double ValueAt(Int64 AIndex) const override;
  // The low-pass kernel, its numbers joined by the separator.
  String Coefficients() const;

protected:
  void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
  Double LowPass(Int64 AIndex, Integer AWindow) const;
  Integer Window() const;

  TFilterKind FKind = fkLowPass;
  Double FCutoff = 1000;
  TFilterOptions FOptions;
  SmallInt FOrder = 1;
  Byte FDecimation = 1;
  Word FLatency = 0;
  ShortInt FGainDb = 0;
  AnsiChar FSeparator = ',';
  WideChar FSymbol = u'\u03BB';
  String FDescription, FUnits, FCaption, FCode;
  TDate FDesigned = 0;
  TDateTime FCalibrated = 0;
  TTime FWarmUp = 0;
  Variant FUserData;
  TSignalGenerator* FInput = nullptr;
  TOwnedObject<TFilterResponse> FResponse;
  TOwnedObject<TFont> FFont;
};

} // namespace Signals
