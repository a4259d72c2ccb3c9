#pragma once

#include "brisk/export.h"
#include "helm/physicalbutton.h"
#include "tarp/bmodule.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Registers a page of physical buttons, enabled, under `pageName` for `module`; a page of that name is replaced.
///
/// \param first  the upper key of each row
/// \param second the lower key of each row
/// \param names  the captions of the rows; a row is there for the longest of the three lists
BRISK_EXPORT void registerPhysicalButtons(tarp::BModule* module, const QString& pageName,
                                          const QList<helm::PhysicalButton>& first,
                                          const QList<helm::PhysicalButton>& second, const QStringList& names);

/// Enables or disables the page `pageName` of `module`. A page that is not registered is passed over.
BRISK_EXPORT void enableRegisterPhysicalButtons(tarp::BModule* module, const QString& pageName, bool enable);
