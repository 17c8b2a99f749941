#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// A tutorial as one state: the array of its scenario, and the texts of all hints by the key of their item, for each
/// locale, and which of the translations are stale.
struct TutorialState
{
    using Hints = QHash<QString, QHash<QString, QString>>;
    using StaleKeys = QHash<QString, QSet<QString>>;

    QString array;
    Hints hints;
    StaleKeys stale; ///< the keys, for each locale whose translations were looked at
};

/// What the copy of an unsaved tutorial holds, in one file, so that its parts always belong together.
struct RecoveryCopy
{
    QString path; ///< of the scenario's file, absolute
    TutorialState state;
    TutorialState::Hints loadedHints; ///< what the files of the languages said when they were read or saved
    QByteArray fileHash; ///< of the scenario's file at that time; empty where there was none
    QStringList leftOut; ///< what stood in that file and not in the document

    /// The content of the file.
    QByteArray toBytes() const;
    /// False for bytes that are not what toBytes() gave, to the last one.
    bool read(const QByteArray &bytes);
};
