#pragma once

/// Opens the log, "Trelvane.log" in the application's local data folder, and installs the handler
/// that writes each message to it, up to 64 MiB in one run. The log of the run before is lost. When
/// the file can't be opened, nothing is written and messages go the usual way alone.
///
/// The application's name and organisation must be set before.
void setupMessageHandler();

/// Closes the log. Messages still go the usual way.
void closeLogFile();
