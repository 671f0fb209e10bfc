// The palette of the library's controls. Each control unit's Register() adds its controls here,
// and the Qt Designer plugin shows them on its "Quarnel" page.
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace lx {

struct TComponentClass {
  QString ClassName;    // "TLxOrigin"
  QString IncludeFile;  // "lxcomp/LxOrigin.h"
  QString ToolTip;
  std::function<QWidget*(QWidget* parent)> Create;  // null for non-visual components
};

// Adds the classes to the palette page; a class registered twice stays listed once.
void RegisterComponents(const QString& page, const std::vector<TComponentClass>& classes);

struct TRegisteredComponent {
  QString Page;
  TComponentClass Class;
};
const std::vector<TRegisteredComponent>& RegisteredComponents();

// Calls the Register() of every control unit of the library.
void RegisterAllComponents();

}  // namespace lx
