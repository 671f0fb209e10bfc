// Calls each control unit's Register(). Every new control unit adds its call here.
#include "lxcomp/LxButtonGroupBox.h"
#include "lxcomp/LxOnOffButton.h"
#include "lxcomp/LxOrigin.h"
#include "lxcomp/LxProgress.h"
#include "lxcomp/LxRegistry.h"
#include "lxcomp/LxTabControl.h"

namespace lx {

void RegisterAllComponents() {
  LxOnOffButton::Register();
  LxButtonGroupBox::Register();
  LxOrigin::Register();
  LxTabControl::Register();
  LxProgress::Register();
}

}  // namespace lx
