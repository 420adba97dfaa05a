#include "optics/poreiaaktinon/Workbench.h"

#include <utility>

namespace lensbench::poreiaaktinon {
namespace {

std::function<Workbench&()>& connected() {
  static std::function<Workbench&()> provider;
  return provider;
}

}  // namespace

void connectWorkbench(std::function<Workbench&()> provider) { connected() = std::move(provider); }
bool workbenchConnected() { return static_cast<bool>(connected()); }
Workbench& workbench() { return connected()(); }

}  // namespace lensbench::poreiaaktinon
