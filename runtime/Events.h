#pragma once
#pragma GCC visibility push(default)
// Events: method pointers that a component publishes. An event type is a handler of a fixed
// signature, or none; its record is of kind tkMethod, so the design core tells events from other
// members by kind. Each event type is a class of its own, because records are found by C++ type:
// two events of one signature still get two records.
//
//   TARVO_EVENT(TSampleEvent, TObject*, Int64)   // in a header: the sender and an index
//   TARVO_IMPLEMENT_EVENT(TSampleEvent)          // in its source file
//
// A component fires an event only when a handler is assigned: if (FOnStart) FOnStart(this).

#include <functional>

#include "rtl/Object.h"

namespace Tarvo {

// What every event type is: a handler taking AArgs, empty when none is assigned.
template <class... AArgs> class TEventHandler : public std::function<void(AArgs...)> {
public:
  using std::function<void(AArgs...)>::function;
};

// The record of an event type: kind tkMethod over the handler's representation; the empty
// handler is what a value of the type starts as.
template <class E> constexpr TTypeInfo EventTypeRecord(const char* AName) {
  TTypeInfo r = TypeRecordOfKind<E>(AName, tkMethod);
  r.IsAssigned = [](const void* AData) { return static_cast<bool>(*static_cast<const E*>(AData)); };
  return r;
}

} // namespace Tarvo

// Declares an event type with its record, in any namespace.
#define TARVO_EVENT(AName, ...)                                                                                        \
  class AName : public ::Tarvo::TEventHandler<__VA_ARGS__> {                                                           \
  public:                                                                                                              \
    using TEventHandler::TEventHandler;                                                                                \
  };                                                                                                                   \
  TARVO_DECLARE_TYPE_RECORD(AName, TypeInfo_##AName)

// In one source file: defines the record of an event declared with TARVO_EVENT.
#define TARVO_IMPLEMENT_EVENT(AName)                                                                                   \
  constinit const ::Tarvo::TTypeInfo TypeInfo_##AName = ::Tarvo::EventTypeRecord<AName>(#AName);

namespace Tarvo {

// The event of every notification: the sender alone.
TARVO_EVENT(TNotifyEvent, TObject*)

} // namespace Tarvo

#pragma GCC visibility pop
