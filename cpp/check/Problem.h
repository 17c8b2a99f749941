#pragma once

#include <QString>

/// One thing in a tutorial that a learner would stumble over, in words for its writer.
struct Problem
{
    enum class Severity {
        Error, ///< a learner gets stuck, or the file is not what its writer thinks
        Warning, ///< a learner sees something wrong
        Remark, ///< worth a look
    };

    /// The short name of what was found, such as "jump-missing"; the same in every output, not translated.
    QString rule;
    Severity severity = Severity::Error;
    /// The item that it is about, -1 for the tutorial as a whole.
    int itemId = -1;
    QString itemName;
    /// One sentence that says what is wrong and what to do, translated.
    QString text;
    /// The file that holds it, and the line in it from 1 up; 0 where that is not known.
    QString file = {};
    int line = 0;
    /// The entry of the item that it is about, by its key in the file; empty for the item as a whole.
    QString key = {};
};
