#pragma once

#include "options.h"

namespace pendant {

class Application;

/// Runs the pendant as the command line asks for: until its window is closed or, with a tour, until that is over.
/// \return the exit status of the program
int run(Application& application, const Options& options);

} // namespace pendant
