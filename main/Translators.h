#pragma once

class QApplication;
class QString;

/// Installs the catalogs that the program starts with: the standard locale's, and those of the interface's language,
/// which take precedence.
void installTranslators(QApplication &application, const QString &language);
