#include "support/HostPeer.h"

#include <QDir>
#include <QElapsedTimer>
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

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
const QString kAnswer = QStringLiteral("callbackCoffeeJs");
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
    sources += files.join(QLatin1String("\n")).repeated(3).left(100000);
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

/// The program with its link, which is kept alive until the end.
class Service
{
public:
    Service()
    {
        mStarted = mPeer.start(kProgram);
        QObject::connect(&mAlive, &QTimer::timeout, &mPeer, [this] { mPeer.send({ QStringLiteral("alive") }); });
        mAlive.start(1000);
    }

    bool started() const { return mStarted; }
    HostPeer &peer() { return mPeer; }

    void request(int key, const QString &expression)
    {
        mPeer.send({ QStringLiteral("coffeeJs"), QString::number(key), expression });
    }

    /// The fields behind the name: key and record.
    QStringList answer(int timeout = kFirstAnswer) { return mPeer.waitForMessage(kAnswer, timeout).mid(1); }

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
    void reachesNothing();
};

// All at once, so that most wait in the queue, and again when the page is open.
void tst_Conversion::corpusAsInNode()
{
    const QStringList sources = corpus();
    QVERIFY(sources.size() > 120);
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
        { QStringLiteral("(CoffeeScript.compile = null, JSON.stringify = null, console.log = null, 'a = 1')"), good },
        { QStringLiteral("(Object.defineProperty(window, 'compiledJS', {value: 1}), 'a = 1')"), QStringLiteral(".*") },
    };
    Service service;
    QVERIFY(service.started());
    // While the page loads and when it is open.
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < cases.size(); ++i) {
            service.request(2 * i, cases.at(i).expression);
            service.request(2 * i + 1, literal(QStringLiteral("a = 1")));
        }
        for (int key = 0; key < 2 * cases.size(); ++key) {
            const QStringList fields = service.answer();
            QCOMPARE(fields.value(0), QString::number(key));
            const Case &source = cases.at(key / 2);
            const QString pattern = key % 2 == 0 ? source.record : good;
            const bool matches =
                QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(fields.value(1)).hasMatch();
            QVERIFY2(matches, qPrintable(source.expression + QLatin1String(" gives ") + fields.value(1)));
        }
    }
}

// The page's process is given up, and those that waited behind are answered by the next one.
void tst_Conversion::sourcesThatNeverEnd()
{
    Service service;
    QVERIFY(service.started());
    service.request(1, literal(QStringLiteral("a = 1")));
    QCOMPARE(service.answer().value(0), QStringLiteral("1"));

    service.request(2, QStringLiteral("(function() { for (;;); })()"));
    service.request(3, literal(QStringLiteral("b = 2")));
    service.request(4, literal(QStringLiteral("c = (")));
    const QStringList endless = service.answer(120000);
    QCOMPARE(endless.value(0), QStringLiteral("2"));
    const QJsonObject record = QJsonDocument::fromJson(endless.value(1).toUtf8()).object();
    QCOMPARE(record.value(QLatin1String("javascript")).toString(), QString());
    QCOMPARE(record.value(QLatin1String("line")).toInt(), -1);
    QVERIFY(!record.value(QLatin1String("error")).toString().isEmpty());
    QCOMPARE(service.answer(),
             (QStringList{ QStringLiteral("3"), convertWithNode({ QStringLiteral("b = 2") }).first() }));
    QCOMPARE(service.answer(),
             (QStringList{ QStringLiteral("4"), convertWithNode({ QStringLiteral("c = (") }).first() }));

    // What a source leaves behind in the page is not blamed on the next one.
    service.request(5, QStringLiteral("(setTimeout(function() { for (;;); }, 0), 'd = 3')"));
    QCOMPARE(service.answer().value(0), QStringLiteral("5"));
    service.request(6, literal(QStringLiteral("b = 2")));
    QCOMPARE(service.answer(120000),
             (QStringList{ QStringLiteral("6"), convertWithNode({ QStringLiteral("b = 2") }).first() }));
    QVERIFY(service.peer().process().state() == QProcess::Running);
}

// No way out that a page knows brings a byte to a server of this machine, or a file of it into an answer.
void tst_Conversion::reachesNothing()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QUdpSocket datagrams;
    QVERIFY(datagrams.bind(QHostAddress::LocalHost));
    const QString web = QStringLiteral("//127.0.0.1:%1/").arg(server.serverPort());

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
        QStringLiteral(
            "(function() { var c = new RTCPeerConnection({iceServers: [{urls: 'stun:127.0.0.1:%1'}]}); "
            "c.createDataChannel('x'); c.createOffer().then(function(o) { c.setLocalDescription(o); }); })()")
            .arg(datagrams.localPort()),
    };
    Service service;
    QVERIFY(service.started());
    for (int key = 0; key < attempts.size(); ++key) {
        QString source = attempts.at(key);
        service.request(key, source.replace(QStringLiteral("%1"), web));
    }
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
