#include "helm/vexmanager.h"

namespace helm {

namespace {

// The accessor is inline. Only because this library has a definition of it, too, does the linker export the one in a
// program, so that the program and the plugins it loads meet one registry.
VexManager* (*const emitted)() __attribute__((used)) = &VexManager::getVexManager;

} // namespace

VexManager::VexManager() = default;
VexManager::~VexManager() = default;

} // namespace helm
