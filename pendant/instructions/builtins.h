#pragma once

#include "helm/vexmanager.h"

#include <QCoreApplication>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace pendant {

/// The instructions that the pendant brings itself. They go through the same registry as those of plugins and are
/// treated no better.
class BuiltIns {
    Q_DECLARE_TR_FUNCTIONS(pendant::BuiltIns)

public:
    /// Enters them into the host's registry, before plugins are loaded, so that they stand first. What an object before
    /// has entered stays.
    BuiltIns();

    /// The types that the pendant brings.
    static QStringList types();
    /// Sets titles and descriptions in the language of now. What somebody else has put in their place stays.
    void retranslate();

private:
    struct Instruction {
        QString type;
        QString group;
        QString icon;
        QString pattern;
        QString skeleton;
        QString title;
        QString description;
        helm::WidgetCreator creator;
    };

    using Texts = QVector<QPair<QString, QString>>;

    static QVector<Instruction> instructions();
    static QVector<Instruction> moves();
    static QVector<Instruction> logic();
    static QVector<Instruction> signalsAndNotes();
    static Texts groups();
    static void add(const Instruction& instruction);

    QVector<Instruction> m_entered;
    Texts m_groups;
};

} // namespace pendant
