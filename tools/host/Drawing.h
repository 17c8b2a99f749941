#pragma once

#include <QObject>
#include <QRect>
#include <QString>
#include <QVector>

/// One shape of a drawing.
struct Shape
{
    enum class Kind { Rectangle, Ellipse };
    enum class Layer { Normal, Front, Back };

    Kind kind = Kind::Rectangle;
    QRect rect;
    QString name;
    int lineWidth = 2;
    Layer layer = Layer::Normal;

    bool operator==(const Shape &other) const;
    bool operator!=(const Shape &other) const { return !(*this == other); }
};

/// The drawing: its shapes, of which at most one is selected.
class Drawing : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const QVector<Shape> &shapes() const { return mShapes; }
    /// The indexes of the shapes in the order of painting, the one in front last.
    QVector<int> paintOrder() const;
    /// The foremost shape at that point, or -1.
    int shapeAt(const QPoint &point) const;

    /// -1 when none is selected.
    int selected() const { return mSelected; }
    void select(int index);

    /// Appends a new shape, with a name of its own, and selects it.
    void add(Shape::Kind kind, const QRect &rect);
    void duplicate(int index);
    void replace(int index, const Shape &shape);
    void remove(int index);
    void clear();

Q_SIGNALS:
    /// Shapes came, went or changed.
    void changed();
    void selectionChanged();

private:
    void append(const Shape &shape);

    QVector<Shape> mShapes;
    int mSelected = -1;
    int mNamed = 0;
};
