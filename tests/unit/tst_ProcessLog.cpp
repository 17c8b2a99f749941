#include "../../main/ProcessLog.h"
#include "support/FileBytes.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

namespace
{
std::atomic<int> forwarded{ 0 };

void count(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++forwarded;
}

QString logPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1String("/Trelvane.log");
}

void restartLog()
{
    closeLogFile();
    qInstallMessageHandler(count);
    setupMessageHandler();
    forwarded = 0;
}
} // namespace

class tst_ProcessLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // The log's folder lies below the one of the user's data.
        mFolder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(mFolder->filePath(QString::fromUtf8("次"))));
        QVERIFY(QDir().mkpath(QFileInfo(logPath()).path()));
        mTestHandler = qInstallMessageHandler(nullptr);
        restartLog();
    }
    void cleanup()
    {
        closeLogFile();
        qInstallMessageHandler(mTestHandler);
    }

    void writesLinesAtOnce();
    void closesWhileOthersWrite();

private:
    std::unique_ptr<QTemporaryDir> mFolder;
    QtMessageHandler mTestHandler = nullptr;
};

void tst_ProcessLog::writesLinesAtOnce()
{
    QByteArray expected;
    const char *const names[] = { "Debug", "Warning", "Critical" };
    for (const QtMsgType type : { QtDebugMsg, QtWarningMsg, QtCriticalMsg }) {
        qt_message_output(type, QMessageLogContext("a.qml", 12, "run", "category"), QString::fromUtf8("次😀 %1 %4 %s"));
        expected += QByteArray(names[type]) + ": 次😀 %1 %4 %s (a.qml:12, run)\n";
        QCOMPARE(readAll(logPath()), expected);
    }
    QCOMPARE(forwarded.load(), 3);
    restartLog();
    qWarning("second run");
    QVERIFY(readAll(logPath()).startsWith("Warning: second run ("));
    // Without a folder for it there is no file, and the lines go on all the same.
    QVERIFY(QDir(QFileInfo(logPath()).path()).removeRecursively());
    restartLog();
    qWarning("no folder");
    QCOMPARE(forwarded.load(), 1);
    QVERIFY(!QFile::exists(logPath()));
}

void tst_ProcessLog::closesWhileOthersWrite()
{
    for (int round = 0; round < 20; ++round) {
        restartLog();
        std::atomic<bool> stopped{ false };
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&stopped] {
                while (!stopped)
                    qWarning("line");
            });
        }
        QTRY_VERIFY(forwarded > 100);
        closeLogFile();
        const QByteArray lines = readAll(logPath());
        const int before = forwarded;
        QTRY_VERIFY(forwarded > before + 100);
        stopped = true;
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(readAll(logPath()), lines);
    }
}

QTEST_GUILESS_MAIN(tst_ProcessLog)
#include "tst_ProcessLog.moc"
