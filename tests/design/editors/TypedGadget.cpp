#include "reflection/ListAttributes.h"
#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"
#include "reflection/StringAttributes.h"
#include "runtime/NamedTypes.h"
#include "tests/design/editors/TypedEditorTest.h"

namespace Tarvo {

TARVO_IMPLEMENT_ENUM(TTypedChannel)
TARVO_IMPLEMENT_SET(TTypedChannels, TTypedChannel)
TARVO_IMPLEMENT_CLASS(TTypedGadget)
TARVO_PUBLISH(TTypedGadget) {
  using T = TTypedGadget;
  Property("Gain", &T::FGain, &T::FGain);
  Property("Count", &T::FCount, &T::FCount);
  Property("Position", &T::FPosition, &T::FPosition);
  Property("Order", &T::FOrder, &T::FOrder).Attr<MinValueAttribute>(TValue(1)).Attr<MaxValueAttribute>(TValue(4));
  Property("Channel", &T::FChannel, &T::FChannel)
      .Attr<DesignMinAttribute>(TValue(2))
      .Attr<DesignRangeAttribute>(TValue(1), TValue(8));
  Property("Offset", &T::FOffset, &T::FOffset).Limits(-100, 100).Attr<SuppressRangeAttribute>();
  Property("Crossed", &T::FCrossed, &T::FCrossed).Limits(10, 5);
  Property("Fixed", &T::FFixed, &T::FFixed).Attr<PropertyFixedListDesignAttribute>();
  Property("Narrow", &T::FNarrow, &T::FNarrow);
  Property("Wide", &T::FWide, &T::FWide);
  Property("Ident", &T::FIdent, &T::FIdent).Attr<IdentifierStringAttribute>();
  Property("Text", &T::FText, &T::FText).Default(String("ABC")).Attr<AutoUpdateAttribute>();
  Property("Notes", &T::FNotes, &T::FNotes);
  Property("File", &T::FFile, &T::FFile, &TypeInfo_TAttributedFileName)
      .Attr<FileNameDesignAttribute>("Logs (*.log)|*.log", "log");
  Property("Plain", &T::FText, &T::FText, &TypeInfo_TAttributedFileName);
  Property("MultiLine", &T::FNotes, &T::FNotes).Attr<MultiLineAttribute>();
  Property("WideText", &T::FText, &T::FText, &TypeInfo_WideString);
  Property("WideMultiLine", &T::FText, &T::FText, &TypeInfo_WideString).Attr<MultiLineAttribute>();
  Property("FontName", &T::FText, &T::FText, &TypeInfo_TFontName);
  Property("ImeName", &T::FText, &T::FText, &TypeInfo_TImeName);
  Property("Shape", &T::FShape, &T::FShape);
  Property("SortedShape", &T::FShape, &T::FShape).Attr<PropertySortListDesignAttribute>();
  Property("Flag", &T::FFlag, &T::FFlag);
  Property("Mask", &T::FMask, &T::FMask).Default(TTypedChannels());
  Property("UnstoredMask", &T::FUnstoredMask, &T::FUnstoredMask).Default(TTypedChannels()).Stored(false);
  Property("Single", &T::FSingle, &T::FSingle);
  Property("Double", &T::FDouble, &T::FDouble).Default(0.0);
  Property("Real", &T::FReal, &T::FReal, &TypeInfo_Real);
  Property("Ranged", &T::FDouble, &T::FDouble).Attr<DesignRangeAttribute>(TValue(-1.0), TValue(1.0));
  Property("Date", &T::FDate, &T::FDate, &TypeInfo_TDate);
  Property("Time", &T::FTime, &T::FTime, &TypeInfo_TTime);
  Property("Stamp", &T::FStamp, &T::FStamp, &TypeInfo_TDateTime);
  Property("Variant", &T::FVariant, &T::FVariant);
  Public();
  Property("Inner", &T::FInner, &T::FInner);
}

} // namespace Tarvo
