#pragma once

#include <QObject>
#include <QVector>

class QTranslator;

/// The toolkit's own catalogs, for its dialogs and menus. All translators that are installed later answer before them.
class ToolkitTranslators : public QObject
{
    Q_OBJECT

public:
    /// Installs them for good.
    ToolkitTranslators(const QString &language, QObject *parent);

    /// The toolkit's texts are English where it has no catalog.
    void setLanguage(const QString &language);

private:
    Q_DISABLE_COPY(ToolkitTranslators)

    QVector<QTranslator *> mTranslators; // children
};
