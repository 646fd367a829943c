#include "host/grid/MemberSnapshot.h"

#include <QUndoCommand>

#include "reflection/RttiTypes.h"
#include "runtime/Component.h"

namespace Tarvo {

namespace {

// Owned objects inside owned objects: a font of a style of a component is three levels; past
// this a structure is taken to lead back to itself.
constexpr Integer MaxOwnedDepth = 8;

Boolean Writable(const TRef<IValueMemberInfo>& AMember) {
  TRef<ISinglePropertyInfo> property;
  return !Supports(AMember, property) || property->GetIsWritable();
}

Boolean Readable(const TRef<IValueMemberInfo>& AMember) {
  TRef<ISinglePropertyInfo> property;
  return !Supports(AMember, property) || property->GetIsReadable();
}

// A member whose value is an object of its own (a font, a settings object, an element), not a
// reference to a component of the design.
Boolean HoldsOwnedObject(const TRef<IValueMemberInfo>& AMember) {
  const TRef<ITypeInfo> type = AMember->GetTypeInfo();
  return type && type->GetTypeKind() == tkClass && !type->GetHandle()->ClassType->InheritsFrom(TComponent::ClassInfo());
}

Boolean SameValue(const TValue& A, const TValue& B) {
  if (A.IsObject() || B.IsObject()) return A.AsObject() == B.AsObject();
  if (A.IsInterface() || B.IsInterface()) return A.AsInterface() == B.AsInterface();
  return A.ToString() == B.ToString();
}

class TMemberChangeCommand : public QUndoCommand {
public:
  TMemberChangeCommand(const QString& AText, TRef<IDesigner> ADesigner, TMemberSnapshot ABefore,
                       TMemberSnapshot AAfter)
      : QUndoCommand(AText), FDesigner(std::move(ADesigner)), FBefore(std::move(ABefore)),
        FAfter(std::move(AAfter)) {}

  void undo() override { Apply(FBefore); }
  void redo() override {
    if (std::exchange(FPushed, true)) Apply(FAfter);
  }

private:
  void Apply(const TMemberSnapshot& ASnapshot) {
    ASnapshot.Restore();
    FDesigner->Modified();
  }

  TRef<IDesigner> FDesigner;
  TMemberSnapshot FBefore;
  TMemberSnapshot FAfter;
  Boolean FPushed = false;
};

} // namespace

TMemberSnapshot::TMemberSnapshot(const TRef<IObjectArrayList>& AObjects, const String& AMemberName)
    : FObjects(AObjects), FMemberName(AMemberName) {
  for (TObject* object : AObjects)
    if (TRef<IValueMemberInfo> member; object && TRttiObjectHelper::TypeInfo(object, true)->FindMember(AMemberName, member))
      Add(object, member, 0);
}

void TMemberSnapshot::Add(TObject* AInstance, const TRef<IValueMemberInfo>& AMember, Integer ADepth) {
  if (!Readable(AMember)) return;
  const TValue value = AMember->GetValue(AInstance);
  const Boolean owned = HoldsOwnedObject(AMember);
  FEntries.push_back({AInstance, AMember, value, owned});
  TObject* inner = owned ? value.AsObject() : nullptr;
  if (!inner || ADepth >= MaxOwnedDepth) return;
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(inner, true)->GetMembers(mvsPublished)) {
    TRef<ISinglePropertyInfo> property;
    if (Supports(member, property) && (HoldsOwnedObject(property) || property->GetIsWritable()))
      Add(inner, property, ADepth + 1);
  }
}

void TMemberSnapshot::Restore() const {
  for (const TEntry& entry : FEntries)
    if (!entry.Owned && Writable(entry.Member)) entry.Member->SetValue(entry.Instance, entry.Value);
}

Boolean TMemberSnapshot::Differs(const TMemberSnapshot& AOther) const {
  if (FEntries.size() != AOther.FEntries.size()) return true;
  for (std::size_t i = 0; i < FEntries.size(); ++i)
    if (!SameValue(FEntries[i].Value, AOther.FEntries[i].Value)) return true;
  return false;
}

Boolean TMemberSnapshot::ObjectsReplaced(const TMemberSnapshot& AAfter) const {
  if (FEntries.size() != AAfter.FEntries.size()) return true;
  for (std::size_t i = 0; i < FEntries.size(); ++i)
    if (FEntries[i].Owned && FEntries[i].Value.AsObject() != AAfter.FEntries[i].Value.AsObject()) return true;
  return false;
}

QUndoCommand* NewMemberChangeCommand(const QString& AText, TRef<IDesigner> ADesigner, TMemberSnapshot ABefore,
                                     TMemberSnapshot AAfter) {
  return new TMemberChangeCommand(AText, std::move(ADesigner), std::move(ABefore), std::move(AAfter));
}

} // namespace Tarvo
