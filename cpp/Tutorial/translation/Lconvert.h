#pragma once

#include <QString>

/// Qt's tool that converts translations from one format to another.
namespace Lconvert
{
/// The reason for a failure, for the user; empty when it is done. The formats are named as the tool names them, such as
/// "ts" and "xlf".
QString convert(const QString &from, const QString &fromFormat, const QString &to, const QString &toFormat);
} // namespace Lconvert
