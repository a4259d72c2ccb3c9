#pragma once

#include <kite/kite.h>

class ProcedureStore;
class WeldPage;
class WireAndGas;

/// A plugin as one would build it: a page, a status-bar item, two side-bar pages, physical buttons, full screen and a
/// model window.
class WeldPlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit WeldPlugin(QObject* parent);

    void init() override;
    void render() override;
    void idle() override;
    void detach() override;

private:
    void makePage();
    void makeSideBar();
    void makeButtons();
    void toggleFullScreen();
    void changeWire();

    ProcedureStore* m_store;
    WireAndGas* m_wireAndGas;
    WeldPage* m_page = nullptr;
    bool m_full = false;
};
