#pragma once

class QApplication;

/// Installs the catalogs that the program starts with: Qt's own for its dialogs, where they are
/// there, and the standard locale's, which takes precedence.
void installTranslators(QApplication &application);
