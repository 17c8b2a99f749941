#include "ProcessLog.h"

#include "tool/Log.h"

#include <QStandardPaths>
#include <QString>

#include <atomic>
#include <cstdio>
#include <thread>

namespace
{
// Some 400,000 messages of the host editor.
constexpr qint64 kMaximumSize = 64 * 1024 * 1024;

std::atomic<std::FILE *> logFile{ nullptr };
// What this run has asked to be written to it, in bytes.
std::atomic<qint64> logSize{ 0 };
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
void write(std::FILE *file, const QByteArray &line)
{
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), file);
    std::fflush(file);
}

/// The line that goes past the limit gives its place to a last one that says so.
void writeUpToLimit(const QByteArray &line)
{
    ++writers;
    if (std::FILE *file = logFile) {
        const qint64 before = logSize.fetch_add(line.size());
        if (before + line.size() <= kMaximumSize) {
            write(file, line);
        } else if (before <= kMaximumSize) {
            // Those of other threads that still fit come before it.
            while (writers > 1)
                std::this_thread::yield();
            write(file,
                  logLine("Warning", QMessageLogContext(),
                          QStringLiteral("the log has reached %1 bytes and ends here").arg(kMaximumSize)));
        }
    }
    --writers;
}

/// Each line goes to the end of the file, wherever that is by then: a second program that starts beside this one
/// empties the file that both write to.
std::FILE *openEmpty(const QByteArray &path)
{
    std::FILE *file = std::fopen(path.constData(), "wb");
    return file ? std::freopen(path.constData(), "ab", file) : nullptr;
}

/// Called on any thread that logs.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const char *level = levelName(type);
    if (logFile && level && logSize <= kMaximumSize)
        writeUpToLimit(logLine(level, context, message));
    if (previousMessageHandler)
        previousMessageHandler(type, context, message);
}
} // namespace

void setupMessageHandler()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    const QString path = QStringLiteral("%1/Trelvane.log").arg(folder);
    Log::debug("main", "setupMessageHandler", __LINE__) << folder << path;
    logFile = openEmpty(path.toLocal8Bit());
    logSize = 0;
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
