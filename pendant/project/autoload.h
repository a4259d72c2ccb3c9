#pragma once

#include "followednode.h"

#include <QObject>
#include <QString>

namespace pendant {

/// Which project is opened at the next start: "NAME/FUNCTION", in the data tree under
/// "orca.project.autoload_prj_path". The pendant remembers what stands there, whoever writes it.
class Autoload : public QObject {
    Q_OBJECT

public:
    /// Puts what was remembered into the tree, where that says nothing.
    explicit Autoload(QObject* parent = nullptr);

    /// Empty when nothing is remembered.
    QString path() const;
    void setPath(QObject* sender, const QString& path);

private:
    void listen(brisk::ModuleObject* node);

    FollowedNode m_node;
};

} // namespace pendant
