#include "ProcessLog.h"

#include "tool/Log.h"

#include <QStandardPaths>
#include <QString>

#include <atomic>
#include <cstdio>
#include <thread>

namespace
{
std::atomic<std::FILE *> logFile{ nullptr };
// Threads that may be about to write to it.
std::atomic<int> writers{ 0 };
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

/// One fwrite keeps a line whole.
void write(const QByteArray &line)
{
    ++writers;
    if (std::FILE *file = logFile) {
        std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), file);
        std::fflush(file);
    }
    --writers;
}

/// Called on any thread that logs.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const char *level = levelName(type);
    if (logFile && level)
        write(logLine(level, context, message));
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
    std::FILE *file = logFile.exchange(nullptr);
    if (!file)
        return;
    // Nobody begins to write to it from here on.
    while (writers > 0)
        std::this_thread::yield();
    std::fclose(file);
}
