#include "support/HostPeer.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTest>
#include <QTimer>
#include <QUdpSocket>

#include <csignal>

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
// The page is opened a second after its load.
constexpr int kFirstAnswer = 60000;

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
    for (const QString &name : folder.entryList({ QStringLiteral("*.coffee") }, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            sources += QString::fromUtf8(file.readAll());
    }
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
        QFile file(QStringLiteral("/proc/%1/stat").arg(process));
        const QByteArray state = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        return state.mid(state.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
    };
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList({ QStringLiteral("[1-9]*") }, QDir::Dirs)) {
        if (parent(parent(name.toLongLong())) == program)
            ::kill(static_cast<pid_t>(name.toLongLong()), SIGKILL);
    }
}

bool isError(const QString &record)
{
    return QRegularExpression(QStringLiteral(R"(^\{"error":".+","javascript":"","line":-1\}$)"))
        .match(record)
        .hasMatch();
}

/// The program with its link, which is kept alive until the end.
class Service
{
public:
    Service()
    {
        mStarted = mPeer.start(kProgram);
        QObject::connect(&mAlive, &QTimer::timeout, &mPeer, [this] { mPeer.send(HostMessages::FromHost::kAlive); });
        mAlive.start(1000);
    }

    bool started() const { return mStarted; }
    HostPeer &peer() { return mPeer; }

    void request(int key, const QString &expression) { mPeer.send(HostMessages::FromHost::kCoffeeJs, key, expression); }

    /// The fields behind the name: key and record.
    QStringList answer(int timeout = kFirstAnswer)
    {
        return mPeer.waitForMessage(HostMessages::ToHost::kCallbackCoffeeJs, timeout).mid(1);
    }

private:
    HostPeer mPeer;
    QTimer mAlive;
    bool mStarted = false;
};
} // namespace

class tst_Conversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void corpusAsInNode();
    void badSourcesHoldUpNothing();
    void sourcesThatNeverEnd();
    void pagesThatAreLost();
    void reachesNothing();
};

// All at once, so that most wait in the queue, and again when the page is open.
void tst_Conversion::corpusAsInNode()
{
    const QStringList sources = corpus();
    QVERIFY(sources.size() > 30);
    const QStringList expected = convertWithNode(sources);
    QCOMPARE(expected.size(), sources.size());
    QVERIFY(
        expected.contains(QStringLiteral(R"({"error":"Maximum call stack size exceeded","javascript":"","line":-1})")));

    Service service;
    QVERIFY(service.started());
    for (int round = 0; round < 2; ++round) {
        for (int key = 0; key < sources.size(); ++key)
            service.request(key, literal(sources.at(key)));
        for (int key = 0; key < sources.size(); ++key) {
            const QStringList fields = service.answer();
            QCOMPARE(fields.value(0), QString::number(key));
            if (fields.value(1) != expected.at(key))
                qWarning().noquote() << "source:" << sources.at(key).left(2000);
            QCOMPARE(fields.value(1), expected.at(key));
        }
    }
}

void tst_Conversion::badSourcesHoldUpNothing()
{
    struct Case
    {
        QString expression;
        QString record; ///< as a regular expression
    };
    const QString good = QStringLiteral(R"(\{"error":"","javascript":"var a;\\n\\na = 1;\\n","line":-1\})");
    const QString none;
    const QVector<Case> cases = {
        { QStringLiteral("]["), none },
        { QString(), QStringLiteral(R"(\{"error":".+","javascript":"","line":-1\})") },
        { QStringLiteral("\"a = 1\" // no end"), none },
        { QStringLiteral("(function() { throw new Error('own'); })()"), none },
        { QStringLiteral("(function() { throw null; })()"), none },
        { QStringLiteral("nobody.knows"), none },
        { QStringLiteral("42"), QStringLiteral(R"(\{"error":".+","javascript":"","line":-1\})") },
        { QStringLiteral("'a = 1'), (7"), QStringLiteral("7") },
        { QStringLiteral("'a = 1'), (undefined"), none },
        { QStringLiteral("'a = 1'), (function() {}"), QStringLiteral(".*") },
        { QStringLiteral("alert('stop')"), QStringLiteral(".*") },
        { QStringLiteral("prompt('stop') || confirm('stop')"), QStringLiteral(".*") },
        { QStringLiteral("(location.reload(), 'a = 1')"), good },
        { QStringLiteral("(location.href = 'qrc:/html/none.html', 'a = 1')"), good },
        { QStringLiteral("(document.open(), document.write('gone'), document.close(), 'a = 1')"), good },
        { QStringLiteral("(window.convertCoffee = null, delete window.convertCoffee, 'a = 1')"), good },
        { QStringLiteral("(Object.defineProperty(window, 'compiledJS', {value: 1}), 'a = 1')"), QStringLiteral(".*") },
        // What belongs to the page is not what the compiler uses.
        { QStringLiteral("(JSON.stringify = console.log = Array.prototype.push = Array.prototype.concat = "
                         "String.prototype.replace = RegExp.prototype.exec = Object.create = null, 'a = 1')"),
          good },
        { QStringLiteral("(Function.prototype.call = Function.prototype.apply = function() { return 7; }, 'a = 1')"),
          good },
        { QStringLiteral("(Object.defineProperty(Object.prototype, 'location', {get: function() { return {first_line: "
                         "8}; }, configurable: true}), Array = RegExp = Error = function() {}, 'a = 1')"),
          good },
        { QStringLiteral("({charCodeAt: function spoil() { spoil.caller.constructor.prototype.call = null; }})"),
          QStringLiteral(R"(\{"error":".+","javascript":"","line":-1\})") },
    };
    const QString next = QStringLiteral("class A extends B\n  m: (@a, b...) -> \"#{c}\" for c in [1..b]\n");
    const QString nextRecord = convertWithNode({ next }).value(0);
    QVERIFY(nextRecord.contains(QLatin1String("extend = function")));
    Service service;
    QVERIFY(service.started());
    // While the page loads and when it is open.
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < cases.size(); ++i) {
            service.request(2 * i, cases.at(i).expression);
            service.request(2 * i + 1, literal(next));
        }
        for (int key = 0; key < 2 * cases.size(); ++key) {
            const QStringList fields = service.answer();
            QCOMPARE(fields.value(0), QString::number(key));
            const Case &source = cases.at(key / 2);
            const QString pattern = key % 2 == 0 ? source.record : QRegularExpression::escape(nextRecord);
            const bool matches =
                QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(fields.value(1)).hasMatch();
            QVERIFY2(matches, qPrintable(source.expression + QLatin1String(" gives ") + fields.value(1)));
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
    QVERIFY(endless.started() && busyPage.started() && large.started());
    // While the page is open.
    endless.request(1, literal(sources.at(0)));
    QCOMPARE(endless.answer(), (QStringList{ QStringLiteral("1"), records.at(0) }));

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
    QVERIFY2(isError(answer.value(1)), qPrintable(answer.value(1)));
    QCOMPARE(endless.peer().log().count(QLatin1String("no answer within")), 1);
    QCOMPARE(endless.answer(), (QStringList{ QStringLiteral("3"), records.at(0) }));
    QCOMPARE(endless.answer(), (QStringList{ QStringLiteral("4"), records.at(1) }));
    QCOMPARE(busyPage.answer().value(0), QStringLiteral("1"));
    QCOMPARE(busyPage.answer(), (QStringList{ QStringLiteral("2"), records.at(0) }));
    QCOMPARE(large.answer(), (QStringList{ QStringLiteral("1"), records.at(0) }));
}

// However often pages are lost, each request is answered, in order, and a page that lasts serves again.
void tst_Conversion::pagesThatAreLost()
{
    Service service;
    QVERIFY(service.started());
    const qint64 program = service.peer().process().processId();
    const QString source = literal(QStringLiteral("b = 2"));
    const QString record = convertWithNode({ QStringLiteral("b = 2") }).value(0);
    service.request(0, source);
    QCOMPARE(service.answer(), (QStringList{ QStringLiteral("0"), record }));
    killPages(program);
    service.request(1, source);
    QCOMPARE(service.answer(), (QStringList{ QStringLiteral("1"), record }));

    killPages(program);
    for (int key = 2; key < 5; ++key)
        service.request(key, source);
    const auto saysError = [&service] { return service.peer().log().contains(QLatin1String("lost again and again")); };
    for (QDeadlineTimer limit(60000); !saysError() && !limit.hasExpired(); QTest::qWait(20))
        killPages(program);
    service.request(5, source);
    for (int key = 2; key < 6; ++key) {
        const QStringList fields = service.answer();
        QCOMPARE(fields.value(0), QString::number(key));
        QVERIFY2(isError(fields.value(1)), qPrintable(fields.join(QLatin1Char(' '))));
    }
    QTRY_VERIFY_WITH_TIMEOUT(service.peer().log().contains(QLatin1String("ready again")), 60000);
    service.request(6, source);
    QCOMPARE(service.answer(), (QStringList{ QStringLiteral("6"), record }));
}

// No way out that a page knows brings a byte to a server of this machine, or a file of it into an answer.
void tst_Conversion::reachesNothing()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QUdpSocket datagrams;
    QVERIFY(datagrams.bind(QHostAddress::LocalHost));
    const QStringList attempts = {
        QStringLiteral("fetch('http:%1').catch(String)"),
        QStringLiteral("(function() { var x = new XMLHttpRequest; x.open('GET', 'http:%1', false); x.send(); })()"),
        QStringLiteral(
            "(function() { var x = new XMLHttpRequest; x.open('GET', 'file:///etc/passwd', false); x.send(); "
            "return {read: x.responseText}; })()"),
        QStringLiteral("(function() { var x = new XMLHttpRequest; x.open('GET', 'qrc:/qml/main.qml', false); x.send(); "
                       "return {read: x.responseText}; })()"),
        QStringLiteral("new WebSocket('ws:%1') && 0"),
        QStringLiteral("navigator.sendBeacon('http:%1', 'x')"),
        QStringLiteral("(new Image).src = 'http:%1'"),
        QStringLiteral("new EventSource('http:%1') && 0"),
        QStringLiteral("new Worker('http:%1') && 0"),
        QStringLiteral("(location.href = 'http:%1') && 0"),
        QStringLiteral("(window.open('http:%1')) && 0"),
        QStringLiteral("(function() { var e = document.createElement('iframe'); e.src = 'http:%1'; "
                       "document.body.appendChild(e); })()"),
        QStringLiteral("(function() { var e = document.createElement('script'); e.src = 'http:%1'; "
                       "document.body.appendChild(e); })()"),
        QStringLiteral(
            "(function() { var e = document.createElement('link'); e.rel = 'stylesheet'; e.href = 'http:%1'; "
            "document.head.appendChild(e); })()"),
        QStringLiteral(
            "(function() { var e = document.createElement('link'); e.rel = 'preconnect'; e.href = 'http:%1'; "
            "document.head.appendChild(e); })()"),
        QStringLiteral("(function() { var f = document.createElement('form'); f.action = 'http:%1'; f.method = 'post'; "
                       "document.body.appendChild(f); f.submit(); })()"),
        // Peer connections of the page and of frames that no script of ours has prepared.
        QStringLiteral("(window.ring = function(maker, url) { var c = new maker.RTCPeerConnection({iceServers: [{urls: "
                       "url, username: 'a', credential: 'b'}]}); c.createDataChannel('x'); "
                       "c.createOffer().then(function(o) { c.setLocalDescription(o); }); }) && 0"),
        QStringLiteral(
            "(window.ringCandidate = function(maker, candidate) { var a = new maker.RTCPeerConnection, b = new "
            "maker.RTCPeerConnection; a.createDataChannel('x'); a.createOffer().then(function(o) { "
            "a.setLocalDescription(o); return b.setRemoteDescription(o); }).then(function() { return b.createAnswer(); "
            "}).then(function(o) { b.setLocalDescription(o); return a.setRemoteDescription(o); }).then(function() { "
            "a.addIceCandidate({candidate: 'candidate:1 1 ' + candidate, sdpMid: '0'}); }); }) && 0"),
        QStringLiteral(
            "(window.frame = function(attribute, value) { var e = document.createElement('iframe'); "
            "if (attribute) e[attribute] = value; return document.body.appendChild(e).contentWindow; }) && 0"),
        QStringLiteral("ring(window, 'stun:%2')"),
        QStringLiteral("ring(frame(), 'stun:%2')"),
        QStringLiteral("ring(frame(), 'turn:%2?transport=udp')"),
        QStringLiteral("ring(frame(), 'turn:%3?transport=tcp')"),
        QStringLiteral("ring(frame(), 'turns:%3?transport=tcp')"),
        QStringLiteral("ring(frame(), 'turn:localhost:%4?transport=tcp')"),
        QStringLiteral("ringCandidate(frame(), 'udp 2130706431 127.0.0.1 %5 typ host')"),
        QStringLiteral("ringCandidate(frame(), 'tcp 2130706431 127.0.0.1 %4 typ host tcptype passive')"),
        QStringLiteral("frame('srcdoc', '<script>parent.ring(window, \"stun:%2\")</' + 'script>') && 0"),
        QStringLiteral("frame('src', 'javascript:parent.ring(window, \"stun:%2\")') && 0"),
        QStringLiteral("frame('src', 'data:text/html,<script>fetch(\"http:%1\")</' + 'script>') && 0"),
        // The other ways from a blank frame.
        QStringLiteral("frame().fetch('http:%1') && 0"),
        QStringLiteral("new (frame().WebSocket)('ws:%1') && 0"),
        QStringLiteral("(new (frame().Image)).src = 'http:%1'"),
        QStringLiteral("frame().navigator.sendBeacon('http:%1', 'x')"),
        QStringLiteral("frame().location.href = 'http:%1'"),
        QStringLiteral("new (frame().Worker)(URL.createObjectURL(new Blob([\"fetch('http:%1')\"]))) && 0"),
        QStringLiteral("(function() { var e = document.createElement('link'); e.rel = 'prefetch'; e.href = 'http:%1'; "
                       "document.head.appendChild(e); })()"),
    };
    const auto filledIn = [&](QString source) {
        const QString datagramPort = QString::number(datagrams.localPort());
        const QString port = QString::number(server.serverPort());
        const QString host = QStringLiteral("127.0.0.1:");
        return source.replace(QLatin1String("%1"), QStringLiteral("//") + host + port + QLatin1Char('/'))
            .replace(QLatin1String("%2"), host + datagramPort)
            .replace(QLatin1String("%3"), host + port)
            .replace(QLatin1String("%4"), port)
            .replace(QLatin1String("%5"), datagramPort);
    };
    Service service;
    QVERIFY(service.started());
    for (int key = 0; key < attempts.size(); ++key)
        service.request(key, filledIn(attempts.at(key)));
    for (int key = 0; key < attempts.size(); ++key) {
        const QStringList fields = service.answer();
        QCOMPARE(fields.value(0), QString::number(key));
        QVERIFY2(!fields.value(1).contains(QLatin1String("root:")), qPrintable(fields.value(1)));
        QVERIFY2(!fields.value(1).contains(QLatin1String("ApplicationWindow")), qPrintable(fields.value(1)));
    }
    // What was begun has had its time.
    QVERIFY(!server.waitForNewConnection(2000));
    QVERIFY(!server.hasPendingConnections());
    QVERIFY(!datagrams.hasPendingDatagrams());
    service.request(100, literal(QStringLiteral("a = 1")));
    QCOMPARE(service.answer().value(0), QStringLiteral("100"));
}

QTEST_GUILESS_MAIN(tst_Conversion)

#include "tst_Conversion.moc"
