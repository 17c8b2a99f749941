#include "Neighbour.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextStream>

NeighbourWindow::NeighbourWindow()
{
    setWindowTitle(QStringLiteral("Neighbour"));
    setFocusPolicy(Qt::StrongFocus);
    setGeometry(0, 0, 1000, 700);
}

void NeighbourWindow::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    tell(QStringLiteral("window %1").arg(winId()));
}

void NeighbourWindow::keyPressEvent(QKeyEvent *event)
{
    tell(QStringLiteral("key ") + event->text());
}

void NeighbourWindow::mousePressEvent(QMouseEvent *event)
{
    tell(QStringLiteral("click %1 %2").arg(event->globalX()).arg(event->globalY()));
}

void NeighbourWindow::focusInEvent(QFocusEvent *)
{
    tell(QStringLiteral("focus"));
}

void NeighbourWindow::focusOutEvent(QFocusEvent *)
{
    tell(QStringLiteral("blur"));
}

void NeighbourWindow::tell(const QString &line)
{
    QTextStream(stdout) << line << '\n';
}

int Neighbour::run()
{
    NeighbourWindow window;
    window.show();
    return QApplication::exec();
}

Neighbour::Neighbour()
{
    connect(&mProcess, &QProcess::readyReadStandardOutput, this, &Neighbour::read);
    mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mProcess.start(QCoreApplication::applicationFilePath(), { argument() });
}

Neighbour::~Neighbour()
{
    mProcess.kill();
    mProcess.waitForFinished();
}

void Neighbour::forget()
{
    mTyped.clear();
    mClicks.clear();
}

void Neighbour::read()
{
    while (mProcess.canReadLine()) {
        const QString line = QString::fromUtf8(mProcess.readLine()).chopped(1);
        const QStringList fields = line.split(QLatin1Char(' '));
        if (fields.first() == QLatin1String("key"))
            mTyped += line.mid(4);
        else if (fields.first() == QLatin1String("click"))
            mClicks.append({ fields.at(1).toInt(), fields.at(2).toInt() });
        else if (fields.first() == QLatin1String("window"))
            mWindow = fields.at(1);
        else
            mFocused = fields.first() == QLatin1String("focus");
    }
}
