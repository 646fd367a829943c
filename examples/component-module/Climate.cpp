#include "Climate.h"

namespace Climate {

TARVO_IMPLEMENT_ENUM(THeatingMode)
TARVO_IMPLEMENT_ENUM(TWeekday)
TARVO_IMPLEMENT_SET(TWeekdays, TWeekday)
TARVO_IMPLEMENT_EVENT(TTemperatureEvent)
TARVO_IMPLEMENT_CLASS(TSchedule)
TARVO_IMPLEMENT_CLASS(TTemperatureSensor)
TARVO_IMPLEMENT_CLASS(TThermostat)

TARVO_PUBLISH(TSchedule) {
  Property("Wake", &TSchedule::GetWake, &TSchedule::SetWake, &TypeInfo_TTime).Default(TSchedule::DefaultWake);
  Property("Sleep", &TSchedule::GetSleep, &TSchedule::SetSleep, &TypeInfo_TTime).Default(TSchedule::DefaultSleep);
  Property("Setback", &TSchedule::GetSetback, &TSchedule::SetSetback).Default(3.0);
}

TARVO_PUBLISH(TTemperatureSensor) {
  Property("Location", &TTemperatureSensor::GetLocation, &TTemperatureSensor::SetLocation);
  Property("Offset", &TTemperatureSensor::GetOffset, &TTemperatureSensor::SetOffset).Default(0.0);
}

TARVO_PUBLISH(TThermostat) {
  Property("Sensor", &TThermostat::GetSensor, &TThermostat::SetSensor);
  Property("Mode", &TThermostat::GetMode, &TThermostat::SetMode).Default(hmEco);
  Property("Days", &TThermostat::GetDays, &TThermostat::SetDays)
      .Default(TWeekdays{wdMonday, wdTuesday, wdWednesday, wdThursday, wdFriday});
  Property("Target", &TThermostat::GetTarget, &TThermostat::SetTarget)
      .Default(20.5)
      .Attr<DesignRangeAttribute>(TValue(5.0), TValue(30.0))
      .Attr<NameAttribute>("Target (°C)");
  Property("Hysteresis", &TThermostat::GetHysteresis, &TThermostat::SetHysteresis)
      .Default(Byte(5))
      .Limits(Byte(1), Byte(20));
  Property("DisplayColor", &TThermostat::GetDisplayColor, &TThermostat::SetDisplayColor, &TypeInfo_TColor)
      .Default(clWindow)
      .Attr<ExcludeSystemColorsAttribute>();
  Property("Note", &TThermostat::GetNote, &TThermostat::SetNote).Attr<MultiLineAttribute>();
  Property("Schedule", &TThermostat::GetSchedule, &TThermostat::SetSchedule);
  Property("OnTemperature", &TThermostat::GetOnTemperature, &TThermostat::SetOnTemperature);
  Public();
  Method("Heats", &TThermostat::Heats, {"ATemperature"});
}

TARVO_REGISTER_COMPONENTS("Climate", TTemperatureSensor, TThermostat)

void TSchedule::Assign(TPersistent* ASource) {
  if (auto* source = dynamic_cast<TSchedule*>(ASource)) {
    FWake = source->FWake;
    FSleep = source->FSleep;
    FSetback = source->FSetback;
  } else
    inherited::Assign(ASource);
}

void TThermostat::SetTarget(Double AValue) {
  if (!(AValue >= 5 && AValue <= 30)) throw EConvertError("The target must lie between 5 and 30 °C");
  FTarget = AValue;
}

Boolean TThermostat::Heats(Double ATemperature) {
  const Double reading = ATemperature + (FSensor ? FSensor->GetOffset() : 0);
  if (FOnTemperature) FOnTemperature(this, reading);
  return FMode != hmOff && reading < FTarget - FHysteresis / 10.0;
}

void TThermostat::Notification(TComponent* AComponent, TOperation AOperation) {
  inherited::Notification(AComponent, AOperation);
  if (AOperation == opRemove && AComponent == FSensor) FSensor = nullptr;
}

} // namespace Climate
