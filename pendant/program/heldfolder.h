#pragma once

#include <QString>

namespace pendant {

/// A folder that is known again: one that is made anew under the same name is another one.
class HeldFolder {
public:
    HeldFolder() = default;
    ~HeldFolder() { letGo(); }
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;

    /// Lets go of the one before. Holds nothing when no folder is there.
    void hold(const QString& path);
    /// A folder is held, and under its name stands nothing, or something else.
    bool isGone() const;
    /// A folder is held, and under its name stands another one.
    bool isReplaced() const;

private:
    void letGo();

    QString m_path;
    int m_descriptor = -1;
};

} // namespace pendant
