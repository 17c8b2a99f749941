#pragma once

#include <QString>

/// What JsonWrapper throws when a step does not fit the data.
class JsonWrapperException
{
public:
    explicit JsonWrapperException(const QString &message) : mMessage(message) { }

    QString message() const { return mMessage; }

private:
    QString mMessage;
};
