#include "lxcomp/LxRegistry.h"

#include <algorithm>

namespace lx {
namespace {

std::vector<TRegisteredComponent>& Palette() {
  static std::vector<TRegisteredComponent> palette;
  return palette;
}

}  // namespace

void RegisterComponents(const QString& page, const std::vector<TComponentClass>& classes) {
  auto& palette = Palette();
  for (const TComponentClass& cls : classes) {
    const bool known = std::any_of(palette.begin(), palette.end(), [&](const auto& entry) {
      return entry.Class.ClassName == cls.ClassName;
    });
    if (!known) palette.push_back({page, cls});
  }
}

const std::vector<TRegisteredComponent>& RegisteredComponents() {
  return Palette();
}

}  // namespace lx
