#include "Tutorial/guidance/XSettings.h"

#include <QtEndian>

namespace
{
enum Type : uchar { Integer = 0, String = 1, Colour = 2 };

/// Reads the property from its beginning on. After the first read past its end all others fail too.
class Reader
{
public:
    explicit Reader(const QByteArray &data) : mData(data), mBigEndian(!data.isEmpty() && data.at(0) != 0) { }

    bool ok() const { return mOk; }

    QByteArray bytes(quint32 count)
    {
        mOk = mOk && count <= quint32(mData.size()) - quint32(mPosition);
        if (!mOk)
            return {};
        QByteArray result = mData.mid(mPosition, int(count));
        mPosition += int(count);
        return result;
    }
    QByteArray padded(quint32 count)
    {
        QByteArray result = bytes(count);
        bytes((4 - count % 4) % 4);
        return result;
    }
    template <typename Number>
    Number number()
    {
        const QByteArray source = bytes(sizeof(Number));
        if (!mOk)
            return 0;
        return mBigEndian ? qFromBigEndian<Number>(source.constData()) : qFromLittleEndian<Number>(source.constData());
    }

private:
    const QByteArray &mData;
    bool mBigEndian;
    bool mOk = true;
    int mPosition = 0;
};
} // namespace

QVariant XSettings::value(const QByteArray &settings, const QByteArray &name)
{
    Reader reader(settings);
    reader.bytes(8); // the order of bytes and a serial number
    quint32 left = reader.number<quint32>();
    while (left-- > 0 && reader.ok()) {
        const auto type = reader.number<uchar>();
        reader.bytes(1);
        const QByteArray found = reader.padded(reader.number<quint16>());
        reader.bytes(4); // when it was changed last
        QVariant value;
        if (type == Integer)
            value = int(reader.number<quint32>());
        else if (type == String)
            value = reader.padded(reader.number<quint32>());
        else if (type == Colour)
            reader.bytes(8);
        else
            return {};
        if (reader.ok() && found == name)
            return value;
    }
    return {};
}
