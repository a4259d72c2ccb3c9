#pragma once

#include "helm/physicalbutton.h"
#include "style/theme.h"

#include <QAbstractButton>
#include <QString>

namespace pendant {

/// One of the pendant's physical keys. A key that is held is always let go of: also when the finger slides off, when
/// the key gets another button, is disabled, hidden or deleted.
class HardKey : public QAbstractButton {
    Q_OBJECT

public:
    HardKey(const Theme& theme, QWidget* parent);
    ~HardKey() override;

    void setTheme(const Theme& theme);
    /// Puts `button` of the plugin `source` on the key.
    void assign(const helm::PhysicalButton& button, const QString& source);
    /// Leaves the key without a button: drawn, but dead.
    void blank();
    bool isHeld() const { return m_held; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void hold();
    void letGo();
    void drawCap(QPainter& painter, const QRect& cap) const;
    void drawLegend(QPainter& painter, const QRect& cap) const;

    struct Binding {
        helm::PhysicalButton button;
        QString source; ///< name of the plugin
        void call(bool pressed) const;
    };

    Theme m_theme;
    Binding m_bound;
    Binding m_heldBinding; ///< what was pressed, which may no longer be what the key is bound to
    bool m_held = false;
    bool m_pressing = false; ///< the callback is handling the press
};

} // namespace pendant
