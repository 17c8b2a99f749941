#include "support/HostPeer.h"

#include <QTcpServer>
#include <QUdpSocket>

#include <csignal>

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
const QString kSource = QStringLiteral("'a = 1'");
// As regular expressions, like all records that are expected.
constexpr char kGood[] = R"(\{"error":"","javascript":"var a;\\n\\na = 1;\\n","line":-1\})";
constexpr char kError[] = R"(\{"error":".+","javascript":"","line":-1\})";

QStringList corpus()
{
    QStringList sources;
    const QDir folder(kSourceFolder + QStringLiteral("/tests/end_to_end/coffee"));
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
        sources += QString::fromUtf8(readAll(folder.filePath(name)));
    const QStringList files = sources;
    for (QString source : files)
        sources += source.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    sources += QString();
    sources += QChar(QChar::ByteOrderMark) + files.first();
    // Deeper than the compiler can go: an error without a place.
    sources += QString(3000, QLatin1Char('[')) + QString(3000, QLatin1Char(']'));
    // Control characters and the line ends that only scripts know.
    sources += QStringLiteral("a = '\x01\x1f\x7f\u0085\u2028\u2029\u200b'");
    sources += files.join(QLatin1String("\n")).repeated(20).left(30000);
    return sources;
}

/// What the same compiler gives in Node, each record as its text.
QStringList convertWithNode(const QStringList &sources)
{
    QProcess node;
    node.start(QStringLiteral(TRELVANE_NODE),
               { kSourceFolder + QStringLiteral("/scripts/convert-coffee-script.js"),
                 QStringLiteral(TRELVANE_COFFEE_SCRIPT) });
    node.write(QJsonDocument(QJsonArray::fromStringList(sources)).toJson(QJsonDocument::Compact));
    node.closeWriteChannel();
    node.waitForFinished(120000);
    QStringList records;
    for (const QJsonValue &record : QJsonDocument::fromJson(node.readAllStandardOutput()).array())
        records += record.toString();
    return records;
}

/// Sends the signal to the processes of pages that the program has by now: those that the process which it keeps for
/// starting them has made.
void signalPages(qint64 program, int signal)
{
    const auto parent = [](qint64 process) {
        const QByteArray state = readAll(QStringLiteral("/proc/%1/stat").arg(process));
        return state.mid(state.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
    };
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList({ QStringLiteral("[1-9]*") }, QDir::Dirs)) {
        if (parent(parent(name.toLongLong())) == program)
            ::kill(static_cast<pid_t>(name.toLongLong()), signal);
    }
}

void killPages(qint64 program)
{
    signalPages(program, SIGKILL);
}

/// The program with its link, which is kept alive until the end.
class Service : public HostPeer
{
public:
    bool begin()
    {
        const bool began = start(kProgram);
        keepAlive();
        return began;
    }

    void request(int key, const QString &expression) { send(HostMessages::FromHost::kCoffeeJs, key, expression); }

    /// Whether that is the next answer. The page is opened a second after its load.
    bool answers(int key, const QString &pattern = QLatin1String(kGood))
    {
        mFields = waitForMessage(HostMessages::ToHost::kCallbackCoffeeJs, 120000);
        const QRegularExpression expected(QRegularExpression::anchoredPattern(pattern));
        return mFields.value(1) == QString::number(key) && expected.match(mFields.value(2)).hasMatch();
    }

    /// Of the answer that came last.
    QStringList mFields;
};
} // namespace

class tst_Conversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersEachInOrder();
    void sourcesThatNeverEnd();
    void pagesThatAreLost();
    void reachesNothing();
};

// Good and bad sources in turn, all at once, so that most wait in the queue.
void tst_Conversion::answersEachInOrder()
{
    using Case = QPair<QString, QString>; // an expression, and its record
    const QVector<QPair<const char *, const char *>> badCases = {
        { "][", "" },
        { "", kError },
        { "\"a = 1\" // no end", "" },
        { "(function() { throw new Error('own'); })()", "" },
        { "42", kError },
        { "'a = 1'), (7", "7" },
        { "'a = 1'), (undefined", "" },
        { "'a = 1'), (function() {}", ".*" },
        { "prompt('stop') || confirm('stop') || alert('stop')", ".*" },
        { "(location.reload(), 'a = 1')", kGood },
        { "(location.href = 'qrc:/html/none.html', 'a = 1')", kGood },
        { "(document.open(), document.write('gone'), document.close(), 'a = 1')", kGood },
        { "(window.convertCoffee = null, delete window.convertCoffee, 'a = 1')", kGood },
        // What belongs to the page is not what the compiler uses.
        { "(JSON.stringify = console.log = Array.prototype.push = Array.prototype.concat = "
          "String.prototype.replace = RegExp.prototype.exec = Object.create = null, 'a = 1')",
          kGood },
        { "(eval = null, Object.defineProperty(Array.prototype, 1, {set: function() {}, "
          "configurable: true}), 'a = 1')",
          kGood },
        { "(Function.prototype.call = Function.prototype.apply = function() { return 7; }, 'a = 1')", kGood },
        { "(Object.defineProperty(Object.prototype, 'location', {get: function() { return {first_line: 8}; }, "
          "configurable: true}), Array = RegExp = Error = function() {}, 'a = 1')",
          kGood },
        { "({charCodeAt: function spoil() { spoil.caller.constructor.prototype.call = null; }})", kError },
    };
    const QStringList sources = corpus();
    const QStringList records = convertWithNode(sources);
    QVERIFY(sources.size() > badCases.size() && records.size() == sources.size());
    QVector<Case> cases;
    for (int i = 0; i < sources.size(); ++i) {
        const auto &bad = badCases.at(i % badCases.size());
        cases += Case(QString::fromLatin1(bad.first), QString::fromLatin1(bad.second));
        const QByteArray array = QJsonDocument(QJsonArray{ sources.at(i) }).toJson(QJsonDocument::Compact);
        cases += Case(QString::fromUtf8(array + "[0]"), QRegularExpression::escape(records.at(i)));
    }

    Service service;
    QVERIFY(service.begin());
    for (int key = 0; key < cases.size(); ++key)
        service.request(key, cases.at(key).first);
    for (int key = 0; key < cases.size(); ++key)
        QVERIFY2(service.answers(key, cases.at(key).second),
                 qPrintable(cases.at(key).first.left(2000) + QLatin1String(" gives ")
                            + service.mFields.join(QLatin1Char(' '))));
}

// The page's process is given up once, and those that waited are answered by the next one; where several
// waited together, it takes a second page to find which of them doesn't end. The programs wait for the
// time limit together.
void tst_Conversion::sourcesThatNeverEnd()
{
    Service endless;
    Service busyPage;
    Service large;
    Service together;
    Service halted;
    QVERIFY(endless.begin() && busyPage.begin() && large.begin() && together.begin() && halted.begin());
    const QString never = QStringLiteral("(function() { for (;;); })()");
    together.request(1, kSource);
    together.request(2, never);
    together.request(3, QStringLiteral("7"));
    together.request(4, kSource);
    // While the page is open.
    endless.request(1, kSource);
    QVERIFY(endless.answers(1));

    endless.request(2, never);
    endless.request(3, kSource);
    endless.request(4, QStringLiteral("7"));
    // What a source leaves in the page is not blamed on the next one.
    busyPage.request(1, QStringLiteral("(setTimeout(function() { for (;;); }, 0), 'a = 1')"));
    QVERIFY(busyPage.answers(1));
    busyPage.request(2, kSource);
    // A large source is given more time than a small one.
    large.request(1,
                  QStringLiteral("(function() { var end = Date.now() + 11000; while (Date.now() < end); "
                                 "return 'a = 1'; })() /* %1 */")
                      .arg(QString(20000, QLatin1Char('.'))));

    // The time in which a program is halted with its page, as by a machine that sleeps, is not the source's.
    halted.request(1, kSource);
    QVERIFY(halted.answers(1));
    halted.request(2,
                   QStringLiteral("(function() { for (var n = 0, last = Date.now(); n < 15; ) { var now = Date.now(); "
                                  "if (now - last >= 100) { ++n; last = now; } } return 'a = 1'; })()"));
    QTRY_VERIFY(halted.log().contains(QLatin1String("requestCoffeeJs: 2")));
    const qint64 program = halted.process().processId();
    const auto signalAll = [program](int signal) {
        ::kill(static_cast<pid_t>(program), signal);
        signalPages(program, signal);
    };
    signalAll(SIGSTOP);
    QTest::qWait(11000);
    signalAll(SIGCONT);
    QVERIFY2(halted.answers(2), qPrintable(halted.mFields.join(QLatin1Char(' '))));

    QVERIFY(endless.answers(2, QLatin1String(kError)));
    QCOMPARE(endless.log().count(QLatin1String("no answer within")), 1);
    QVERIFY(endless.answers(3) && endless.answers(4, QLatin1String(kError)));
    QVERIFY(busyPage.answers(2));
    QVERIFY(large.answers(1));
    QVERIFY(together.answers(1) && together.answers(2, QLatin1String(kError)));
    QVERIFY(together.answers(3, QLatin1String(kError)) && together.answers(4));
    QCOMPARE(together.log().count(QLatin1String("no answer within")), 2);
}

// However often pages are lost, each request is answered, in order, and a page that lasts serves again.
void tst_Conversion::pagesThatAreLost()
{
    Service service;
    QVERIFY(service.begin());
    const qint64 program = service.process().processId();
    service.request(0, kSource);
    QVERIFY(service.answers(0));
    killPages(program);
    service.request(1, kSource);
    QVERIFY(service.answers(1));

    // Two are under way in the page, the others wait.
    service.request(10,
                    QStringLiteral("(function() { var end = Date.now() + 1000; while (Date.now() < end); "
                                   "return 'a = 1'; })()"));
    for (int key = 11; key < 15; ++key)
        service.request(key, kSource);
    QTRY_VERIFY(service.log().contains(QLatin1String("requestCoffeeJs: 14")));
    killPages(program);
    service.request(15, kSource);
    for (int key = 10; key < 16; ++key)
        QVERIFY2(service.answers(key), qPrintable(service.mFields.join(QLatin1Char(' '))));

    killPages(program);
    for (int key = 2; key < 5; ++key)
        service.request(key, kSource);
    const auto saysError = [&service] { return service.log().contains(QLatin1String("lost again and again")); };
    for (QDeadlineTimer limit(60000); !saysError() && !limit.hasExpired(); QTest::qWait(20))
        killPages(program);
    service.request(5, kSource);
    for (int key = 2; key < 6; ++key)
        QVERIFY2(service.answers(key, QLatin1String(kError)), qPrintable(service.mFields.join(QLatin1Char(' '))));
    QTRY_VERIFY_WITH_TIMEOUT(service.log().contains(QLatin1String("ready again")), 60000);
    service.request(6, kSource);
    QVERIFY(service.answers(6));
}

// No way out that a page knows brings a byte to a server of this machine, or a file of it into an answer.
void tst_Conversion::reachesNothing()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QUdpSocket datagrams;
    QVERIFY(datagrams.bind(QHostAddress::LocalHost, server.serverPort()));
    const char *const attempts[] = {
        "(window.read = function(url) { var x = new XMLHttpRequest; x.open('GET', url, false); x.send(); "
        "return {read: x.responseText}; }) && 0",
        "read('http://127.0.0.1:PORT/')",
        "read('file:///etc/passwd')",
        "read('qrc:/qml/main.qml')",
        "new WebSocket('ws://127.0.0.1:PORT/') && 0",
        "(location.href = 'http://127.0.0.1:PORT/') && 0",
        "(window.ring = function(url) { var c = new RTCPeerConnection({iceServers: [{urls: "
        "url, username: 'a', credential: 'b'}]}); c.createDataChannel('x'); "
        "c.createOffer().then(function(o) { c.setLocalDescription(o); }); }) && 0",
        "ring('stun:127.0.0.1:PORT')",
        "ring('turn:127.0.0.1:PORT?transport=udp')",
        "ring('turn:localhost:PORT?transport=tcp')",
    };
    const QString port = QString::number(server.serverPort());
    Service service;
    QVERIFY(service.begin());
    for (const char *attempt : attempts) {
        service.request(1, QString::fromLatin1(attempt).replace(QLatin1String("PORT"), port));
        QVERIFY2(service.answers(1, QStringLiteral("(?!.*root:|.*ApplicationWindow).*")), attempt);
    }
    // What was begun has had its time.
    QVERIFY(!server.waitForNewConnection(2000));
    QVERIFY(!server.hasPendingConnections());
    QVERIFY(!datagrams.hasPendingDatagrams());
}

QTEST_GUILESS_MAIN(tst_Conversion)

#include "tst_Conversion.moc"
