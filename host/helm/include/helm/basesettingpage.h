#pragma once

#include "brisk/export.h"
#include "tarp/bmodule.h"

#include <QString>
#include <QWidget>

#include <memory>

namespace helm {

/// A page of the pendant: a title above a content area.
class BRISK_EXPORT BaseSettingPage : public tarp::BModule {
    Q_OBJECT

public:
    /// \param name   the type of the module
    /// \param title  what the title shows
    /// \param parent the widget in which the page stands
    /// \param owner  the QObject parent of the page
    BaseSettingPage(const QString& name, const QString& title, QWidget* parent, QObject* owner);
    /// Deletes the page's widget with all that is in it.
    ~BaseSettingPage() override;

    QString name() const override;
    /// The page itself; null once it has been deleted from outside.
    QWidget* wgt() override;
    QWidget* titleWgt() const;
    QWidget* contentWgt() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace helm
