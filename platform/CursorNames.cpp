#include "platform/CursorNames.h"

#include <array>
#include <string>

namespace Tarvo {

namespace {

struct TCursorEntry {
  Integer Value;
  const char* Name;
  // A blank cursor shows nothing: it counts as no cursor.
  Qt::CursorShape Shape;
};

constexpr std::array<TCursorEntry, 22> Cursors{{
    {crDefault, "crDefault", Qt::ArrowCursor},
    {crNone, "crNone", Qt::BlankCursor},
    {crArrow, "crArrow", Qt::ArrowCursor},
    {crCross, "crCross", Qt::CrossCursor},
    {crIBeam, "crIBeam", Qt::IBeamCursor},
    {crSizeNESW, "crSizeNESW", Qt::SizeBDiagCursor},
    {crSizeNS, "crSizeNS", Qt::SizeVerCursor},
    {crSizeNWSE, "crSizeNWSE", Qt::SizeFDiagCursor},
    {crSizeWE, "crSizeWE", Qt::SizeHorCursor},
    {crUpArrow, "crUpArrow", Qt::UpArrowCursor},
    {crHourGlass, "crHourGlass", Qt::WaitCursor},
    {crDrag, "crDrag", Qt::DragMoveCursor},
    {crNoDrop, "crNoDrop", Qt::ForbiddenCursor},
    {crHSplit, "crHSplit", Qt::SplitHCursor},
    {crVSplit, "crVSplit", Qt::SplitVCursor},
    {crMultiDrag, "crMultiDrag", Qt::DragCopyCursor},
    {crSQLWait, "crSQLWait", Qt::BusyCursor},
    {crNo, "crNo", Qt::ForbiddenCursor},
    {crAppStart, "crAppStart", Qt::BusyCursor},
    {crHelp, "crHelp", Qt::WhatsThisCursor},
    {crHandPoint, "crHandPoint", Qt::PointingHandCursor},
    {crSizeAll, "crSizeAll", Qt::SizeAllCursor},
}};

} // namespace

String CursorToString(TCursor ACursor) {
  const TCursorEntry* entry = FindValueName(Cursors, ACursor);
  return entry ? String(entry->Name) : std::to_string(ACursor);
}

Boolean IdentToCursor(const String& AIdent, Integer& ACursor) {
  const TCursorEntry* entry = FindNamedValue(Cursors, AIdent);
  if (entry) ACursor = entry->Value;
  return entry != nullptr;
}

void GetCursorValues(const TGetStrProc& AProc) {
  for (const TCursorEntry& entry : Cursors) AProc(entry.Name);
}

std::optional<Qt::CursorShape> ScreenCursor(Integer ACursor) {
  const TCursorEntry* entry = FindValueName(Cursors, ACursor);
  if (!entry || entry->Shape == Qt::BlankCursor) return std::nullopt;
  return entry->Shape;
}

} // namespace Tarvo
