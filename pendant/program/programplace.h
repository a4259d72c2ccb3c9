#pragma once

#include <QCoreApplication>
#include <QString>

namespace pendant {

/// Where a program lies: WORKSPACE/PROJECT/programs/FUNCTION.txt.
class ProgramPlace {
    Q_DECLARE_TR_FUNCTIONS(pendant::ProgramPlace)

public:
    /// That of no project.
    ProgramPlace() : ProgramPlace(QString(), QString(), QString()) {}
    /// \param workspace a folder; relative to the working folder
    /// \param project   names with "/" between them: "demo", "LOCALHOST/demo"
    /// \param function  a name; "main" when it is empty
    ProgramPlace(const QString& workspace, const QString& project, const QString& function);
    /// That of the project in the data tree, in the folder that the setting "workspace" names, by default "workspace".
    static ProgramPlace ofTree();

    /// False when no project is open and when a name would lead out of the workspace.
    bool isValid() const { return m_problem.isEmpty() && !m_file.isEmpty(); }
    /// Why it is not valid, a sentence.
    QString problem() const { return m_problem; }

    QString project() const { return m_project; }
    /// The program's name: the function.
    QString name() const { return m_name; }
    /// The absolute path; empty when it is not valid.
    QString file() const { return m_file; }
    /// The folder of the project; empty when it is not valid.
    QString projectFolder() const;
    /// Where its unsaved changes are kept; empty when it is not valid.
    QString unsavedFile() const;

    bool operator==(const ProgramPlace& other) const;
    bool operator!=(const ProgramPlace& other) const { return !(*this == other); }

private:
    QString m_project;
    QString m_name;
    QString m_file;
    QString m_problem;
};

} // namespace pendant
