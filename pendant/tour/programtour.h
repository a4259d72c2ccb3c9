#pragma once

#include "pages/programpage.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>

namespace pendant {

/// Writes a line of each instruction that a plugin brings, as a person would: chooses it, fills in what is refused
/// empty, inserts it, edits it, takes that back and saves. The program is afterwards as it was.
class ProgramTour {
    Q_DECLARE_TR_FUNCTIONS(pendant::ProgramTour)

public:
    /// A plugin that brings more is shown in part.
    static const int mostTypes = 8;
    /// Something was done, a sentence; and what a picture of it is called.
    using Step = std::function<void(const QString& text, const QString& subject)>;

    /// \param page is shown and outlives the tour
    explicit ProgramTour(ProgramPage* page);

    /// The instructions of plugins.
    QStringList types() const;
    void walk(const Step& step);

private:
    bool choose(const QString& type);
    void write(const QString& type, const Step& step);
    bool insert(const QString& type, const Step& step);
    void edit(const QString& type, const Step& step);
    void save(const QString& type, const Step& step);
    void restore(const QStringList& lines);
    void fillIn();
    void changeOne();
    bool press(const QString& button);
    QWidget* content() const;

    ProgramPage* m_page;
    bool m_saves = true;
};

} // namespace pendant
