#include "support/WarningGuard.h"
#include "Tutorial/HostMessages.h"
#include "Tutorial/HostRecord.h"
#include "Tutorial/HostRecordReader.h"

#include <QRandomGenerator>
#include <QtTest>

namespace
{
QByteArray record(const QList<QByteArray> &messages)
{
    QByteArray bytes("0");
    for (const QByteArray &message : messages)
        bytes += '\x02' + message;
    return bytes + '\0';
}
} // namespace

class tst_HostRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void encodes_data();
    void encodes();
    void readsWhole_data();
    void readsWhole();
    void joinsRecordsCutAnywhere();
    void dropsWhatBeginsNoRecord_data();
    void dropsWhatBeginsNoRecord();
    void forgetsAnUnfinishedRecord();
    void dropsARecordPastTheLimit();
    void readsALongRecordInManyReads();
    void survivesHostileBytes();
    void readsFields_data();
    void readsFields();
    void readsSteps();
    void readsHostRects_data();
    void readsHostRects();

private:
    WarningGuard mWarnings;
};

void tst_HostRecord::encodes_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("hexadecimal");

    QTest::newRow("alive") << QStringLiteral("alive") << QByteArray("3102616c69766500");
    QTest::newRow("empty") << QString() << QByteArray("310200");
    QTest::newRow("fields") << QStringLiteral("a\x01"
                                              "b")
                            << QByteArray("310261016200");
    QTest::newRow("non-ASCII") << QString::fromUtf8("é次😀") << QByteArray("3102c3a9e6aca1f09f988000");
}

void tst_HostRecord::encodes()
{
    QFETCH(QString, message);
    QFETCH(QByteArray, hexadecimal);
    QCOMPARE(HostRecord::encode(HostRecord::kToHost, message).toHex(), hexadecimal);
}

void tst_HostRecord::readsWhole_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("messages");

    const QString alive = QStringLiteral("alive");
    const QString list = QStringLiteral("tutorialList");
    QTest::newRow("one message") << record({ "alive" }) << QStringList{ alive };
    QTest::newRow("several messages") << record({ "alive", "tutorialList" }) << QStringList{ alive, list };
    QTest::newRow("several records") << record({ "alive" }) + record({ "tutorialList" }) << QStringList{ alive, list };
    QTest::newRow("empty messages") << record({ "", "alive", "", "" })
                                    << QStringList{ QString(), alive, QString(), QString() };
    QTest::newRow("no text") << record({ "" }) + record({ "alive" }) << QStringList{ alive };
    QTest::newRow("any second byte") << QByteArray("0Xalive\0", 8) << QStringList{ alive };
    QTest::newRow("NUL as the second byte") << QByteArray("0\0alive\0", 8) << QStringList{ alive };
    QTest::newRow("NUL as second and third byte")
        << QByteArray("0\0\0", 3) + record({ "alive" }) << QStringList{ alive };
    QTest::newRow("rest behind a wrong first byte is lost")
        << record({ "alive" }) + "1\x02x" + '\0' + record({ "tutorialList" }) << QStringList{ alive };
    QTest::newRow("invalid UTF-8") << record({ "a\xff\xfez" })
                                   << QStringList{ QString::fromUtf8("a\xef\xbf\xbd\xef\xbf\xbdz") };
    QTest::newRow("UTF-8 that ends too early")
        << record({ "a\xe3\x81" }) + record({ "alive" }) << QStringList{ QString::fromUtf8("a\xef\xbf\xbd"), alive };
    QTest::newRow("nothing") << QByteArray() << QStringList();
}

void tst_HostRecord::readsWhole()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, messages);
    HostRecordReader reader(HostRecord::kFromHost);
    QStringList read = reader.read(bytes);
    if (qstrcmp(QTest::currentDataTag(), "UTF-8 that ends too early") == 0 && !read.isEmpty()) {
        // How many replacement characters stand for the cut sequence is the decoder's choice.
        while (read.first().endsWith(QString::fromUtf8("\xef\xbf\xbd\xef\xbf\xbd")))
            read.first().chop(1);
    }
    QCOMPARE(read, messages);
}

void tst_HostRecord::joinsRecordsCutAnywhere()
{
    const QByteArray text("次\x01"
                          "0\x01"
                          "😀");
    const QByteArray stream =
        record({ "alive", text }) + QByteArray("0\0x\0", 4) + record({ "" }) + record({ text, "", "0" });
    HostRecordReader whole(HostRecord::kFromHost);
    const QStringList expected = whole.read(stream);
    QCOMPARE(expected.size(), 6);

    for (int first = 0; first <= stream.size(); ++first) {
        for (int second = first; second <= stream.size(); ++second) {
            HostRecordReader reader(HostRecord::kFromHost);
            QStringList messages = reader.read(stream.left(first));
            messages += reader.read(stream.mid(first, second - first));
            messages += reader.read(stream.mid(second));
            QVERIFY2(messages == expected, qPrintable(QStringLiteral("cut at %1 and %2").arg(first).arg(second)));
        }
    }
    HostRecordReader single(HostRecord::kFromHost);
    QStringList messages;
    for (const char byte : stream)
        messages += single.read(QByteArray(1, byte));
    QCOMPARE(messages, expected);
}

void tst_HostRecord::dropsWhatBeginsNoRecord_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("two bytes") << QByteArray("x0");
    QTest::newRow("NUL") << QByteArray(1, '\0');
    QTest::newRow("message byte first") << QByteArray("\x02"
                                                      "alive\0",
                                                      7);
    QTest::newRow("direction to the host") << QByteArray("1\x02"
                                                         "alive\0",
                                                         8);
    QTest::newRow("no end") << QByteArray("hostile, and longer than a record");
}

void tst_HostRecord::dropsWhatBeginsNoRecord()
{
    QFETCH(QByteArray, bytes);
    HostRecordReader reader(HostRecord::kFromHost);
    QCOMPARE(reader.read(bytes), QStringList());
    QCOMPARE(reader.read(record({ "alive" })), QStringList{ QStringLiteral("alive") });
}

void tst_HostRecord::forgetsAnUnfinishedRecord()
{
    HostRecordReader reader(HostRecord::kFromHost);
    QCOMPARE(reader.read("0\x02"
                         "start"),
             QStringList());
    reader.clear();
    QCOMPARE(reader.read(record({ "alive" })), QStringList{ QStringLiteral("alive") });
}

void tst_HostRecord::dropsARecordPastTheLimit()
{
    const QByteArray block(1024 * 1024, 'x');
    const int blocks = HostRecordReader::kMaximumPending / block.size();

    // A record that just fits.
    HostRecordReader reader(HostRecord::kFromHost);
    QCOMPARE(reader.read("0\x02"), QStringList());
    for (int i = 0; i < blocks - 1; ++i)
        reader.read(block);
    reader.read(block.mid(2));
    const QStringList messages = reader.read(QByteArray(1, '\0'));
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().size(), HostRecordReader::kMaximumPending - 2);

    // One byte more.
    reader.read("0\x02");
    for (int i = 0; i < blocks - 1; ++i)
        reader.read(block);
    mWarnings.expect(QStringLiteral("record too long"));
    QCOMPARE(reader.read(block.mid(1)), QStringList());
    QCOMPARE(reader.read(record({ "alive" })), QStringList{ QStringLiteral("alive") });
}

void tst_HostRecord::readsALongRecordInManyReads()
{
    // Looking for the end from the record's beginning at each read would take minutes here.
    const QByteArray block(64, 'y');
    HostRecordReader reader(HostRecord::kFromHost);
    reader.read("0\x02");
    const int blocks = 200000;
    for (int i = 0; i < blocks; ++i)
        reader.read(block);
    const QStringList messages = reader.read(QByteArray(1, '\0') + record({ "alive" }));
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.first().size(), blocks * block.size());
}

void tst_HostRecord::survivesHostileBytes()
{
    QRandomGenerator random(20180123);
    const QByteArray alphabet("0011\0\0\x01\x02\x02"
                              "abye\xe3\x81\xf0\xff",
                              18);
    HostRecordReader cut(HostRecord::kFromHost);
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes;
        const int size = random.bounded(200);
        for (int i = 0; i < size; ++i)
            bytes += round % 2 ? char(random.bounded(256)) : alphabet.at(random.bounded(alphabet.size()));
        for (int position = 0; position < size;) {
            const int count = 1 + random.bounded(20);
            for (const QString &message : cut.read(bytes.mid(position, count))) {
                QVERIFY(!message.contains(QChar(0)));
                QVERIFY(!message.contains(QChar(2)));
            }
            position += count;
        }
    }
    // Whatever was pending ends with a NUL, and a sound record behind it is read.
    cut.read(QByteArray(2, '\0'));
    QCOMPARE(cut.read(record({ "alive" })), QStringList{ QStringLiteral("alive") });
}

void tst_HostRecord::readsFields_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("number");

    const QChar separator(1);
    const auto row = [separator](const char *tag, const QStringList &fields, const QString &second, int number) {
        QTest::newRow(tag) << fields.join(separator) << fields.first() << second << number;
    };
    row("name alone", { QStringLiteral("stop") }, QString(), 0);
    row("no name", { QString() }, QString(), 0);
    row("empty name", { QString(), QStringLiteral("7") }, QStringLiteral("7"), 7);
    row("negative", { QStringLiteral("x"), QStringLiteral("-9999") }, QStringLiteral("-9999"), -9999);
    row("no number", { QStringLiteral("x"), QStringLiteral("12px") }, QStringLiteral("12px"), 0);
    row("hexadecimal is none", { QStringLiteral("x"), QStringLiteral("0x10") }, QStringLiteral("0x10"), 0);
    row("fraction is none", { QStringLiteral("x"), QStringLiteral("1.5") }, QStringLiteral("1.5"), 0);
    row("too large", { QStringLiteral("x"), QStringLiteral("2147483648") }, QStringLiteral("2147483648"), 0);
}

void tst_HostRecord::readsFields()
{
    QFETCH(QString, message);
    QFETCH(QString, name);
    QFETCH(QString, second);
    QFETCH(int, number);
    const QStringList fields = HostMessages::split(message);
    QCOMPARE(HostMessages::name(message), name);
    QCOMPARE(HostMessages::text(fields, 1), second);
    QCOMPARE(HostMessages::number(fields, 1), number);
    QCOMPARE(HostMessages::join(fields), message);
    QCOMPARE(HostMessages::text(fields, 100), QString());
}

void tst_HostRecord::readsSteps()
{
    const HostMessages::Step step =
        HostMessages::readStep(QStringLiteral("indicator,update,-3,40,MainWindow,Hint,5,2").split(QLatin1Char(',')));
    QCOMPARE(step.x, -3);
    QCOMPARE(step.y, 40);
    QCOMPARE(step.windowKey, QStringLiteral("MainWindow"));
    QCOMPARE(step.hint, QStringLiteral("Hint"));
    QVERIFY(step.nextVisible && !step.yesNoVisible && step.arrowVisible);
    QCOMPARE(step.iconType, 2);

    const HostMessages::Step yesNo = HostMessages::readStep(QStringLiteral(",,,,,,2").split(QLatin1Char(',')));
    QVERIFY(!yesNo.nextVisible && yesNo.yesNoVisible && !yesNo.arrowVisible);

    const HostMessages::Step empty = HostMessages::readStep({ QStringLiteral("indicator") });
    QCOMPARE(empty.hint, QString());
    QVERIFY(!empty.nextVisible && !empty.yesNoVisible && !empty.arrowVisible);
}

void tst_HostRecord::readsHostRects_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<bool>("given");
    QTest::addColumn<QRect>("rect");

    QTest::newRow("rectangle") << QStringLiteral("start,10,-20,640,480") << true << QRect(10, -20, 640, 480);
    QTest::newRow("more fields") << QStringLiteral("start,1,2,3,4,5") << true << QRect(1, 2, 3, 4);
    QTest::newRow("four fields") << QStringLiteral("start,1,2,3") << false << QRect();
    QTest::newRow("no numbers") << QStringLiteral("start,a,b,c,d") << true << QRect(0, 0, 0, 0);
}

void tst_HostRecord::readsHostRects()
{
    QFETCH(QString, fields);
    QFETCH(bool, given);
    QFETCH(QRect, rect);
    const QStringList list = fields.split(QLatin1Char(','));
    QCOMPARE(HostMessages::hasHostRect(list), given);
    if (given)
        QCOMPARE(HostMessages::readHostRect(list), rect);

    const QRect huge = HostMessages::readHostRect(
        QStringLiteral("start,2147483647,-2147483648,2147483647,2147483647").split(QLatin1Char(',')));
    QVERIFY(huge.isValid() && huge.right() >= huge.left() && huge.bottom() >= huge.top());
}

QTEST_GUILESS_MAIN(tst_HostRecord)
#include "tst_HostRecord.moc"
