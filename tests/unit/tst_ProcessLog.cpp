#include "../../main/ProcessLog.h"
#include "support/FileBytes.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

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
    static int forwarded = 0;
    const auto restart = [] {
        closeLogFile();
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++forwarded; });
        setupMessageHandler();
        forwarded = 0;
    };
    restart();
    qt_message_output(QtCriticalMsg, QMessageLogContext("a.qml", 12, "run", ""), QString::fromUtf8("次😀 %1 %4 %s"));
    QCOMPARE(readAll(path), QByteArray("Critical: 次😀 %1 %4 %s (a.qml:12, run)\n"));

    // Once it is closed the lines go on all the same.
    closeLogFile();
    const QByteArray lines = readAll(path);
    qWarning("closed");
    QCOMPARE(readAll(path), lines);
    QCOMPARE(forwarded, 2);
    // The next run begins the file anew.
    restart();
    qWarning("second run");
    QVERIFY(readAll(path).startsWith("Warning: second run ("));
    // The lines also go on without a folder for it.
    QVERIFY(logFolder.removeRecursively());
    restart();
    qWarning("no folder");
    QCOMPARE(forwarded, 1);
    qInstallMessageHandler(nullptr);
}

QTEST_GUILESS_MAIN(tst_ProcessLog)
#include "tst_ProcessLog.moc"
