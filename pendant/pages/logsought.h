#pragma once

#include "logview.h"

namespace pendant {

/// The place that somebody went to, for as long as a search may find something nearer to it and nobody has gone on.
struct LogSought {
    LogPlace place; ///< no place for none
    LogPlace top;
    LogPlace current;
    bool isFollowing = false;

    void remember(const LogView& view) {
        top = view.top();
        current = view.current();
        isFollowing = view.isFollowing();
    }
    /// A view that follows goes on by itself.
    bool hasMoved(const LogView& view) const {
        return view.isFollowing() != isFollowing || view.current() != current || (!isFollowing && view.top() != top);
    }
};

} // namespace pendant
