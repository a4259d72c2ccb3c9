#pragma once

#include <QPushButton>

namespace pendant {

/// A key that moves something while it is held. Whatever takes it from the finger lets it go: sliding off, hiding or
/// disabling it, another window. Only a new press moves again.
class JogKey : public QPushButton {
    Q_OBJECT

public:
    explicit JogKey(QWidget* parent = nullptr);

signals:
    void held(bool held);

protected:
    bool event(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void letGo();
};

} // namespace pendant
