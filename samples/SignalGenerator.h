#pragma once
// A periodic signal: a waveform at a frequency, read sample by sample.

#include "containers/List.h"
#include "runtime/Component.h"
#include "runtime/Events.h"
#include "rtl/Variant.h"
#include "samples/NoiseShapes.h"
#include "samples/SignalSource.h"

namespace Signals {

using namespace Tarvo;

TARVO_ENUM(TWaveform, wfSine, wfSquare, wfTriangle, wfSawtooth, wfNoise)

class TSignalGenerator : public TImplements<TComponent, ISignalSource> {
  TARVO_CLASS(TSignalGenerator, TImplements<TComponent, ISignalSource>)

public:
  static constexpr Double DefaultFrequency = 440.0;
  static constexpr Cardinal DefaultSampleRate = 48000;

  explicit TSignalGenerator(TComponent* AOwner) : TImplements(AOwner) {}

  TWaveform GetWaveform() const { return FWaveform; }
  void SetWaveform(TWaveform AValue) { FWaveform = AValue; }
  Double GetFrequency() const { return FFrequency; }
  // A negative frequency (or no number at all) is refused with EConvertError.
  void SetFrequency(Double AValue);
  Double GetAmplitude() const { return FAmplitude; }
  void SetAmplitude(Double AValue) { FAmplitude = AValue; }
  Double GetPeakToPeak() const { return 2 * FAmplitude; }
  // In degrees.
  Single GetPhase() const { return FPhase; }
  void SetPhase(Single AValue) { FPhase = AValue; }
  Cardinal GetSampleRate() const override { return FSampleRate; }
  void SetSampleRate(Cardinal AValue) { FSampleRate = AValue; }
  Int64 GetSampleCount() const { return FSampleCount; }
  void SetSampleCount(Int64 AValue) { FSampleCount = AValue; }
  // A disabled generator starts from zero, so its count is not worth keeping.
  bool IsSampleCountStored() const { return FEnabled; }
  Boolean GetEnabled() const { return FEnabled; }
  void SetEnabled(Boolean AValue) { FEnabled = AValue; }
  Integer GetNoiseSeed() const { return FNoiseSeed; }
  void SetNoiseSeed(Integer AValue) { FNoiseSeed = AValue; }
  Single GetGain() const { return FGain; }
  void SetGain(Single AValue) { FGain = AValue; }
  // The level the amplitude is measured against, in volts.
  Double GetReferenceLevel() const { return FReferenceLevel; }
  void SetReferenceLevel(Double AValue) { FReferenceLevel = AValue; }
  TDate GetCalibrationDate() const { return FCalibrationDate; }
  void SetCalibrationDate(TDate AValue) { FCalibrationDate = AValue; }
  // The time of day the generator starts on its own.
  TTime GetStartTime() const { return FStartTime; }
  void SetStartTime(TTime AValue) { FStartTime = AValue; }
  TDateTime GetLastRun() const { return FLastRun; }
  void SetLastRun(TDateTime AValue) { FLastRun = AValue; }
  // A free parameter of the waveform: a number, a text, or nothing.
  const Variant& GetParameter() const { return FParameter; }
  void SetParameter(const Variant& AValue) { FParameter = AValue; }
  // Owned: a new shape replaces and frees the old one.
  TNoiseShape* GetNoiseShape() const { return FNoiseShape.get(); }
  void SetNoiseShape(TNoiseShape* AValue) { FNoiseShape.reset(AValue); }
  const String& GetPreset() const { return FPreset; }
  void SetPreset(const String& AValue) { FPreset = AValue; }
  // The presets the generator knows, for the Preset row's list.
  TRef<IStringArrayList> PresetNames() const;
  const TNotifyEvent& GetOnStart() const { return FOnStart; }
  void SetOnStart(const TNotifyEvent& AValue) { FOnStart = AValue; }

  // Restarts the count and tells OnStart.
  void Start();
  // Counts samples produced; a disabled generator produces none.
  void Advance(Cardinal ACount);
  // The sample at AIndex; silence while disabled.
  Double ValueAt(Int64 AIndex) const override;

  // Members the designer sees as protected and private ones; their reflection visibility is
  // given by the member table.
  Boolean GetRunning() const { return FSampleCount > 0; }
  Integer GetStartCount() const { return FStartCount; }

private:
  TWaveform FWaveform = wfSine;
  Double FFrequency = DefaultFrequency;
  Double FAmplitude = 1.0;
  Single FPhase = 0;
  Cardinal FSampleRate = DefaultSampleRate;
  Int64 FSampleCount = 0;
  Boolean FEnabled = true;
  Integer FNoiseSeed = 1;
  Single FGain = 1;
  Double FReferenceLevel = 1;
  TDate FCalibrationDate = 0;
  TTime FStartTime = 0;
  TDateTime FLastRun = 0;
  Variant FParameter;
  TOwnedObject<TNoiseShape> FNoiseShape;
  String FPreset;
  TNotifyEvent FOnStart;
  Integer FStartCount = 0;
};

} // namespace Signals
