#pragma once

#include "helm/vexmanager.h"

#include <QPointer>
#include <QString>
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
    /// Hides it, and deletes it as soon as no call is in it.
    void leave();

private:
    bool call(const char* name, const std::function<void()>& body);
    bool guard(const std::function<void()>& body, QString* thrown);
    Answer ask(const char* name, bool (helm::BaseContentWidget::*question)());
    void take(helm::BaseContentWidget* widget);
    void report(const QString& what) const;

    QString m_type;
    QPointer<helm::BaseContentWidget> m_widget;
    bool m_hadChildren = false;
    bool m_isLeft = false;
    int m_calls = 0;
};

} // namespace pendant
