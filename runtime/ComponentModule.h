#pragma once
// Everything a component module needs, in one header.
//
// A component module is a shared library of components that a host opens, shows in its palette
// and inspector, and closes again. Build it with tarvo_add_component_module() from the CMake
// package TarvoDesign, or by hand with the flags of pkg-config's tarvo-rtl plus -shared -fPIC
// -fvisibility=hidden -fno-gnu-unique -Wl,-z,defs. A module keeps its own namespace.
//
// In a header: the types and classes.
//
//   TARVO_ENUM(THeatingMode, hmOff, hmEco, hmComfort)   // an enumeration with its names
//   TARVO_SET(THeatingModes, THeatingMode)               // a set over it
//   TARVO_EVENT(TTemperatureEvent, TObject*, Double)     // an event: handler of a fixed signature
//
//   class TThermostat : public TComponent {
//     TARVO_CLASS(TThermostat, TComponent)               // name, parent (the direct base), metaclass
//   public:
//     using TComponent::TComponent;                      // components are made with their owner
//     ...
//   };
//
// In its source file: the records and the member table, then the palette.
//
//   TARVO_IMPLEMENT_ENUM(THeatingMode)
//   TARVO_IMPLEMENT_SET(THeatingModes, THeatingMode)
//   TARVO_IMPLEMENT_EVENT(TTemperatureEvent)
//   TARVO_IMPLEMENT_CLASS(TThermostat)
//   TARVO_PUBLISH(TThermostat) {                         // the rows, in this order
//     Property("Mode", &TThermostat::GetMode, &TThermostat::SetMode).Default(hmEco);
//     ...
//   }
//   TARVO_REGISTER_COMPONENTS("Climate", TThermostat)    // the palette page and its classes
//
// What a member table may hold (reflection/Publish.h has the whole of it):
//   Property(name, reader[, writer][, &TypeInfo_X])  a row; reader and writer are member functions
//                                   or fields, without a writer the row is read-only; the record
//                                   names a type that shares its C++ type with another (a TColor
//                                   is an Integer: &TypeInfo_TColor gives it the colour row).
//   .Default(value)                 the value that is not marked as changed and not written to
//                                   designs; a value that does not fit the property's type fails
//                                   to compile.
//   .Stored(&T::IsXStored)          whether the value is written; not stored counts as default.
//   .Limits(min, max)               the range a number accepts.
//   .Attr<XAttribute>(args...)      an attribute that editors read (see the attribute headers).
//   Published() / Public() / Protected() / Private()   the visibility of the members that follow;
//                                   the inspector shows the published ones.
//   Method(name, &T::F[, {"AParam", ...}])             a method, for verbs and list associations.
//   Field(name, &T::FField)         a field by itself.
//
// Nested objects: a property whose type is a TPersistent descendant the component owns shows its
// own members as sub-rows; its writer copies with Assign. A property of type TComponent* (or of a
// component class) refers to another component of the design: set it with SetComponentReference
// and clear it in Notification when that component goes.
//
// A setter refuses a value by raising one of the runtime's exceptions (EConvertError, say): the
// host may catch it after the module is gone, when an exception class of the module's own could
// no longer be freed.
//
// Mistakes found when the module loads (a member published twice, a class name another module
// took, a non-component on a palette page) make LoadModule refuse the whole module with
// "cannot load module FILE: CLASS.MEMBER: MESSAGE", leaving nothing of it registered.

#include "reflection/CategoryAttributes.h"
#include "reflection/ClassAttributes.h"
#include "reflection/ComponentRegistration.h"
#include "reflection/ListAttributes.h"
#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"
#include "reflection/StringAttributes.h"
#include "rtl/Sets.h"
#include "rtl/Variant.h"
#include "runtime/Component.h"
#include "runtime/Events.h"
#include "runtime/Graphics.h"
