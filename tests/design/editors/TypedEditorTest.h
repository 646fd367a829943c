#pragma once
// What the tests of the typed editors share: a component with a member of each kind they edit,
// two of them selected in a logging designer, and an editor of any class for any member.

#include <gtest/gtest.h>

#include "runtime/Component.h"
#include "runtime/NamedTypes.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

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
};

// Editors are of class D unless a test names another.
template <class D> class TypedEditorTest : public testing::Test {
protected:
  TypedEditorTest() { FDesigner->Select({&FFirst, &FSecond}); }

  template <class E = D> TRef<E> Editor(const String& AName) { return Testing::MakeEditor<E>(FDesigner, AName); }

  std::vector<String> FLog;
  TRef<Testing::TLoggingDesigner> FDesigner = New<Testing::TLoggingDesigner>(FLog);
  TTypedGadget FFirst, FSecond;
};

} // namespace Tarvo
