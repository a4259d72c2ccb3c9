#pragma once

/// Every public header of Kite.

#include "kite/export.h"
#include "kite/interfaces.h"
#include "kite/kitemodule.h"
#include "kite/plugin.h"
#include "kite/pluginbase.h"
#include "kite/pluginregister.h"
#include "kite/pluginsettingpage.h"
#include "kite/throwlevel.h"
