// A host that uses the installed library through its umbrella header.
#include <lxcomp/LxComp.h>

#include <QApplication>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const QColor red = lx::ToQColor(0x0000ff);
  return red == QColor(255, 0, 0) && lx::MainForm() == nullptr ? 0 : 1;
}
