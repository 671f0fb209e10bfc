// Layers in the demo: a side panel that lists the sample layout's layers and opens the layer
// settings of the one chosen, commands that pick a layer and a colour, and gallery pictures of
// the layer dialogs, the colour popup and the style menus.
#include <QEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>
#include <vector>

#include "DemoHost.h"
#include "DemoRegistry.h"
#include "LayoutCanvas.h"
#include "SampleLayout.h"
#include "lxcomp/LxColorPopup.h"
#include "lxcomp/LxDlgColorSelect.h"
#include "lxcomp/LxDlgLayerSettings.h"
#include "lxcomp/LxDlgSelectLayer.h"

namespace {

QIcon Swatch(const lx::TK5Layer& layer) {
  QImage image(22, 16, QImage::Format_RGB32);
  QImage mask(22, 16, QImage::Format_RGB32);
  layer.DrawBitmap(&image, &mask);
  return QIcon(QPixmap::fromImage(image.scaled(44, 32)));
}

QString LayerText(const lx::TK5Layer& layer) {
  return QStringLiteral("%1   (%2, L%3 D%4)")
      .arg(layer.LongName, layer.ShortName)
      .arg(layer.Index)
      .arg(layer.Datatype);
}

// The canvas background decides how the example mixes colours.
bool BlackBackground(DemoHost& host) {
  return !lx::IsLightColor(lx::FromQColor(host.Canvas()->palette().color(QPalette::Base)));
}

// The sample layer keeps the name and colour of its record, for the rest of the demo.
void FollowRecord(SampleLayout& layout, const lx::TK5Layer& record) {
  for (SampleLayer& layer : layout.Layers()) {
    if (layer.number != record.Number) continue;
    layer.name = record.LongName;
    layer.color = lx::ToQColor(record.FillColor);
  }
}

bool EditLayer(DemoHost& host, lx::TK5Layer* layer) {
  if (!layer) return false;
  lx::LayerSettings settings{BlackBackground(host), layer, host.Layout().LayerList()};
  if (!lx::DoLayerSettingsDlg(&settings)) return false;
  FollowRecord(host.Layout(), *layer);
  host.LayoutChanged();
  host.ShowStatus(QStringLiteral("Layer \"%1\" changed").arg(layer->LongName));
  return true;
}

lx::TK5Layer* NthLayer(SampleLayout& layout, int row) {
  lx::TK5Layer* layer = layout.LayerList();
  for (int i = 0; layer && i < row; ++i)
    layer = layer->Next;
  return layer;
}

// The "Layers" panel: one entry per layer; activating one opens its settings.
class LayersPanel : public QWidget {
 public:
  LayersPanel(DemoHost& host, QWidget* parent) : QWidget(parent), host_(host) {
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("LayerList"));
    list_->setIconSize(QSize(44, 32));
    auto* edit = new QPushButton(QStringLiteral("Properties..."), this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_);
    layout->addWidget(edit);
    connect(list_, &QListWidget::itemActivated, this, [this] { EditCurrent(); });
    connect(edit, &QPushButton::clicked, this, [this] { EditCurrent(); });
    Refill();
  }

 protected:
  // Layers may have been changed through the menu meanwhile.
  void enterEvent(QEnterEvent*) override { Refill(); }

 private:
  void Refill() {
    const int row = list_->currentRow();
    list_->clear();
    for (const lx::TK5Layer* layer = host_.Layout().LayerList(); layer; layer = layer->Next)
      list_->addItem(new QListWidgetItem(Swatch(*layer), LayerText(*layer)));
    list_->setCurrentRow(std::max(0, row));
  }
  void EditCurrent() {
    if (EditLayer(host_, NthLayer(host_.Layout(), list_->currentRow()))) Refill();
  }
  DemoHost& host_;
  QListWidget* list_ = nullptr;
};

// A layer list that lives as long as the gallery needs it.
lx::TK5Layer* GalleryLayers() {
  static std::vector<std::unique_ptr<lx::TK5Layer>> layers;
  if (layers.empty()) {
    layers.push_back(std::make_unique<lx::TK5Layer>(1, 1, 0, "Active", 0x43a02e, -1, 2, 0));
    layers.push_back(std::make_unique<lx::TK5Layer>(2, 2, 0, "Poly", 0x3336da, 0x202080, 5, 1));
    layers.push_back(std::make_unique<lx::TK5Layer>(3, 3, 0, "Metal 1", 0xfd8b38, -1, -1, 0));
    layers.push_back(std::make_unique<lx::TK5Layer>(4, 4, 2, "Via", 0xf771a3, -1, 4, 0));
    for (size_t i = 1; i < layers.size(); ++i)
      layers[i - 1]->Next = layers[i].get();
  }
  return layers.front().get();
}

QWidget* LayerSettingsPicture(int page) {
  static lx::LayerSettings settings{false, nullptr, nullptr};
  settings = {false, GalleryLayers()->Next, GalleryLayers()};
  auto* dialog = new lx::TDlgLayerSettings(nullptr);
  dialog->DlgInit(&settings);
  dialog->findChild<QTabWidget*>(QStringLiteral("PageControl1"))->setCurrentIndex(page);
  return dialog;
}

// A style menu as it drops down, with one item under the mouse.
QWidget* StyleMenuPicture(bool fills) {
  lx::TDlgLayerSettings dialog(nullptr);
  QMenu* menu = fills ? dialog.PopupFillStyles() : dialog.PopupLineStyles();
  menu->popup(QPoint(0, 0));
  menu->setActiveAction(menu->actions().value(2));
  const QPixmap picture = menu->grab();
  menu->hide();
  auto* label = new QLabel;
  label->setPixmap(picture);
  label->setFixedSize(picture.deviceIndependentSize().toSize());
  return label;
}

}  // namespace

LXDEMO_REGISTER(Layers) {
  auto& registry = DemoRegistry::Instance();
  registry.Add(DemoPanel{QStringLiteral("Layers"), [](DemoHost& host, QWidget* parent) {
                           return new LayersPanel(host, parent);
                         }});
  registry.Add(
      DemoCommand{QStringLiteral("Layers"), QStringLiteral("Change layer..."), [](DemoHost& host) {
                    const int number = lx::DoSelectLayerDlg(host.Layout().LayerList(), 2, nullptr);
                    host.ShowStatus(number < 0 ? QStringLiteral("No layer chosen")
                                               : QStringLiteral("Layer %1 chosen").arg(number));
                  }});
  registry.Add(DemoCommand{
      QStringLiteral("Layers"), QStringLiteral("Layer properties..."), [](DemoHost& host) {
        const int number = lx::DoSelectLayerDlg(host.Layout().LayerList(), 1, L"Edit which layer?");
        for (lx::TK5Layer* layer = host.Layout().LayerList(); layer; layer = layer->Next)
          if (layer->Number == number) EditLayer(host, layer);
      }});
  registry.Add(
      DemoCommand{QStringLiteral("Layers"), QStringLiteral("Select color..."), [](DemoHost& host) {
                    static lx::TColor colour = 0x3366cc;
                    colour = lx::DoSelectColorDlg(colour, nullptr, 1700);
                    host.ShowStatus(QStringLiteral("Colour: red %1, green %2, blue %3")
                                        .arg(colour & 0xff)
                                        .arg((colour >> 8) & 0xff)
                                        .arg((colour >> 16) & 0xff));
                  }});

  registry.Add(GalleryEntry{QStringLiteral("layer-settings-basic"),
                            [](QWidget*) { return LayerSettingsPicture(0); }});
  registry.Add(GalleryEntry{QStringLiteral("layer-settings-advanced"),
                            [](QWidget*) { return LayerSettingsPicture(1); }});
  registry.Add(GalleryEntry{QStringLiteral("select-layer-dialog"), [](QWidget*) -> QWidget* {
                              static int number = 3;
                              return new lx::TLxDlgSelectLayer(nullptr, GalleryLayers(), &number);
                            }});
  registry.Add(GalleryEntry{QStringLiteral("color-select-dialog"), [](QWidget*) -> QWidget* {
                              static lx::TColor colour = 0x2e8bd6;
                              return new lx::TLxDlgColorSelect(nullptr, &colour, 1700);
                            }});
  registry.Add(GalleryEntry{QStringLiteral("color-popup"), [](QWidget*) -> QWidget* {
                              return new lx::TLxColorPopup(nullptr, nullptr);
                            }});
  registry.Add(GalleryEntry{QStringLiteral("fill-style-menu"),
                            [](QWidget*) { return StyleMenuPicture(true); }});
  registry.Add(GalleryEntry{QStringLiteral("line-style-menu"),
                            [](QWidget*) { return StyleMenuPicture(false); }});
}
