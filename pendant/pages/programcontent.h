#pragma once

#include "helm/vexmanager.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <functional>

namespace pendant {

/// The widget that an instruction brings for one line, and the calls into it. What creator and calls throw is reported
/// in the message list under the type's name, and so is a widget that deletes itself.
class ProgramContent : public QWidget {
    Q_OBJECT

public:
    enum class Answer { Yes, No, Failed };

    explicit ProgramContent(const QString& type, QWidget* parent);

    /// Has the widget made. \return false when there is none then, and it has been reported why
    bool open(const helm::WidgetCreator& creator);
    /// \return false when it failed
    bool fillWith(const QString& line);
    Answer checkInsert();
    Answer checkReplace();
    /// \return false, and `line` as it was, when it failed
    bool toLine(QString* line);

    /// Whether the widget can be called: it was made and is still there.
    bool isThere() const;
    /// Puts into the message list that the widget has deleted itself.
    void reportGone() const;
    /// Whether somebody has changed a field of it since it was filled. Nothing is called for that: the fields of Qt are
    /// compared, those that draw themselves are not seen.
    bool isEdited() const { return m_isEdited; }
    /// What the fields hold now counts as what they were filled with.
    void setApplied();
    /// Hides it, and deletes it as soon as no call is in it and no event loop that was begun in it, such as that of a
    /// dialog of its own.
    void leave();

signals:
    /// isEdited() is another now.
    void edited(bool isEdited);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Values = QHash<QWidget*, QVariant>;

    bool isInNestedLoop() const;
    Values values() const;
    void compare();
    void rememberChildren();
    bool call(const char* name, const std::function<void()>& body);
    bool guard(const std::function<void()>& body, QString* thrown);
    Answer ask(const char* name, bool (helm::BaseContentWidget::*question)());
    void take(helm::BaseContentWidget* widget);
    void report(const QString& what) const;

    QString m_type;
    QPointer<helm::BaseContentWidget> m_widget;
    QVector<QPointer<QWidget>> m_children; // that it had when it was made
    Values m_filled;
    QTimer m_compareTimer;
    bool m_isEdited = false;
    bool m_isLeft = false;
    int m_calls = 0;
    int m_loopLevel; // the least at which it was seen: the one to which it belongs
};

} // namespace pendant
