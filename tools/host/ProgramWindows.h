#pragma once

#include <QObject>
#include <QRect>
#include <QStringList>
#include <QVector>

#include <functional>

/// The program's windows as the window system knows them, and real mouse clicks on them: on X11
/// through the tool xdotool.
class ProgramWindows : public QObject
{
    Q_OBJECT

public:
    /// What a call of list() is answered with: the rectangles of all windows to be seen.
    using Answer = std::function<void(const QVector<QRect> &)>;

    using QObject::QObject;

    static bool isAvailable();

    /// The windows of that process; 0 stands for every process with the program's window class.
    void setProcess(qint64 processId) { mProcessId = processId; }

    void list(const Answer &answer);
    void click(const QPoint &position);

    /// The guidance buttons among the windows, from left to right.
    static QVector<QRect> buttons(const QVector<QRect> &windows);

private:
    qint64 mProcessId = 0;
};
