#include "../../main/ProcessLog.h"
#include "tool/Log.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>
#include <vector>

namespace
{
QStringList forwarded;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message != QLatin1String("from a thread"))
        forwarded.append(QString::number(type) + QLatin1Char(' ') + message + QLatin1Char(' ')
                         + QString::number(context.line));
}

QString logPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1String("/Trelvane.log");
}

QByteArray logText()
{
    QFile file(logPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}
} // namespace

class tst_ProcessLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesLines_data();
    void writesLines();
    void writesTheStatementsOfTheProgram();
    void emptiesTheLogAtEachStart();
    void writesNothingOnceClosed();
    void forwardsWithoutAFolder();
    void keepsLinesOfSeveralThreadsWhole();

private:
    std::unique_ptr<QTemporaryDir> mFolder;
    QtMessageHandler mTestHandler = nullptr;
};

void tst_ProcessLog::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
    // The log's folder lies below the one of the user's data.
    qputenv("XDG_DATA_HOME", QFile::encodeName(mFolder->filePath(QString::fromUtf8("次"))));
    mTestHandler = qInstallMessageHandler(collect);
    QVERIFY(QDir().mkpath(QFileInfo(logPath()).path()));
    QVERIFY(logPath().startsWith(mFolder->path()));
    setupMessageHandler();
    forwarded.clear();
}

void tst_ProcessLog::cleanup()
{
    closeLogFile();
    qInstallMessageHandler(mTestHandler);
    mFolder.reset();
}

void tst_ProcessLog::writesLines_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("line");

    const QString text = QStringLiteral("text");
    QTest::newRow("debug") << int(QtDebugMsg) << text << QByteArray("Debug: text (a.qml:12, run)\n");
    QTest::newRow("info") << int(QtInfoMsg) << text << QByteArray("Info: text (a.qml:12, run)\n");
    QTest::newRow("warning") << int(QtWarningMsg) << text << QByteArray("Warning: text (a.qml:12, run)\n");
    QTest::newRow("critical") << int(QtCriticalMsg) << text << QByteArray("Critical: text (a.qml:12, run)\n");
    QTest::newRow("non-ASCII") << int(QtDebugMsg) << QString::fromUtf8("次😀")
                               << QByteArray("Debug: 次😀 (a.qml:12, run)\n");
    QTest::newRow("place markers") << int(QtDebugMsg) << QStringLiteral("%1 %2 %3 %4 %s")
                                   << QByteArray("Debug: %1 %2 %3 %4 %s (a.qml:12, run)\n");
    QTest::newRow("empty") << int(QtDebugMsg) << QString() << QByteArray("Debug:  (a.qml:12, run)\n");
    QTest::newRow("unknown type") << 77 << text << QByteArray();
}

void tst_ProcessLog::writesLines()
{
    QFETCH(int, type);
    QFETCH(QString, message);
    QFETCH(QByteArray, line);
    const QMessageLogContext context("a.qml", 12, "run", "category");
    qt_message_output(QtMsgType(type), context, message);
    // It stands there at once, with nothing else done for it.
    QCOMPARE(logText(), line);
    QCOMPARE(forwarded, QStringList{ QStringLiteral("%1 %2 12").arg(QString::number(type), message) });
}

void tst_ProcessLog::writesTheStatementsOfTheProgram()
{
    Log::debug("cpp/Tutorial", "TutorialManager::onConnected", 31) << QStringLiteral("a \"b\"") << 5;
    Log::warning("cpp/tool", "DataSupport::mkdir", 7) << "Failed to mkdir";
    QCOMPARE(logText(),
             QByteArray("Debug: cpp/Tutorial TutorialManager::onConnected 31 \"a \\\"b\\\"\" 5 (:0, )\n"
                        "Warning: cpp/tool DataSupport::mkdir 7 Failed to mkdir (:0, )\n"));
}

void tst_ProcessLog::emptiesTheLogAtEachStart()
{
    qWarning("first run");
    QVERIFY(logText().contains("first run"));
    closeLogFile();
    qInstallMessageHandler(collect);
    setupMessageHandler();
    qWarning("second run");
    QCOMPARE(logText().count('\n'), 1);
    QVERIFY(logText().startsWith("Warning: second run ("));
}

void tst_ProcessLog::writesNothingOnceClosed()
{
    qWarning("before");
    const QByteArray text = logText();
    closeLogFile();
    closeLogFile();
    qWarning("after");
    QCOMPARE(logText(), text);
    QCOMPARE(forwarded.size(), 2);
}

void tst_ProcessLog::forwardsWithoutAFolder()
{
    closeLogFile();
    qInstallMessageHandler(collect);
    QVERIFY(QDir(mFolder->filePath(QString::fromUtf8("次"))).removeRecursively());
    setupMessageHandler();
    forwarded.clear();
    qWarning("lost");
    QCOMPARE(forwarded.size(), 1);
    QVERIFY(!QFile::exists(QFileInfo(logPath()).path()));
}

void tst_ProcessLog::keepsLinesOfSeveralThreadsWhole()
{
    const int threadCount = 4;
    const int lineCount = 200;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([] {
            for (int line = 0; line < lineCount; ++line)
                QMessageLogger("a.cpp", 1, "run").debug("from a thread");
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    const QByteArray line = "Debug: from a thread (a.cpp:1, run)\n";
    QCOMPARE(logText(), line.repeated(threadCount * lineCount));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_ProcessLog"));
    tst_ProcessLog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ProcessLog.moc"
