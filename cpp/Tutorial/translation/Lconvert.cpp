#include "Tutorial/translation/Lconvert.h"

#include "tool/Log.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <QStandardPaths>

namespace
{
// Ten thousand hints take it half a second.
constexpr int kTimeLimitMs = 20000;

QString find()
{
    const QString name = QStringLiteral("lconvert");
    const QString own = QStandardPaths::findExecutable(name, { QLibraryInfo::location(QLibraryInfo::BinariesPath) });
    return own.isEmpty() ? QStandardPaths::findExecutable(name) : own;
}

QString message(const char *text)
{
    return QCoreApplication::translate("TutorialManager", text);
}
} // namespace

QString Lconvert::convert(const QString &from, const QString &fromFormat, const QString &to, const QString &toFormat)
{
    const QString program = find();
    if (program.isEmpty()) {
        return message(
            QT_TRANSLATE_NOOP("TutorialManager",
                              "The program \"lconvert\" is not there. It belongs to Qt's tools (qttools5-dev-tools)."));
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program,
                  { QStringLiteral("-if"), fromFormat, QStringLiteral("-i"), from, QStringLiteral("-of"), toFormat,
                    QStringLiteral("-o"), to });
    if (!process.waitForFinished(kTimeLimitMs)) {
        process.kill();
        process.waitForFinished();
        return message(QT_TRANSLATE_NOOP("TutorialManager", "The program \"lconvert\" does not come to an end."));
    }
    const QString output = QString::fromLocal8Bit(process.readAll()).trimmed();
    Log::debug("cpp/Tutorial/translation", "Lconvert::convert", __LINE__) << program << process.exitCode() << output;
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return QString();
    return message(QT_TRANSLATE_NOOP("TutorialManager", "The file can't be read as XLIFF.")) + QLatin1Char('\n')
        + output;
}
