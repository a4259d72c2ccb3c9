#pragma once

/// Every public header of Kite.

#include "kite/export.h"
#include "kite/interfacemanager.h"
#include "kite/interfaces.h"
#include "kite/kitemodule.h"
#include "kite/log.h"
#include "kite/logfilemanager.h"
#include "kite/logline.h"
#include "kite/logtime.h"
#include "kite/logvalue.h"
#include "kite/physicalbutton.h"
#include "kite/plugin.h"
#include "kite/pluginbase.h"
#include "kite/pluginfunctions.h"
#include "kite/pluginregister.h"
#include "kite/pluginsettingpage.h"
#include "kite/subscription.h"
#include "kite/throwlevel.h"
#include "kite/vexbasewidget.h"
#include "kite/vexcontentbase.h"
#include "kite/vexmanager.h"
