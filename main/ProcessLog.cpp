#include "ProcessLog.h"

#include "tool/Log.h"

#include <QStandardPaths>
#include <QString>

#include <cstdio>

namespace
{
std::FILE *logFile = nullptr;
QtMessageHandler previousMessageHandler = nullptr;

const char *levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "Debug";
    case QtWarningMsg:
        return "Warning";
    case QtCriticalMsg:
        return "Critical";
    case QtFatalMsg:
        return "Fatal";
    case QtInfoMsg:
        return "Info";
    }
    return nullptr;
}

/// One line of the log: the message, and in brackets the file, the line number and the function.
QByteArray logLine(const char *level, const QMessageLogContext &context, const QString &message)
{
    return QByteArray(level) + ": " + message.toUtf8() + " (" + context.file + ':' + QByteArray::number(context.line)
        + ", " + context.function + ")\n";
}

/// Called on any thread that logs: one fwrite keeps a line whole.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const char *level = levelName(type);
    if (logFile && level) {
        const QByteArray line = logLine(level, context, message);
        std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), logFile);
        std::fflush(logFile);
    }
    if (previousMessageHandler)
        previousMessageHandler(type, context, message);
}
} // namespace

void setupMessageHandler()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    const QString path = QStringLiteral("%1/Trelvane.log").arg(folder);
    Log::debug("main", "setupMessageHandler", __LINE__) << folder << path;
    logFile = std::fopen(path.toLocal8Bit().constData(), "wb");
    previousMessageHandler = qInstallMessageHandler(logMessageHandler);
}

void closeLogFile()
{
    if (!logFile)
        return;
    std::fclose(logFile);
    logFile = nullptr;
}
