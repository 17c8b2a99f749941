#pragma once

class QApplication;
class QString;

/// Installs the catalogs that the program starts with: the toolkit's, before them the standard locale's, and before
/// both that of the interface's language, if it has one of its own.
void installTranslators(QApplication &application, const QString &language);
