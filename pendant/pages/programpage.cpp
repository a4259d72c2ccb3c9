#include "programpage.h"

#include "emptystate.h"
#include "programdelegate.h"
#include "programeditor.h"
#include "programpicker.h"
#include "style/icons.h"

#include <QResizeEvent>
#include <QScroller>
#include <QShortcut>

namespace pendant {

namespace {

// Below this the panel stands under the lines and not beside them.
const int narrowWidth = 600;
// Below this the tools stand beside the title and not under it.
const int lowHeight = 520;
const int keptLinesHeight = 2 * ProgramDelegate::rowHeight + 4;

} // namespace

ProgramPage::ProgramPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("programPage"), theme, parent), m_store(new ProgramStore(this)), m_types(new LineTypes(this)),
      m_state(new QLabel(this)), m_save(new QPushButton(this)), m_tools(new ProgramTools(theme, this)),
      m_notice(new QLabel(this)), m_body(new QWidget(this)), m_columns(new QBoxLayout(QBoxLayout::LeftToRight, m_body)),
      m_list(new QListView(this)), m_delegate(new ProgramDelegate(m_types, theme, this)),
      m_lines(new QStackedWidget(this)), m_noLines(new EmptyState(this)), m_noProgram(new QWidget(this)),
      m_noProgramTexts(new EmptyState(m_noProgram)), m_tryAgain(new QPushButton(m_noProgram)),
      m_panel(new QFrame(this)), m_parts(new QStackedWidget(this)), m_hint(new QLabel(this)),
      m_picker(new ProgramPicker(m_types, theme, this)), m_editor(new ProgramEditor(theme, this)) {
    m_state->setObjectName(QStringLiteral("programState"));
    m_save->setObjectName(QStringLiteral("saveProgram"));
    m_notice->setObjectName(QStringLiteral("programNotice"));
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_noLines->setProperty("noLines", true);
    m_showTimer.setSingleShot(true);
    m_showTimer.setInterval(0);
    connect(&m_showTimer, &QTimer::timeout, this, &ProgramPage::showNow);
    makeList();
    makePanel();
    makeNoProgram();
    arrange();
    addKeys();
    follow();
    setTheme(theme);
    retranslate();
}

// What goes with it tells of changes that nobody is there to see any more.
ProgramPage::~ProgramPage() {
    m_showTimer.stop();
    m_store->disconnect(this);
    program()->disconnect(this);
    program()->undoStack()->disconnect(this);
    m_list->selectionModel()->disconnect(this);
    m_list->setModel(nullptr);
}

void ProgramPage::makeList() {
    m_list->setObjectName(QStringLiteral("programLines"));
    m_list->setModel(program());
    m_list->setItemDelegate(m_delegate);
    // Rows of one height: the view would measure each of ten thousand otherwise.
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumHeight(keptLinesHeight);
    QScroller::grabGesture(m_list->viewport(), QScroller::LeftMouseButtonGesture);
    m_lines->addWidget(m_list);
    m_lines->addWidget(m_noLines);
}

void ProgramPage::makePanel() {
    m_panel->setObjectName(QStringLiteral("card"));
    m_hint->setProperty("caption", true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_parts->addWidget(m_hint);
    m_parts->addWidget(m_picker);
    m_parts->addWidget(m_editor);
    auto* column = new QVBoxLayout(m_panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_parts);
}

void ProgramPage::makeNoProgram() {
    m_tryAgain->setObjectName(QStringLiteral("openAgain"));
    auto* column = new QVBoxLayout(m_noProgram);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_noProgramTexts, 1);
    column->addWidget(m_tryAgain, 0, Qt::AlignHCenter);
    connect(m_tryAgain, &QPushButton::clicked, this, [this] {
        m_store->follow();
        showNow();
    });
}

void ProgramPage::arrange() {
    actions()->addWidget(m_state);
    actions()->addSpacing(8);
    actions()->addWidget(m_save);
    m_columns->setContentsMargins(0, 0, 0, 0);
    m_columns->setSpacing(8);
    m_columns->addWidget(m_lines, 4);
    m_columns->addWidget(m_panel, 5);
    content()->addWidget(m_tools);
    content()->addWidget(m_notice);
    content()->addWidget(m_body, 1);
    content()->addWidget(m_noProgram, 1);
}

void ProgramPage::addKeys() {
    const auto use = [this](ProgramTools::Tool tool) { return [this, tool] { press(tool); }; };
    addKey(Qt::Key_Insert, this, use(ProgramTools::Insert));
    addKey(Qt::Key_Delete, m_list, use(ProgramTools::Delete));
    addKey(Qt::CTRL + Qt::Key_Up, m_list, use(ProgramTools::Up));
    addKey(Qt::CTRL + Qt::Key_Down, m_list, use(ProgramTools::Down));
    addKey(Qt::CTRL + Qt::Key_Z, this, use(ProgramTools::Undo));
    addKey(Qt::CTRL + Qt::Key_Y, this, use(ProgramTools::Redo));
    addKey(Qt::CTRL + Qt::SHIFT + Qt::Key_Z, this, use(ProgramTools::Redo));
    addKey(Qt::CTRL + Qt::Key_S, this, [this] { save(); });
    addKey(Qt::Key_Escape, this, [this] { reject(); });
}

void ProgramPage::addKey(const QKeySequence& keys, QWidget* where, const std::function<void()>& action) {
    auto* shortcut = new QShortcut(keys, where);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, action);
}

void ProgramPage::follow() {
    connect(m_tools, &ProgramTools::pressed, this, &ProgramPage::press);
    connect(m_save, &QPushButton::clicked, this, &ProgramPage::save);
    connect(m_picker, &ProgramPicker::picked, this, &ProgramPage::startInserting);
    connect(m_picker, &ProgramPicker::canceled, this, &ProgramPage::reject);
    connect(m_picker, &ProgramPicker::placeChosen, this, &ProgramPage::showPlace);
    connect(m_editor, &ProgramEditor::accepted, this, &ProgramPage::accept);
    connect(m_editor, &ProgramEditor::rejected, this, &ProgramPage::reject);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &ProgramPage::showSoon);
    connect(program(), &Program::touched, this, &ProgramPage::showRow);
    connect(program(), &Program::linesChanged, this, &ProgramPage::showSoon);
    connect(program(), &Program::modifiedChanged, this, &ProgramPage::changedToSaved);
    connect(program()->undoStack(), &QUndoStack::indexChanged, this, &ProgramPage::showTools);
    connect(m_store, &ProgramStore::opened, this, &ProgramPage::programOpened);
    connect(m_store, &ProgramStore::takenUpChanged, this, &ProgramPage::showState);
    connect(m_store, &ProgramStore::failed, this, &ProgramPage::tellKeeping);
    connect(m_store, &ProgramStore::recovered, this, &ProgramPage::keptAgain);
    connect(m_types, &LineTypes::patternFailed, this, &ProgramPage::reportPattern);
}

void ProgramPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    m_delegate->setTheme(theme);
    m_tools->setTheme(theme);
    m_picker->setTheme(theme);
    m_editor->setTheme(theme);
    m_save->setIcon(lineIcon(QStringLiteral("save"), theme.color(QStringLiteral("text")), theme));
    m_save->setIconSize({24, 24});
    m_list->viewport()->update();
}

void ProgramPage::retranslate() {
    setTitle(tr("Program"));
    m_save->setAccessibleName(tr("Save"));
    m_save->setToolTip(tr("Save the program (Ctrl+S)"));
    m_hint->setText(tr("Select a line to edit it."));
    m_noLines->setTexts(tr("No lines yet"), tr("The lines of the robot program stand here. Press “Insert” and choose "
                                               "an instruction for the first one."));
    m_tryAgain->setText(tr("Try again"));
    m_tools->retranslate();
    m_picker->retranslate();
    m_editor->retranslate();
    readTypes();
    if (m_mode == Mode::Picking)
        m_picker->start();
    showSoon();
}

void ProgramPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_list->setFocus();
    showSoon();
}

// A window that is merely minimised is not left.
void ProgramPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    if (event->spontaneous())
        return;
    noteUnapplied();
    leave();
}

void ProgramPage::resizeEvent(QResizeEvent* event) {
    Page::resizeEvent(event);
    const bool isNarrow = event->size().width() < narrowWidth;
    const bool isLow = !isNarrow && event->size().height() < lowHeight;
    if (isNarrow == m_isNarrow && isLow == m_isLow)
        return;
    m_isNarrow = isNarrow;
    m_isLow = isLow;
    m_columns->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (isLow)
        actions()->insertWidget(0, m_tools);
    else
        content()->insertWidget(0, m_tools);
    m_tools->setCompact(isLow || isNarrow);
    m_lines->setMaximumHeight(isNarrow ? keptLinesHeight : QWIDGETSIZE_MAX);
    showParts();
    showState();
}

} // namespace pendant
