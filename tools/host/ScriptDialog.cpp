#include "ScriptDialog.h"

#include <QBoxLayout>
#include <QFontDatabase>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>

namespace
{
QString literal(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{ text }).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}
} // namespace

ScriptDialog::ScriptDialog(QWidget *parent)
    : QDialog(parent)
    , mSource(new QPlainTextEdit)
    , mAnswer(new QPlainTextEdit)
    , mConvertButton(new QPushButton(tr("&Convert")))
{
    setWindowTitle(tr("CoffeeScript"));
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mSource->setObjectName(QStringLiteral("source"));
    mSource->setFont(font);
    mSource->setPlainText(QStringLiteral("square = (x) -> x * x\n"));
    mAnswer->setObjectName(QStringLiteral("answer"));
    mAnswer->setFont(font);
    mAnswer->setReadOnly(true);
    mConvertButton->setObjectName(QStringLiteral("convert"));
    mConvertButton->setAutoDefault(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("CoffeeScript")));
    layout->addWidget(mSource);
    layout->addWidget(mConvertButton, 0, Qt::AlignRight);
    layout->addWidget(new QLabel(tr("JavaScript")));
    layout->addWidget(mAnswer);
    resize(480, 420);
    connect(mConvertButton, &QPushButton::clicked, this, &ScriptDialog::convert);
}

void ScriptDialog::convert()
{
    mAnswer->setPlainText(tr("Waiting for the program..."));
    Q_EMIT conversionRequested(++mKey, literal(mSource->toPlainText()));
}

void ScriptDialog::showAnswer(int key, const QString &record)
{
    if (key != mKey)
        return;
    const QJsonObject answer = QJsonDocument::fromJson(record.toUtf8()).object();
    if (answer.isEmpty()) {
        mAnswer->setPlainText(tr("The program gave no record."));
        return;
    }
    const QString error = answer.value(QLatin1String("error")).toString();
    mAnswer->setPlainText(error.isEmpty() ? answer.value(QLatin1String("javascript")).toString() : error);
    markLine(answer.value(QLatin1String("line")).toInt());
}

void ScriptDialog::markLine(int line)
{
    const QTextBlock block = mSource->document()->findBlockByNumber(line - 1);
    if (line < 1 || !block.isValid())
        return;
    QTextCursor cursor(block);
    cursor.select(QTextCursor::LineUnderCursor);
    mSource->setTextCursor(cursor);
}
