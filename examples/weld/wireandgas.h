#pragma once

#include <QObject>
#include <QWidget>

class QLabel;
class QTimer;

/// Wire feed and shielding gas while the arc is off: which of them runs, and for how long it has.
class WireAndGas : public QObject {
    Q_OBJECT

public:
    enum Motion { Still, Forward, Back };

    explicit WireAndGas(QObject* parent);

    void feed(Motion motion);
    void openGas(bool open);
    Motion motion() const;
    bool gasOpen() const;
    /// Wire that came out (positive) or went in since the start, in mm, at the inching speed of 50 mm/s.
    double wireMm() const;

signals:
    void changed();

private:
    Motion m_motion = Still;
    bool m_gasOpen = false;
    double m_wireMm = 0.0;
    QTimer* m_clock;
};

/// Side-bar page: what wire and gas are doing.
class WireAndGasPage : public QWidget {
    Q_OBJECT

public:
    explicit WireAndGasPage(WireAndGas* service);

private:
    void showState();

    WireAndGas* m_service;
    QLabel* m_wire;
    QLabel* m_gas;
};
