#pragma once

/// Answers "--help" and "--version" on standard output, wherever they stand. Whether one was there, after which there
/// is nothing left to do.
bool answersAboutOption(int argc, char **argv);

/// Of the program, as the toolkit is told it too.
extern const char kVersion[];
