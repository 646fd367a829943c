#include "samples/SignalFilter.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"
#include "rtl/SysUtils.h"
#include "samples/SignalPalette.h"

namespace Signals {

TARVO_IMPLEMENT_ENUM(TFilterKind)
TARVO_IMPLEMENT_ENUM(TFilterOption)
TARVO_IMPLEMENT_SET(TFilterOptions, TFilterOption)
TARVO_IMPLEMENT_CLASS(TSignalFilter)

TARVO_PUBLISH(TSignalFilter) {
  Property("Kind", &TSignalFilter::GetKind, &TSignalFilter::SetKind).Default(fkLowPass);
  Property("Cutoff", &TSignalFilter::GetCutoff, &TSignalFilter::SetCutoff).Default(1000.0);
  Property("Options", &TSignalFilter::GetOptions, &TSignalFilter::SetOptions).Default(TFilterOptions());
  Property("Order", &TSignalFilter::GetOrder, &TSignalFilter::SetOrder)
      .Default(SmallInt(1))
      .Attr<MinValueAttribute>(TValue::From(SmallInt(1)))
      .Attr<MaxValueAttribute>(TValue::From(TSignalFilter::MaxOrder));
  Property("Decimation", &TSignalFilter::GetDecimation, &TSignalFilter::SetDecimation)
      .Default(Byte(1))
      .Attr<MinValueAttribute>(TValue::From(Byte(1)))
      .Attr<MaxValueAttribute>(TValue::From(TSignalFilter::MaxDecimation));
  Property("Latency", &TSignalFilter::GetLatency, &TSignalFilter::SetLatency).Default(Word(0));
  Property("GainDb", &TSignalFilter::GetGainDb, &TSignalFilter::SetGainDb).Default(ShortInt(0));
  Property("Separator", &TSignalFilter::GetSeparator, &TSignalFilter::SetSeparator).Default(',');
  Property("Symbol", &TSignalFilter::GetSymbol, &TSignalFilter::SetSymbol).Default(u'\u03BB');
  Property("Description", &TSignalFilter::GetDescription, &TSignalFilter::SetDescription).Attr<MultiLineAttribute>();
  Property("Units", &TSignalFilter::GetUnits, &TSignalFilter::SetUnits, &TypeInfo_AnsiString);
  Property("Caption", &TSignalFilter::GetCaption, &TSignalFilter::SetCaption, &TypeInfo_WideString);
  Property("Code", &TSignalFilter::GetCode, &TSignalFilter::SetCode, &TypeInfo_ShortString);
  Property("Designed", &TSignalFilter::GetDesigned, &TSignalFilter::SetDesigned, &TypeInfo_TDate);
  Property("Calibrated", &TSignalFilter::GetCalibrated, &TSignalFilter::SetCalibrated, &TypeInfo_TDateTime);
  Property("WarmUp", &TSignalFilter::GetWarmUp, &TSignalFilter::SetWarmUp, &TypeInfo_TTime);
  Property("UserData", &TSignalFilter::GetUserData, &TSignalFilter::SetUserData).Default(Variant());
  Property("Input", &TSignalFilter::GetInput, &TSignalFilter::SetInput);
  Property("Response", &TSignalFilter::GetResponse, &TSignalFilter::SetResponse);
  Property("Font", &TSignalFilter::GetFont, &TSignalFilter::SetFont);
  Public();
  Method("Coefficients", &TSignalFilter::Coefficients);
}

namespace {
TARVO_REGISTER_COMPONENTS(SignalPalettePage, TSignalFilter)

// Longer windows cost more than a sample filter is worth.
constexpr Integer MaxWindow = 64;

// AOrder moving averages of AWindow samples in cascade, as one kernel that sums to one.
std::vector<Double> Kernel(Integer AWindow, Integer AOrder) {
  std::vector<Double> kernel{1.0};
  for (Integer stage = 0; stage < AOrder; ++stage) {
    std::vector<Double> next(kernel.size() + std::size_t(AWindow) - 1, 0.0);
    for (std::size_t i = 0; i < kernel.size(); ++i)
      for (Integer j = 0; j < AWindow; ++j) next[i + std::size_t(j)] += kernel[i] / AWindow;
    kernel = std::move(next);
  }
  return kernel;
}
} // namespace

TSignalFilter::TSignalFilter(TComponent* AOwner)
    : TImplements(AOwner), FResponse(Construct<TFilterResponse>()), FFont(Construct<TFont>()) {}

void TSignalFilter::Notification(TComponent* AComponent, TOperation AOperation) {
  inherited::Notification(AComponent, AOperation);
  if (AOperation == opRemove && AComponent == FInput) FInput = nullptr;
}

Cardinal TSignalFilter::GetSampleRate() const {
  return FInput ? FInput->GetSampleRate() / std::max<Byte>(FDecimation, 1) : 0;
}

// The moving average whose first zero of response lies near the cutoff.
Integer TSignalFilter::Window() const {
  const Double rate = FInput ? FInput->GetSampleRate() : TSignalGenerator::DefaultSampleRate;
  if (!(FCutoff > 0)) return MaxWindow;
  return Integer(std::clamp<Double>(std::round(0.443 * rate / FCutoff), 1, MaxWindow));
}

Double TSignalFilter::LowPass(Int64 AIndex, Integer AWindow) const {
  const std::vector<Double> kernel = Kernel(AWindow, std::clamp<Integer>(FOrder, 1, MaxOrder));
  Double sum = 0;
  for (std::size_t i = 0; i < kernel.size(); ++i) sum += kernel[i] * FInput->ValueAt(AIndex - Int64(i));
  return sum;
}

Double TSignalFilter::ValueAt(Int64 AIndex) const {
  if (!FInput) return 0;
  const Int64 at = AIndex * std::max<Byte>(FDecimation, 1) - FLatency;
  Double value = FInput->ValueAt(at);
  if (!FOptions.Contains(foBypass)) {
    const Integer window = Window();
    switch (FKind) {
    case fkLowPass:
      value = LowPass(at, window);
      break;
    case fkHighPass:
      value -= LowPass(at, window);
      break;
    case fkBandPass:
      value = LowPass(at, window) - LowPass(at, 2 * window);
      break;
    case fkBandStop:
      value -= LowPass(at, window) - LowPass(at, 2 * window);
      break;
    }
    value *= std::pow(10.0, FGainDb / 20.0);
  }
  if (FOptions.Contains(foInvert)) value = -value;
  if (FOptions.Contains(foRectify)) value = std::abs(value);
  return value;
}

String TSignalFilter::Coefficients() const {
  String text;
  for (const Double coefficient : Kernel(Window(), std::clamp<Integer>(FOrder, 1, MaxOrder))) {
    if (!text.empty()) text += FSeparator;
    text += FloatToStr(Extended(coefficient));
  }
  return text;
}

} // namespace Signals
