#include "model/PropertyHash.h"

void PropertyHash::insert(const QString &key, const QVariant &value)
{
    mKeyList.append(key);
    QHash::insert(key, value);
}

void PropertyHash::remove(const QString &key)
{
    QHash::remove(key);
    const int last = mKeyList.lastIndexOf(key);
    if (last >= 0)
        mKeyList.removeAt(last);
}

bool PropertyHash::getBool(const QString &key, bool fallback) const
{
    return contains(key) ? value(key).toBool() : fallback;
}

int PropertyHash::getInt(const QString &key, int fallback) const
{
    return contains(key) ? value(key).toInt() : fallback;
}

double PropertyHash::getDouble(const QString &key, double fallback) const
{
    return contains(key) ? value(key).toDouble() : fallback;
}

QString PropertyHash::getString(const QString &key, const QString &fallback) const
{
    return contains(key) ? value(key).toString() : fallback;
}
