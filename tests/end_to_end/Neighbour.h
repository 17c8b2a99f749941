#pragma once

#include <QProcess>
#include <QWidget>

/// The window of the second application: it tells on its standard output what input reaches it.
class NeighbourWindow : public QWidget
{
    Q_OBJECT

public:
    NeighbourWindow();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void tell(const QString &line);
};

/// A second application under the guidance windows, run as a process of its own.
class Neighbour : public QObject
{
    Q_OBJECT

public:
    /// The argument that makes the test's executable that application.
    static QString argument() { return QStringLiteral("--neighbour"); }
    static int run();

    Neighbour();
    ~Neighbour() override;

    /// The text that was typed into it since the last call of `forget()`.
    QString typed() const { return mTyped; }
    /// The points on the screen that were clicked on it since then.
    QList<QPoint> clicks() const { return mClicks; }
    bool isFocused() const { return mFocused; }
    /// The window's number for the X server as text; empty until it is on the screen.
    QString window() const { return mWindow; }
    void forget();

private:
    void read();

    QProcess mProcess;
    QString mTyped;
    QList<QPoint> mClicks;
    bool mFocused = false;
    QString mWindow;
};
