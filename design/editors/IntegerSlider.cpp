// The Integer editor's slider, compiled apart from the other whole-number editors to keep each
// unit's cost down.
#include "design/editors/OrdinalEditors.h"
#include "design/editors/SliderEditorImpl.h"

namespace Tarvo {

template class TInplaceFormEditor<TBasicIntegerPropertyEditor, TNumericInplaceForm>;
template class TNumericSliderEditor<TBasicIntegerPropertyEditor, TNumericInplaceForm>;

} // namespace Tarvo
