#include "programeditor.h"

#include "frame/elidedlabel.h"
#include "style/icons.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

namespace {

const int longestShown = 600;
const int longestWord = 24;
const int heightForAll = 420;

QLabel* wrapped(const char* property, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty(property, true);
    return label;
}

helm::WidgetCreator creatorFor(const ProgramSubject& subject) {
    const helm::VexManager* registry = helm::VexManager::getVexManager();
    return subject.purpose == ProgramSubject::Insertion ? registry->insertWidgets.value(subject.type)
                                                        : registry->propertyWidgets.value(subject.type);
}

// A line without an end would take the whole panel, and one without blanks would make it as wide as itself.
QString breakable(const QString& line) {
    QString text;
    int word = 0;
    for (const QChar character : line.left(longestShown)) {
        text += character;
        word = character.isSpace() ? 0 : word + 1;
        if (word % longestWord == longestWord - 1 && !character.isHighSurrogate())
            text += QChar(0x200b);
    }
    return line.size() > longestShown ? text + QStringLiteral(" …") : text;
}

QString stateOf(ProgramEditor::Tone tone) {
    switch (tone) {
    case ProgramEditor::Tone::Warning:
        return QStringLiteral("warning");
    case ProgramEditor::Tone::Error:
        return QStringLiteral("error");
    default:
        return QString();
    }
}

} // namespace

ProgramEditor::ProgramEditor(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_icon(new QLabel(this)), m_title(new ElidedLabel(this)),
      m_place(new ElidedLabel(this)), m_description(wrapped("caption", this)), m_short(new ElidedLabel(this)),
      m_line(wrapped("mono", this)), m_otherTypes(wrapped("caption", this)), m_scroll(new QScrollArea(this)),
      m_nest(new QWidget), m_notice(wrapped("notice", this)), m_unapplied(wrapped("caption", this)),
      m_accept(new QPushButton(this)), m_reject(new QPushButton(this)) {
    setObjectName(QStringLiteral("programEditor"));
    m_title->setProperty("strong", true);
    m_title->setObjectName(QStringLiteral("editorTitle"));
    m_place->setProperty("caption", true);
    m_place->setObjectName(QStringLiteral("editorPlace"));
    m_short->setProperty("mono", true);
    m_short->setObjectName(QStringLiteral("editorLine"));
    m_line->setObjectName(QStringLiteral("unknownLine"));
    m_otherTypes->setObjectName(QStringLiteral("otherTypes"));
    m_notice->setObjectName(QStringLiteral("editorNotice"));
    m_unapplied->setObjectName(QStringLiteral("lineUnapplied"));
    m_unapplied->hide();
    m_accept->setObjectName(QStringLiteral("acceptLine"));
    m_accept->setDefault(true);
    m_reject->setObjectName(QStringLiteral("rejectLine"));
    connect(m_accept, &QPushButton::clicked, this, &ProgramEditor::accepted);
    connect(m_reject, &QPushButton::clicked, this, &ProgramEditor::rejected);
    arrange();
    retranslate();
}

void ProgramEditor::arrange() {
    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    names->addWidget(m_title);
    names->addWidget(m_place);
    auto* head = new QHBoxLayout;
    head->setSpacing(12);
    head->addWidget(m_icon, 0, Qt::AlignTop);
    head->addLayout(names, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_accept, 1);
    buttons->addWidget(m_reject, 1);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(m_nest);
    m_nest->setAutoFillBackground(false);
    auto* nested = new QVBoxLayout(m_nest);
    nested->setContentsMargins(0, 0, 0, 0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 12, 16, 16);
    column->setSpacing(8);
    column->addLayout(head);
    column->addWidget(m_description);
    column->addWidget(m_short);
    column->addWidget(m_line);
    column->addWidget(m_otherTypes);
    column->addWidget(m_scroll, 1);
    column->addWidget(m_notice);
    column->addStretch();
    column->addWidget(m_unapplied);
    column->addLayout(buttons);
}

void ProgramEditor::setTheme(const Theme& theme) {
    m_theme = theme;
    showSubject();
}

void ProgramEditor::retranslate() {
    showSubject();
    showButtons();
    setOthers(m_others);
}

void ProgramEditor::open(const ProgramSubject& subject, bool fills) {
    close();
    m_subject = subject;
    showSubject();
    openContent(fills);
    showButtons();
}

void ProgramEditor::openContent(bool fills) {
    if (m_subject.type.isEmpty())
        return setNotice(Tone::Plain, m_subject.icon.isEmpty()
                                          ? tr("It can be moved and deleted.")
                                          : tr("It is kept as it is, and can be moved and deleted. It may belong to a "
                                               "plugin that is not loaded."));
    const helm::WidgetCreator creator = creatorFor(m_subject);
    if (!creator)
        return setNotice(Tone::Warning, m_subject.purpose == ProgramSubject::Insertion
                                            ? tr("“%1” brings no widget to insert it with.").arg(m_subject.title)
                                            : tr("“%1” brings no widget to edit its lines.").arg(m_subject.title));
    m_content = new ProgramContent(m_subject.type, m_nest);
    connect(m_content, &ProgramContent::edited, this, &ProgramEditor::showEdited);
    m_nest->layout()->addWidget(m_content);
    m_content->show();
    const QPointer<ProgramEditor> living(this);
    const QPointer<ProgramContent> opened(m_content);
    const bool isReady = opened->open(creator) && (!fills || opened->fillWith(m_subject.line));
    if (!living || isReady || !holds(opened))
        return;
    dropContent();
    setNotice(Tone::Error, tr("“%1” could not be opened. The messages say why.").arg(m_subject.title));
}

void ProgramEditor::dropContent() {
    if (m_content)
        m_content->leave();
    m_content = nullptr;
    showEdited();
}

void ProgramEditor::showEdited() {
    m_unapplied->setVisible(isEdited() && m_subject.purpose == ProgramSubject::Line);
}

void ProgramEditor::setApplied() {
    if (content())
        m_content->setApplied();
}

void ProgramEditor::giveUpGone() {
    if (!m_content || content())
        return;
    m_content->reportGone();
    giveUp();
}

void ProgramEditor::giveUp() {
    if (!content())
        dropContent();
    setNotice(Tone::Error, tr("“%1” failed. The messages say why.").arg(m_subject.title));
    showButtons();
}

void ProgramEditor::refuse(const QString& notice, bool isByWidget) {
    setNotice(Tone::Error, notice);
    m_isRefused = isByWidget;
    // When it stands where it will stand.
    QTimer::singleShot(0, this, &ProgramEditor::showReason);
}

void ProgramEditor::showReason() {
    const QList<QLabel*> labels = m_nest->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->isVisible() && !label->text().isEmpty() && label->property("state") == QLatin1String("error"))
            return m_scroll->ensureWidgetVisible(label, 0, 8);
    }
    if (content() && m_isRefused)
        setNotice(Tone::Error, m_notice->text() + QLatin1Char(' ') + tr("The instruction gives no reason."));
    m_isRefused = false;
}

void ProgramEditor::close() {
    dropContent();
    m_subject = ProgramSubject();
    m_others.clear();
    setNotice(Tone::Plain, QString());
    setOthers({});
}

void ProgramEditor::showSubject() {
    m_icon->setPixmap(entryIcon({m_subject.icon, QStringLiteral("instruction")}, m_theme).pixmap(24, 24));
    m_title->setText(m_subject.title);
    m_description->setText(m_subject.description);
    m_short->setText(m_subject.line.left(longestShown));
    m_line->setText(breakable(m_subject.line));
    showWhatFits();
}

void ProgramEditor::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    showWhatFits();
}

// The fields need the room more than what stands in the list already.
void ProgramEditor::showWhatFits() {
    const bool isKnown = !m_subject.type.isEmpty();
    m_description->setVisible(!m_subject.description.isEmpty() && height() >= heightForAll);
    m_short->setVisible(isKnown && !m_subject.line.isEmpty());
    m_line->setVisible(!isKnown && !m_subject.line.isEmpty());
}

void ProgramEditor::showButtons() {
    const bool inserts = m_subject.purpose == ProgramSubject::Insertion;
    m_accept->setText(inserts ? tr("Insert") : tr("Apply"));
    m_unapplied->setText(tr("Not applied yet"));
    m_reject->setText(inserts ? tr("Cancel") : tr("Revert"));
    m_scroll->setVisible(content());
    m_accept->setVisible(content());
    m_reject->setVisible(content() || inserts);
}

void ProgramEditor::setPlace(const QString& place) {
    m_place->setText(place);
}

void ProgramEditor::setOthers(const QStringList& titles) {
    m_others = titles;
    m_otherTypes->setText(tr("Also matches: %1").arg(titles.join(QStringLiteral(", "))));
    m_otherTypes->setVisible(!titles.isEmpty());
}

void ProgramEditor::setNotice(Tone tone, const QString& notice) {
    m_isRefused = false;
    m_notice->setText(notice);
    m_notice->setVisible(!notice.isEmpty());
    m_notice->setProperty("state", stateOf(tone));
    m_notice->style()->unpolish(m_notice);
    m_notice->style()->polish(m_notice);
}

} // namespace pendant
