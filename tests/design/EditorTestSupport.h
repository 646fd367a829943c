#pragma once
// What every editor test needs: a designer that logs what the editors tell it, and a one-line
// way to build an editor for a member the way a host does, through the editor's class reference.

#include <gtest/gtest.h>

#include <vector>

#include "design/Designer.h"
#include "design/MemberEditor.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {

// Logs "Modified", "BeginModify", "EndModify" and "ResetObjectInspector" into a log the test may share with its objects, so
// that one log shows the order of writes and notices. The root selection may be set apart from
// the selection.
class TLoggingDesigner : public TDesigner {
public:
  explicit TLoggingDesigner(std::vector<String>& ALog) : FLog(ALog) {}
  void Modified() override { FLog.push_back("Modified"); }
  void BeginModify() override { FLog.push_back("BeginModify"); }
  void EndModify() override { FLog.push_back("EndModify"); }
  void ResetObjectInspector() override { FLog.push_back("ResetObjectInspector"); }
  TRef<IObjectArrayList> GetRootSelection() override { return Root ? Root : TDesigner::GetRootSelection(); }
  void Select(std::vector<TObject*> AObjects) { SetSelection(TObjectArrayList::CreateArray(AObjects)); }

  TRef<IObjectArrayList> Root;

private:
  std::vector<String>& FLog;
};

// Builds an editor of class E for the member named AName on the designer's selection, with the
// owner object, parent editor, shared member and first member a row may have.
template <class E>
TRef<E> MakeEditor(const TRef<IDesigner>& ADesigner, const String& AName, TObject* AOwnerObject = nullptr,
                   TMemberEditor* AParent = nullptr, TRef<IMemberInfo> AShared = nullptr,
                   TRef<IMemberInfo> AFirst = nullptr) {
  TMemberEditor* editor =
      TMemberEditorClass(E::ClassInfo()).Create(AOwnerObject, AParent, ADesigner, AShared, AName, AFirst);
  return TRef<E>(static_cast<E*>(editor));
}

// Two gadgets of class G selected in a logging designer; editors are of class D unless a test
// names another.
template <class G, class D> class GadgetEditorTest : public testing::Test {
protected:
  GadgetEditorTest() { FDesigner->Select({&FFirst, &FSecond}); }

  template <class E = D> TRef<E> Editor(const String& AName) { return MakeEditor<E>(FDesigner, AName); }

  std::vector<String> FLog;
  TRef<TLoggingDesigner> FDesigner = New<TLoggingDesigner>(FLog);
  G FFirst, FSecond;
};

} // namespace Tarvo::Testing
