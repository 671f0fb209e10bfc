// Calls each control unit's Register(). Every new control unit adds its call here.
#include "lxcomp/DockPanel.h"
#include "lxcomp/LxRegistry.h"
#include "lxcomp/MenuPanel.h"
#include "lxcomp/UnitFloatingWindow.h"

namespace lx {

void RegisterAllComponents() {
  DockPanel::Register();
  MenuPanel::Register();
  UnitFloatingWindow::Register();
}

}  // namespace lx
