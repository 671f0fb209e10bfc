// lxdemo: a small layout editor built on LxComp.
//   lxdemo                 opens the editor
//   lxdemo --gallery DIR   renders every dialog and control into DIR as PNG files, light and
//                          dark, at scale 1 and 2, without a display
#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTextStream>

#include "DemoHost.h"
#include "Gallery.h"
#include "lxcomp/LxPlatform.h"

namespace {

QString GalleryDir(int argc, char** argv) {
  for (int i = 1; i + 1 < argc; ++i)
    if (QByteArray(argv[i]) == "--gallery") return QString::fromLocal8Bit(argv[i + 1]);
  return {};
}

// The scale-2 pictures need a process of their own: the scale is fixed when the application
// starts.
bool RenderDoubleScale(const char* program, const QString& dir) {
  QProcess child;
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
  env.insert(QStringLiteral("LXDEMO_GALLERY_CHILD"), QStringLiteral("1"));
  child.setProcessEnvironment(env);
  child.setProcessChannelMode(QProcess::ForwardedChannels);
  child.start(QString::fromLocal8Bit(program), {QStringLiteral("--gallery"), dir});
  return child.waitForFinished(300000) && child.exitCode() == 0;
}

}  // namespace

int main(int argc, char** argv) {
  const QString gallery = GalleryDir(argc, argv);
  if (!gallery.isEmpty() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lxdemo"));
  QApplication::setOrganizationName(QStringLiteral("LxComp"));
  if (!gallery.isEmpty()) {
    const int written = RenderGallery(gallery);
    QTextStream(stdout) << "Rendered " << written << " pictures into "
                        << QDir(gallery).absolutePath() << "\n";
    if (qEnvironmentVariableIsEmpty("LXDEMO_GALLERY_CHILD") && !RenderDoubleScale(argv[0], gallery))
      return 1;
    return written > 0 ? 0 : 1;
  }
  DemoHost host;
  lx::SetMainForm(&host);
  host.show();
  return QApplication::exec();
}
