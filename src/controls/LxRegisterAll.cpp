// Calls each control unit's Register(). Every new control unit adds its call here.
#include "lxcomp/LxRegistry.h"

namespace lx {

void RegisterAllComponents() {}

}  // namespace lx
