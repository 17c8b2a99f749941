#pragma once

#include <QByteArray>
#include <QString>

/// XLIFF as the tools of translators write it.
namespace XliffText
{
/// Makes of it what lconvert reads without loss: sources and targets hold text alone, in place of the elements that
/// tools mark words and codes with, nothing is of other namespaces, and what is approved by its state says so.
/// The reason for a failure, where it stands; empty when it is done.
QString simplify(const QByteArray &xliff, QByteArray &simplified);
} // namespace XliffText
