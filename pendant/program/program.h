#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <QUndoStack>

namespace pendant {

/// A robot program: lines of text, a row each, and the history of their changes. Every change can be undone.
///
/// A line is any text that survives the way to the file and back: refusalOf() says what does not. User-interface thread
/// only. Do not change the program out of a slot of the model's own signals (rowsInserted and the like); out of
/// touched() and modifiedChanged() it may be changed.
class Program : public QAbstractListModel {
    Q_OBJECT

public:
    explicit Program(QObject* parent = nullptr);
    ~Program() override;

    QStringList lines() const { return m_lines; }
    /// The line of a row; empty for a row that is not there.
    QString line(int row) const { return m_lines.value(row); }
    int count() const { return m_lines.size(); }
    /// Why no program can hold `line`, in words; empty when it can.
    static QString refusalOf(const QString& line);

    /// @name Changes
    /// Each is one step of the history. False, and nothing happens, for a row that is not there and a line that is
    /// refused. True, and no step, when all would be as it is.
    /// @{

    /// Before `row`, from 0 to count().
    bool insert(int row, const QString& line);
    bool replace(int row, const QString& line);
    bool remove(int row);
    /// Takes the line of row `from` to row `to`, counted when it is there.
    bool move(int from, int to);
    /// Takes `lines` in the place of all. The model is reset.
    /// \param step what the history calls it, translated
    bool replaceAll(const QStringList& lines, const QString& step);
    /// @}

    /// The texts of its steps are translated. Its clean state is the saved one.
    QUndoStack* undoStack() { return &m_history; }
    /// Another program, as saved, without a history. False, and nothing happens, when a line is refused.
    bool load(const QStringList& lines);
    bool isModified() const { return !m_history.isClean(); }
    /// What is in it now is what the file holds.
    void setSaved() { m_history.setClean(); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The line, for Qt::DisplayRole.
    QVariant data(const QModelIndex& index, int role) const override;

signals:
    /// A change was made, undone or made again: the row that shows it best, -1 when no line is left. It is the row of
    /// the line that came or changed, else of the one that stands in the place of what went.
    void touched(int row);
    void modifiedChanged(bool modified);
    /// The program is another now than a moment ago: load() or a change.
    void linesChanged();

private:
    friend class InsertStep;
    friend class RemoveStep;
    friend class ReplaceStep;
    friend class MoveStep;
    friend class ReplaceAllStep;

    bool hasRow(int row) const { return row >= 0 && row < m_lines.size(); }
    static bool areTakeable(const QStringList& lines);
    void put(int row, const QString& line);
    void take(int row);
    void setLine(int row, const QString& line);
    void relocate(int from, int to);
    void setLines(const QStringList& lines);
    void touch(int row);
    void tell();

    QStringList m_lines;
    QUndoStack m_history;
    int m_touchedRow = -1;
    bool m_isTouched = false;
};

} // namespace pendant
