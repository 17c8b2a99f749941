#include "Drawing.h"

#include <QRegion>

namespace
{
bool covers(const Shape &shape, const QPoint &point)
{
    const auto form = shape.kind == Shape::Kind::Ellipse ? QRegion::Ellipse : QRegion::Rectangle;
    return QRegion(shape.rect, form).contains(point);
}
} // namespace

bool Shape::operator==(const Shape &other) const
{
    return kind == other.kind && rect == other.rect && name == other.name && lineWidth == other.lineWidth
        && layer == other.layer;
}

QVector<int> Drawing::paintOrder() const
{
    QVector<int> order;
    order.reserve(mShapes.size());
    for (const Shape::Layer layer : { Shape::Layer::Back, Shape::Layer::Normal, Shape::Layer::Front }) {
        for (int i = 0; i < mShapes.size(); ++i) {
            if (mShapes.at(i).layer == layer)
                order.append(i);
        }
    }
    return order;
}

int Drawing::shapeAt(const QPoint &point) const
{
    const QVector<int> order = paintOrder();
    for (auto i = order.crbegin(); i != order.crend(); ++i) {
        if (covers(mShapes.at(*i), point))
            return *i;
    }
    return -1;
}

void Drawing::select(int index)
{
    if (index == mSelected)
        return;
    mSelected = index;
    Q_EMIT selectionChanged();
}

void Drawing::add(Shape::Kind kind, const QRect &rect)
{
    Shape shape;
    shape.kind = kind;
    shape.rect = rect;
    const QString word = kind == Shape::Kind::Rectangle ? QStringLiteral("Rectangle %1") : QStringLiteral("Ellipse %1");
    shape.name = word.arg(++mNamed);
    append(shape);
}

void Drawing::duplicate(int index)
{
    Shape shape = mShapes.at(index);
    shape.rect.translate(24, 24);
    shape.name += QStringLiteral(" copy");
    append(shape);
}

void Drawing::replace(int index, const Shape &shape)
{
    if (mShapes.at(index) == shape)
        return;
    mShapes[index] = shape;
    Q_EMIT changed();
}

void Drawing::remove(int index)
{
    mShapes.removeAt(index);
    if (mSelected == index)
        mSelected = -1;
    else if (mSelected > index)
        --mSelected;
    Q_EMIT changed();
    Q_EMIT selectionChanged();
}

void Drawing::clear()
{
    mShapes.clear();
    mSelected = -1;
    mNamed = 0;
    Q_EMIT changed();
    Q_EMIT selectionChanged();
}

void Drawing::append(const Shape &shape)
{
    mShapes.append(shape);
    Q_EMIT changed();
    select(mShapes.size() - 1);
}
