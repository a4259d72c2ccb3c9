#include "commentwidget.h"

#include "commentline.h"

namespace pendant {

CommentWidget::CommentWidget(QWidget* parent)
    : InstructionWidget(CommentLine::grammar(), parent), m_comment(new QLineEdit), m_caption(addField(m_comment)) {
    m_comment->setObjectName(QStringLiteral("commentText"));
    retranslate();
}

void CommentWidget::show(const LineParts& parts) {
    m_comment->setText(CommentLine::of(parts).comment);
}

QString CommentWidget::text() const {
    return CommentLine{m_comment->text()}.text();
}

void CommentWidget::retranslate() {
    m_caption->setText(tr("Comment"));
    m_comment->setPlaceholderText(tr("What the lines below are for"));
}

} // namespace pendant
