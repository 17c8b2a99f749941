#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>

/// One value over Qt's JSON types, for reading nested data as a chain of `[...]` steps.
///
/// A step or an extraction that does not fit the data throws a JsonWrapperException; the type tests
/// and the plain conversions never throw. A wrapper owns its data: what is written to the result of
/// a step does not reach the wrapper that it came from. Copies are cheap.
class JsonWrapper
{
public:
    /// Which of the members carries the data; kMax holds nothing.
    enum Kind { kDoc, kArray, kObject, kValue, kMax };

    JsonWrapper() = default;
    /// Parses text: an array or an object becomes a kDoc, a bare scalar a kValue, the empty text a
    /// kMax. Bad syntax is a warning in the log and a kDoc that is neither array nor object.
    explicit JsonWrapper(const QString &jsonStr);
    explicit JsonWrapper(const QJsonDocument &doc);
    explicit JsonWrapper(const QJsonArray &array);
    explicit JsonWrapper(const QJsonObject &object);
    explicit JsonWrapper(const QJsonValue &value);

    Kind kind() const { return mKind; }

    /// The element at that index, Undefined past the end. In a kObject or a kValue object it is the
    /// entry whose key is the index in decimal.
    JsonWrapper operator[](int index) const;
    /// The entry under that key. A missing key throws in a kObject, and is Null in all else.
    JsonWrapper operator[](const QString &key) const;

    bool isArray() const;
    bool isObject() const;
    bool isNull() const;
    bool isBool() const { return mKind == kValue && mValue.isBool(); }
    bool isDouble() const { return mKind == kValue && mValue.isDouble(); }
    bool isString() const { return mKind == kValue && mValue.isString(); }
    bool isUndefined() const { return mKind == kMax || mValue.isUndefined(); }

    /// The scalar of a kValue of just that type; false, 0 or the empty text for all else, except
    /// that toString() describes a container that is no kValue.
    bool toBool() const { return mValue.toBool(false); }
    double toDouble() const { return mValue.toDouble(0.0); }
    int toInt() const { return mValue.toInt(0); }
    QString toString() const;

    /// The content in Qt's own type; throws if it is another.
    QJsonObject toObject() const;
    QJsonArray toArray() const;
    QJsonValue toValue() const;

    /// The number of elements of an array; throws for all else.
    int length() const;
    /// Questions to an object; throw for all else.
    QStringList keys() const;
    bool contains(const QString &key) const;

    QString toJson(bool indented) const;

    /// Writes into an object by key, which replaces or adds, and into an array by index, which must
    /// exist. QJsonValue takes a bool, double, int, QString, QJsonArray or QJsonObject as it is.
    /// All return this wrapper, and throw if it holds no such container.
    JsonWrapper &set(const QString &key, const QJsonValue &value);
    JsonWrapper &set(int index, const QJsonValue &value);
    /// Puts a new element before that index; the array's length appends.
    JsonWrapper &insert(int index, const QJsonValue &value);
    JsonWrapper &setEmptyArray(const QString &key);
    JsonWrapper &setEmptyArray(int index);
    JsonWrapper &setEmptyObject(const QString &key);
    JsonWrapper &setEmptyObject(int index);

    /// Always throws: a plain value is written with set(), into the container that holds it.
    JsonWrapper &operator=(const QJsonValue &value);

    /// JSON-shaped text of a bool, number, string, QVariantList or QVariantHash, nested as they
    /// come, a hash in its own order. Anything else is a warning in the log and "?".
    static QString getJsonString(const QVariant &value);
    /// The text with JSON's string escapes, without quotes round it.
    static QString escapeJsonString(const QString &text);

    /// Appends the same text as that of getJsonString.
    static void appendJson(QString &json, bool value);
    static void appendJson(QString &json, int value);
    static void appendJson(QString &json, const QString &value);

private:
    [[noreturn]] static void errorHandler(const QString &message);
    [[noreturn]] static void errorHandler(const char *message);
    [[noreturn]] void raiseCalled(const char *function) const;

    QString kindName() const;
    QString kindWithout(const char *content) const;
    QJsonArray heldArray() const;
    QJsonObject heldObject() const;
    JsonWrapper &writeEntry(const char *function, const QString &key, const QJsonValue &value);
    JsonWrapper &writeElement(const char *function, int index, const QJsonValue &value, bool replace);
    template <typename Container>
    void store(const Container &container);

    Kind mKind = kMax;
    QJsonDocument mDoc;
    QJsonArray mArray;
    QJsonObject mObject;
    QJsonValue mValue; // Null unless the kind is kValue
};
