#include "briskx/buttonpages.h"

#include <algorithm>

namespace ot {
namespace gyre {
namespace standin {

namespace {

QList<ButtonPage>::iterator find(QList<ButtonPage>& pages, const QObject* module, const QString& name) {
    return std::find_if(pages.begin(), pages.end(),
                        [&](const ButtonPage& page) { return page.module == module && page.name == name; });
}

} // namespace

ButtonPages::ButtonPages() = default;

ButtonPages* ButtonPages::instance() {
    static ButtonPages pages;
    return &pages;
}

const QList<ButtonPage>& ButtonPages::pages() const {
    return m_pages;
}

void ButtonPages::put(const ButtonPage& page) {
    const auto old = find(m_pages, page.module, page.name);
    if (old != m_pages.end())
        *old = page;
    else
        m_pages.append(page);
    emit changed();
}

void ButtonPages::enable(QObject* module, const QString& name, bool enable) {
    const auto page = find(m_pages, module, name);
    if (page == m_pages.end() || page->enabled == enable)
        return;
    page->enabled = enable;
    emit changed();
}

void ButtonPages::clear() {
    m_pages.clear();
    emit changed();
}

} // namespace standin
} // namespace gyre
} // namespace ot
