#pragma once

#include <QString>

/// Where the part stands in the text from that position on, or -1.
///
/// QString's own search makes a table for each longer part or compares at each position. This one looks for the first
/// character alone, with the processor's wide registers: worth it where that one is rare.
inline int indexOfMarker(const QString &text, const QLatin1String &part, int from = 0)
{
    int position = text.indexOf(part.at(0), from);
    while (position >= 0 && text.midRef(position, part.size()) != part)
        position = text.indexOf(part.at(0), position + 1);
    return position;
}
