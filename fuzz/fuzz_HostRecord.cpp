// Bytes of the link, cut in two at a place that the input chooses.

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/HostRecordReader.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), static_cast<int>(size - 1));
    const int cut = bytes.isEmpty() ? 0 : data[0] % (bytes.size() + 1);
    HostRecordReader reader(HostRecord::kFromHost);
    QStringList messages = reader.read(bytes.left(cut));
    messages += reader.read(bytes.mid(cut));
    for (const QString &message : qAsConst(messages)) {
        const QStringList fields = HostMessages::split(message);
        if (HostMessages::isNamed(message, HostMessages::FromHost::kBye)
            != (fields.first() == HostMessages::FromHost::kBye))
            std::abort();
        HostMessages::readStep(fields);
        HostMessages::readHostRect(fields);
    }
    return 0;
}
