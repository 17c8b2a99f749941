#include "DrawingCanvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace
{
constexpr int kGridStep = 20;
constexpr int kSmallestShape = 4;

const QColor kLine(44, 62, 80);
const QColor kRectangleFill(126, 179, 232, 150);
const QColor kEllipseFill(246, 183, 94, 150);
const QColor kSelection(214, 74, 74);

void paintShape(QPainter &painter, const Shape &shape)
{
    painter.setPen(QPen(kLine, shape.lineWidth));
    if (shape.kind == Shape::Kind::Rectangle) {
        painter.setBrush(kRectangleFill);
        painter.drawRect(shape.rect);
    } else {
        painter.setBrush(kEllipseFill);
        painter.drawEllipse(shape.rect);
    }
}
} // namespace

DrawingCanvas::DrawingCanvas(Drawing *drawing, QWidget *parent) : QWidget(parent), mDrawing(drawing)
{
    setMouseTracking(true);
    // The menu comes with the press of the right button, on every platform.
    setContextMenuPolicy(Qt::PreventContextMenu);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(mDrawing, &Drawing::changed, this, QOverload<>::of(&QWidget::update));
    connect(mDrawing, &Drawing::selectionChanged, this, QOverload<>::of(&QWidget::update));
    setTool(Tool::Select);
}

void DrawingCanvas::setTool(Tool tool)
{
    mTool = tool;
    mPressed = false;
    setCursor(isDrawingTool() ? Qt::CrossCursor : tool == Tool::Erase ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void DrawingCanvas::setGridShown(bool shown)
{
    mGridShown = shown;
    update();
}

void DrawingCanvas::setPaper(const QColor &paper)
{
    mPaper = paper;
    update();
}

Shape::Kind DrawingCanvas::drawnKind() const
{
    return mTool == Tool::Ellipse ? Shape::Kind::Ellipse : Shape::Kind::Rectangle;
}

QPoint DrawingCanvas::snapped(const QPoint &point) const
{
    if (!mSnapping)
        return point;
    const auto snap = [](int value) { return qRound(value / double(kGridStep)) * kGridStep; };
    return QPoint(snap(point.x()), snap(point.y()));
}

QRect DrawingCanvas::drawnRect() const
{
    const QPoint from = snapped(mPressPosition);
    const QPoint to = snapped(mPosition);
    return QRect(QPoint(qMin(from.x(), to.x()), qMin(from.y(), to.y())),
                 QPoint(qMax(from.x(), to.x()), qMax(from.y(), to.y())));
}

void DrawingCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), mPaper);
    if (mGridShown)
        paintGrid(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const QVector<int> order = mDrawing->paintOrder();
    for (const int index : order)
        paintShape(painter, mDrawing->shapes().at(index));
    if (mPressed && isDrawingTool()) {
        Shape preview;
        preview.kind = drawnKind();
        preview.rect = drawnRect();
        painter.setOpacity(0.6);
        paintShape(painter, preview);
        painter.setOpacity(1.0);
    }
    paintSelection(painter);
}

void DrawingCanvas::paintGrid(QPainter &painter) const
{
    painter.setPen(mPaper.darker(112));
    for (int x = kGridStep; x < width(); x += kGridStep)
        painter.drawLine(x, 0, x, height());
    for (int y = kGridStep; y < height(); y += kGridStep)
        painter.drawLine(0, y, width(), y);
}

void DrawingCanvas::paintSelection(QPainter &painter) const
{
    if (mDrawing->selected() < 0)
        return;
    const Shape &shape = mDrawing->shapes().at(mDrawing->selected());
    const int margin = shape.lineWidth / 2 + 4;
    painter.setPen(QPen(kSelection, 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(shape.rect.adjusted(-margin, -margin, margin, margin));
}

void DrawingCanvas::mousePressEvent(QMouseEvent *event)
{
    const int hit = mDrawing->shapeAt(event->pos());
    if (event->button() == Qt::RightButton) {
        if (hit >= 0)
            mDrawing->select(hit);
        Q_EMIT menuRequested(mapToGlobal(event->pos()));
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    mPressed = true;
    mPressPosition = mPosition = event->pos();
    if (mTool == Tool::Erase && hit >= 0)
        mDrawing->remove(hit);
    if (mTool == Tool::Select) {
        mDrawing->select(hit);
        mGrabbedRect = hit >= 0 ? mDrawing->shapes().at(hit).rect : QRect();
    }
}

void DrawingCanvas::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT pointed(event->pos());
    if (!mPressed)
        return;
    mPosition = event->pos();
    if (mTool == Tool::Select && mDrawing->selected() >= 0)
        moveSelected(mPosition);
    update();
}

void DrawingCanvas::moveSelected(const QPoint &position)
{
    Shape shape = mDrawing->shapes().at(mDrawing->selected());
    shape.rect = mGrabbedRect;
    shape.rect.moveTopLeft(snapped(mGrabbedRect.topLeft() + position - mPressPosition));
    mDrawing->replace(mDrawing->selected(), shape);
}

void DrawingCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !mPressed)
        return;
    mPressed = false;
    mPosition = event->pos();
    const QRect drawn = drawnRect();
    if (isDrawingTool() && drawn.width() >= kSmallestShape && drawn.height() >= kSmallestShape)
        mDrawing->add(drawnKind(), drawn);
    update();
    if ((mPosition - mPressPosition).manhattanLength() >= QApplication::startDragDistance())
        Q_EMIT dragged();
}

void DrawingCanvas::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT doubleClicked();
}
