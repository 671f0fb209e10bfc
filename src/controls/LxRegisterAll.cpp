// Calls each control unit's Register(). Every new control unit adds its call here.
#include "lxcomp/LxProgress.h"
#include "lxcomp/LxRegistry.h"

namespace lx {

void RegisterAllComponents() {
  LxProgress::Register();
}

}  // namespace lx
