#pragma once

#include "app/application.h"
#include "app/pendantrun.h"
#include "frame/pagekeys.h"
#include "pendanttest/logwatch.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QStringList>
#include <QVector>

/// The pendant as the program starts it, in the current folder, with the plugins of one folder and the default cell;
/// and what a person does at it. It watches the log and the message list: what comes there unexpected is a problem.
class WholeSession {
public:
    using Place = QVector<double>;

    WholeSession(pendant::Application& application, const QString& pluginFolder);

    /// Lets happen what is put off, and what that puts off.
    static void settle();
    /// Moves the controller's clock on.
    void step(qint64 ms);
    /// From here on the controller's clock moves by step() alone.
    void holdClock();
    void setLinks(bool up);

    /// @name At the pendant
    /// @{

    void show(const QString& page);
    /// Shows the page of a plugin.
    void open(const QString& plugin);
    /// A widget of that name that is on the screen; null when there is none.
    template <typename Widget = QWidget> Widget* find(const QString& name) {
        for (Widget* found : pendant.window().findChildren<Widget*>(name)) {
            if (found->isVisible())
                return found;
        }
        return nullptr;
    }
    /// Clicks a button; false when it is not on the screen or disabled.
    bool press(const QString& button);
    /// Clicks the row that shows that text; false when there is none.
    bool choose(const QString& list, const QString& row);
    QStringList rows(const QString& list);
    QString text(const QString& label);
    /// Holds a jog key at 5 % until `reached`, or a row of ticks is over.
    template <typename Reached> void jog(const QString& key, Reached reached) {
        for (int tick = 0; tick < mostJogTicks && !reached(); ++tick) {
            // It is let go and pressed anew before the robot stops because nobody renews the command.
            if (tick % ticksOfAPress == 0)
                renew(key);
            step(controller::Clock::tickMs);
        }
        renew(QString());
    }

    /// @}

    /// x, y and z of the tool in its work object in mm, as the tree has them.
    static Place here();
    static Place placeOf(const QString& point);
    static double distance(const Place& one, const Place& other);
    bool isMoving();
    void untilItStands();

    /// What plugins still have after the end: subscriptions, modules, navigation entries; a sentence each.
    QStringList leftBehind();

    pendanttest::LogWatch log;
    pendant::PendantRun pendant;

private:
    static const int mostJogTicks = 3000;
    static const int ticksOfAPress = 20;

    void renew(const QString& key);

    QString m_heldKey;
};
