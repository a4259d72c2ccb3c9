#pragma once

#include "app/application.h"
#include "brisk/modulemanager.h"
#include "briskx/buttonpages.h"
#include "frame/pendantwindow.h"
#include "helm/messagelist.h"
#include "pages/ownpages.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// The pendant's window as the program makes it, shown, with empty host lists.
struct Frame {
    Frame() {
        helm::standin::MessageList::instance()->clear();
        ot::gyre::standin::ButtonPages::instance()->clear();
        m(QStringLiteral("gyre.page"))->clear(nullptr, true, true);
        window.reset(new pendant::PendantWindow(pendant::Theme::light()));
        window->resize(1280, 800);
        pages = new pendant::OwnPages(window.get());
        window->show();
        settle();
    }

    /// Lets what was put off for the event loop happen.
    static void settle() { QTest::qWait(1); }

    template <typename Widget = QWidget> Widget* find(const QString& name) const {
        return window->findChild<Widget*>(name);
    }

    static void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    static const QList<helm::standin::Message>& messages() {
        return helm::standin::MessageList::instance()->messages();
    }

    std::unique_ptr<pendant::PendantWindow> window;
    pendant::OwnPages* pages;
};

/// A main() with the pendant's own application object, in a folder that goes with it.
#define PENDANT_TEST_MAIN(Test)                                                                                        \
    int main(int argc, char** argv) {                                                                                  \
        const QTemporaryDir folder;                                                                                    \
        QDir::setCurrent(folder.path());                                                                               \
        pendant::Application application(argc, argv);                                                                  \
        Test test;                                                                                                     \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
