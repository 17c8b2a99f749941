#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/HostRecordReader.h"

#include <QtTest>

namespace
{
const QStringList kOne = { QStringLiteral("one") };

/// "|" stands for the byte before a message, "!" for the end of a record.
QByteArray bytesOf(const char *text)
{
    return QByteArray(text).replace('|', HostRecord::kMessageStart).replace('!', HostRecord::kEnd);
}
} // namespace

class tst_HostRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads()
    {
        const char *const rows[][2] = {
            { "0||one||!0|!", ",one,,," },
            { "0Xone!", "one," },
            { "0!!0|one!", "one," },
            { "0|one!1|x!0|lost!", "one," },
            { "0|a\xff\xfez!", "a\xef\xbf\xbd\xef\xbf\xbdz," },
            // What begins no record goes alone, with its end or without.
            { "x", "" },
            { "|one!", "" },
        };
        for (const auto &row : rows) {
            HostRecordReader reader(HostRecord::kFromHost);
            QString messages;
            for (const QString &message : reader.read(bytesOf(row[0])))
                messages += message + QLatin1Char(',');
            QCOMPARE(messages, QString::fromUtf8(row[1]));
            QCOMPARE(reader.read(bytesOf("0|one!")), kOne);
        }
    }
};

QTEST_GUILESS_MAIN(tst_HostRecord)
#include "tst_HostRecord.moc"
