#include "ProgramWindows.h"

#include <QProcess>
#include <QStandardPaths>

namespace
{
const QString kTool = QStringLiteral("xdotool");
// The window class follows the name of the executable. A search by process needs a pattern, too.
const QString kProgramClass = QStringLiteral("^trelvane(-author)?$");
const QString kAnyClass = QStringLiteral(".*");

/// Reads what xdotool prints about windows.
QVector<QRect> parse(const QString &output)
{
    QVector<QRect> windows;
    const QStringList lines = output.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString name = line.section(QLatin1Char('='), 0, 0);
        const int value = line.section(QLatin1Char('='), 1).toInt();
        if (name == QLatin1String("WINDOW"))
            windows.append(QRect(0, 0, 0, 0));
        else if (windows.isEmpty())
            continue;
        else if (name == QLatin1String("X"))
            windows.last().moveLeft(value);
        else if (name == QLatin1String("Y"))
            windows.last().moveTop(value);
        else if (name == QLatin1String("WIDTH"))
            windows.last().setWidth(value);
        else if (name == QLatin1String("HEIGHT"))
            windows.last().setHeight(value);
    }
    return windows;
}

void run(QObject *parent, const QStringList &arguments, const std::function<void(const QString &)> &finished)
{
    auto *process = new QProcess(parent);
    process->setProcessChannelMode(QProcess::SeparateChannels);
    QObject::connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), parent,
                     [process, finished] {
                         process->deleteLater();
                         if (finished)
                             finished(QString::fromLocal8Bit(process->readAllStandardOutput()));
                     });
    process->start(kTool, arguments);
}
} // namespace

bool ProgramWindows::isAvailable()
{
    return !QStandardPaths::findExecutable(kTool).isEmpty();
}

void ProgramWindows::list(const Answer &answer)
{
    QStringList arguments = { QStringLiteral("search"), QStringLiteral("--onlyvisible") };
    if (mProcessId > 0)
        arguments << QStringLiteral("--all") << QStringLiteral("--pid") << QString::number(mProcessId)
                  << QStringLiteral("--class") << kAnyClass;
    else
        arguments << QStringLiteral("--class") << kProgramClass;
    arguments << QStringLiteral("getwindowgeometry") << QStringLiteral("--shell") << QStringLiteral("%@");
    run(this, arguments, [answer](const QString &output) { answer(parse(output)); });
}

void ProgramWindows::click(const QPoint &position)
{
    run(this,
        { QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
          QStringLiteral("click"), QStringLiteral("1") },
        nullptr);
}
