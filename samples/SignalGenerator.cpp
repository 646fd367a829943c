#include "samples/SignalGenerator.h"

#include <cmath>
#include <numbers>

#include "reflection/ListAttributes.h"
#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"
#include "rtl/SysUtils.h"
#include "samples/SignalPalette.h"

namespace Signals {

TARVO_IMPLEMENT_ENUM(TWaveform)
TARVO_IMPLEMENT_CLASS(TSignalGenerator)

TARVO_PUBLISH(TSignalGenerator) {
  Property("Waveform", &TSignalGenerator::GetWaveform, &TSignalGenerator::SetWaveform).Default(wfSine);
  Property("Frequency", &TSignalGenerator::GetFrequency, &TSignalGenerator::SetFrequency)
      .Default(TSignalGenerator::DefaultFrequency)
      .Attr<DesignRangeAttribute>(TValue(0.1), TValue(20000.0));
  // The peak-to-peak row follows the amplitude.
  Property("Amplitude", &TSignalGenerator::GetAmplitude, &TSignalGenerator::SetAmplitude)
      .Default(1.0)
      .Attr<RefreshPropertiesAttribute>();
  Property("PeakToPeak", &TSignalGenerator::GetPeakToPeak);
  Property("Phase", &TSignalGenerator::GetPhase, &TSignalGenerator::SetPhase)
      .Default(Single(0))
      .Attr<NameAttribute>("Phase (degrees)");
  // Only the rates a sound device offers.
  Property("SampleRate", &TSignalGenerator::GetSampleRate, &TSignalGenerator::SetSampleRate)
      .Default(TSignalGenerator::DefaultSampleRate)
      .Attr<PropertyFixedListDesignAttribute>()
      .Attr<PropertyListDesignValueAttribute>("22050")
      .Attr<PropertyListDesignValueAttribute>("44100")
      .Attr<PropertyListDesignValueAttribute>("48000")
      .Attr<PropertyListDesignValueAttribute>("96000");
  Property("SampleCount", &TSignalGenerator::GetSampleCount, &TSignalGenerator::SetSampleCount)
      .Default(Int64(0))
      .Stored(&TSignalGenerator::IsSampleCountStored);
  Property("Enabled", &TSignalGenerator::GetEnabled, &TSignalGenerator::SetEnabled).Default(true);
  Property("NoiseSeed", &TSignalGenerator::GetNoiseSeed, &TSignalGenerator::SetNoiseSeed)
      .Default(1)
      .Attr<HiddenDesignAttribute>();
  Property("Gain", &TSignalGenerator::GetGain, &TSignalGenerator::SetGain).Default(Single(1));
  Property("ReferenceLevel", &TSignalGenerator::GetReferenceLevel, &TSignalGenerator::SetReferenceLevel,
           &TypeInfo_Real)
      .Default(1.0);
  Property("CalibrationDate", &TSignalGenerator::GetCalibrationDate, &TSignalGenerator::SetCalibrationDate,
           &TypeInfo_TDate);
  Property("StartTime", &TSignalGenerator::GetStartTime, &TSignalGenerator::SetStartTime, &TypeInfo_TTime);
  Property("LastRun", &TSignalGenerator::GetLastRun, &TSignalGenerator::SetLastRun, &TypeInfo_TDateTime);
  Property("Parameter", &TSignalGenerator::GetParameter, &TSignalGenerator::SetParameter);
  // The shape of wfNoise, chosen among the registered shapes; plain white noise without one.
  Property("NoiseShape", &TSignalGenerator::GetNoiseShape, &TSignalGenerator::SetNoiseShape)
      .Attr<DynamicElementAttribute>();
  // Named settings the generator knows, offered with "Custom" after them and picked in a dialog.
  Property("Preset", &TSignalGenerator::GetPreset, &TSignalGenerator::SetPreset)
      .Attr<PropertyListDesignAssociationAttribute>("GeneratorPresets")
      .Attr<PropertyListDesignValueAttribute>("Custom", true)
      .Attr<PropertyListDialogDesignAttribute>("Choose a preset");
  Property("OnStart", &TSignalGenerator::GetOnStart, &TSignalGenerator::SetOnStart);
  Public();
  Method("Start", &TSignalGenerator::Start);
  Method("PresetNames", &TSignalGenerator::PresetNames).Attr<DesignAssociationAttribute>("GeneratorPresets");
  Method("Advance", &TSignalGenerator::Advance, {"ACount"});
  Method("ValueAt", &TSignalGenerator::ValueAt, {"AIndex"});
  Protected();
  Property("Running", &TSignalGenerator::GetRunning);
  Private();
  Property("StartCount", &TSignalGenerator::GetStartCount);
}

namespace {
TARVO_REGISTER_COMPONENTS(SignalPalettePage, TSignalGenerator)

} // namespace

void TSignalGenerator::SetFrequency(Double AValue) {
  if (!(AValue >= 0)) throw EConvertError("Frequency must not be negative: " + FloatToStr(Extended(AValue)));
  FFrequency = AValue;
}

TRef<IStringArrayList> TSignalGenerator::PresetNames() const {
  return New<TStringArrayList>()->Append(std::vector<String>{"Test tone", "Calibration", "Sweep start"});
}

void TSignalGenerator::Start() {
  FSampleCount = 0;
  ++FStartCount;
  if (FOnStart) FOnStart(this);
}

void TSignalGenerator::Advance(Cardinal ACount) {
  if (FEnabled) FSampleCount += ACount;
}

Double TSignalGenerator::ValueAt(Int64 AIndex) const {
  if (!FEnabled || FSampleRate == 0) return 0;
  const Double cycles = FFrequency * Double(AIndex) / FSampleRate + FPhase / 360.0;
  const Double t = cycles - std::floor(cycles); // where in its period the sample lies
  switch (FWaveform) {
  case wfSine:
    return FAmplitude * std::sin(2 * std::numbers::pi * t);
  case wfSquare:
    return t < 0.5 ? FAmplitude : -FAmplitude;
  case wfTriangle:
    return FAmplitude * (t < 0.5 ? 4 * t - 1 : 3 - 4 * t);
  case wfSawtooth:
    return FAmplitude * (2 * t - 1);
  case wfNoise:
    return FAmplitude * (FNoiseShape ? FNoiseShape->Shape(FNoiseSeed, AIndex) : NoiseAt(FNoiseSeed, AIndex));
  }
  return 0;
}

} // namespace Signals
