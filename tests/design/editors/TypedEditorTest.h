#pragma once
// What the tests of the typed editors share: a component with a member of each kind they edit,
// two of them selected in a logging designer, and an editor of any class for any member.

#include "rtl/Variant.h"
#include "runtime/Component.h"
#include "runtime/NamedTypes.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

// Channels of a mask wider than 32 elements.
TARVO_ENUM(TTypedChannel, ch0, ch1, ch2, ch3, ch4, ch5, ch6, ch7, ch8, ch9, ch10, ch11, ch12, ch13, ch14, ch15, ch16,
           ch17, ch18, ch19, ch20, ch21, ch22, ch23, ch24, ch25, ch26, ch27, ch28, ch29, ch30, ch31, ch32)
TARVO_SET(TTypedChannels, TTypedChannel)

class TTypedGadget : public TComponent {
  TARVO_CLASS(TTypedGadget, TComponent)
public:
  TTypedGadget() : TComponent(nullptr) {}
  Byte FGain = 0;
  Cardinal FCount = 0;
  Int64 FPosition = 0;
  SmallInt FOrder = 1;
  Integer FChannel = 0, FOffset = 0, FCrossed = 0, FFixed = 0, FInner = 0;
  AnsiChar FNarrow = 'x';
  WideChar FWide = u'x';
  String FIdent = "start", FText = "ABC", FNotes = "one\ntwo", FFile;
  TShapeType FShape = stRectangle;
  Boolean FFlag = false;
  TTypedChannels FMask, FUnstoredMask;
  Single FSingle = 0.1f;
  Double FDouble = 0, FReal = 0;
  TDateTime FDate = 0, FTime = 0, FStamp = 0;
  Variant FVariant;
};

template <class D> using TypedEditorTest = Testing::GadgetEditorTest<TTypedGadget, D>;

} // namespace Tarvo
