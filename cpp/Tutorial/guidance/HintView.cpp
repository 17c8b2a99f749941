#include "Tutorial/guidance/HintView.h"

#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/HintText.h"

#include <QTextDocument>
#include <QTextEdit>

using namespace GuidanceGeometry;

void HintView::setUp(QTextEdit *textEdit, int height)
{
    textEdit->setFixedWidth(kTextWidth);
    setHeight(textEdit, height);
    textEdit->setGeometry(QRect(textPlace(false), textEdit->minimumSize()));
    textEdit->setLineWrapMode(QTextEdit::WidgetWidth);
    textEdit->setAutoFormatting(QTextEdit::AutoAll);
    textEdit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textEdit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textEdit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    textEdit->setWindowFlag(Qt::WindowTransparentForInput);
}

void HintView::show(QTextEdit *textEdit, QTextDocument *document, const QString &hint)
{
    document->setHtml(HintText::toRichText(HintText::visiblePart(hint)));
    textEdit->setDocument(document);
}

void HintView::setHeight(QTextEdit *textEdit, int height)
{
    textEdit->setFixedHeight(qMin(height, kMostText.height()));
}

int HintView::height(const QTextEdit *textEdit)
{
    return int(textEdit->document()->size().height());
}

int HintView::mostHeight()
{
    return kTooltipSize.height() - kTextTop;
}
