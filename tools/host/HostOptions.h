#pragma once

#include <QString>
#include <QStringList>

/// How the questions of a tutorial are answered when it plays by itself. Both: No at the first time
/// that a question comes, Yes from then on.
enum class AnswerPolicy { Yes, No, Both };

/// What the command line asks for.
struct HostOptions
{
    QString suffix;
    /// Path of the program, empty to wait for one that is started by hand.
    QString program;
    /// Whether the program works in the writer's folder of the user's documents, else in the current one.
    bool inDocuments = false;
    /// Whether the program's own log goes to standard error.
    bool programLog = false;
    /// Whether the program is told what the user does, for the writer of a tutorial.
    bool eventLog = false;
    QString locale;
    /// Of the program's own texts, empty to leave it to the program.
    QString language;
    /// Empty to ask for no tutorial: the authoring mode has one of its own.
    QString tutorial;
    bool automatic = false;
    AnswerPolicy answers = AnswerPolicy::Yes;
    int delay = 1200;
    QString pictureFolder;
    /// Seconds, 0 for no end.
    int exitAfter = 0;

    /// Set instead of the others: a text to print and leave with, and what is wrong with the
    /// arguments.
    QString help;
    QString error;
};

/// Reads the command line, its first entry the path of this executable.
HostOptions parseOptions(const QStringList &arguments);
