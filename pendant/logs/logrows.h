#pragma once

#include "logplace.h"

namespace pendant {

/// Rows to walk over, each known by the place where it begins. Nobody knows how many there are.
class LogRows {
public:
    virtual ~LogRows() = default;

    /// The first row; end() when there is none.
    virtual LogPlace first() const = 0;
    /// Behind the last row.
    virtual LogPlace end() const = 0;
    /// The row after the one at `row`; end() after the last.
    virtual LogPlace next(const LogPlace& row) const = 0;
    /// The row before the one at `row`, which may be end(); no place before the first.
    virtual LogPlace previous(const LogPlace& row) const = 0;
    /// The row that holds `place`, or else the first after it; end() when there is none.
    virtual LogPlace rowAt(const LogPlace& place) const = 0;

    /// How much stands before `row`, 0 to 1.
    virtual double fractionBefore(const LogPlace& row) const = 0;
    /// The row that has about `fraction` before it.
    virtual LogPlace rowAtFraction(double fraction) const = 0;
};

} // namespace pendant
