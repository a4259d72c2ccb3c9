#include "program.h"

#include "programsteps.h"

#include <algorithm>

namespace pendant {

namespace {

bool isLineBreak(QChar c) {
    return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

// UTF-8 has no place for half of a surrogate pair.
bool isWhole(const QString& line) {
    for (int i = 0; i < line.size(); ++i) {
        if (!line.at(i).isSurrogate())
            continue;
        if (!line.at(i).isHighSurrogate() || i + 1 == line.size() || !line.at(i + 1).isLowSurrogate())
            return false;
        ++i;
    }
    return true;
}

} // namespace

Program::Program(QObject* parent) : QAbstractListModel(parent) {
    connect(&m_history, &QUndoStack::indexChanged, this, &Program::tell);
    connect(&m_history, &QUndoStack::cleanChanged, this, [this](bool clean) { emit modifiedChanged(!clean); });
}

// The history empties itself, and tells of it, when it goes.
Program::~Program() {
    m_history.disconnect();
}

QString Program::refusalOf(const QString& line) {
    if (std::any_of(line.begin(), line.end(), isLineBreak))
        return tr("A line break cannot stand within a program line.");
    if (line.contains(QChar::Null))
        return tr("A null character cannot stand in a program line.");
    return isWhole(line) ? QString() : tr("Half of a character cannot stand in a program line.");
}

bool Program::areTakeable(const QStringList& lines) {
    return std::all_of(lines.begin(), lines.end(), [](const QString& line) { return refusalOf(line).isEmpty(); });
}

bool Program::insert(int row, const QString& line) {
    if (row < 0 || row > count() || !refusalOf(line).isEmpty())
        return false;
    m_history.push(new InsertStep(this, row, line));
    return true;
}

bool Program::replace(int row, const QString& line) {
    if (!hasRow(row) || !refusalOf(line).isEmpty())
        return false;
    if (line != m_lines.at(row))
        m_history.push(new ReplaceStep(this, row, line));
    return true;
}

bool Program::remove(int row) {
    if (!hasRow(row))
        return false;
    m_history.push(new RemoveStep(this, row));
    return true;
}

bool Program::move(int from, int to) {
    if (!hasRow(from) || !hasRow(to))
        return false;
    if (from != to)
        m_history.push(new MoveStep(this, from, to));
    return true;
}

bool Program::replaceAll(const QStringList& lines, const QString& step) {
    if (!areTakeable(lines))
        return false;
    if (lines != m_lines)
        m_history.push(new ReplaceAllStep(this, lines, step));
    return true;
}

bool Program::load(const QStringList& lines) {
    if (!areTakeable(lines))
        return false;
    beginResetModel();
    m_lines = lines;
    endResetModel();
    m_history.clear();
    emit linesChanged();
    return true;
}

int Program::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant Program::data(const QModelIndex& index, int role) const {
    return index.isValid() && role == Qt::DisplayRole ? line(index.row()) : QVariant();
}

void Program::put(int row, const QString& line) {
    beginInsertRows(QModelIndex(), row, row);
    m_lines.insert(row, line);
    endInsertRows();
    touch(row);
}

void Program::take(int row) {
    beginRemoveRows(QModelIndex(), row, row);
    m_lines.removeAt(row);
    endRemoveRows();
    touch(row);
}

void Program::setLine(int row, const QString& line) {
    m_lines[row] = line;
    emit dataChanged(index(row), index(row));
    touch(row);
}

// The model counts the row of the destination as it is before the line is taken out.
void Program::relocate(int from, int to) {
    beginMoveRows(QModelIndex(), from, from, QModelIndex(), to > from ? to + 1 : to);
    m_lines.move(from, to);
    endMoveRows();
    touch(to);
}

void Program::setLines(const QStringList& lines) {
    beginResetModel();
    m_lines = lines;
    endResetModel();
    touch(0);
}

void Program::touch(int row) {
    m_touchedRow = row;
    m_isTouched = true;
}

// The history tells that it is done with a step; before, it must not be given another one.
void Program::tell() {
    if (!m_isTouched)
        return;
    m_isTouched = false;
    emit touched(std::min(m_touchedRow, count() - 1));
    emit linesChanged();
}

} // namespace pendant
