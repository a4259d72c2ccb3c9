#pragma once

#include "brisk/export.h"
#include "helm/physicalbutton.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

namespace ot {
namespace gyre {
namespace standin {

struct ButtonPage {
    QPointer<QObject> module;
    QString source; ///< name of the plugin
    QString name;
    QList<helm::PhysicalButton> first;
    QList<helm::PhysicalButton> second;
    QStringList captions;
    bool enabled;
};

/// The pages of physical buttons as the pendant shows them. A page stays when its module goes.
class BRISK_EXPORT ButtonPages : public QObject {
    Q_OBJECT

public:
    static ButtonPages* instance();
    const QList<ButtonPage>& pages() const;
    void put(const ButtonPage& page);
    void enable(QObject* module, const QString& name, bool enable);
    /// Forgets every page.
    void clear();

signals:
    void changed();

private:
    ButtonPages();
    QList<ButtonPage> m_pages;
};

} // namespace standin
} // namespace gyre
} // namespace ot
