#pragma once

#include "brisk/export.h"

#include <QJsonValue>
#include <QString>
#include <QWidget>

namespace helm {

/// The widget in which the program editor shows one instruction.
class BRISK_EXPORT BaseContentWidget : public QWidget {
    Q_OBJECT

public:
    explicit BaseContentWidget(QWidget* parent = nullptr);
    ~BaseContentWidget() override;

    /// Shows the program line.
    virtual void FillWith(const QString& line);
    /// The program line that the widget stands for.
    virtual QString ToString();
    virtual QJsonValue ToJsonValue() { return QJsonValue(); }
    /// Whether ToString() may be inserted as a new line.
    virtual bool CheckInsert();
    /// Whether ToString() may replace the line that was filled in.
    virtual bool CheckReplace();
    virtual void RefreshProgramData() {}
    virtual QString GetLabel() { return QString(); }
};

} // namespace helm
