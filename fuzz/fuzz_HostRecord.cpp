// Bytes of the link, cut in two at a place that the first byte chooses.

#include "FuzzTarget.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/HostRecordReader.h"

using FuzzTarget::require;

namespace
{
/// Whether all records begin as they must. Of others the reader drops the rest of a read.
bool areRecords(const QByteArray &bytes)
{
    for (int start = 0, end = 0; start < bytes.size() && end >= 0; start = end + 1) {
        if (bytes.at(start) != HostRecord::kFromHost)
            return false;
        end = bytes.indexOf(HostRecord::kEnd, start + 2);
    }
    return true;
}

void readFields(const QString &message)
{
    const QStringList fields = HostMessages::split(message);
    require(HostMessages::join(fields) == message, "a message is its fields");
    require(HostMessages::isNamed(message, HostMessages::FromHost::kBye)
                == (fields.first() == HostMessages::FromHost::kBye),
            "a message has the name of its first field");
    const QString step = HostMessages::stepMessage(HostMessages::readStep(fields));
    require(HostMessages::stepMessage(HostMessages::readStep(HostMessages::split(step))) == step, "a step comes back");
    const QRect rect = HostMessages::readHostRect(fields);
    require(HostMessages::readHostRect(HostMessages::split(HostMessages::startMessage(rect))) == rect,
            "a rectangle comes back");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes = FuzzTarget::exchangeSeparators(FuzzTarget::bytesOf(data + 1, size - 1));
    const int cut = data[0] % (bytes.size() + 1);
    HostRecordReader reader(HostRecord::kFromHost);
    QStringList messages = reader.read(bytes.left(cut));
    messages += reader.read(bytes.mid(cut));
    if (areRecords(bytes))
        require(messages == HostRecordReader(HostRecord::kFromHost).read(bytes), "a cut changes nothing");
    for (const QString &message : qAsConst(messages)) {
        readFields(message);
        const QByteArray sent = HostRecord::encode(HostRecord::kFromHost, message);
        const QStringList received = HostRecordReader(HostRecord::kFromHost).read(sent);
        // A text has no messages where it is empty, and no byte order mark at its start.
        if (!message.isEmpty() && !message.startsWith(QChar::ByteOrderMark))
            require(received == QStringList(message), "a message comes back");
    }
    return 0;
}
