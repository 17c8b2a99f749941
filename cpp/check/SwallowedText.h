#pragma once

#include <QString>
#include <QVector>

/// Finds what the reader takes for a comment or the end of the list although it stands within a text, as a function
/// without state.
namespace SwallowedText
{
struct Place
{
    QString part; ///< as it stands in the text
    int position; ///< in the script
};

/// The first opening of a block comment that is closed later, and the first end of the list, in the order of the file.
QVector<Place> find(const QString &script);
} // namespace SwallowedText
