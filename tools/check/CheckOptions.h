#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CheckOptions
{
    QStringList files;
    QString translations; ///< empty for what lies beside each file
    QString language; ///< of the texts, see InterfaceTranslator
    bool json = false;
    bool walk = false; ///< tell of the ways too
    QString map; ///< the file that gets the map; empty for none

    QString help; ///< to be printed, instead of anything else
    QString error; ///< what is wrong with the command line
};

CheckOptions parseOptions(const QStringList &arguments);
