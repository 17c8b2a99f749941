#pragma once

#include "Drawing.h"

#include <QColor>
#include <QWidget>

/// The canvas: paints the drawing and lets the mouse draw, move and erase shapes.
class DrawingCanvas : public QWidget
{
    Q_OBJECT

public:
    enum class Tool { Select, Rectangle, Ellipse, Erase };

    explicit DrawingCanvas(Drawing *drawing, QWidget *parent = nullptr);

    void setTool(Tool tool);
    void setGridShown(bool shown);
    void setSnapping(bool snapping) { mSnapping = snapping; }
    void setPaper(const QColor &paper);

    QSize sizeHint() const override { return QSize(480, 400); }

Q_SIGNALS:
    /// The mouse was dragged with its left button, and the button was let go.
    void dragged();
    void doubleClicked();
    void menuRequested(const QPoint &globalPosition);
    void pointed(const QPoint &position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    bool isDrawingTool() const { return mTool == Tool::Rectangle || mTool == Tool::Ellipse; }
    Shape::Kind drawnKind() const;
    QPoint snapped(const QPoint &point) const;
    QRect drawnRect() const;
    void moveSelected(const QPoint &position);
    void paintGrid(QPainter &painter) const;
    void paintSelection(QPainter &painter) const;

    Drawing *mDrawing;
    Tool mTool = Tool::Select;
    QColor mPaper = Qt::white;
    bool mGridShown = false;
    bool mSnapping = false;
    bool mPressed = false;
    QPoint mPressPosition;
    QPoint mPosition;
    QRect mGrabbedRect;
};
