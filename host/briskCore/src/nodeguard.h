#pragma once

namespace brisk {

class ModuleObject;

/// Tells whether a node outlived what happened while the guard stood. Lives on the stack and allocates nothing, so a
/// write may afford one.
class NodeGuard {
public:
    explicit NodeGuard(const ModuleObject* node);
    ~NodeGuard();
    explicit operator bool() const { return m_node != nullptr; }

    static void forget(const ModuleObject* node);

private:
    NodeGuard(const NodeGuard&) = delete;
    NodeGuard& operator=(const NodeGuard&) = delete;

    const ModuleObject* m_node;
    NodeGuard* m_outer;
};

} // namespace brisk
