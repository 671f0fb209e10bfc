#include "DemoRegistry.h"

DemoRegistry& DemoRegistry::Instance() {
  static DemoRegistry registry;
  return registry;
}
