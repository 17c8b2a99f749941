#pragma once

/// Opens the log, "Trelvane.log" in the application's local data folder, and installs the handler
/// that writes each message to it. The log of the run before is lost. One run writes 64 MiB at most:
/// after 60 only warnings and what is worse, and a last line says that it ends. When the file can't
/// be opened, nothing is written and messages go the usual way alone.
///
/// The application's name and organisation must be set before.
void setupMessageHandler();

/// Closes the log. Messages still go the usual way.
void closeLogFile();
