#pragma once

#include <QString>

/// Pieces of a text for Graphviz. Whatever a name holds, it stays what is read by people.
namespace DotText
{
/// In quotes. A line break stays one; what can't stand in a picture's file is a blank.
QString quoted(const QString &text);

/// At most that many columns, the last one an ellipsis where it is cut. A wide character takes two.
QString cut(const QString &text, int columns);

/// One attribute, to be appended to others. Of two of one name the later one counts.
QString attribute(const char *name, const QString &value);
} // namespace DotText
