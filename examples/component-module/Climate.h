#pragma once
// A small climate module: a temperature sensor, and a thermostat that follows one.

#include "runtime/ComponentModule.h"

namespace Climate {

using namespace Tarvo;

TARVO_ENUM(THeatingMode, hmOff, hmEco, hmComfort)
TARVO_ENUM(TWeekday, wdMonday, wdTuesday, wdWednesday, wdThursday, wdFriday, wdSaturday, wdSunday)
TARVO_SET(TWeekdays, TWeekday)
TARVO_EVENT(TTemperatureEvent, TObject*, Double)

// When the thermostat lowers the temperature for the night. A nested object: its members are
// sub-rows of the thermostat's Schedule row.
class TSchedule : public TPersistent {
  TARVO_CLASS(TSchedule, TPersistent)

public:
  static constexpr TTime DefaultWake = 6.5 / 24; // 06:30
  static constexpr TTime DefaultSleep = 22.0 / 24;

  void Assign(TPersistent* ASource) override;

  TTime GetWake() const { return FWake; }
  void SetWake(TTime AValue) { FWake = AValue; }
  TTime GetSleep() const { return FSleep; }
  void SetSleep(TTime AValue) { FSleep = AValue; }
  Double GetSetback() const { return FSetback; }
  void SetSetback(Double AValue) { FSetback = AValue; }

private:
  TTime FWake = DefaultWake;
  TTime FSleep = DefaultSleep;
  Double FSetback = 3;
};

class TTemperatureSensor : public TComponent {
  TARVO_CLASS(TTemperatureSensor, TComponent)

public:
  using TComponent::TComponent;

  const String& GetLocation() const { return FLocation; }
  void SetLocation(const String& AValue) { FLocation = AValue; }
  // A correction added to every reading, in kelvin.
  Double GetOffset() const { return FOffset; }
  void SetOffset(Double AValue) { FOffset = AValue; }

private:
  String FLocation;
  Double FOffset = 0;
};

class TThermostat : public TComponent {
  TARVO_CLASS(TThermostat, TComponent)

public:
  using TComponent::TComponent;

  // A reference to another component of the design; cleared when that one goes.
  TTemperatureSensor* GetSensor() const { return FSensor; }
  void SetSensor(TTemperatureSensor* AValue) { SetComponentReference(FSensor, AValue); }
  THeatingMode GetMode() const { return FMode; }
  void SetMode(THeatingMode AValue) { FMode = AValue; }
  TWeekdays GetDays() const { return FDays; }
  void SetDays(TWeekdays AValue) { FDays = AValue; }
  // In degrees Celsius; refused outside 5 to 30.
  Double GetTarget() const { return FTarget; }
  void SetTarget(Double AValue);
  Byte GetHysteresis() const { return FHysteresis; }
  void SetHysteresis(Byte AValue) { FHysteresis = AValue; }
  TColor GetDisplayColor() const { return FDisplayColor; }
  void SetDisplayColor(TColor AValue) { FDisplayColor = AValue; }
  const String& GetNote() const { return FNote; }
  void SetNote(const String& AValue) { FNote = AValue; }
  TSchedule* GetSchedule() const { return FSchedule.get(); }
  void SetSchedule(TSchedule* AValue) { FSchedule->Assign(AValue); }
  const TTemperatureEvent& GetOnTemperature() const { return FOnTemperature; }
  void SetOnTemperature(const TTemperatureEvent& AValue) { FOnTemperature = AValue; }

  // Whether the heating runs at ATemperature; tells OnTemperature of the reading.
  Boolean Heats(Double ATemperature);

protected:
  void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
  TTemperatureSensor* FSensor = nullptr;
  THeatingMode FMode = hmEco;
  TWeekdays FDays{wdMonday, wdTuesday, wdWednesday, wdThursday, wdFriday};
  Double FTarget = 20.5;
  Byte FHysteresis = 5;
  TColor FDisplayColor = clWindow;
  String FNote;
  TOwnedObject<TSchedule> FSchedule{Construct<TSchedule>()};
  TTemperatureEvent FOnTemperature;
};

} // namespace Climate
