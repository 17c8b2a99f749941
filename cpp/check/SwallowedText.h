#pragma once

#include <QString>
#include <QVector>

/// Finds what the reader takes for a comment or the end of the list although it stands within a text or after "//", as
/// a function without state.
namespace SwallowedText
{
struct Place
{
    QString part; ///< as it stands in the text
    int position; ///< in the script
    bool isInLineComment; ///< else in a string
};

/// The first opening of a block comment that is closed later, and the first end of the list, in the order of the file;
/// and each line comment with an opening that takes more than line comments away.
QVector<Place> find(const QString &script);
} // namespace SwallowedText
