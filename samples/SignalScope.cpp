#include "samples/SignalScope.h"

#include <algorithm>
#include <cmath>

#include "reflection/Publish.h"
#include "rtl/SysUtils.h"
#include "samples/SignalPalette.h"

namespace Signals {

TARVO_IMPLEMENT_CLASS(TSignalScope)

TARVO_PUBLISH(TSignalScope) {
  Property("Source", &TSignalScope::GetSource, &TSignalScope::SetSource);
  Property("Timebase", &TSignalScope::GetTimebase, &TSignalScope::SetTimebase).Default(0.01);
  Property("Divisions", &TSignalScope::GetDivisions, &TSignalScope::SetDivisions).Default(Byte(10));
  Property("Grid", &TSignalScope::GetGrid, &TSignalScope::SetGrid).Default(true);
  Property("TraceColor", &TSignalScope::GetTraceColor, &TSignalScope::SetTraceColor, &TypeInfo_TColor)
      .Default(TSignalScope::DefaultTraceColor);
  Property("Caption", &TSignalScope::GetCaption, &TSignalScope::SetCaption);
  Public();
  Property("RedrawCount", &TSignalScope::GetRedrawCount);
  Method("Peak", &TSignalScope::Peak, {"ACount"});
}

namespace {
const TSignalPaletteRegistration ScopeRegistration(TSignalScope::ClassInfo());
} // namespace

TSignalScope::TSignalScope(TComponent* AOwner) : TImplements(AOwner) { SetColor(clBlack); }

TRef<ISignalSource> TSignalScope::GetSource() const {
  TRef<ISignalSource> source;
  Supports(FSource, source);
  return source;
}

void TSignalScope::SetSource(const TRef<ISignalSource>& AValue) {
  auto* component = dynamic_cast<TComponent*>(ObjectOf(AValue));
  if (AValue && !component) throw EConvertError("The source of scope '" + GetName() + "' must be a component");
  SetComponentReference(FSource, component);
}

Double TSignalScope::Peak(Integer ACount) const {
  const TRef<ISignalSource> source = GetSource();
  Double peak = 0;
  for (Integer i = 0; source && i < ACount; ++i) peak = std::max(peak, std::abs(source->ValueAt(i)));
  return peak;
}

TProc<> TSignalScope::GetNotifier() {
  return [this] { ++FRedrawCount; };
}

void TSignalScope::Notification(TComponent* AComponent, TOperation AOperation) {
  inherited::Notification(AComponent, AOperation);
  if (AOperation == opRemove && AComponent == FSource) FSource = nullptr;
}

} // namespace Signals
