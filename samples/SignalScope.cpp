#include "samples/SignalScope.h"

#include <algorithm>
#include <cmath>

#include "reflection/ListAttributes.h"
#include "reflection/MemberCategories.h"
#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/StringAttributes.h"
#include "rtl/SysUtils.h"
#include "samples/SignalPalette.h"

namespace Signals {

TARVO_IMPLEMENT_ENUM(TCoupling)
TARVO_IMPLEMENT_ENUM(TTriggerMode)
TARVO_IMPLEMENT_ENUM(TScopeChannel)
TARVO_IMPLEMENT_SET(TScopeChannels, TScopeChannel)
TARVO_IMPLEMENT_CLASS(TSignalScope)

TARVO_PUBLISH(TSignalScope) {
  Property("Source", &TSignalScope::GetSourceComponent, &TSignalScope::SetSourceComponent);
  Property("VerticalUnit", &TSignalScope::GetVerticalUnit, &TSignalScope::SetVerticalUnit)
      .Default(String("V"))
      .Attr<PropertyListDesignValueAttribute>("V")
      .Attr<PropertyListDesignValueAttribute>("mV")
      .Attr<PropertyListDesignValueAttribute>("dBV");
  Property("TitleFont", &TSignalScope::GetTitleFont, &TSignalScope::SetTitleFont);
  Property("Display", &TSignalScope::GetDisplay, &TSignalScope::SetDisplay);
  Property("TracePen", &TSignalScope::GetTracePen, &TSignalScope::SetTracePen);
  Property("ScreenBrush", &TSignalScope::GetScreenBrush, &TSignalScope::SetScreenBrush);
  Property("FreezeShortCut", &TSignalScope::GetFreezeShortCut, &TSignalScope::SetFreezeShortCut, &TypeInfo_TShortCut)
      .Default(TShortCut(0));
  Property("Timebase", &TSignalScope::GetTimebase, &TSignalScope::SetTimebase).Default(0.01);
  Property("Divisions", &TSignalScope::GetDivisions, &TSignalScope::SetDivisions).Default(Byte(10));
  Property("Grid", &TSignalScope::GetGrid, &TSignalScope::SetGrid).Default(true);
  Property("TraceColor", &TSignalScope::GetTraceColor, &TSignalScope::SetTraceColor, &TypeInfo_TColor)
      .Default(TSignalScope::DefaultTraceColor);
  Property("Background", &TSignalScope::GetBackground, &TSignalScope::SetBackground, &TypeInfo_TAlphaColor)
      .Default(TSignalScope::DefaultBackground);
  Property("Caption", &TSignalScope::GetCaption, &TSignalScope::SetCaption);
  Property("Gain", &TSignalScope::GetGain, &TSignalScope::SetGain)
      .Default(Byte(1))
      .Attr<TMemberCategoryAttribute>(TInputMemberCategory::ClassInfo());
  Property("SampleCount", &TSignalScope::GetSampleCount, &TSignalScope::SetSampleCount)
      .Default(TSignalScope::DefaultSampleCount);
  Property("Position", &TSignalScope::GetPosition, &TSignalScope::SetPosition).Default(Int64(0));
  // The slider runs over the channels there are.
  Property("Channel", &TSignalScope::GetChannel, &TSignalScope::SetChannel)
      .Default(1)
      .Attr<DesignRangeAttribute>(TValue(1), TValue(TSignalScope::MaxChannel));
  // Kept within its limits on every write, but offers no range to the host.
  Property("Offset", &TSignalScope::GetOffset, &TSignalScope::SetOffset)
      .Default(0)
      .Limits(-TSignalScope::MaxOffset, TSignalScope::MaxOffset)
      .Attr<SuppressRangeAttribute>()
      .Attr<TMemberCategoryAttribute>(TInputMemberCategory::ClassInfo());
  Property("TraceName", &TSignalScope::GetTraceName, &TSignalScope::SetTraceName)
      .Default(String("Trace"))
      .Attr<IdentifierStringAttribute>();
  Property("ExportFile", &TSignalScope::GetExportFile, &TSignalScope::SetExportFile, &TypeInfo_TAttributedFileName)
      .Attr<FileNameDesignAttribute>("CSV files (*.csv)|*.csv|All files|*.*", "csv")
      .Attr<TMemberCategoryAttribute>(TLinkageMemberCategory::ClassInfo());
  Property("CaptionFont", &TSignalScope::GetCaptionFont, &TSignalScope::SetCaptionFont, &TypeInfo_TFontName);
  Property("Coupling", &TSignalScope::GetCoupling, &TSignalScope::SetCoupling)
      .Default(cpDC)
      .Attr<TMemberCategoryAttribute>(TInputMemberCategory::ClassInfo());
  Property("TriggerMode", &TSignalScope::GetTriggerMode, &TSignalScope::SetTriggerMode)
      .Default(tmNormal)
      .Attr<PropertySortListDesignAttribute>();
  Property("Channels", &TSignalScope::GetChannels, &TSignalScope::SetChannels)
      .Default(TScopeChannels{ch1})
      .Attr<TMemberCategoryAttribute>(TInputMemberCategory::ClassInfo());
  Public();
  Property("RedrawCount", &TSignalScope::GetRedrawCount);
  Method("Peak", &TSignalScope::Peak, {"ACount"});
}

namespace {
TARVO_REGISTER_COMPONENTS(SignalPalettePage, TSignalScope)
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

void TSignalScope::SetSourceComponent(TComponent* AValue) {
  TRef<ISignalSource> source;
  if (AValue && !Supports(AValue, source))
    throw EConvertError("'" + AValue->GetName() + "' gives no signal: the source of scope '" + GetName() +
                        "' must be a generator or a filter");
  SetComponentReference(FSource, AValue);
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
