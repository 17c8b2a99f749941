#include "../../main/ProcessLog.h"
#include "support/FileBytes.h"

#include <QtTest>

class tst_ProcessLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesLinesAtOnceUntilItIsClosed()
    {
        // The log's folder lies below the one of the user's data.
        const QTemporaryDir folder;
        qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
        // A name that the code page of most systems does not have.
        QCoreApplication::setOrganizationName(QString::fromUtf8("次😀"));
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
        // So does the start of another program, and what both write then stays whole.
        QVERIFY(QFile::resize(path, 0));
        qt_message_output(QtInfoMsg, QMessageLogContext("a.qml", 1, "run", ""), QStringLiteral("both"));
        QCOMPARE(readAll(path), QByteArray("Info: both (a.qml:1, run)\n"));
        // However long a run is, the log has an end, and warnings outlast the rest.
        const QString text(1024 * 1024 - 100, QLatin1Char('x'));
        const auto fill = [&](QtMsgType type, const QByteArray &farewell) {
            for (int i = 0; i < 70; ++i)
                qt_message_output(type, QMessageLogContext(), text);
            const QByteArray whole = readAll(path);
            QVERIFY(whole.endsWith(" bytes (:0, )\n"));
            QCOMPARE(whole.count("\nWarning: " + farewell), 1);
            QVERIFY(whole.lastIndexOf('\n', -2) == whole.indexOf("\nWarning: " + farewell));
        };
        fill(QtDebugMsg, "only warnings from here on");
        fill(QtWarningMsg, "the log ends here");
        QVERIFY(QFileInfo(path).size() > 63 * 1024 * 1024 && QFileInfo(path).size() < 64 * 1024 * 1024 + 200);
        QCOMPARE(forwarded, 142);
        // The lines also go on without a folder for it.
        closeLogFile();
        logFolder.setPath(QFileInfo(logFolder.path()).path());
        QVERIFY(logFolder.removeRecursively());
        restart();
        qWarning("no folder");
        QCOMPARE(forwarded, 1);
        qInstallMessageHandler(nullptr);
    }
};

QTEST_GUILESS_MAIN(tst_ProcessLog)
#include "tst_ProcessLog.moc"
