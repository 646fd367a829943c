#pragma once
// What a member editor may offer the grid beyond text: drawing its value and its list rows,
// reacting to the mouse over its value, a hint of its own. And the host's handles the grid gives
// back to it.

#include <QWidget>

#include "design/paint/PaintObjects.h"
#include "platform/GXGraphics.h"
#include "rtl/Sets.h"
#include "rtl/Value.h"

namespace Tarvo {

TARVO_ENUM(TMouseButton, mbLeft, mbRight, mbMiddle)
TARVO_ENUM(TShiftStateItem, ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble)
TARVO_SET(TShiftState, TShiftStateItem)

// The host's handle on the grid, held by an editor for the length of a mouse gesture or an open
// in-place form.
class TARVO_API IMemberUIUpdate : public virtual IInterface {
  TARVO_INTERFACE(IMemberUIUpdate, "{4E91A1D4-7DF0-4B61-9F98-C41C5BC13363}", IInterface)
public:
  // The editing of the row's text ended: the grid closes its text edit and the gestures of the
  // row. An in-place form says so after each change it writes, so the grid keeps the form open
  // until the form closes or the row is left.
  virtual void EndEdit() = 0;
  // Repaints the row as it stands.
  virtual void Invalidate() = 0;
  // Repaints the grid; with AReadValues the rows read their values again first.
  virtual void Refresh(Boolean AReadValues) = 0;
  // The grid's widget, for what an editor places beside it.
  virtual QWidget* GetControl() = 0;
};

// The host's pictures of the pin button, by state.
class TARVO_API IPinButtonObjectSet : public virtual IInterface {
  TARVO_INTERFACE(IPinButtonObjectSet, "{2F79BC49-DD7B-4E33-92C2-CEFEB1DC8EF3}", IInterface)
public:
  virtual TRef<IGXBitmap> GetNormalBitmap() = 0;
  virtual TRef<IGXBitmap> GetHotBitmap() = 0;
  virtual TRef<IGXBitmap> GetPressedBitmap() = 0;
  virtual TRef<IGXBitmap> GetDisabledBitmap() = 0;
};

// The operations that the property and member forms of an interface share. Without an identity
// of their own (an empty GUID is never answered), an editor that offers one form is not taken
// for offering the other.
inline constexpr const char* SharedOperationsGUID = "{00000000-0000-0000-0000-000000000000}";

class TARVO_API IEditorDraw : public virtual IInterface {
  TARVO_INTERFACE(IEditorDraw, SharedOperationsGUID, IInterface)
public:
  // Draws what the value needs and shrinks ARect to what is left for the text. ADefaultDraw left
  // true has the host draw the value's text there; an editor that drew everything clears it.
  virtual void DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                         const TRef<IPaintObjectSet>& APaintObjectSet, TIGXRect& ARect, Boolean& ADefaultDraw) = 0;
  // Turns the cell rectangle into that of the text edit, clear of what DrawValue drew.
  virtual void GetEditRectangle(TIGXRect& ARect) = 0;
};

class TARVO_API IPropertyEditorDraw : public virtual IEditorDraw {
  TARVO_INTERFACE(IPropertyEditorDraw, "{8B99FF74-737B-4E78-A377-8FE422D69255}", IEditorDraw)
};

class TARVO_API IMemberEditorDraw : public virtual IEditorDraw {
  TARVO_INTERFACE(IMemberEditorDraw, "{FD67957F-2AC8-4786-A40A-C2C74146DE86}", IEditorDraw)
};

// Rows of the drop-down list; AValue is the row's value, not the member's.
class TARVO_API IPropertyEditorListDraw : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorListDraw, "{E483AA54-A187-4EB8-AA82-2601C134BC8F}", IInterface)
public:
  // Raises ASize to what the row needs; never lowers it.
  virtual void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                           const TRef<IPaintObjects>& APaintObjects, const TRef<IPaintObjectSet>& APaintObjectSet,
                           TIGXSize& ASize) = 0;
  virtual void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                             const TRef<IPaintObjects>& APaintObjects, const TRef<IPaintObjectSet>& APaintObjectSet,
                             const TIGXRect& ARect, Boolean ASelected) = 0;
};

// X and Y are in the grid's coordinates, ARect the value's cell. AHandled set keeps the grid's
// own handling of the event away.
class TARVO_API IEditorMouse : public virtual IInterface {
  TARVO_INTERFACE(IEditorMouse, SharedOperationsGUID, IInterface)
public:
  virtual void ValueMouseDown(TMouseButton AButton, TShiftState AShift, Integer X, Integer Y,
                              const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect, Boolean& AHandled) = 0;
  virtual void ValueMouseMove(TShiftState AShift, Integer X, Integer Y, const TRef<IMemberUIUpdate>& AUIUpdate,
                              const TIGXRect& ARect, Boolean& AHandled) = 0;
  virtual void ValueMouseUp(TMouseButton AButton, TShiftState AShift, Integer X, Integer Y,
                            const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect, Boolean& AHandled) = 0;
};

class TARVO_API IPropertyEditorMouse : public virtual IEditorMouse {
  TARVO_INTERFACE(IPropertyEditorMouse, "{E947A07C-FD81-4A99-B28C-19C6F43344F9}", IEditorMouse)
};

class TARVO_API IMemberEditorMouse : public virtual IEditorMouse {
  TARVO_INTERFACE(IMemberEditorMouse, "{4B19E007-56CD-4C23-A712-F91237DD63E9}", IEditorMouse)
};

class TARVO_API IEditorCustomHint : public virtual IInterface {
  TARVO_INTERFACE(IEditorCustomHint, SharedOperationsGUID, IInterface)
public:
  // The hint text of the editor's cell.
  virtual String GetCustomHint() = 0;
};

class TARVO_API IPropertyEditorCustomHint : public virtual IEditorCustomHint {
  TARVO_INTERFACE(IPropertyEditorCustomHint, "{B2286F59-C47F-4BBD-8D0C-53B21B775994}", IEditorCustomHint)
};

class TARVO_API IMemberEditorCustomHint : public virtual IEditorCustomHint {
  TARVO_INTERFACE(IMemberEditorCustomHint, "{53508114-8372-4FBD-8545-D55C2CEB3895}", IEditorCustomHint)
};

} // namespace Tarvo
