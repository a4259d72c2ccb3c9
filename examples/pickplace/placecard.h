#pragma once

#include <QGroupBox>

class QLabel;
class QLineEdit;

/// One of the two places: its name, where it is, and whether the robot can be sent there.
class PlaceCard : public QGroupBox {
    Q_OBJECT

public:
    /// \param name what the point is called at first; the names of the widgets begin with it
    PlaceCard(const QString& title, const QString& name);

    QString name() const;
    /// Looks at the point again; others change it too.
    void readAgain();

signals:
    void teachPressed();
    void goPressed();

private:
    QLineEdit* m_name;
    QLabel* m_position;
    QLabel* m_verdict;
};
