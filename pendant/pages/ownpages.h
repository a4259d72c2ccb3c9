#pragma once

#include "brisk/moduleobject.h"
#include "instructions/builtins.h"

#include <QList>
#include <QObject>
#include <QPointer>

namespace pendant {

class Page;
class PendantWindow;
class ProgramPage;
class SettingsPage;
class StartPage;

/// The pendant's own pages in the centre, with their navigation entries, and the page group of the plugins.
class OwnPages : public QObject {
    Q_OBJECT

public:
    explicit OwnPages(PendantWindow* window);

    ProgramPage* program() const { return m_program; }
    StartPage* start() const { return m_start; }
    SettingsPage* settings() const { return m_settings; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void add(const QString& key, const QString& icon, Page* page);
    void retranslate();

    PendantWindow* m_window;
    BuiltIns m_builtIns; // before the page that lists them
    StartPage* m_start;
    ProgramPage* m_program;
    SettingsPage* m_settings;
    QList<QPointer<brisk::ModuleObject>> m_entries; ///< in the order of their titles
};

} // namespace pendant
