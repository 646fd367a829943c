#pragma once
#pragma GCC visibility push(default)
// The members a class publishes, as written in its registration table: one entry a member, with
// type-erased accessors over TObject. The reflection layer builds its member infos over these.

#include <functional>
#include <memory>
#include <vector>

#include "reflection/TypeInfo.h"

namespace Tarvo {

enum class TMemberEntryKind { Property, IndexedProperty, Field, Method };

struct TParameterEntry {
  String Name;
  PTypeInfo Type = nullptr;
};

struct TMemberEntry {
  TMemberEntryKind Kind = TMemberEntryKind::Property;
  String Name;
  TMemberVisibility Visibility = mvPublished;
  PTypeInfo Type = nullptr; // value type; a method's result type, nil for a procedure

  // Properties and fields. A nil reader makes a member write-only, a nil writer read-only.
  std::function<TValue(TObject*)> Read;
  std::function<void(TObject*, const TValue&)> Write;
  bool HasReadMethod = false;
  bool HasWriteMethod = false;
  bool HasDefault = false;
  TValue Default;
  // The stored specifier: none, or a constant or a method asked per object.
  std::function<bool(TObject*)> Stored;
  // Limits the member reports through IValueLimitsInfo.
  bool HasLimits = false;
  TValue MinValue, MaxValue;

  // Indexed properties.
  std::vector<PTypeInfo> IndexTypes;
  std::function<TValue(TObject*, const std::vector<TValue>&)> ReadIndexed;
  std::function<void(TObject*, const std::vector<TValue>&, const TValue&)> WriteIndexed;

  // Methods.
  std::vector<TParameterEntry> Parameters;
  bool HasExtendedInfo = false;
  std::function<TValue(TObject*, const std::vector<TValue>&)> Invoke;

  std::vector<std::unique_ptr<TCustomAttribute>> Attributes;

  std::vector<TCustomAttribute*> AttributeList() const;
};

// The table of one class: its own members (not its ancestors'), its attributes, and how its
// instances add members at run time, if they do.
struct TClassMemberTable {
  TClass Class = nullptr;
  std::vector<std::unique_ptr<TMemberEntry>> Members;
  std::function<TRef<IMembersInfo>(TObject*)> DynamicMembers;
  std::function<void(TObject*)> InitInstance;
};

// Keeps a class's table; the tables of a module leave with it. Raises EModuleError for a member
// published twice.
void RegisterMemberTable(std::unique_ptr<TClassMemberTable> ATable);
// The table of exactly this class; nil when it published nothing.
const TClassMemberTable* FindMemberTable(TClass AClass);

} // namespace Tarvo

#pragma GCC visibility pop
