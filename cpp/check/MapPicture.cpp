#include "check/MapPicture.h"

#include "check/TutorialCheck.h"

#include <QProcess>
#include <QStandardPaths>

namespace
{
// A tutorial of 1,000 steps takes seconds, and each ten times a hundred times that.
constexpr int kTimeLimit = 60 * 1000;

// Without the document type, which names a file on another machine, and without the program's version.
QByteArray withoutHead(const QByteArray &svg)
{
    const int begin = svg.indexOf("<svg");
    return begin < 0 ? QByteArray() : "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + svg.mid(begin);
}
} // namespace

QByteArray MapPicture::svg(const QString &dot, QString &error)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dot"));
    if (program.isEmpty()) {
        error =
            TutorialCheck::tr("The map needs Graphviz, which is not there: install it, or have the map written to a "
                              "file whose name ends in .dot.");
        return QByteArray();
    }
    QProcess process;
    process.start(program, { QStringLiteral("-Tsvg") });
    process.write(dot.toUtf8());
    process.closeWriteChannel();
    if (!process.waitForFinished(kTimeLimit)) {
        const bool isLate = process.error() == QProcess::Timedout;
        process.kill();
        process.waitForFinished();
        error = isLate ? TutorialCheck::tr("Graphviz was stopped after a minute: the tutorial is too large for a map.")
                       : process.errorString();
        return QByteArray();
    }
    QByteArray svg = withoutHead(process.readAllStandardOutput());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 || svg.isEmpty()) {
        error = TutorialCheck::tr("Graphviz could not draw the map: %1")
                    .arg(QString::fromLocal8Bit(process.readAllStandardError()).trimmed());
        return QByteArray();
    }
    return svg;
}
