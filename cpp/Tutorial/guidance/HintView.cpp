#include "Tutorial/guidance/HintView.h"

#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/HintText.h"

#include <QTextDocument>
#include <QTextEdit>

using namespace GuidanceGeometry;

void HintView::setUp(QTextEdit *textEdit, int height)
{
    textEdit->setFixedSize(kTextWidth, height);
    textEdit->setGeometry(QRect(textPlace(false), QSize(kTextWidth, height)));
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

int HintView::height(const QTextEdit *textEdit)
{
    return int(textEdit->document()->size().height());
}

int HintView::mostHeight()
{
    return kTooltipSize.height() - kTextTop;
}
