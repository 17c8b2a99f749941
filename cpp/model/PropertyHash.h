#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

/// A hash of properties that also keeps the order in which its keys were inserted, for the commands
/// that replay them.
class PropertyHash : public QHash<QString, QVariant>
{
public:
    virtual ~PropertyHash() = default;

    /// Sets the entry and appends the key to keyList(); a key that is inserted twice stands there
    /// twice.
    virtual void insert(const QString &key, const QVariant &value);
    /// Removes the entry, and the last occurrence of the key from keyList().
    virtual void remove(const QString &key);

    QStringList keyList() const { return mKeyList; }

    /// Typed reads; the fallback is returned when the key is absent.
    bool getBool(const QString &key, bool fallback) const;
    int getInt(const QString &key, int fallback) const;
    double getDouble(const QString &key, double fallback) const;
    QString getString(const QString &key, const QString &fallback) const;

private:
    QStringList mKeyList;
};
