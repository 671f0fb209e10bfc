// What each demo piece contributes: commands in the main window's menus, side panels, and
// pictures for the gallery. A piece registers itself from its own file with LXDEMO_REGISTER.
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;
class DemoHost;
struct SampleObject;

struct DemoCommand {
  QString menu;  // "Objects", "Messages", ...
  QString text;  // the menu item
  std::function<void(DemoHost& host)> run;
};

struct DemoPanel {
  QString title;
  std::function<QWidget*(DemoHost& host, QWidget* parent)> create;
};

// Edits one kind of object when the user double-clicks it; returns true when it changed.
struct DemoObjectEditor {
  int kind;  // SampleObject::Kind
  std::function<bool(DemoHost& host, SampleObject& object)> edit;
};

// One picture of the gallery: `create` builds the widget (shown, not executed, so a modal
// dialog renders too); the gallery renders it in a light and a dark palette.
struct GalleryEntry {
  QString name;  // file stem, "circle-dialog"
  std::function<QWidget*(QWidget* parent)> create;
};

class DemoRegistry {
 public:
  static DemoRegistry& Instance();
  void Add(DemoCommand command) { commands_.push_back(std::move(command)); }
  void Add(DemoPanel panel) { panels_.push_back(std::move(panel)); }
  void Add(GalleryEntry entry) { gallery_.push_back(std::move(entry)); }
  void Add(DemoObjectEditor editor) { editors_.push_back(std::move(editor)); }
  const std::vector<DemoObjectEditor>& Editors() const { return editors_; }
  const std::vector<DemoCommand>& Commands() const { return commands_; }
  const std::vector<DemoPanel>& Panels() const { return panels_; }
  const std::vector<GalleryEntry>& Gallery() const { return gallery_; }

 private:
  std::vector<DemoCommand> commands_;
  std::vector<DemoPanel> panels_;
  std::vector<GalleryEntry> gallery_;
  std::vector<DemoObjectEditor> editors_;
};

// Runs `body` at start-up to register a piece: LXDEMO_REGISTER(Calculator) { ... }
#define LXDEMO_REGISTER(name)                                       \
  static void RegisterDemo##name();                                 \
  namespace {                                                       \
  const bool demo##name##Registered = (RegisterDemo##name(), true); \
  }                                                                 \
  static void RegisterDemo##name()
