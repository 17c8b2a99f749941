#include "Tutorial/translation/TranslationFile.h"

#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/translation/TranslationXml.h"

#include <QFileInfo>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial/translation";
}

QString TranslationFile::path(const QString &locale, bool authoring)
{
    const QString path = QStringLiteral("translations/%1.ts").arg(locale);
    return authoring ? QString(QLatin1String("tutorial-win/") + path) : getExistsFilename(path);
}

bool TranslationFile::read(const QString &path, QDomDocument &document)
{
    document = QDomDocument();
    if (!DataSupport::fileExists(path)) {
        Log::warning(kFolder, "TranslationFile::read", __LINE__) << "translation file not found" << path;
        return false;
    }
    QByteArray bytes;
    if (!DataSupport::readFile(path, bytes))
        return false;
    if (!TranslationXml::parse(bytes, document)) {
        Log::warning(kFolder, "TranslationFile::read", __LINE__) << "Failed to setContents" << path;
        return false;
    }
    Log::debugEachText(kFolder, "TranslationFile::read", __LINE__, { document.toString(1) });
    return true;
}

bool TranslationFile::refresh(const QString &path, const QString &locale, QDomDocument &document)
{
    QByteArray bytes;
    if (DataSupport::fileExists(path) && !DataSupport::readFile(path, bytes))
        return false;
    if (bytes.trimmed().isEmpty()) {
        if (document.isNull())
            document = TranslationSource::emptyDocument(locale);
        return true;
    }
    if (TranslationXml::parse(bytes, document))
        return true;
    Log::warning(kFolder, "TranslationFile::refresh", __LINE__) << "Failed to setContents" << path;
    return false;
}

bool TranslationFile::write(const QString &path, const QDomDocument &document)
{
    // The first save of a writer may be the one that makes the folder.
    const bool hasFolder = DataSupport::mkpath(QFileInfo(path).path());
    if (hasFolder && !document.isNull() && DataSupport::writeFile(path, document.toByteArray(4)))
        return true;
    Log::warning(kFolder, "TranslationFile::write", __LINE__) << "Failed to save" << path;
    return false;
}
