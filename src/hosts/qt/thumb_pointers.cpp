#include "hosts/qt/thumb_pointers.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QTransform>

namespace tavo {

namespace {

constexpr int side = 32; // pixels
constexpr QPointF middle(side / 2.0, side / 2.0);
constexpr double line = 2.5, rim = 2;

// An arrow to the left with its point at the middle of the left edge.
QPainterPath Arrow()
{
    QPainterPath path;
    path.addPolygon(
        QPolygonF({{5, 16}, {14, 7}, {14, 12.5}, {26, 12.5}, {26, 19.5}, {14, 19.5}, {14, 25}}));
    path.closeSubpath();
    return path;
}

// The same with the edge at which the picture would go in.
QPainterPath ArrowAtEdge()
{
    QPainterPath path = QTransform::fromTranslate(2, 0).map(Arrow());
    path.addRect(2, 5, 2.5, 22);
    return path;
}

QPainterPath Turned(const QPainterPath& path, double degrees)
{
    QTransform turn;
    turn.translate(middle.x(), middle.y()).rotate(degrees).translate(-middle.x(), -middle.y());
    return turn.map(path);
}

QPainterPath Stroked(const QPainterPath& path)
{
    QPainterPathStroker stroker;
    stroker.setWidth(line);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(path);
}

QPainterPath Barred()
{
    QPainterPath path;
    path.addEllipse(middle, 10, 10);
    path.moveTo(9, 9);
    path.lineTo(23, 23);
    return Stroked(path);
}

// A pointer with a picture behind its foot.
QPainterPath Card()
{
    QPainterPath frame, tip;
    frame.addRect(12.5, 17.5, 16, 12);
    tip.addPolygon(QPolygonF({{2, 2}, {2, 19}, {6.5, 15}, {14, 14.5}}));
    tip.closeSubpath();
    QPainterPath path = Stroked(frame);
    path.addPath(tip);
    return path;
}

// The same, and the picture goes in.
QPainterPath CardAdded()
{
    QPainterPath path = Card();
    path.addRect(17, 22.25, 7, 2.5);
    path.addRect(19.25, 20, 2.5, 2.25);
    path.addRect(19.25, 24.75, 2.5, 2.25);
    return path;
}

QPainterPath Path_Of(int number)
{
    switch (number) {
    case 0: return Barred();
    case 1: return ArrowAtEdge();
    case 2: return Turned(ArrowAtEdge(), 180);
    case 3: return Turned(Arrow(), 90);
    case 4: return Turned(Arrow(), -90);
    case 5: return CardAdded();
    default: return Card();
    }
}

bool HasTip(int number)
{
    return number < 0 || number > 4;
}

} // namespace

QCursor Pointer_OfDrag(int number, qreal scale)
{
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = Path_Of(number);
    painter.strokePath(path, QPen(Qt::white, 2 * rim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, Qt::black);
    painter.end();
    const QPoint hot = HasTip(number) ? QPoint(2, 2) : middle.toPoint();
    return QCursor(picture, hot.x(), hot.y());
}

} // namespace tavo
