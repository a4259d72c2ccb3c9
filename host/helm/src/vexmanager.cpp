#include "helm/vexmanager.h"

namespace helm {

VexManager::VexManager() = default;
VexManager::~VexManager() = default;

} // namespace helm
