#include "tool/JsonWrapper.h"

#include "tool/JsonWrapperException.h"
#include "tool/Log.h"

#include <type_traits>

namespace
{
// A missing key reads as Null, where Qt gives Undefined.
QJsonValue entryOrNull(const QJsonObject &object, const QString &key)
{
    const auto entry = object.constFind(key);
    return entry == object.constEnd() ? QJsonValue(QJsonValue::Null) : entry.value();
}

QString documentText(const QJsonDocument &doc, bool indented)
{
    return QString::fromUtf8(doc.toJson(indented ? QJsonDocument::Indented : QJsonDocument::Compact));
}
} // namespace

JsonWrapper::JsonWrapper(const QString &jsonStr) : mKind(kDoc)
{
    if (jsonStr.isEmpty()) {
        Log::warning("cpp/tool", "JsonWrapper::JsonWrapper", __LINE__) << "jsonStr is empty.";
        mKind = kMax;
        return;
    }

    const QByteArray json = jsonStr.toUtf8();
    QJsonParseError error;
    mDoc = QJsonDocument::fromJson(json, &error);
    if (error.error == QJsonParseError::NoError)
        return;

    // Qt parses no scalar on its own, but does as an element of an array.
    QJsonParseError scalarError;
    const QJsonDocument scalar = QJsonDocument::fromJson(QByteArray('[' + json + ']'), &scalarError);
    if (scalarError.error == QJsonParseError::NoError) {
        mKind = kValue;
        mValue = scalar.array().at(0);
        return;
    }
    Log::warning("cpp/tool", "JsonWrapper::JsonWrapper", __LINE__)
        << "Json parse error" << error.error << error.offset << error.errorString() << jsonStr;
}

JsonWrapper::JsonWrapper(const QJsonDocument &doc) : mKind(kDoc), mDoc(doc) { }

JsonWrapper::JsonWrapper(const QJsonArray &array) : mKind(kArray), mArray(array) { }

JsonWrapper::JsonWrapper(const QJsonObject &object) : mKind(kObject), mObject(object) { }

JsonWrapper::JsonWrapper(const QJsonValue &value) : mKind(kValue), mValue(value) { }

JsonWrapper JsonWrapper::operator[](int index) const
{
    if (isArray())
        return JsonWrapper(heldArray().at(index));
    if (isObject() && mKind != kDoc)
        return JsonWrapper(entryOrNull(heldObject(), QString::number(index)));
    errorHandler(QStringLiteral("[index] is applied for %1.").arg(kindWithout("Array")));
}

JsonWrapper JsonWrapper::operator[](const QString &key) const
{
    if (!isObject())
        errorHandler(QStringLiteral("[%1] is applied for %2.").arg(key, kindWithout("Object")));
    if (mKind == kObject && !mObject.contains(key))
        errorHandler(QStringLiteral("mObject doesn't have key: %1").arg(key));
    return JsonWrapper(entryOrNull(heldObject(), key));
}

bool JsonWrapper::isArray() const
{
    return mKind == kArray || (mKind == kDoc && mDoc.isArray()) || (mKind == kValue && mValue.isArray());
}

bool JsonWrapper::isObject() const
{
    return mKind == kObject || (mKind == kDoc && mDoc.isObject()) || (mKind == kValue && mValue.isObject());
}

bool JsonWrapper::isNull() const
{
    return (mKind == kDoc && mDoc.isNull()) || (mKind == kValue && mValue.isNull());
}

QString JsonWrapper::toString() const
{
    switch (mKind) {
    case kDoc:
        return QStringLiteral("kDoc");
    case kArray:
        return QStringLiteral("kArray(%1)").arg(mArray.size());
    case kObject:
        return QStringLiteral("kObject(%1)").arg(mObject.keys().join(QStringLiteral(", ")));
    case kValue:
        return mValue.toString();
    case kMax:
        break;
    }
    return QString();
}

QJsonObject JsonWrapper::toObject() const
{
    if (isObject())
        return heldObject();
    if (mKind == kDoc)
        errorHandler("toObject(): mDoc which is not Object.");
    errorHandler(QStringLiteral("toObject(): applied for %1.").arg(kindName()));
}

QJsonArray JsonWrapper::toArray() const
{
    if (!isArray())
        raiseCalled("toArray()");
    return heldArray();
}

QJsonValue JsonWrapper::toValue() const
{
    if (mKind != kValue)
        raiseCalled("toValue()");
    return mValue;
}

int JsonWrapper::length() const
{
    if (!isArray())
        errorHandler(QStringLiteral("length() is called for %1.").arg(kindWithout("Array")));
    return heldArray().size();
}

QStringList JsonWrapper::keys() const
{
    if (mKind == kArray)
        errorHandler("keys() is called for kArray");
    if (!isObject())
        errorHandler(QStringLiteral("keys() is called for %1.").arg(kindWithout("Object")));
    return heldObject().keys();
}

bool JsonWrapper::contains(const QString &key) const
{
    if (!isObject())
        errorHandler(QStringLiteral("contains() is called for %1.").arg(kindWithout("Object")));
    return heldObject().contains(key);
}

QString JsonWrapper::toJson(bool indented) const
{
    if (isArray())
        return documentText(QJsonDocument(heldArray()), indented);
    if (isObject())
        return documentText(QJsonDocument(heldObject()), indented);
    if (mKind != kValue)
        return QString();
    if (mValue.isNull())
        return QStringLiteral("null");
    const QString text = documentText(QJsonDocument(QJsonArray{ mValue }), indented);
    return text.mid(1, text.size() - 2);
}

JsonWrapper &JsonWrapper::set(const QString &key, const QJsonValue &value)
{
    return writeEntry("set()", key, value);
}

JsonWrapper &JsonWrapper::set(int index, const QJsonValue &value)
{
    return writeElement("set()", index, value, true);
}

JsonWrapper &JsonWrapper::insert(int index, const QJsonValue &value)
{
    return writeElement("set()", index, value, false);
}

JsonWrapper &JsonWrapper::setEmptyArray(const QString &key)
{
    return writeEntry("setEmptyArray(QString)", key, QJsonArray());
}

JsonWrapper &JsonWrapper::setEmptyArray(int index)
{
    return writeElement("setEmptyArray(int)", index, QJsonArray(), true);
}

JsonWrapper &JsonWrapper::setEmptyObject(const QString &key)
{
    return writeEntry("setEmptyObject(QString)", key, QJsonObject());
}

JsonWrapper &JsonWrapper::setEmptyObject(int index)
{
    return writeElement("setEmptyObject(int)", index, QJsonObject(), true);
}

JsonWrapper &JsonWrapper::operator=(const QJsonValue &)
{
    errorHandler(QStringLiteral("= is applied for %1.").arg(kindName()));
}

void JsonWrapper::errorHandler(const QString &message)
{
    Log::debug("cpp/tool", "JsonWrapper::errorHandler", __LINE__) << message;
    throw JsonWrapperException(message);
}

void JsonWrapper::errorHandler(const char *message)
{
    errorHandler(QString::fromUtf8(message));
}

void JsonWrapper::raiseCalled(const char *function) const
{
    errorHandler(QStringLiteral("%1 is called for %2.").arg(QLatin1String(function), kindName()));
}

QString JsonWrapper::kindName() const
{
    static const char *const names[] = { "kDoc", "kArray", "kObject", "kValue", "kMax" };
    return QLatin1String(names[mKind]);
}

QString JsonWrapper::kindWithout(const char *content) const
{
    return mKind == kDoc ? QStringLiteral("mDoc which is not %1").arg(QLatin1String(content)) : kindName();
}

// The array or the object, for a wrapper that is known to hold one.
QJsonArray JsonWrapper::heldArray() const
{
    return mKind == kDoc ? mDoc.array() : mKind == kArray ? mArray : mValue.toArray();
}

QJsonObject JsonWrapper::heldObject() const
{
    return mKind == kDoc ? mDoc.object() : mKind == kObject ? mObject : mValue.toObject();
}

JsonWrapper &JsonWrapper::writeEntry(const char *function, const QString &key, const QJsonValue &value)
{
    if (!isObject())
        raiseCalled(function);
    QJsonObject object = heldObject();
    store(QJsonObject()); // so that the object is not copied by the write
    object.insert(key, value);
    store(object);
    return *this;
}

JsonWrapper &JsonWrapper::writeElement(const char *function, int index, const QJsonValue &value, bool replace)
{
    if (!isArray())
        raiseCalled(function);
    QJsonArray array = heldArray();
    if (index < 0 || index >= array.size() + (replace ? 0 : 1))
        errorHandler(QStringLiteral("index is out of range: %1").arg(index));
    store(QJsonArray()); // so that the array is not copied by the write
    if (replace)
        array.replace(index, value);
    else
        array.insert(index, value);
    store(array);
    return *this;
}

template <typename Container>
void JsonWrapper::store(const Container &container)
{
    if (mKind == kDoc)
        mDoc = QJsonDocument(container);
    else if (mKind == kValue)
        mValue = container;
    else if constexpr (std::is_same_v<Container, QJsonArray>)
        mArray = container;
    else
        mObject = container;
}
