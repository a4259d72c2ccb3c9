#pragma once

#include "framefixture.h"

#include "controller/io/registers.h"
#include "controller/io/signaltable.h"
#include "frame/pagekeys.h"
#include "pages/iosignalsmodel.h"
#include "pendanttest/robot.h"
#include "state/statemirror.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTableView>

/// The pendant's page of signals before the robot of the default cell, whose clock stands.
struct IoBench {
    IoBench() {
        m("orca.robot")->clear(nullptr, true, true);
        robot.loadDefaultCell();
        robot.connectLinks();
        // No larger than the screen that tests have: a press beside it would not arrive.
        frame.window->resize(1280, 590);
        frame.window->showPage(pendant::pagekeys::io());
        QApplication::setActiveWindow(frame.window.get());
        Frame::settle();
    }
    ~IoBench() { m("orca.robot")->clear(nullptr, true, true); }

    QWidget* page() const { return frame.window->center()->page(pendant::pagekeys::io()); }
    template <typename Widget = QPushButton> Widget* find(const QString& name) const {
        return page()->findChild<Widget*>(name);
    }
    QListView* list() const { return find<QListView>("ioSignals"); }
    QTableView* table() const { return find<QTableView>("ioRegisters"); }
    QWidget* empty() const { return find<QWidget>("emptyState"); }
    controller::SignalTable* signalTable() { return robot.controller()->ioSignals(); }

    void click(const QString& button) {
        Frame::click(find(button));
        robot.settle();
        Frame::settle();
    }
    /// Presses the row of that signal.
    void select(const QString& signal) {
        const QModelIndex index = indexOf(signal);
        list()->scrollTo(index);
        Frame::settle();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualRect(index).center());
        Frame::settle();
    }
    QModelIndex indexOf(const QString& signal) const {
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            const QModelIndex index = list()->model()->index(row, 0);
            if (index.data(pendant::IoSignalsModel::NameRole).toString() == signal)
                return index;
        }
        return QModelIndex();
    }
    QString value(const QString& signal) const {
        return indexOf(signal).data(pendant::IoSignalsModel::ValueRole).toString();
    }
    bool isForced(const QString& signal) const {
        return indexOf(signal).data(pendant::IoSignalsModel::ForcedRole).toBool();
    }
    /// "[Digital inputs 2] a b [Group inputs 1] c".
    QString rows() const {
        QStringList words;
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            const QModelIndex index = list()->model()->index(row, 0);
            const QString count = index.data(pendant::IoSignalsModel::ValueRole).toString();
            const bool isHeading = index.data(pendant::IoSignalsModel::HeadingRole).toBool();
            words << (isHeading ? '[' + index.data().toString() + ' ' + count + ']' : index.data().toString());
        }
        return words.join(' ');
    }

    /// Lets the controller write and the pendant show it.
    void write(const QString& signal, const QVariant& value) {
        signalTable()->write(signal, value);
        robot.settle();
        Frame::settle();
    }
    void setBus(bool up) {
        robot.bus(up);
        Frame::settle();
    }

    pendanttest::Robot robot;
    pendant::StateMirror mirror;
    Frame frame;
};
