#pragma once

#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "kite/kitemodule.h"
#include "kite/pluginfunctions.h"

#include <QScopedPointer>
#include <QTest>
#include <QWidget>

#include <memory>

/// What each case of a test of the functions that address a plugin by name begins with: a frame and the module "weld",
/// set up.
class FunctionsTest : public QObject {
    Q_OBJECT

protected:
    struct Pendant {
        pendanttest::WorkingFolder folder;
        pendanttest::LogWatch log;
        pendanttest::Frame frame;
    };

    Pendant& pendant() { return *m_pendant; }
    kite::Kite& module() { return *m_module; }
    void removeModule() { m_module.reset(); }

private slots:
    void init() {
        m_pendant.reset(new Pendant);
        m_module.reset(new kite::Kite("weld", nullptr));
        m_module->setup();
    }
    void cleanup() {
        m_module.reset();
        pendanttest::resetHost();
        m_pendant.reset();
    }

private:
    QScopedPointer<Pendant> m_pendant;
    std::unique_ptr<kite::Kite> m_module;
};
