#include "../../main/ProcessLog.h"
#include "support/FileBytes.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <thread>

class tst_ProcessLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesLinesAtOnceUntilItIsClosed();
};

void tst_ProcessLog::writesLinesAtOnceUntilItIsClosed()
{
    // The log's folder lies below the one of the user's data.
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.filePath(QString::fromUtf8("次"))));
    QDir logFolder(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    QVERIFY(logFolder.mkpath(QStringLiteral(".")));
    const QString path = logFolder.filePath(QStringLiteral("Trelvane.log"));
    static std::atomic<int> forwarded{ 0 };
    const auto restart = [] {
        closeLogFile();
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++forwarded; });
        setupMessageHandler();
        forwarded = 0;
    };
    restart();
    qt_message_output(QtCriticalMsg, QMessageLogContext("a.qml", 12, "run", ""), QString::fromUtf8("次😀 %1 %4 %s"));
    QCOMPARE(readAll(path), QByteArray("Critical: 次😀 %1 %4 %s (a.qml:12, run)\n"));

    // It is closed while others write, and their lines go on all the same.
    for (int round = 0; round < 20; ++round) {
        restart();
        std::atomic<bool> stopped{ false };
        std::thread writer([&stopped] {
            while (!stopped)
                qWarning("line");
        });
        QTRY_VERIFY(forwarded > 100);
        closeLogFile();
        const QByteArray lines = readAll(path);
        const int before = forwarded;
        QTRY_VERIFY(forwarded > before + 100);
        stopped = true;
        writer.join();
        QVERIFY(lines.startsWith("Warning: line ("));
        QCOMPARE(readAll(path), lines);
    }
    // As they do without a folder for it.
    QVERIFY(logFolder.removeRecursively());
    restart();
    qWarning("no folder");
    QCOMPARE(forwarded.load(), 1);
    qInstallMessageHandler(nullptr);
}

QTEST_GUILESS_MAIN(tst_ProcessLog)
#include "tst_ProcessLog.moc"
