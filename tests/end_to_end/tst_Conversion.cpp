#include "support/FileBytes.h"
#include "support/HostPeer.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTcpServer>
#include <QUdpSocket>

#include <csignal>

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
// As a regular expression, like all records that are expected.
const QString kError = QStringLiteral(R"(\{"error":".+","javascript":"","line":-1\})");

/// A script expression for the text.
QString literal(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{ text }).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

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

/// Ends the processes of pages that the program has by now: those that the process which it keeps for
/// starting them has made.
void killPages(qint64 program)
{
    const auto parent = [](qint64 process) {
        const QByteArray state = readAll(QStringLiteral("/proc/%1/stat").arg(process));
        return state.mid(state.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
    };
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList({ QStringLiteral("[1-9]*") }, QDir::Dirs)) {
        if (parent(parent(name.toLongLong())) == program)
            ::kill(static_cast<pid_t>(name.toLongLong()), SIGKILL);
    }
}

bool isRecord(const QString &record, const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(record).hasMatch();
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

    /// Key and record of the next answer. The page is opened a second after its load.
    QStringList answer(int timeout = 60000)
    {
        return waitForMessage(HostMessages::ToHost::kCallbackCoffeeJs, timeout).mid(1);
    }
};

QStringList answerOf(int key, const QString &record)
{
    return { QString::number(key), record };
}
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

// Good and bad sources in turn, all at once, so that most wait in the queue, and again when the page is open.
void tst_Conversion::answersEachInOrder()
{
    using Case = QPair<QString, QString>; // an expression, and its record as a regular expression
    const char good[] = R"(\{"error":"","javascript":"var a;\\n\\na = 1;\\n","line":-1\})";
    const char error[] = R"(\{"error":".+","javascript":"","line":-1\})";
    const QVector<QPair<const char *, const char *>> badCases = {
        { "][", "" },
        { "", error },
        { "\"a = 1\" // no end", "" },
        { "(function() { throw new Error('own'); })()", "" },
        { "(function() { throw null; })()", "" },
        { "nobody.knows", "" },
        { "42", error },
        { "'a = 1'), (7", "7" },
        { "'a = 1'), (undefined", "" },
        { "'a = 1'), (function() {}", ".*" },
        { "prompt('stop') || confirm('stop') || alert('stop')", ".*" },
        { "(location.reload(), 'a = 1')", good },
        { "(location.href = 'qrc:/html/none.html', 'a = 1')", good },
        { "(document.open(), document.write('gone'), document.close(), 'a = 1')", good },
        { "(window.convertCoffee = null, delete window.convertCoffee, 'a = 1')", good },
        { "(Object.defineProperty(window, 'compiledJS', {value: 1}), 'a = 1')", ".*" },
        // What belongs to the page is not what the compiler uses.
        { "(JSON.stringify = console.log = Array.prototype.push = Array.prototype.concat = "
          "String.prototype.replace = RegExp.prototype.exec = Object.create = null, 'a = 1')",
          good },
        { "(Function.prototype.call = Function.prototype.apply = function() { return 7; }, 'a = 1')", good },
        { "(Object.defineProperty(Object.prototype, 'location', {get: function() { return {first_line: 8}; }, "
          "configurable: true}), Array = RegExp = Error = function() {}, 'a = 1')",
          good },
        { "({charCodeAt: function spoil() { spoil.caller.constructor.prototype.call = null; }})", error },
    };
    const QStringList sources = corpus();
    const QStringList records = convertWithNode(sources);
    QVERIFY(sources.size() > badCases.size() && records.size() == sources.size());
    QVERIFY(
        records.contains(QStringLiteral(R"({"error":"Maximum call stack size exceeded","javascript":"","line":-1})")));
    QVector<Case> cases;
    for (int i = 0; i < sources.size(); ++i) {
        const auto &bad = badCases.at(i % badCases.size());
        cases += Case(QString::fromLatin1(bad.first), QString::fromLatin1(bad.second));
        cases += Case(literal(sources.at(i)), QRegularExpression::escape(records.at(i)));
    }

    Service service;
    QVERIFY(service.begin());
    for (int round = 0; round < 2; ++round) {
        for (int key = 0; key < cases.size(); ++key)
            service.request(key, cases.at(key).first);
        for (int key = 0; key < cases.size(); ++key) {
            const QStringList fields = service.answer();
            QCOMPARE(fields.value(0), QString::number(key));
            QVERIFY2(isRecord(fields.value(1), cases.at(key).second),
                     qPrintable(cases.at(key).first.left(2000) + QLatin1String(" gives ") + fields.value(1)));
        }
    }
}

// The page's process is given up once, and those that waited are answered by the next one. Three
// programs wait for the time limit together.
void tst_Conversion::sourcesThatNeverEnd()
{
    const QStringList sources{ QStringLiteral("b = 2"), QStringLiteral("c = (") };
    const QStringList records = convertWithNode(sources);
    Service endless;
    Service busyPage;
    Service large;
    QVERIFY(endless.begin() && busyPage.begin() && large.begin());
    // While the page is open.
    endless.request(1, literal(sources.at(0)));
    QCOMPARE(endless.answer(), answerOf(1, records.at(0)));

    endless.request(2, QStringLiteral("(function() { for (;;); })()"));
    endless.request(3, literal(sources.at(0)));
    endless.request(4, literal(sources.at(1)));
    // What a source leaves in the page is not blamed on the next one.
    busyPage.request(1, QStringLiteral("(setTimeout(function() { for (;;); }, 0), 'd = 3')"));
    busyPage.request(2, literal(sources.at(0)));
    // A large source is given more time than a small one.
    large.request(1,
                  QStringLiteral("(function() { var end = Date.now() + 11000; while (Date.now() < end); "
                                 "return 'b = 2'; })() /* %1 */")
                      .arg(QString(20000, QLatin1Char('.'))));

    const QStringList answer = endless.answer(120000);
    QCOMPARE(answer.value(0), QStringLiteral("2"));
    QVERIFY2(isRecord(answer.value(1), kError), qPrintable(answer.value(1)));
    QCOMPARE(endless.log().count(QLatin1String("no answer within")), 1);
    QCOMPARE(endless.answer(), answerOf(3, records.at(0)));
    QCOMPARE(endless.answer(), answerOf(4, records.at(1)));
    QCOMPARE(busyPage.answer().value(0), QStringLiteral("1"));
    QCOMPARE(busyPage.answer(), answerOf(2, records.at(0)));
    QCOMPARE(large.answer(), answerOf(1, records.at(0)));
}

// However often pages are lost, each request is answered, in order, and a page that lasts serves again.
void tst_Conversion::pagesThatAreLost()
{
    Service service;
    QVERIFY(service.begin());
    const qint64 program = service.process().processId();
    const QString source = literal(QStringLiteral("b = 2"));
    const QString record = convertWithNode({ QStringLiteral("b = 2") }).value(0);
    service.request(0, source);
    QCOMPARE(service.answer(), answerOf(0, record));
    killPages(program);
    service.request(1, source);
    QCOMPARE(service.answer(), answerOf(1, record));

    killPages(program);
    for (int key = 2; key < 5; ++key)
        service.request(key, source);
    const auto saysError = [&service] { return service.log().contains(QLatin1String("lost again and again")); };
    for (QDeadlineTimer limit(60000); !saysError() && !limit.hasExpired(); QTest::qWait(20))
        killPages(program);
    service.request(5, source);
    for (int key = 2; key < 6; ++key) {
        const QStringList fields = service.answer();
        QCOMPARE(fields.value(0), QString::number(key));
        QVERIFY2(isRecord(fields.value(1), kError), qPrintable(fields.join(QLatin1Char(' '))));
    }
    QTRY_VERIFY_WITH_TIMEOUT(service.log().contains(QLatin1String("ready again")), 60000);
    service.request(6, source);
    QCOMPARE(service.answer(), answerOf(6, record));
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
        "(window.frame = function(attribute, value) { var e = document.createElement('iframe'); "
        "if (attribute) e[attribute] = value; return document.body.appendChild(e).contentWindow; }) && 0",
        "read('http://127.0.0.1:PORT/')",
        "read('file:///etc/passwd')",
        "read('qrc:/qml/main.qml')",
        "fetch('http://127.0.0.1:PORT/').catch(String)",
        "new WebSocket('ws://127.0.0.1:PORT/') && 0",
        "(location.href = 'http://127.0.0.1:PORT/') && 0",
        // From frames that no script of ours has prepared.
        "frame().fetch('http://127.0.0.1:PORT/') && 0",
        "new (frame().Worker)(URL.createObjectURL(new Blob([\"fetch('http://127.0.0.1:PORT/')\"]))) && 0",
        "frame('src', 'data:text/html,<script>fetch(\"http://127.0.0.1:PORT/\")</' + 'script>') && 0",
        // Peer connections.
        "(window.ring = function(maker, url) { var c = new maker.RTCPeerConnection({iceServers: [{urls: "
        "url, username: 'a', credential: 'b'}]}); c.createDataChannel('x'); "
        "c.createOffer().then(function(o) { c.setLocalDescription(o); }); }) && 0",
        "(window.ringCandidate = function(maker, candidate) { var a = new maker.RTCPeerConnection, b = new "
        "maker.RTCPeerConnection; a.createDataChannel('x'); a.createOffer().then(function(o) { "
        "a.setLocalDescription(o); return b.setRemoteDescription(o); }).then(function() { return b.createAnswer(); "
        "}).then(function(o) { b.setLocalDescription(o); return a.setRemoteDescription(o); }).then(function() { "
        "a.addIceCandidate({candidate: 'candidate:1 1 ' + candidate, sdpMid: '0'}); }); }) && 0",
        "ring(window, 'stun:127.0.0.1:PORT')",
        "ring(frame(), 'stun:127.0.0.1:PORT')",
        "ring(frame(), 'turn:127.0.0.1:PORT?transport=udp')",
        "ring(frame(), 'turn:127.0.0.1:PORT?transport=tcp')",
        "ring(frame(), 'turns:127.0.0.1:PORT?transport=tcp')",
        "ring(frame(), 'turn:localhost:PORT?transport=tcp')",
        "ringCandidate(frame(), 'udp 2130706431 127.0.0.1 PORT typ host')",
        "ringCandidate(frame(), 'tcp 2130706431 127.0.0.1 PORT typ host tcptype passive')",
        "frame('srcdoc', '<script>parent.ring(window, \"stun:127.0.0.1:PORT\")</' + 'script>') && 0",
        "frame('src', 'javascript:parent.ring(window, \"stun:127.0.0.1:PORT\")') && 0",
    };
    const QString port = QString::number(server.serverPort());
    Service service;
    QVERIFY(service.begin());
    for (const char *attempt : attempts) {
        service.request(1, QString::fromLatin1(attempt).replace(QLatin1String("PORT"), port));
        const QString record = service.answer().value(1);
        QVERIFY2(!record.contains(QLatin1String("root:")), attempt);
        QVERIFY2(!record.contains(QLatin1String("ApplicationWindow")), attempt);
    }
    // What was begun has had its time.
    QVERIFY(!server.waitForNewConnection(2000));
    QVERIFY(!server.hasPendingConnections());
    QVERIFY(!datagrams.hasPendingDatagrams());
    service.request(2, literal(QStringLiteral("a = 1")));
    QCOMPARE(service.answer().value(0), QStringLiteral("2"));
}

QTEST_GUILESS_MAIN(tst_Conversion)

#include "tst_Conversion.moc"
