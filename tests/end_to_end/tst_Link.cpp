#include "support/HostPeer.h"

#include "Tutorial/link/HostRecord.h"
#include "Tutorial/translation/TranslationSource.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJSEngine>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace HostMessages;

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
const QRect kHostRect(0, 0, 1280, 1024);

/// Every hint of a scenario by its item's id, folders' contents included.
void collectHints(const QJsonArray &items, QHash<int, QString> &hints)
{
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        if (item.value(QLatin1String("folder")).toBool())
            collectHints(item.value(QLatin1String("children")).toArray(), hints);
        else
            hints.insert(item.value(QLatin1String("id")).toInt(), item.value(QLatin1String("hint")).toString());
    }
}

/// The items of a scenario script, evaluated as a script. qsTr gives the key itself.
QJsonArray evaluate(const QString &script)
{
    QJSEngine engine;
    engine.evaluate(QStringLiteral("function qsTr(key) { return key; }"));
    engine.evaluate(script);
    const QJSValue json = engine.evaluate(QStringLiteral("JSON.stringify(scenario)"));
    return QJsonDocument::fromJson(json.toString().toUtf8()).array();
}

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TranslationSource::Messages hintTexts(const QString &locale, const QString &tutorial)
{
    QDomDocument document;
    document.setContent(readText(kSourceFolder + QStringLiteral("/translations/%1.ts").arg(locale)));
    return TranslationSource::readMessages(document).value(tutorial);
}

/// The items with each hint in place of its key.
QJsonArray withHints(const QJsonArray &items, const TranslationSource::Messages &texts)
{
    QJsonArray result;
    for (const QJsonValue &value : items) {
        QJsonObject item = value.toObject();
        const QLatin1String children("children");
        const QLatin1String hint("hint");
        if (item.contains(children))
            item.insert(children, withHints(item.value(children).toArray(), texts));
        if (item.contains(hint)) {
            const QString key = item.value(hint).toString();
            item.insert(hint, texts.value(key, key));
        }
        result.append(item);
    }
    return result;
}

/// Whether the program answers after bad bytes. What a read holds behind such bytes is lost, so that one
/// question may get no answer.
bool answersAgain(HostPeer &host)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 60000) {
        host.send(FromHost::kTutorialList);
        if (!host.waitForMessage(ToHost::kTutorialList, 2000).isEmpty())
            return true;
    }
    return false;
}

/// Shell text output of a command, such as a question to the X server.
QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList visibleWindows(qint64 processId)
{
    QStringList windows = output(QStringLiteral("xdotool"),
                                 { QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--pid"),
                                   QString::number(processId) })
                              .split(QLatin1Char('\n'));
    windows.removeAll(QString());
    return windows;
}

/// Where the window of that size stands, as "x,y"; empty when there is none.
QString placeOfWindow(qint64 processId, int width, int height)
{
    for (const QString &window : visibleWindows(processId)) {
        const QString text = output(QStringLiteral("xdotool"), { QStringLiteral("getwindowgeometry"), window });
        const QRegularExpression form(
            QStringLiteral("Position: (-?\\d+,-?\\d+) .*Geometry: %1x%2").arg(width).arg(height),
            QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = form.match(text);
        if (match.hasMatch())
            return match.captured(1);
    }
    return QString();
}
} // namespace

/// The real program at the other end of a real socket.
class tst_Link : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TMPDIR", QFile::encodeName(mTemporary.path())); }
    void aliveComesEachSecond();
    void endsWithTheLink();
    void removesItsTemporaryFolder();
    void endsWithoutALink();
    void logHoldsOneRun();
    void tutorials_data();
    void tutorials();
    void hostileBytes();
    void hugeTexts();
    void flood();

private:
    QStringList temporaryFolders() const
    {
        return QDir(mTemporary.path()).entryList({ QStringLiteral("Trelvane*") }, QDir::Dirs);
    }

    const QTemporaryDir mTemporary;
};

void tst_Link::aliveComesEachSecond()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 4; ++i)
        QVERIFY(!host.waitForMessage(ToHost::kAlive, 3000).isEmpty());
    QVERIFY2(timer.elapsed() > 2500 && timer.elapsed() < 8000, qPrintable(QString::number(timer.elapsed())));
}

void tst_Link::endsWithTheLink()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.sendMessage(startMessage(kHostRect));
    const qint64 processId = host.process().processId();
    QTRY_VERIFY(!placeOfWindow(processId, 640, 480).isEmpty());
    host.closeLink();
    QVERIFY(host.waitForExit(5000));
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QTRY_VERIFY(visibleWindows(processId).isEmpty());
}

void tst_Link::removesItsTemporaryFolder()
{
    HostPeer host;
    QVERIFY(host.start(QStringLiteral(TRELVANE_AUTHOR_PROGRAM)));
    QTRY_COMPARE(temporaryFolders().size(), 1);
    host.closeLink();
    QVERIFY(host.waitForExit(5000));
    QCOMPARE(temporaryFolders(), QStringList());
}

void tst_Link::endsWithoutALink()
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
    connect(&byte, &QTimer::timeout, &talking, [&] { talking.sendBytes("x"); });
    byte.start(3000);
    QVERIFY(silent.waitForExit(16000));
    QVERIFY2(timer.elapsed() > 8000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(noServer.waitForExit(6000));
    QTest::qWait(2000);
    QCOMPARE(talking.process().state(), QProcess::Running);

    for (HostPeer *host : { &silent, &noServer, &noSuffix }) {
        QCOMPARE(host->process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host->process().exitCode(), 0);
    }
}

void tst_Link::logHoldsOneRun()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.send(FromHost::kContents, QStringLiteral("最初 %1 %4"));
    QTRY_VERIFY(host.log().contains(QStringLiteral("Debug: cpp/Tutorial TutorialManager::onReceived ")));
    const QRegularExpression line(QStringLiteral("^Debug: .*\\(\"contents\", \"最初 %1 %4\"\\) \\(:0, \\)$"),
                                  QRegularExpression::MultilineOption);
    QVERIFY2(line.match(host.log()).hasMatch(), qPrintable(host.log()));
    QVERIFY(!host.log().contains(QLatin1String("\"alive\"")));
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
    QTest::newRow("side view") << QStringLiteral("TutorialSideViewStep1") << japanese << japanese;
    // The English catalog has no text for these two, and the earlier translator answers.
    QTest::newRow("side view, English") << QStringLiteral("TutorialSideViewStep1") << english << japanese;
    QTest::newRow("top view") << QStringLiteral("TutorialTopViewStep1") << japanese << japanese;
}

void tst_Link::tutorials()
{
    QFETCH(QString, name);
    QFETCH(QString, locale);
    QFETCH(QString, hintLocale);

    const QJsonArray stored = evaluate(readText(kSourceFolder + QStringLiteral("/qml/Tutorial/%1.js").arg(name)));
    QVERIFY(!stored.isEmpty());

    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.send(FromHost::kFromServer, locale);
    host.send(FromHost::kTutorial, name);
    const QStringList start = host.waitForMessage(ToHost::kStart);
    QCOMPARE(start.size(), 3);
    QCOMPARE(start.at(2), QStringLiteral("-1"));
    const QJsonArray sent = evaluate(start.at(1));
    QCOMPARE(sent, withHints(stored, hintTexts(hintLocale, name)));

    QHash<int, QString> hints;
    collectHints(sent, hints);
    for (const QString &hint : qAsConst(hints))
        QVERIFY2(!hint.isEmpty() && !hint.startsWith(QLatin1Char('#')), qPrintable(hint));
}

void tst_Link::hostileBytes()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.send(FromHost::kStart, QStringLiteral("a"), QStringLiteral("99999999999"), QString(), -5);

    QRandomGenerator random(20180123);
    const QLatin1String names[] = { FromHost::kIndicator,      FromHost::kStart,    FromHost::kState,
                                    FromHost::kWindowStack,    FromHost::kTutorial, FromHost::kFromServer,
                                    FromHost::kWindowPosition, FromHost::kCoffeeJs, FromHost::kRequestPresetData,
                                    FromHost::kShowTooltip,    FromHost::kBye,      FromHost::kHideTooltip,
                                    FromHost::kEventLog,       FromHost::kLog,      QLatin1String() };
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes;
        const int kind = random.bounded(4);
        if (kind == 0) {
            for (int n = random.bounded(40); n > 0; --n)
                bytes.append(static_cast<char>(random.bounded(256)));
        } else {
            bytes = HostRecord::encode(HostRecord::kFromHost, names[random.bounded(int(std::size(names)))]);
            bytes.chop(1);
            for (int n = random.bounded(9); n > 0; --n) {
                bytes.append(kFieldSeparator.toLatin1());
                if (random.bounded(3) == 0)
                    bytes.append(FromHost::kUpdate.data());
                else if (random.bounded(2) == 0)
                    bytes.append(QByteArray::number(static_cast<qint64>(random.generate64())));
                else
                    bytes.append("\xff\xfe\xc0").append(static_cast<char>(random.bounded(256)));
            }
            bytes.append('\0');
        }
        host.sendBytes(bytes);
    }
    // The end of whatever record the last bytes have begun, and one that must still be answered.
    host.sendBytes(QByteArray(1, '\0'));
    QVERIFY(host.flush());
    QVERIFY(answersAgain(host));
    QCOMPARE(host.process().state(), QProcess::Running);
}

void tst_Link::hugeTexts()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.sendMessage(startMessage(kHostRect));
    const QString text = QStringLiteral("word ").repeated(1024 * 1024);
    const auto update = [&](const QString &hint) {
        host.sendMessage(stepMessage({ 10, 10, QStringLiteral("MainWindow"), hint, true, true, true, 0 }));
    };
    for (int i = 0; i < 3; ++i) {
        update(text);
        host.send(FromHost::kShowTooltip, text, 100, 100);
        host.send(FromHost::kTutorial, text);
    }
    QVERIFY(answersAgain(host));
    const int after = host.memory();
    for (int i = 0; i < 6; ++i) {
        update(text);
        host.send(FromHost::kShowTooltip, text, 100, 100);
    }
    // A record without an end is given up at 64 MiB.
    host.sendBytes(QByteArray("0").append(HostRecord::kMessageStart));
    for (int i = 0; i < 40; ++i) {
        host.sendBytes(QByteArray(2 * 1024 * 1024, 'a'));
        QVERIFY(host.flush());
    }
    host.sendBytes(QByteArray(1, '\0'));
    QVERIFY(answersAgain(host));
    QVERIFY2(host.memory() < after + 160 * 1024, qPrintable(QStringLiteral("%1 %2").arg(after).arg(host.memory())));
}

void tst_Link::flood()
{
    HostPeer host;
    QVERIFY(host.start(kProgram));
    host.sendMessage(startMessage(kHostRect));
    QByteArray bytes;
    constexpr int count = 100000;
    for (int i = 0; i < count; ++i) {
        const int kind = i % 4;
        QString message;
        if (kind == 0) {
            message = stepMessage({ i % 900, i % 700, QStringLiteral("MainWindow"), QStringLiteral("step %1").arg(i),
                                    i % 2 > 0, i % 3 > 0, i % 5 > 0, i % 6 });
        } else if (kind == 1) {
            message = HostMessages::message(FromHost::kIndicator, FromHost::kUpdateXy, i % 1000, i % 800);
        } else if (kind == 2) {
            message = HostMessages::message(FromHost::kWindowPosition, QStringLiteral("key%1").arg(i % 50), i, i);
        } else {
            message = i % 8 == 3
                ? HostMessages::message(FromHost::kWindowStack, FromHost::kPush, QStringLiteral("Popup"))
                : HostMessages::message(FromHost::kWindowStack, FromHost::kPop);
        }
        bytes += HostRecord::encode(HostRecord::kFromHost, message);
    }
    host.sendBytes(bytes);
    host.sendMessage(
        stepMessage({ 321, 234, QStringLiteral("MainWindow"), QStringLiteral("the last one"), false, false, true, 0 }));
    host.send(FromHost::kTutorialList);
    QVERIFY(!host.waitForMessage(ToHost::kTutorialList, 120000).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(placeOfWindow(host.process().processId(), 640, 480), QStringLiteral("321,234"), 20000);
    QTRY_VERIFY(host.log().contains(QLatin1String("the last one")));
    QCOMPARE(host.log().count(QLatin1String("TutorialManager::onReceived ")), count + 3);
}

QTEST_GUILESS_MAIN(tst_Link)
#include "tst_Link.moc"
