// The common part of the dialogs that edit an object's nodes in a table (polygons, wires): the
// table over the dialog's own copy of the nodes, its buttons, and the clipboard watch.
#pragma once

#include <cstdint>

#include "lxcomp/LxDlgBase.h"

class QAbstractButton;
class QTableView;

namespace lx {

class TNodeTableEditor;

class TLxDlgNodeTable : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TLxDlgNodeTable(QWidget* owner = nullptr);
  ~TLxDlgNodeTable() override;

  // The paste button is enabled while the clipboard's text starts with a readable node.
  void CheckClipboard();
  void WMClipboard();

  // The table's texts and edit steps, by grid row (0 the header, 1 to count the nodes).
  QString AdvGridGetDisplText(int col, int row) const;
  QString AdvGridGetEditText(int col, int row);
  void AdvGridEditChange(const QString& value);
  void AdvGridEditCellDone();
  void AdvGridEditingDone();
  void AdvGridResize();

  void ButtonDeleteClick(QObject* sender = nullptr);
  void ButtonInsertClick(QObject* sender = nullptr);
  void ButtonAddClick(QObject* sender = nullptr);
  void ButtonCopyClick(QObject* sender = nullptr);
  void ButtonPasteClick(QObject* sender = nullptr);

  // The dialog's own copy of the nodes.
  int GetNodeCount() const;
  const double* GetNodes() const;
  QTableView* Grid() const;

 protected:
  struct TNodeTableControls {
    QTableView* Grid;
    QAbstractButton* Delete;
    QAbstractButton* Insert;
    QAbstractButton* Add;
    QAbstractButton* Copy;
    QAbstractButton* Paste;
  };
  // Builds the table on the form's controls; called once by the derived constructor.
  void AttachNodeTable(const TNodeTableControls& controls);
  // Takes a copy of the host's nodes.
  void LoadNodes(const double* nodes, std::int32_t count);
  // Enables the paste button now and whenever the clipboard changes.
  void WatchClipboard();
  // Ends a running cell edit, so that OK reads what the user sees.
  void FinishNodeEdit();
  // Hands the nodes to the host record; false when there was no memory for them (the record
  // then keeps its own).
  bool WriteNodes(std::int32_t* count, double** nodes);
  // The nodes changed in a way that changes the derived figure (area or length).
  virtual void NodesChanged() {}
  TNodeTableEditor* NodeTable() const { return table_; }

 private:
  TNodeTableEditor* table_ = nullptr;
  QTableView* grid_ = nullptr;
};

}  // namespace lx
