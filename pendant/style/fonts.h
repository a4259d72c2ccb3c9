#pragma once

#include <QFont>

namespace pendant {

/// The pendant's text font in body size. Chinese characters and what the family lacks come from its substitutes.
QFont bodyFont();

} // namespace pendant
