// The first dialogs in the demo: double-clicking a circle, ring or box opens its dialog and
// applies the record; the "Messages" menu shows every message kind and input box; the gallery
// pictures every box and dialog.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointF>
#include <QPushButton>
#include <QTimer>

#include <cstdint>

#include "DemoHost.h"
#include "DemoRegistry.h"
#include "SampleLayout.h"
#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxDlgBox.h"
#include "lxcomp/LxDlgCancel.h"
#include "lxcomp/LxDlgCircle.h"
#include "lxcomp/LxDlgError.h"
#include "lxcomp/LxDlgInput.h"
#include "lxcomp/LxDlgOverwrite.h"
#include "lxcomp/LxDlgRing.h"
#include "lxcomp/LxProgress.h"

namespace {

QPointF Centre(const SampleObject& object) {
  return object.nodes.empty() ? QPointF() : object.nodes.front();
}

bool EditCircle(DemoHost& host, SampleObject& object) {
  lx::CircleSettings s{Centre(object).x(), Centre(object).y(), object.radius, object.layer,
                       host.Layout().LayerList()};
  if (!lx::DoCircleDlg(&s)) return false;
  object.nodes = {{s.X, s.Y}};
  object.radius = s.Radius;
  object.layer = s.Layer;
  return true;
}

bool EditRing(DemoHost& host, SampleObject& object) {
  lx::RingSettings s{
      Centre(object).x(), Centre(object).y(),       object.radius, object.width, object.segments,
      object.layer,       host.Layout().LayerList()};
  if (!lx::DoRingDlg(&s)) return false;
  object.nodes = {{s.X, s.Y}};
  object.radius = s.Radius;
  object.width = s.Width;
  object.segments = s.Segments;
  object.layer = s.Layer;
  return true;
}

bool EditBox(DemoHost& host, SampleObject& object) {
  lx::BoxSettings s{
      Centre(object).x(), Centre(object).y(),       object.length, object.width, object.angle,
      object.layer,       host.Layout().LayerList()};
  if (!lx::DoBoxDlg(&s)) return false;
  object.nodes = {{s.X, s.Y}};
  object.length = s.Length;
  object.width = s.Width;
  object.angle = s.Angle;
  object.layer = s.Layer;
  return true;
}

QString ResultName(int result) {
  switch (result) {
    case lx::mrOk:
      return QStringLiteral("OK");
    case lx::mrCancel:
      return QStringLiteral("Cancel");
    case lx::mrYes:
      return QStringLiteral("Yes");
    case lx::mrNo:
      return QStringLiteral("No");
    default:
      return QString::number(result);
  }
}

void AddMessage(const QString& text, int kind, const wchar_t* message) {
  DemoRegistry::Instance().Add(
      DemoCommand{QStringLiteral("Messages"), text, [kind, message, text](DemoHost& host) {
                    const int result = lx::ShowK6Message(message, kind, kind == 2 ? 0 : 4040);
                    host.ShowStatus(QStringLiteral("%1: %2").arg(text, ResultName(result)));
                  }});
}

// A pretend script that generates objects until the user asks it to stop.
void RunScript(DemoHost& host) {
  lx::TDlgCancel box(&host);
  std::int64_t objects = 0;
  box.SetObjectCounter(&objects);
  QTimer work;
  QObject::connect(&work, &QTimer::timeout, &box, [&objects] { objects += 17; });
  QObject::connect(&box, &lx::TDlgCancel::OnCancel, &box,
                   [&box] { QTimer::singleShot(600, &box, [&box] { box.done(lx::mrOk); }); });
  work.start(50);
  box.exec();
  host.ShowStatus(QStringLiteral("Script stopped after %1 objects").arg(objects));
}

// A small layer list for the gallery pictures.
const lx::TK5Layer* GalleryLayers() {
  static lx::TK5Layer metal(3, 3, 0, QStringLiteral("Metal 1"), 0xfd8b38, -1, 3, 0, false);
  static lx::TK5Layer poly(2, 2, 0, QStringLiteral("Poly"), 0x3336da, -1, -1, 0, false);
  static lx::TK5Layer active(1, 1, 0, QStringLiteral("Active"), 0x43a02e, -1, 2, 1, false);
  active.Next = &poly;
  poly.Next = &metal;
  return &active;
}

template <class TDlg, class TRecord>
QWidget* GalleryDialog(TRecord record) {
  static TRecord kept;
  kept = record;
  auto* dialog = new TDlg(nullptr);
  dialog->DlgInit(&kept);
  return dialog;
}

QWidget* GalleryInput(bool checkBox, bool combo) {
  auto* box = new lx::TLxDlgInput(nullptr);
  box->SetTitleQuestionHelp(L"New symbol", L"Enter the name of the new symbol:", combo ? 0 : 4100);
  box->EditBox()->setText(QStringLiteral("INV_X1"));
  if (checkBox) {
    box->CB()->setText(QStringLiteral("Open the symbol after creating it"));
    box->CB()->setChecked(true);
    box->CB()->show();
  }
  if (combo) {
    box->EditBox()->hide();
    box->ComboBox()->addItems({QStringLiteral("NAND2"), QStringLiteral("NOR2")});
    box->ComboBox()->show();
    box->CancelButton()->hide();
  }
  box->FormResize();
  return box;
}

}  // namespace

LXDEMO_REGISTER(Dialogs) {
  auto& registry = DemoRegistry::Instance();
  registry.Add(DemoObjectEditor{SampleObject::Circle, EditCircle});
  registry.Add(DemoObjectEditor{SampleObject::Ring, EditRing});
  registry.Add(DemoObjectEditor{SampleObject::Box, EditBox});

  registry.Add(DemoCommand{QStringLiteral("Messages"), QStringLiteral("Error"), [](DemoHost&) {
                             lx::ShowK6Error(L"'12.5mm' is not a valid number", 4040);
                           }});
  AddMessage(QStringLiteral("OK and Cancel"), 0, L"The layout has been changed. Continue?");
  AddMessage(QStringLiteral("Yes and No"), 1, L"Replace the existing layer?");
  AddMessage(QStringLiteral("Yes, No and Cancel"), 2,
             L"Save the changes to the layout before closing it?");
  AddMessage(QStringLiteral("Notice"), 3,
             L"The clipboard holds no node list. Copy a table of x and y values first, one node "
             L"per line, separated by a tab, a comma or a space.");
  registry.Add(
      DemoCommand{QStringLiteral("Messages"), QStringLiteral("Input..."), [](DemoHost& host) {
                    QString name = QStringLiteral("INV_X1");
                    if (lx::ShowK6InputDlg(&name, L"New symbol",
                                           L"Enter the name of the new symbol:", 4100, nullptr))
                      host.ShowStatus(QStringLiteral("Name: %1").arg(name));
                  }});
  registry.Add(DemoCommand{
      QStringLiteral("Messages"), QStringLiteral("Input digits only..."), [](DemoHost& host) {
        QString count = QStringLiteral("10");
        if (lx::ShowK6InputDlg(&count, L"Copies", L"Number of copies (digits only):", 0,
                               L"0123456789"))
          host.ShowStatus(QStringLiteral("Copies: %1").arg(count));
      }});
  registry.Add(DemoCommand{
      QStringLiteral("Messages"), QStringLiteral("Input with check box..."), [](DemoHost& host) {
        QString name = QStringLiteral("INV_X1");
        bool open = true;
        if (lx::ShowK6InputDlgWithCheckBox(&name, &open, L"New symbol",
                                           L"Enter the name of the new symbol:",
                                           L"Open the symbol after creating it", 4100, nullptr))
          host.ShowStatus(QStringLiteral("Name: %1, open: %2").arg(name).arg(open));
      }});
  registry.Add(DemoCommand{
      QStringLiteral("Messages"), QStringLiteral("Choice..."), [](DemoHost& host) {
        QString choice;
        QStringList cells{QStringLiteral("NAND2"), QStringLiteral("NOR2"), QStringLiteral("INV")};
        if (lx::ShowK6InputDlgComboBox(&choice, &cells, L"Replace instance",
                                       L"Choose the new symbol:", 0))
          host.ShowStatus(QStringLiteral("Chosen: %1").arg(choice));
      }});
  registry.Add(DemoCommand{QStringLiteral("Messages"), QStringLiteral("Overwrite symbols..."),
                           [](DemoHost& host) {
                             QStringList names{QStringLiteral("NAND2"), QStringLiteral("PAD_100"),
                                               QStringLiteral("ALIGN_MARK")};
                             host.ShowStatus(ResultName(lx::ShowOverwriteMessage(&names, 4200)));
                           }});
  registry.Add(DemoCommand{QStringLiteral("Messages"), QStringLiteral("Run script..."), RunScript});

  registry.Add(GalleryEntry{QStringLiteral("circle-dialog"), [](QWidget*) {
                              return GalleryDialog<lx::TDlgCircle>(
                                  lx::CircleSettings{15000, 48000, 5000, 2, GalleryLayers()});
                            }});
  registry.Add(GalleryEntry{QStringLiteral("ring-dialog"), [](QWidget*) {
                              return GalleryDialog<lx::TDlgRing>(lx::RingSettings{
                                  85000, 40000, 9000, 3000, 32, 3, GalleryLayers()});
                            }});
  registry.Add(GalleryEntry{QStringLiteral("box-dialog"), [](QWidget*) {
                              return GalleryDialog<lx::TDlgBox>(lx::BoxSettings{
                                  85000, 10000, 16000, 6000, 30, 1, GalleryLayers()});
                            }});
  registry.Add(GalleryEntry{QStringLiteral("error-box"), [](QWidget*) -> QWidget* {
                              return new lx::TLxDlgError(nullptr, L"'12.5mm' is not a valid number",
                                                         -1, 4040);
                            }});
  registry.Add(GalleryEntry{QStringLiteral("message-box-ok-cancel"), [](QWidget*) -> QWidget* {
                              return new lx::TLxDlgError(
                                  nullptr, L"The layout has been changed. Continue?", 0, 0);
                            }});
  registry.Add(GalleryEntry{QStringLiteral("message-box-yes-no"), [](QWidget*) -> QWidget* {
                              return new lx::TLxDlgError(nullptr, L"Replace the existing layer?", 1,
                                                         1234);
                            }});
  registry.Add(GalleryEntry{
      QStringLiteral("message-box-yes-no-cancel-long"), [](QWidget*) -> QWidget* {
        return new lx::TLxDlgError(
            nullptr,
            L"The symbol library could not be saved because the folder is write-protected. "
            L"Save the changes to the layout in another place before closing it? Choosing No "
            L"closes the layout and loses every change made since it was last saved.",
            2, 0);
      }});
  registry.Add(GalleryEntry{QStringLiteral("input-box"),
                            [](QWidget*) { return GalleryInput(false, false); }});
  registry.Add(GalleryEntry{QStringLiteral("input-box-checkbox"),
                            [](QWidget*) { return GalleryInput(true, false); }});
  registry.Add(GalleryEntry{QStringLiteral("input-box-combo"),
                            [](QWidget*) { return GalleryInput(false, true); }});
  registry.Add(GalleryEntry{QStringLiteral("overwrite-box"), [](QWidget*) -> QWidget* {
                              auto* box = new lx::TDlgOverwrite(nullptr);
                              box->SetHelpContext(4200);
                              box->SetNames({QStringLiteral("NAND2"), QStringLiteral("PAD_100"),
                                             QStringLiteral("ALIGN_MARK")});
                              return box;
                            }});
  registry.Add(GalleryEntry{QStringLiteral("cancel-box"), [](QWidget*) -> QWidget* {
                              static std::int64_t objects = 1234;
                              auto* box = new lx::TDlgCancel(nullptr);
                              box->SetObjectCounter(&objects);
                              for (int i = 0; i < 3725; ++i)
                                box->Timer1Timer();
                              return box;
                            }});
  registry.Add(GalleryEntry{QStringLiteral("busy-indicator"), [](QWidget*) -> QWidget* {
                              auto* indicator = new lx::TLxProgress(nullptr);
                              indicator->resize(50, 50);
                              indicator->OnTimer();
                              indicator->OnTimer();
                              return indicator;
                            }});
}
