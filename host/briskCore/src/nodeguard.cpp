#include "nodeguard.h"

namespace {

thread_local brisk::NodeGuard* innermost = nullptr;

} // namespace

namespace brisk {

NodeGuard::NodeGuard(const ModuleObject* node) : m_node(node), m_outer(innermost) {
    innermost = this;
}

NodeGuard::~NodeGuard() {
    innermost = m_outer;
}

void NodeGuard::forget(const ModuleObject* node) {
    for (NodeGuard* guard = innermost; guard; guard = guard->m_outer) {
        if (guard->m_node == node)
            guard->m_node = nullptr;
    }
}

} // namespace brisk
