#pragma once
// What a change in the grid may touch, taken before and after it, so that the change can be
// undone and redone as one step over every selected object. A row's write can reach beyond its
// member (a text row of an object writes the object's text property, a set element writes the
// set), so the snapshot holds the whole top member of the row on each selected object: its value,
// and for an object it owns, the writable published values inside that object, as deep as they go.

#include <QString>

#include <vector>

#include "design/SinglePropertyEditor.h"

class QUndoCommand;

namespace Tarvo {

class TMemberSnapshot {
public:
  TMemberSnapshot() = default;
  // The member named AMemberName on every object of AObjects; an object without it is skipped.
  TMemberSnapshot(const TRef<IObjectArrayList>& AObjects, const String& AMemberName);

  // A snapshot of the same member on the same objects, as they are now.
  TMemberSnapshot Retake() const { return TMemberSnapshot(FObjects, FMemberName); }
  // Writes every value back, outermost first.
  void Restore() const;
  // Whether any value differs from AOther's, a snapshot of the same member on the same objects.
  Boolean Differs(const TMemberSnapshot& AOther) const;
  // Whether an object this snapshot saw inside the member was replaced by another in AAfter: the
  // old object is gone, and no snapshot can bring it back.
  Boolean ObjectsReplaced(const TMemberSnapshot& AAfter) const;

private:
  struct TEntry {
    TObject* Instance;
    TRef<IValueMemberInfo> Member;
    TValue Value;
    Boolean Owned; // the value is an object the member owns: its contents are entries of their own
  };
  void Add(TObject* AInstance, const TRef<IValueMemberInfo>& AMember, Integer ADepth);

  TRef<IObjectArrayList> FObjects;
  String FMemberName;
  std::vector<TEntry> FEntries;
};

// One change over the selection: undo writes the values from before it, redo those after it; both
// end with the designer's Modified, so that every view reads the values again. The first redo,
// which QUndoStack runs as the command is pushed, writes nothing: the change is already made.
QUndoCommand* NewMemberChangeCommand(const QString& AText, TRef<IDesigner> ADesigner, TMemberSnapshot ABefore,
                                     TMemberSnapshot AAfter);

} // namespace Tarvo
