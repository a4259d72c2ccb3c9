#pragma once

#include <QEvent>
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace pendant {

/// Keeps the pendant's style sheet on what a plugin takes off its page and makes a window of its own, such as a page
/// that goes full screen, for as long as that is a window. What was shown without the style sheet stays without.
class WindowDresser {
public:
    /// To be told of every event before it is delivered.
    void watch(QObject* receiver, const QEvent* event);
    /// Dresses the windows anew; the style sheet has changed.
    void redress();

private:
    void parentChanged(QWidget* widget);
    void dress(QWidget* window);

    QPointer<QWidget> m_leaving;        ///< stands on a dressed page and is about to change its parent
    QList<QPointer<QWidget>> m_windows; ///< have left a dressed page
    QString m_sheet;                    ///< that they were dressed with
};

} // namespace pendant
