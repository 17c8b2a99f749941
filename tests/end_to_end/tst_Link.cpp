#include "support/HostPeer.h"
#include "support/Screen.h"
#include "support/StoredTutorial.h"

#ifdef Q_OS_UNIX
#include <csignal>
#endif

using namespace HostMessages;

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QString kAuthorProgram = QStringLiteral(TRELVANE_AUTHOR_PROGRAM);
const QRect kHostRect(0, 0, 1280, 1024);
const QSize kHintWindow(640, 480);

/// Whether the program answers after bad bytes. What a read holds after such bytes is lost, so that one
/// question may get no answer.
bool answersAgain(HostPeer &host)
{
    return QTest::qWaitFor(
        [&host] {
            host.send(FromHost::kTutorialList);
            return !host.waitForMessage(ToHost::kTutorialList, 2000).isEmpty();
        },
        60000);
}

// Windows has no such signals; there the program is kept alive instead.
#ifdef Q_OS_UNIX
void halt(HostPeer &host)
{
    ::kill(static_cast<pid_t>(host.process().processId()), SIGSTOP);
}

void goOn(HostPeer &host)
{
    ::kill(static_cast<pid_t>(host.process().processId()), SIGCONT);
}
#else
void halt(HostPeer &host)
{
    host.keepAlive();
}

void goOn(HostPeer &) { }
#endif
} // namespace

/// The real program at the other end of a real socket.
class tst_Link : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *variable : { "TMPDIR", "TEMP", "TMP" })
            qputenv(variable, QFile::encodeName(mTemporary.path()));
    }
    void leavesNothing();
    void endsWithoutALink();
    void tutorials();
    void convertsOrSaysThatItCannot();
    void severalHosts();
    void hostThatDoesNotRead();
#ifndef Q_OS_WIN
    // On Windows settings and log of each program are the user's own.
    void languageOfTheScreens();
#endif
    void optionsOnTheCommandLine();
    void survivesHostileBytes();

private:
    const QTemporaryDir mTemporary;
};

/// The authoring mode and the guidance go with the host editor.
void tst_Link::leavesNothing()
{
    HostPeer left;
    QVERIFY(left.start(QStringLiteral(TRELVANE_AUTHOR_PROGRAM)));
    left.sendMessage(startMessage(kHostRect));
    const auto temporaryFolders = [this] {
        return QDir(mTemporary.path()).entryList({ QStringLiteral("Trelvane*") }, QDir::Dirs).size();
    };
    QTRY_COMPARE(Screen::places(left.process().processId(), kHintWindow).size(), 1);
    QTRY_COMPARE(temporaryFolders(), 1);
    // In the middle of a record, which is not taken for a whole one.
    left.sendBytes("0\x02tutorialL");
    left.socket().disconnectFromServer();
    QVERIFY(left.waitForExit(5000));
    QVERIFY(!left.log().contains(QLatin1String("tutorialL")));
    QCOMPARE(temporaryFolders(), 0);
    QCOMPARE(left.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(left.process().exitCode(), 0);
}

void tst_Link::endsWithoutALink()
{
    // All at once, since most take their ten seconds.
    HostPeer silent;
    HostPeer noServer;
    HostPeer noSuffix;
    HostPeer talking;
    HostPeer asleep;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(silent.start(kProgram));
    QVERIFY(talking.start(kProgram));
    QVERIFY(asleep.start(kProgram));
    QVERIFY(noServer.startAlone(kProgram, { QStringLiteral("-no-such-server") }));
    QVERIFY(noSuffix.startAlone(kProgram, { QString() }));
    QVERIFY(noSuffix.waitForExit(8000));

    // One byte a second, which are a message at last.
    QByteArray record = HostRecord::encode(HostRecord::kFromHost, FromHost::kTutorialList);
    QTimer byte;
    connect(&byte, &QTimer::timeout, &byte, [&] {
        talking.sendBytes(record.left(1));
        record.remove(0, 1);
    });
    byte.start(1000);
    // A machine that sleeps, with both ends of the link.
    QVERIFY(!asleep.waitForMessage(ToHost::kAlive).isEmpty());
    halt(asleep);
    QVERIFY(silent.waitForExit(16000));
    QVERIFY2(timer.elapsed() > 8000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(noServer.waitForExit(6000));
    QTest::qWait(2000);
    goOn(asleep);
    QVERIFY(!talking.waitForMessage(ToHost::kTutorialList, 20000).isEmpty());
    QTest::qWait(1000);
    asleep.send(FromHost::kTutorialList);
    QVERIFY(!asleep.waitForMessage(ToHost::kTutorialList).isEmpty());
    for (HostPeer *host : { &silent, &noServer, &noSuffix }) {
        QCOMPARE(host->process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host->process().exitCode(), 0);
    }
}

void tst_Link::tutorials()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    // What the guidance mode doesn't open is not loaded, or the link would wait for it.
#ifdef Q_OS_LINUX
    const QByteArray libraries = readAll(QStringLiteral("/proc/%1/maps").arg(host.process().processId()));
    QVERIFY(libraries.contains("QtQuick/Controls"));
    QVERIFY(!libraries.contains("QtQuick/Dialogs"));
#endif
    const char *const rows[][3] = {
        { "en_US", "TutorialSideViewStep0", "en_US" },
        // The English catalog has no text for this one, and the earlier translator answers.
        { "en_US", "TutorialSideViewStep1", "ja_JP" },
        { "-", "TutorialSideViewStep0", "ja_JP" },
        { "ja_JP", "TutorialTopViewStep1", "ja_JP" },
    };
    for (const auto &row : rows) {
        host.send(FromHost::kFromServer, QString::fromLatin1(row[0]));
        host.send(FromHost::kTutorial, QString::fromLatin1(row[1]));
        host.send(FromHost::kAlive);
        const QStringList start = host.waitForMessage(ToHost::kStart);
        QCOMPARE(start.value(2).toInt(), kFromBeginning);
        const QList<QJsonObject> items = StoredTutorial::items(start.at(1));
        QVERIFY(items.value(1).value(QLatin1String("hint")).isString());
        QCOMPARE(
            items,
            StoredTutorial::items(QStringLiteral(TRELVANE_SOURCE_DIR), QLatin1String(row[1]), QLatin1String(row[2])));
    }
    // The log has each message but "alive".
    QTRY_COMPARE(host.log().count(QLatin1String("TutorialManager::onReceived ")),
                 HostPeer::kHasLog ? 2 * int(std::size(rows)) : 0);
}

void tst_Link::convertsOrSaysThatItCannot()
{
#ifdef TRELVANE_WEB_ENGINE
    const bool converts = true;
#else
    const bool converts = false;
#endif
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.keepAlive();
    host.send(FromHost::kCoffeeJs, 7, QStringLiteral("'a = 1'"));
    const QStringList answer = host.waitForMessage(ToHost::kCallbackCoffeeJs, 60000);
    QCOMPARE(answer.value(1), QStringLiteral("7"));
    const QJsonObject record = QJsonDocument::fromJson(answer.value(2).toUtf8()).object();
    QCOMPARE(record.value(QLatin1String("javascript")).toString().isEmpty(), !converts);
    QCOMPARE(record.value(QLatin1String("error")).toString().isEmpty(), converts);
}

/// Two programs at one server, and a second host that takes the server's name.
void tst_Link::severalHosts()
{
    HostPeer first;
    HostPeer second;
    HostPeer third;
    QVERIFY(first.start(kProgram) && second.startBeside(first, kProgram));
#ifdef Q_OS_UNIX
    // The name is taken from a server that is still there. On Windows both would serve it.
    QVERIFY(third.listen(first.suffix()));
    QVERIFY(third.startAlone(kProgram, { first.suffix() }) && third.accept());
#else
    QVERIFY(third.start(kProgram));
#endif
    for (HostPeer *host : { &first, &second, &third }) {
        host->send(FromHost::kTutorialList);
        const QString list = host->waitForMessage(ToHost::kTutorialList).value(1);
        QVERIFY(QJsonDocument::fromJson(list.toUtf8()).isArray());
    }
    first.socket().disconnectFromServer();
    QVERIFY(first.waitForExit(5000));
    second.send(FromHost::kTutorialList);
    QVERIFY(!second.waitForMessage(ToHost::kTutorialList).isEmpty());
}

/// What it doesn't take is kept for it up to a limit, and then the link is over.
void tst_Link::hostThatDoesNotRead()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.keepAlive();
    host.socket().setReadBufferSize(1);
    for (int i = 0; i < 8000; ++i)
        host.send(FromHost::kTutorial, QStringLiteral("TutorialSideViewStep0"));
    QVERIFY(host.waitForExit(120000));
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QCOMPARE(host.log().contains(QLatin1String("the host editor does not read 6")), HostPeer::kHasLog);
}

#ifndef Q_OS_WIN
void tst_Link::languageOfTheScreens()
{
    HostPeer stored;
    HostPeer named;
    for (HostPeer *host : { &stored, &named })
        writeAll(host->settingsFile(), "[General]\ninterfaceLanguage=en\n");
    QVERIFY(stored.start(kAuthorProgram));
    // The link's suffix is the first argument that is left.
    QVERIFY(named.start(kAuthorProgram, { QStringLiteral("--language"), QStringLiteral("ja") }));
    const auto language = [](const HostPeer &host) {
        const QRegularExpression line(QStringLiteral("InterfaceTranslator::setLanguage \\d+ \"(\\w+)\" true"));
        return line.match(host.log()).captured(1);
    };
    for (HostPeer *host : { &stored, &named })
        QTRY_VERIFY_WITH_TIMEOUT(host->log().contains(QLatin1String("Debug: connected:")), 20000);
    QCOMPARE(language(stored), QStringLiteral("en"));
    QCOMPARE(language(named), QString());
    // It was said for this time only.
    QCOMPARE(QString::fromUtf8(readAll(named.settingsFile())).count(QStringLiteral("interfaceLanguage=en")), 1);
}
#endif

void tst_Link::optionsOnTheCommandLine()
{
    for (const QStringList &wrong : { QStringList{ QStringLiteral("--language"), QStringLiteral("fr") },
                                      QStringList{ QStringLiteral("--language") } }) {
        HostPeer refused;
        QVERIFY(refused.startAlone(kAuthorProgram, wrong));
        QVERIFY(refused.waitForExit(20000));
        QCOMPARE(refused.process().exitCode(), 2);
    }
    // Asked at a terminal, it does not look for a host editor.
    for (const char *option : { "--help", "--version" }) {
        HostPeer answers;
        const QTemporaryDir folder;
        const QString output = folder.filePath(QStringLiteral("output"));
        answers.process().setStandardOutputFile(output);
        QVERIFY(answers.startAlone(kAuthorProgram, { QLatin1String(option) }));
        QVERIFY(answers.waitForExit(20000));
        QVERIFY2(readAll(output).contains("trelvane-author"), option);
    }
}

void tst_Link::survivesHostileBytes()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    QStringList messages;
    const QDir corpus(QStringLiteral(TRELVANE_SOURCE_DIR "/fuzz/corpus/Messages"));
    for (const QString &name : corpus.entryList(QDir::Files)) {
        for (const QByteArray &line : readAll(corpus.filePath(name)).split('\n'))
            messages += join(QString::fromUtf8(line).split(QLatin1Char('\t')));
    }
    QVERIFY(messages.size() > 100);
    QRandomGenerator random(20180123);
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes = HostRecord::encode(HostRecord::kFromHost, messages.at(random.bounded(messages.size())));
        for (int n = random.bounded(6); n > 0; --n) {
            const int place = random.bounded(bytes.size() + 1);
            if (random.bounded(2) == 0)
                bytes.insert(place, QByteArray::number(static_cast<qint64>(random.generate64())));
            else
                bytes.replace(place, 1, QByteArray(random.bounded(3), static_cast<char>(random.bounded(256))));
        }
        host.sendBytes(bytes);
    }
    // The end of whatever record the last bytes have begun, and one that must still be answered.
    host.sendBytes(QByteArray(1, HostRecord::kEnd));
    QVERIFY(host.flush());
    QVERIFY(answersAgain(host));

    host.sendMessage(startMessage(kHostRect));
    const QString text = QStringLiteral("word ").repeated(1024 * 1024);
    int first = 0;
    for (int i = 0; i < 4; ++i) {
        host.sendMessage(stepMessage({ 10, 10, QString(), text, true, true, true, 0 }));
        host.send(FromHost::kShowTooltip, text, 100, 100);
        host.send(FromHost::kTutorial, text);
        QVERIFY(answersAgain(host));
        first = i > 0 ? first : host.memory();
    }
    // A record without an end is given up at 64 MiB.
    host.sendBytes(QByteArray(1, HostRecord::kFromHost).append(HostRecord::kMessageStart));
    for (int i = 0; i < 40; ++i) {
        host.sendBytes(QByteArray(2 * 1024 * 1024, 'a'));
        QVERIFY(host.flush());
    }
    host.sendBytes(QByteArray(1, HostRecord::kEnd));
    QVERIFY(answersAgain(host));
    QCOMPARE(host.log().contains(QLatin1String("record too long")), HostPeer::kHasLog);
    QVERIFY2(host.memory() < first + 160 * 1024, qPrintable(QStringLiteral("%1 %2").arg(first).arg(host.memory())));
}

QTEST_GUILESS_MAIN(tst_Link)
#include "tst_Link.moc"
