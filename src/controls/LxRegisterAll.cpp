// Calls each control unit's Register(). Every new control unit adds its call here.
#include "lxcomp/DockPanel.h"
#include "lxcomp/LxButtonGroupBox.h"
#include "lxcomp/LxOnOffButton.h"
#include "lxcomp/LxOrigin.h"
#include "lxcomp/LxProgress.h"
#include "lxcomp/LxRegistry.h"
#include "lxcomp/LxTabControl.h"
#include "lxcomp/MenuPanel.h"
#include "lxcomp/UnitFloatingWindow.h"

namespace lx {

void RegisterAllComponents() {
  LxOnOffButton::Register();
  LxButtonGroupBox::Register();
  LxOrigin::Register();
  LxTabControl::Register();
  LxProgress::Register();
  DockPanel::Register();
  MenuPanel::Register();
  UnitFloatingWindow::Register();
}

}  // namespace lx
