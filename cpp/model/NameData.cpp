#include "model/NameData.h"

NameData::NameData(int id, const QString &name) : mId(id), mName(name) { }

void NameData::setId(int id)
{
    mId = id;
}

void NameData::setName(const QString &name)
{
    mName = name;
}
