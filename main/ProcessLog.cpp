#include "ProcessLog.h"

#include "tool/FilePlatform.h"
#include "tool/Log.h"

#include <QStandardPaths>
#include <QString>

#include <atomic>
#include <cstdio>
#include <thread>

namespace
{
// What one run writes, in bytes: some 400,000 messages of the host editor. The last part is kept for warnings and what
// is worse.
constexpr qint64 kMaximumSize = 64 * 1024 * 1024;
constexpr qint64 kMaximumDebugSize = 60 * 1024 * 1024;

std::atomic<std::FILE *> logFile{ nullptr };
std::atomic<qint64> logSize{ 0 };
// Nothing that is no warning goes in any more, or nothing at all.
std::atomic<bool> debugEnded{ false };
std::atomic<bool> logEnded{ false };
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

/// Whether there is still room for so many bytes, which are then taken.
bool take(qint64 size, qint64 limit)
{
    qint64 before = logSize;
    while (before + size <= limit) {
        if (logSize.compare_exchange_weak(before, before + size))
            return true;
    }
    return false;
}

/// The first line that has no room gives its place to one that says what is left out from there on.
void writeUpToLimit(QtMsgType type, const QByteArray &line)
{
    ++writers;
    if (std::FILE *file = logFile) {
        const bool debug = type == QtDebugMsg || type == QtInfoMsg;
        const qint64 limit = debug ? kMaximumDebugSize : kMaximumSize;
        if (take(line.size(), limit)) {
            write(file, line);
        } else if (!(debug ? debugEnded : logEnded).exchange(true)) {
            const QString text = debug ? QStringLiteral("only warnings from here on, after %1 bytes")
                                       : QStringLiteral("the log ends here, after %1 bytes");
            write(file, logLine("Warning", QMessageLogContext(), text.arg(logSize)));
        }
    }
    --writers;
}

/// Whether lines of that kind still go in.
bool isOpenFor(QtMsgType type)
{
    return logFile && !logEnded && !(debugEnded && (type == QtDebugMsg || type == QtInfoMsg));
}

/// Called on any thread that logs.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const char *level = levelName(type);
    if (level && isOpenFor(type))
        writeUpToLimit(type, logLine(level, context, message));
    if (previousMessageHandler)
        previousMessageHandler(type, context, message);
}
} // namespace

void setupMessageHandler()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    const QString path = QStringLiteral("%1/Trelvane.log").arg(folder);
    Log::debug("main", "setupMessageHandler", __LINE__) << folder << path;
    // A second program that starts beside this one empties the file that both write to.
    logFile = FilePlatform::openEmpty(path);
    logSize = 0;
    debugEnded = false;
    logEnded = false;
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
