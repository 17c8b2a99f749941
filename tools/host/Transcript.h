#pragma once

#include <QString>

/// What the stand-in tells on its standard output, a line at a time.
namespace Transcript
{
/// A message on one line: its fields apart by " | ", line feeds as \n, long fields shortened.
QString printable(const QString &message);

/// Messages to and from the program, and remarks of the stand-in itself.
void sent(const QString &message);
void received(const QString &message);
void remark(const QString &text);
} // namespace Transcript
