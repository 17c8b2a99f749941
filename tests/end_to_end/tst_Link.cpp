#include "support/FileBytes.h"
#include "support/HostPeer.h"
#include "support/Screen.h"

#include "Tutorial/translation/TranslationSource.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJSEngine>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace HostMessages;

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QRect kHostRect(0, 0, 1280, 1024);
const QPoint kNowhere(-1, -1);

QString sourceText(const QString &name)
{
    return QString::fromUtf8(readAll(QStringLiteral(TRELVANE_SOURCE_DIR) + name));
}

/// The items of a scenario script as JSON, each hint's text in place of its key.
QString evaluate(const QString &script, const TranslationSource::Messages &texts = {})
{
    QJSEngine engine;
    QVariantMap hints;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        hints.insert(text.key(), text.value());
    engine.globalObject().setProperty(QStringLiteral("texts"), engine.toScriptValue(hints));
    engine.evaluate(QStringLiteral("function qsTr(key) { return texts[key]; }"));
    engine.evaluate(script);
    return engine.evaluate(QStringLiteral("JSON.stringify(scenario)")).toString();
}

/// Whether the program answers after bad bytes. What a read holds after such bytes is lost, so that one
/// question may get no answer.
bool answersAgain(HostPeer &host)
{
    const QDeadlineTimer limit(60000);
    bool answered = false;
    while (!answered && !limit.hasExpired()) {
        host.send(FromHost::kTutorialList);
        answered = !host.waitForMessage(ToHost::kTutorialList, 2000).isEmpty();
    }
    return answered;
}

/// Where the window of the hint stands.
QPoint placeOfHint(qint64 process)
{
    for (const Screen::Window &window : Screen::windows(process)) {
        if (window.place.size() == QSize(640, 480))
            return window.place.topLeft();
    }
    return kNowhere;
}
} // namespace

/// The real program at the other end of a real socket.
class tst_Link : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TMPDIR", QFile::encodeName(mTemporary.path())); }
    void endsWithTheLink();
    void livesBySignsOfLife();
    void tutorials_data();
    void tutorials();
    void hostileBytes();
    void hugeTexts();
    void flood();

private:
    const QTemporaryDir mTemporary;
};

void tst_Link::endsWithTheLink()
{
    const QString author = QStringLiteral(TRELVANE_AUTHOR_PROGRAM);
    const auto temporaryFolders = [this] {
        return QDir(mTemporary.path()).entryList({ QStringLiteral("Trelvane*") }, QDir::Dirs).size();
    };
    for (const QString &program : { kProgram, author }) {
        HostPeer host;
        QVERIFY(host.start(program));
        host.sendMessage(startMessage(kHostRect));
        const qint64 process = host.process().processId();
        QTRY_VERIFY(placeOfHint(process) != kNowhere);
        QTRY_VERIFY(program == kProgram || temporaryFolders() == 1);
        host.socket().disconnectFromServer();
        QVERIFY(host.waitForExit(5000));
        QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host.process().exitCode(), 0);
        QTRY_VERIFY(Screen::windows(process).isEmpty());
        QCOMPARE(temporaryFolders(), 0);
    }
}

void tst_Link::livesBySignsOfLife()
{
    // All at once, since each takes its ten seconds.
    HostPeer silent;
    HostPeer noServer;
    HostPeer noSuffix;
    HostPeer talking;
    QVERIFY(silent.start(kProgram));
    QVERIFY(talking.start(kProgram));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(noServer.startAlone(kProgram, { QStringLiteral("-no-such-server") }));
    QVERIFY(noSuffix.startAlone(kProgram, { QString() }));
    QVERIFY(noSuffix.waitForExit(8000));

    QTimer byte;
    connect(&byte, &QTimer::timeout, &byte, [&] { talking.sendBytes("x"); });
    byte.start(3000);
    QVERIFY(silent.waitForExit(16000));
    QVERIFY2(timer.elapsed() > 8000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(noServer.waitForExit(6000));
    QTest::qWait(2000);
    QCOMPARE(talking.process().state(), QProcess::Running);
    int alive = 0;
    while (!talking.waitForMessage(ToHost::kAlive, 0).isEmpty())
        ++alive;
    const qint64 seconds = timer.elapsed() / 1000;
    QVERIFY2(alive > seconds / 2 && alive < seconds + 3, qPrintable(QString::number(alive)));

    for (HostPeer *host : { &silent, &noServer, &noSuffix }) {
        QCOMPARE(host->process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host->process().exitCode(), 0);
    }
}

void tst_Link::tutorials_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("hintLocale");

    const QString japanese = QStringLiteral("ja_JP");
    const QString english = QStringLiteral("en_US");
    const QString introduction = QStringLiteral("TutorialSideViewStep0");
    QTest::newRow("introduction, Japanese") << introduction << japanese << japanese;
    QTest::newRow("introduction, English") << introduction << english << english;
    QTest::newRow("introduction, standard") << introduction << QStringLiteral("-") << japanese;
    // The English catalog has no text for these two, and the earlier translator answers.
    QTest::newRow("side view, English") << QStringLiteral("TutorialSideViewStep1") << english << japanese;
    QTest::newRow("top view") << QStringLiteral("TutorialTopViewStep1") << japanese << japanese;
}

void tst_Link::tutorials()
{
    QFETCH(QString, name);
    QFETCH(QString, locale);
    QFETCH(QString, hintLocale);
    QDomDocument catalog;
    catalog.setContent(sourceText(QStringLiteral("/translations/%1.ts").arg(hintLocale)));
    const QString stored = evaluate(sourceText(QStringLiteral("/qml/Tutorial/%1.js").arg(name)),
                                    TranslationSource::readMessages(catalog).value(name));

    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.send(FromHost::kFromServer, locale);
    host.send(FromHost::kTutorial, name);
    const QStringList start = host.waitForMessage(ToHost::kStart);
    QCOMPARE(start.size(), 3);
    QCOMPARE(start.at(2).toInt(), kFromBeginning);
    QCOMPARE(evaluate(start.at(1)), stored);
    QVERIFY(stored.contains(QLatin1String("\"hint\"")) && !stored.contains(QLatin1String("\"hint\":\"\"")));
}

void tst_Link::hostileBytes()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.send(FromHost::kStart, QStringLiteral("a"), QStringLiteral("99999999999"), QString(), -5);

    const QString messages[] = {
        stepMessage({ 1, 2, QStringLiteral("A"), QStringLiteral("<b>hint"), true, true, true, 3 }),
        startMessage(kHostRect),
        message(FromHost::kIndicator, FromHost::kUpdateXy, 1, 2),
        message(FromHost::kState, FromHost::kHide),
        message(FromHost::kWindowStack, FromHost::kPush, QStringLiteral("Popup")),
        message(FromHost::kControlPosition, QStringLiteral("A"), 1, 2),
        message(FromHost::kTutorial, QStringLiteral("TutorialSideViewStep0")),
        message(FromHost::kFromServer, FromHost::kRawLocale),
        message(FromHost::kShowTooltip, QStringLiteral("text"), 1, 2),
        message(FromHost::kHideTooltip),
        message(FromHost::kCoffeeJs, 1, QStringLiteral("'a'")),
        message(FromHost::kRequestPresetData, QStringLiteral("../qml")),
        message(FromHost::kBye),
    };
    QRandomGenerator random(20180123);
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes =
            HostRecord::encode(HostRecord::kFromHost, messages[random.bounded(int(std::size(messages)))]);
        for (int n = random.bounded(6); n > 0; --n) {
            const int place = random.bounded(bytes.size());
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
}

void tst_Link::hugeTexts()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.sendMessage(startMessage(kHostRect));
    const QString text = QStringLiteral("word ").repeated(1024 * 1024);
    const auto sendTexts = [&] {
        host.sendMessage(stepMessage({ 10, 10, QString(), text, true, true, true, 0 }));
        host.send(FromHost::kShowTooltip, text, 100, 100);
    };
    sendTexts();
    host.send(FromHost::kTutorial, text);
    QVERIFY(answersAgain(host));
    const int after = host.memory();
    for (int i = 0; i < 6; ++i)
        sendTexts();
    // A record without an end is given up at 64 MiB.
    host.sendBytes(QByteArray(1, HostRecord::kFromHost).append(HostRecord::kMessageStart));
    for (int i = 0; i < 40; ++i) {
        host.sendBytes(QByteArray(2 * 1024 * 1024, 'a'));
        QVERIFY(host.flush());
    }
    host.sendBytes(QByteArray(1, HostRecord::kEnd));
    QVERIFY(answersAgain(host));
    QVERIFY2(host.memory() < after + 160 * 1024, qPrintable(QStringLiteral("%1 %2").arg(after).arg(host.memory())));
}

void tst_Link::flood()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.sendMessage(startMessage(kHostRect));
    const QString last = QStringLiteral("最後 %1 %4");
    constexpr int rounds = 25000;
    for (int i = 0; i < rounds; ++i) {
        host.sendMessage(
            stepMessage({ i % 900, i % 700, QString(), QString::number(i), i % 2 > 0, i % 3 > 0, i % 5 > 0, i % 6 }));
        host.send(FromHost::kIndicator, FromHost::kUpdateXy, i % 1000, i % 800);
        host.send(FromHost::kAlive);
        host.send(FromHost::kWindowPosition, QStringLiteral("key%1").arg(i % 50), i, i);
        host.send(FromHost::kWindowStack, i % 2 ? FromHost::kPush : FromHost::kPop, QStringLiteral("Popup"));
    }
    host.sendMessage(stepMessage({ 321, 234, QString(), last, false, false, true, 0 }));
    host.send(FromHost::kTutorialList);
    QVERIFY(!host.waitForMessage(ToHost::kTutorialList, 120000).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(placeOfHint(host.process().processId()), QPoint(321, 234), 20000);
    // The log has each message but "alive".
    const QRegularExpression line(
        QStringLiteral("^Debug: cpp/Tutorial .*\"%1\", \"4\", \"0\"\\) \\(:0, \\)$").arg(last),
        QRegularExpression::MultilineOption);
    QTRY_VERIFY(line.match(host.log()).hasMatch());
    QCOMPARE(host.log().count(QLatin1String("TutorialManager::onReceived ")), 4 * rounds + 3);
}

QTEST_GUILESS_MAIN(tst_Link)
#include "tst_Link.moc"
