#pragma once

#include <QObject>
#include <QPointer>

class QWindow;

/// Keeps the input method away from one window, by Qt's own means: as long as the blocker lives,
/// whatever has the focus in the window answers that it takes no text through an input method.
class InputMethodBlocker : public QObject
{
    Q_OBJECT

public:
    /// A blocker, owned by the window, stands for the context that was taken away. With null makes one and returns it
    /// as the handle, with that handle takes it off again and returns null. A handle of another window is ignored.
    static void *associate(QWindow *window, void *context);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit InputMethodBlocker(QWindow *window);

    void watch(QObject *focusObject);

    QPointer<QObject> mFocusObject;
};
