#pragma once
#pragma GCC visibility push(default)
// Design files: the components of a design as JSON, read into a root component that owns them.
//
//   {"components": [
//     {"class": "TSignalGenerator", "name": "Generator1",
//      "properties": {"Frequency": "1000", "Font.Size": "10", "Input": "Generator2"}},
//     {"class": "TSignalScope", "name": "Scope1",
//      "children": [{"class": "TShape", "name": "Marker1"}]}]}
//
// Property values are texts, read by the member's own conversion; a dotted key reaches a member
// of a class-valued member, and a member that refers to a component (or to an interface of one)
// names a component of the design, wherever it stands in the file. Children are owned by the
// root like every other component; a child of a window control is also parented to it, and so
// is a top-level control when the root itself is a window control. Numbers and dates are written
// with the invariant format settings.

#include <vector>

#include "runtime/Component.h"

namespace Tarvo {

// Names the component or the place in the file that is wrong.
TARVO_DECLARE_EXCEPTION(EDesignFileError, EConvertError)

// Makes the components of a design, in file order, and returns them. They are made with the
// root's designing state and loading until all properties are set. When reading fails, every
// component made so far is freed again and the root is left as it was.
std::vector<TComponent*> ReadDesign(const String& AText, TComponent* ARoot);
// As ReadDesign; errors name the file too.
std::vector<TComponent*> ReadDesignFile(const String& APath, TComponent* ARoot);

// The components owned by ARoot, with their published, stored members that differ from their
// defaults. Event handlers are code and are not written.
String WriteDesign(TComponent* ARoot);

} // namespace Tarvo

#pragma GCC visibility pop
