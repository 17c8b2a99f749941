#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Called by libFuzzer, or by the main that feeds a target its corpus.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

/// What the fuzz targets share.
namespace FuzzTarget
{
/// Ends the process for an input after which a promise doesn't hold.
inline void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "not kept: %s\n", promise);
    std::abort();
}

/// The log's lines are put together, and dropped.
inline const QtMessageHandler kFormerHandler =
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

/// Any 16 bits, surrogates without a partner too.
inline QString unitsOf(const QByteArray &bytes)
{
    return QString(reinterpret_cast<const QChar *>(bytes.constData()), bytes.size() / 2);
}

/// Exchanges bytes that an editor shows for those that separate on the link, so that a corpus can be read: a tab for
/// the one between fields, a bar for that before a message, a line feed for the end of a record.
inline QByteArray exchangeSeparators(QByteArray bytes)
{
    const char separators[][2] = { { '\t', 0x01 }, { '|', 0x02 }, { '\n', 0x00 } };
    for (char &byte : bytes) {
        for (const auto &[shown, sent] : separators) {
            if (byte == shown || byte == sent) {
                byte = byte == shown ? sent : shown;
                break;
            }
        }
    }
    return bytes;
}
} // namespace FuzzTarget
