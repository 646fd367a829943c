#include "platform/CursorImages.h"

#include <QPainterPath>

#include <vector>

namespace Tarvo {

namespace {

constexpr QPointF Centre(16, 16);

QPainterPath Polygon(std::initializer_list<QPointF> APoints, const QTransform& ATransform = QTransform()) {
  QPainterPath path;
  path.addPolygon(ATransform.map(QPolygonF(APoints)));
  path.closeSubpath();
  return path;
}

// The pointer with its tip at ATip.
QPainterPath Pointer(const QPointF& ATip = QPointF(4, 2)) {
  return Polygon({{0, 0}, {0, 17}, {4, 13}, {7, 20}, {10, 19}, {7, 12}, {12, 12}},
                 QTransform::fromTranslate(ATip.x(), ATip.y()));
}

// A two-headed arrow through the centre, turned by AAngle degrees from the horizontal.
QPainterPath DoubleArrow(qreal AAngle) {
  return Polygon({{-11, 0}, {-6, -5}, {-6, -2}, {6, -2}, {6, -5}, {11, 0}, {6, 5}, {6, 2}, {-6, 2}, {-6, 5}},
                 QTransform().translate(Centre.x(), Centre.y()).rotate(AAngle));
}

QPainterPath Rect(qreal AX, qreal AY, qreal AWidth, qreal AHeight) {
  QPainterPath path;
  path.addRect(AX, AY, AWidth, AHeight);
  return path;
}

QPainterPath Hourglass(const QRectF& ABox) {
  const QPointF middle = ABox.center();
  QPainterPath path = Polygon({ABox.topLeft(), ABox.topRight(), middle, ABox.bottomRight(), ABox.bottomLeft(), middle});
  path.addRect(ABox.left() - 1, ABox.top() - 2, ABox.width() + 2, 2);
  path.addRect(ABox.left() - 1, ABox.bottom(), ABox.width() + 2, 2);
  return path;
}

QPainterPath Ring() {
  QPainterPath outer, inner;
  outer.addEllipse(Centre, 10, 10);
  inner.addEllipse(Centre, 7, 7);
  return outer.subtracted(inner);
}

QPainterPath Slash() {
  return Polygon({{-8, -1.5}, {8, -1.5}, {8, 1.5}, {-8, 1.5}}, QTransform().translate(Centre.x(), Centre.y()).rotate(45));
}

QPainterPath Split(qreal AAngle) {
  const QTransform turn = QTransform().translate(Centre.x(), Centre.y()).rotate(AAngle).translate(-16, -16);
  QPainterPath bars = Rect(13, 4, 2, 24).united(Rect(17, 4, 2, 24));
  return DoubleArrow(AAngle).united(turn.map(bars));
}

QPainterPath Hand() {
  QPainterPath finger, palm;
  finger.addRoundedRect(11, 2, 5, 15, 2, 2);
  palm.addRoundedRect(7, 13, 17, 15, 4, 4);
  return finger.united(palm).united(Rect(16, 10, 4, 6)).united(Rect(20, 11, 4, 6));
}

QPainterPath QuestionMark() {
  QFont font;
  font.setPixelSize(14);
  font.setBold(true);
  QPainterPath path;
  path.addText(18, 18, font, QStringLiteral("?"));
  return path;
}

// The parts of a shape, each outlined on its own, later parts over earlier ones.
std::vector<QPainterPath> CursorParts(Qt::CursorShape AShape) {
  switch (AShape) {
  case Qt::CrossCursor: return {Rect(15, 4, 2, 24).united(Rect(4, 15, 24, 2))};
  case Qt::IBeamCursor: return {Rect(15, 6, 2, 20).united(Rect(11, 4, 10, 2)).united(Rect(11, 26, 10, 2))};
  case Qt::SizeHorCursor: return {DoubleArrow(0)};
  case Qt::SizeVerCursor: return {DoubleArrow(90)};
  case Qt::SizeFDiagCursor: return {DoubleArrow(45)};
  case Qt::SizeBDiagCursor: return {DoubleArrow(-45)};
  case Qt::SizeAllCursor: return {DoubleArrow(0).united(DoubleArrow(90))};
  case Qt::UpArrowCursor: return {Polygon({{16, 4}, {23, 11}, {18, 11}, {18, 28}, {14, 28}, {14, 11}, {9, 11}})};
  case Qt::WaitCursor: return {Hourglass(QRectF(9, 6, 14, 20))};
  case Qt::BusyCursor: return {Pointer(), Hourglass(QRectF(17, 15, 9, 12))};
  case Qt::ForbiddenCursor: return {Ring(), Slash()};
  case Qt::SplitHCursor: return {Split(0)};
  case Qt::SplitVCursor: return {Split(90)};
  case Qt::DragMoveCursor: return {Pointer(), Rect(13, 19, 12, 9)};
  case Qt::DragCopyCursor:
    return {Pointer(), Rect(13, 19, 12, 9), Rect(22, 14, 2, 8).united(Rect(19, 17, 8, 2))};
  case Qt::WhatsThisCursor: return {Pointer(), QuestionMark()};
  case Qt::PointingHandCursor: return {Hand()};
  default: return {Pointer()};
  }
}

} // namespace

void DrawCursor(QPainter& APainter, Qt::CursorShape AShape, const QPointF& ATopLeft) {
  APainter.save();
  APainter.setRenderHint(QPainter::Antialiasing);
  // Outlines on whole coordinates fall on pixel centres: crisp, one pixel wide.
  APainter.translate(ATopLeft + QPointF(0.5, 0.5));
  APainter.setPen(QPen(Qt::black, 1));
  APainter.setBrush(Qt::white);
  for (QPainterPath part : CursorParts(AShape)) {
    part.setFillRule(Qt::WindingFill);
    APainter.drawPath(part.simplified());
  }
  APainter.restore();
}

} // namespace Tarvo
