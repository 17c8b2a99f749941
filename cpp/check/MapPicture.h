#pragma once

#include <QByteArray>
#include <QString>

/// A map as a picture, by Graphviz, whose program "dot" runs as a process of its own.
namespace MapPicture
{
/// The text of an SVG file that needs nothing beside itself. Empty with a translated error where the program is
/// missing, fails, or takes more than a minute.
QByteArray svg(const QString &dot, QString &error);
} // namespace MapPicture
