#pragma once

#include <QObject>

#include <memory>

namespace pendant {

class DeveloperDock;
class PendantWindow;

/// Opens and closes the developer dock for the pendant's window. The dock is made when it is first opened.
class DockSwitch : public QObject {
    Q_OBJECT

public:
    explicit DockSwitch(PendantWindow* window);
    ~DockSwitch() override;

    /// Null until it was opened for the first time.
    DeveloperDock* dock() const { return m_dock.get(); }
    bool isOpen() const;
    /// Opens the dock beside the pendant, or where it stood last.
    void open();
    void close();
    void toggle();
    /// Lets the dock look at the pendant before it is opened.
    void watch();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void make();
    void place();

    PendantWindow* m_window;
    std::unique_ptr<DeveloperDock> m_dock;
};

} // namespace pendant
