#include "platform/GXPens.h"

#include <algorithm>
#include <array>

#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

// Dash and gap lengths of the predefined styles, in pen widths.
const std::array<std::vector<Single>, dsCustom> DashPatterns = {{
    {},
    {3, 1},
    {1, 1},
    {3, 1, 1, 1},
    {3, 1, 1, 1, 1, 1},
}};

// A miter falls back to a bevel past the limit, as SVG's does; the clipped miter cuts
// the point off at the limit, as Qt's own miter does.
constexpr std::array<Qt::PenJoinStyle, 4> JoinStyles = {Qt::SvgMiterJoin, Qt::BevelJoin, Qt::RoundJoin, Qt::MiterJoin};

constexpr qreal DefaultMiterLimit = 10;

} // namespace

TIGXPen::TIGXPen(TAlphaColor AColor, Single AWidth) : FColor(AColor), FWidth(AWidth) {}

void TIGXPen::SetDashStyle(TIGXDashStyle AStyle) {
  CheckEnumValue(AStyle, dsCustom + 1, "TIGXDashStyle");
  FDashStyle = AStyle;
}

void TIGXPen::SetLineJoin(TIGXLineJoin AJoin) {
  CheckEnumValue(AJoin, ljMiterClipped + 1, "TIGXLineJoin");
  FLineJoin = AJoin;
}

void TIGXPen::SetAlignment(TIGXPenAlignment AAlignment) {
  CheckEnumValue(AAlignment, paInset + 1, "TIGXPenAlignment");
  FAlignment = AAlignment;
}

std::vector<Single> TIGXPen::GetDashPattern() {
  return FDashStyle == dsCustom ? FDashPattern : DashPatterns[FDashStyle];
}

void TIGXPen::SetDashPattern(const std::vector<Single>& APattern) {
  if (APattern.empty() || std::ranges::any_of(APattern, [](Single ALength) { return !(ALength > 0); }))
    throw EArgumentException("A dash pattern needs at least one length, and every length must be positive");
  FDashPattern = APattern;
  FDashStyle = dsCustom;
}

QPen TIGXPen::ToQPen() {
  QPen pen(ToQColor(FColor), FWidth);
  // Flat ends: a square cap would lengthen every dash by the pen's width.
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(JoinStyles[FLineJoin]);
  pen.setMiterLimit(DefaultMiterLimit);
  const std::vector<Single> pattern = GetDashPattern();
  if (!pattern.empty()) {
    // Qt wants dash-gap pairs; an odd pattern alternates its meaning on each repeat.
    QList<qreal> dashes(pattern.begin(), pattern.end());
    if (dashes.size() % 2) dashes.append(QList<qreal>(dashes));
    pen.setDashPattern(dashes);
  }
  return pen;
}

} // namespace Tarvo
