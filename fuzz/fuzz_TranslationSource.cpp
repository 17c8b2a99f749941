// A translation source: read, saved, read again, set, saved, read again.

#include "FuzzTarget.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/translation/TranslationXml.h"

using FuzzTarget::require;

namespace
{
QByteArray saved(const QDomDocument &document)
{
    return document.toByteArray(4);
}

QDomDocument loaded(const QByteArray &bytes)
{
    QDomDocument document;
    require(TranslationXml::parse(bytes, document), "what was saved can be read");
    return document;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = FuzzTarget::bytesOf(data, size);
    QDomDocument document;
    if (TranslationXml::parse(bytes, document)) {
        const QByteArray first = saved(document);
        const QDomDocument again = loaded(first);
        require(TranslationSource::readMessages(again) == TranslationSource::readMessages(document),
                "what was saved comes back");
        require(saved(again) == first, "a save of what was not changed changes nothing");
    } else {
        document = TranslationSource::emptyDocument(QStringLiteral("ja_JP"));
    }

    const QString any = FuzzTarget::unitsOf(bytes);
    const QString key = QStringLiteral("#1");
    const QStringList contexts = TranslationSource::readMessages(document).keys() + QStringList(any);
    for (const QString &text : { any, QString::fromUtf8(bytes), QString() }) {
        TranslationSource::writeMessages(document, contexts.first(), { { key, text } });
        const QDomDocument again = loaded(saved(document));
        require(TranslationSource::readMessages(again).value(contexts.first()).value(key, key) == text,
                "a text that was set comes back");
    }
    return 0;
}
