// The small controls: a live side panel (origin selector, on/off buttons, a button group of
// speed buttons, a tab control) and gallery pictures of each control in its looks.
#include <QApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "DemoHost.h"
#include "DemoRegistry.h"
#include "lxcomp/LxButtonGroupBox.h"
#include "lxcomp/LxOnOffButton.h"
#include "lxcomp/LxOrigin.h"
#include "lxcomp/LxTabControl.h"

namespace {

constexpr int kSpeedButtonSize = 28;

const char* const kReferenceNames[] = {"top left",    "top middle",    "top right",
                                       "middle left", "centre",        "middle right",
                                       "bottom left", "bottom middle", "bottom right"};

QString ReferenceName(int cell) {
  return cell >= 1 && cell <= 9 ? QString::fromLatin1(kReferenceNames[cell - 1])
                                : QStringLiteral("none (%1)").arg(cell);
}

// A group of four tool speed buttons in a row, the first one down.
lx::TLxButtonGroup* NewToolGroup(QWidget* parent) {
  auto* group = new lx::TLxButtonGroup(parent);
  const QStyle::StandardPixmap icons[] = {QStyle::SP_ArrowUp, QStyle::SP_ArrowRight,
                                          QStyle::SP_ArrowDown, QStyle::SP_ArrowLeft};
  const char* const tips[] = {"North", "East", "South", "West"};
  const int inset = 3;
  for (int i = 0; i < 4; ++i) {
    auto* button = new QToolButton(group);
    button->setObjectName(QString::fromLatin1(tips[i]));
    button->setToolTip(QString::fromLatin1(tips[i]));
    button->setIcon(group->style()->standardIcon(icons[i]));
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);  // the group takes the keys
    button->setGeometry(inset + i * kSpeedButtonSize, inset, kSpeedButtonSize, kSpeedButtonSize);
    button->setChecked(i == 0);
  }
  group->setFixedSize(2 * inset + 4 * kSpeedButtonSize, 2 * inset + kSpeedButtonSize);
  return group;
}

lx::TLxTabControl* NewTabs(QWidget* parent) {
  auto* tabs = new lx::TLxTabControl(parent);
  const QStringList texts = {QStringLiteral("Layers"), QStringLiteral("Objects"),
                             QStringLiteral("Symbols")};
  tabs->SetTabs(&texts);
  tabs->SetTabIndex(0);
  return tabs;
}

lx::TLxOnOffButton* NewOnOff(const QString& caption, bool down, QWidget* parent) {
  auto* button = new lx::TLxOnOffButton(parent);
  button->SetCaption(caption);
  button->SetDown(down);
  button->setMinimumSize(button->sizeHint());
  return button;
}

QWidget* CreatePanel(DemoHost& host, QWidget* parent) {
  auto* panel = new QWidget(parent);
  auto* form = new QFormLayout(panel);

  auto* origin = new lx::TLxOrigin(panel);
  origin->setFixedSize(origin->sizeHint());
  origin->SetSelectedButton(5);
  auto* originText = new QLabel(ReferenceName(5), panel);
  QObject::connect(origin, &lx::TLxOrigin::OnChange, panel, [origin, originText, &host] {
    originText->setText(ReferenceName(origin->GetSelectedButton()));
    host.ShowStatus(QStringLiteral("Reference point %1").arg(origin->GetSelectedButton()));
  });
  auto* originRow = new QHBoxLayout;
  originRow->addWidget(origin);
  originRow->addWidget(originText, 1);
  form->addRow(QStringLiteral("Origin"), originRow);

  auto* switches = new QHBoxLayout;
  for (const char* caption : {"Snap", "Grid", "Ortho"})
    switches->addWidget(NewOnOff(QString::fromLatin1(caption), caption[0] == 'G', panel));
  switches->addStretch(1);
  form->addRow(QStringLiteral("Switches"), switches);

  auto* group = NewToolGroup(panel);
  auto* direction = new QLabel(QStringLiteral("North"), panel);
  QObject::connect(group, &lx::TLxButtonGroup::OnChange, panel,
                   [direction](QObject* sender) { direction->setText(sender->objectName()); });
  for (QToolButton* button : group->findChildren<QToolButton*>())
    QObject::connect(button, &QToolButton::clicked, direction,
                     [direction, button] { direction->setText(button->objectName()); });
  auto* groupRow = new QHBoxLayout;
  groupRow->addWidget(group);
  groupRow->addWidget(direction, 1);
  form->addRow(QStringLiteral("Direction"), groupRow);

  auto* tabs = NewTabs(panel);
  auto* page = new QLabel(QStringLiteral("Layers"), panel);
  QObject::connect(tabs, &lx::TLxTabControl::OnChange, panel,
                   [tabs, page] { page->setText(tabs->GetTabs().value(tabs->GetTabIndex())); });
  form->addRow(QStringLiteral("View"), tabs);
  form->addRow(QStringLiteral("Page"), page);
  return panel;
}

enum class Look { Normal, Hot, Down, Focused, Disabled };
const std::pair<Look, const char*> kLooks[] = {{Look::Normal, "Normal"},
                                               {Look::Hot, "Hot"},
                                               {Look::Down, "Down"},
                                               {Look::Focused, "Focused"},
                                               {Look::Disabled, "Disabled"}};

// One row per look: its name and the control built for it.
QWidget* LookSheet(const std::function<QWidget*(Look, QWidget*)>& make) {
  auto* sheet = new QWidget;
  auto* grid = new QGridLayout(sheet);
  grid->setHorizontalSpacing(16);
  int row = 0;
  for (const auto& [look, name] : kLooks) {
    grid->addWidget(new QLabel(QString::fromLatin1(name), sheet), row, 0);
    grid->addWidget(make(look, sheet), row++, 1, Qt::AlignLeft);
  }
  return sheet;
}

QWidget* OriginLook(Look look, QWidget* parent) {
  auto* origin = new lx::TLxOrigin(parent);
  origin->setFixedSize(origin->sizeHint());
  origin->SetSelectedButton(look == Look::Normal ? 1 : 5);
  if (look == Look::Hot) origin->MouseMove({}, 60, 10);
  if (look == Look::Down) {
    origin->MouseMove({}, 60, 60);
    origin->MouseDown(Qt::LeftButton, {}, 60, 60);
    origin->clearFocus();
  }
  if (look == Look::Focused) origin->setFocus();
  if (look == Look::Disabled) origin->setEnabled(false);
  return origin;
}

QWidget* OnOffLook(Look look, QWidget* parent) {
  auto* pair = new QWidget(parent);
  auto* row = new QHBoxLayout(pair);
  row->setContentsMargins(0, 0, 0, 0);
  for (bool down : {false, true}) {
    auto* button = NewOnOff(down ? QStringLiteral("Grid") : QStringLiteral("Snap"), down, pair);
    button->setFixedSize(72, 28);
    if (look == Look::Hot) button->MouseMove({}, 5, 5);
    if (look == Look::Down && !down) button->SetDown(true);
    if (look == Look::Focused && down) button->setFocus();
    if (look == Look::Disabled) button->setEnabled(false);
    row->addWidget(button);
  }
  return pair;
}

QWidget* GroupLook(Look look, QWidget* parent) {
  lx::TLxButtonGroup* group = NewToolGroup(parent);
  const QList<QToolButton*> buttons = group->findChildren<QToolButton*>();
  if (look == Look::Hot) group->SetHot(true);
  if (look == Look::Down) buttons.value(2)->setChecked(true);
  if (look == Look::Focused) group->setFocus();
  if (look == Look::Disabled) group->setEnabled(false);
  return group;
}

QWidget* TabLook(Look look, QWidget* parent) {
  lx::TLxTabControl* tabs = NewTabs(parent);
  tabs->setFixedWidth(240);
  if (look == Look::Hot) tabs->MouseMove({}, tabs->GetTabWidths().front() + 4, 5);
  if (look == Look::Down) tabs->SetTabIndex(1);
  if (look == Look::Focused) tabs->setFocus();
  if (look == Look::Disabled) tabs->setEnabled(false);
  return tabs;
}

}  // namespace

LXDEMO_REGISTER(Controls) {
  DemoRegistry& registry = DemoRegistry::Instance();
  registry.Add(DemoPanel{QStringLiteral("Controls"), CreatePanel});
  registry.Add(GalleryEntry{QStringLiteral("origin-selector"),
                            [](QWidget*) { return LookSheet(OriginLook); }});
  registry.Add(
      GalleryEntry{QStringLiteral("onoff-button"), [](QWidget*) { return LookSheet(OnOffLook); }});
  registry.Add(
      GalleryEntry{QStringLiteral("button-group"), [](QWidget*) { return LookSheet(GroupLook); }});
  registry.Add(
      GalleryEntry{QStringLiteral("tab-control"), [](QWidget*) { return LookSheet(TabLook); }});
}
