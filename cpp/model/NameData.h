#pragma once

#include <QString>

/// A record with an id and a name: the base of what a tree of named items holds.
class NameData
{
public:
    NameData() = default;
    NameData(int id, const QString &name);
    virtual ~NameData() = default;

    virtual void setId(int id);
    virtual void setName(const QString &name);

    int mId = -1;
    QString mName;
};
