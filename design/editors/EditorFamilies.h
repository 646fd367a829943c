#pragma once
// The start-up of each editor family: its registry lines and its part of the fallback, the table
// that gives a member with no registered editor the editor of its kind. The package calls them
// in its start-up order; each is defined in its family's source.

namespace Tarvo {

// THiddenEditor's lines, and the base value editor for every kind until a typed family takes the
// kind over; so it comes first.
void RegisterBasicEditors();
// Enumerations, and Booleans registered by type.
void RegisterEnumEditors();
// Sets and their elements' rows.
void RegisterSetEditors();
// Integers of every width, with Cardinal registered by type.
void RegisterOrdinalEditors();
// TColor and TAlphaColor, registered by type.
void RegisterColorEditors();
// 8-bit and wide characters.
void RegisterCharEditors();
// Strings, multi-line strings, wide strings, font, input method and component names.
void RegisterStringEditors();
// File names picked in an open dialog.
void RegisterFileNameEditors();
// Real numbers of every float type.
void RegisterFloatEditors();
// Dates, times and both, registered by type.
void RegisterDateTimeEditors();
// Variants and their "Type" rows.
void RegisterVariantEditors();
// Objects, references to components, owned elements of a chosen class, and interfaces.
void RegisterClassEditors();
// Font objects picked in the font dialog.
void RegisterFontEditors();
// Charsets, modal results and shortcuts by name.
void RegisterIdentifierEditors();
// Cursors by name, with their pictures.
void RegisterCursorEditors();
// Brush and pen styles, with their samples.
void RegisterCanvasEnumEditors();

} // namespace Tarvo
