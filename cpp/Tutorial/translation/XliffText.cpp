#include "Tutorial/translation/XliffText.h"

#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace
{
class Simplifier
{
public:
    /// `approved` are the units, by their count, whose state tells so.
    Simplifier(const QByteArray &xliff, const QSet<int> &approved, QByteArray &simplified)
        : mReader(xliff)
        , mWriter(&simplified)
        , mFormerlyApproved(approved)
    { }

    QString run();
    /// What was found on the way, for another run: a unit begins before its state is known.
    const QSet<int> &approved() const { return mApproved; }

private:
    void copyStart();
    void copyAttributes(bool approve);
    void copyText();

    QXmlStreamReader mReader;
    QXmlStreamWriter mWriter;
    const QSet<int> mFormerlyApproved;
    QSet<int> mApproved;
    QString mNamespace; // of the root
    int mUnit = -1;
};

QString Simplifier::run()
{
    mWriter.writeStartDocument();
    while (!mReader.atEnd()) {
        switch (mReader.readNext()) {
        case QXmlStreamReader::StartElement:
            copyStart();
            break;
        case QXmlStreamReader::EndElement:
            mWriter.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            mWriter.writeCharacters(mReader.text().toString());
            break;
        default:
            break;
        }
    }
    mWriter.writeEndDocument();
    if (!mReader.hasError())
        return QString();
    return QStringLiteral("%1:%2: %3").arg(mReader.lineNumber()).arg(mReader.columnNumber()).arg(mReader.errorString());
}

void Simplifier::copyStart()
{
    const QString name = mReader.name().toString();
    if (mNamespace.isNull()) {
        mNamespace = mReader.namespaceUri().toString();
        mWriter.writeDefaultNamespace(mNamespace);
    } else if (mReader.namespaceUri() != mNamespace || name == QLatin1String("alt-trans")
               || name == QLatin1String("seg-source")) {
        // Neither suggestions nor the parts of a source are asked for.
        mReader.skipCurrentElement();
        return;
    }
    const bool isUnit = name == QLatin1String("trans-unit");
    const bool isTarget = name == QLatin1String("target");
    if (isUnit)
        ++mUnit;
    const QStringRef state = mReader.attributes().value(QStringLiteral("state"));
    if (isTarget && (state == QLatin1String("final") || state == QLatin1String("signed-off")))
        mApproved.insert(mUnit);
    mWriter.writeStartElement(mNamespace, name);
    copyAttributes(isUnit && mFormerlyApproved.contains(mUnit));
    if (isTarget || name == QLatin1String("source"))
        copyText();
}

void Simplifier::copyAttributes(bool approve)
{
    const QString approved = QStringLiteral("approved");
    const QXmlStreamAttributes attributes = mReader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (attribute.namespaceUri().isEmpty() && !(approve && attribute.name() == approved))
            mWriter.writeAttribute(attribute);
    }
    if (approve)
        mWriter.writeAttribute(approved, QStringLiteral("yes"));
}

/// The text of an element to its end. It keeps the elements in which lconvert writes what XML can't.
void Simplifier::copyText()
{
    QVector<bool> kept;
    while (!mReader.atEnd()) {
        switch (mReader.readNext()) {
        case QXmlStreamReader::StartElement:
            kept.append(mReader.name() == QLatin1String("ph")
                        && mReader.attributes().value(QStringLiteral("ctype")).startsWith(QLatin1String("x-ch-")));
            if (kept.last()) {
                mWriter.writeStartElement(mNamespace, mReader.name().toString());
                copyAttributes(false);
            }
            break;
        case QXmlStreamReader::EndElement:
            if (kept.isEmpty() || kept.last())
                mWriter.writeEndElement();
            if (kept.isEmpty())
                return;
            kept.removeLast();
            break;
        case QXmlStreamReader::Characters:
            mWriter.writeCharacters(mReader.text().toString());
            break;
        default:
            break;
        }
    }
}
} // namespace

QString XliffText::simplify(const QByteArray &xliff, QByteArray &simplified)
{
    Simplifier first(xliff, {}, simplified);
    const QString error = first.run();
    if (!error.isEmpty() || first.approved().isEmpty())
        return error;
    simplified.clear();
    return Simplifier(xliff, first.approved(), simplified).run();
}
