#pragma once

#include <QGroupBox>

class KeptValues;
class QLabel;
class QPushButton;

/// The kept values, and a button that deletes one of them.
class KeptPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit KeptPanel(KeptValues* values);
    void readAgain();

signals:
    /// What came of a press, a sentence; empty for nothing worth telling.
    void told(const QString& problem, const QString& otherwise);

private:
    void forget();

    KeptValues* m_values;
    QLabel* m_count;
    QLabel* m_last;
    QPushButton* m_forget;
};
