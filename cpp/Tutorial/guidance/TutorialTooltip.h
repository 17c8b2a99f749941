#pragma once

#include "Tutorial/guidance/Spoken.h"

#include <QWidget>

class QPainter;
class QTextEdit;
struct GuidanceStep;

/// The window that paints a step: the bouncing arrow, the icon and the hint. It is transparent, lets
/// all input through to the windows beneath it, and has no state of its own.
///
/// Closing it takes it out of the step (`mTooltip` becomes null); its owner frees it later.
class TutorialTooltip : public QWidget, public Spoken
{
    Q_OBJECT

public:
    /// Builds and shows the window. `parent` is the widget that is also the `GuidanceStep` to paint
    /// from; it doesn't become the parent of this window, and outlives it.
    explicit TutorialTooltip(QWidget *parent);
    ~TutorialTooltip() override;

    GuidanceStep *mIndicator; ///< not owned
    QTextEdit *mTextEdit; ///< the hint, a child; null once the window was closed

    /// Brings the window's shape in line with what it draws, where the screen isn't composed.
    void updateShape();

    /// The step in words.
    Speech speech() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::AlertMessage; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(TutorialTooltip)

    void drawStep(QPainter &painter) const;
};
