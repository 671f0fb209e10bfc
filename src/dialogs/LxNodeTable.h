// The node table of the polygon and wire dialogs: a table model that shows and edits the
// dialog's own node array in place (nothing is copied into cells, so millions of nodes stay
// cheap), and the editor that ties it to a QTableView and the node buttons.
#pragma once

#include <QAbstractTableModel>
#include <QPointer>
#include <QStyledItemDelegate>

#include <cstdint>
#include <functional>
#include <vector>

class QAbstractButton;
class QTableView;

namespace lx {

class TLxDlgBase;

// Rows of the table are nodes (model row i is node i + 1 of the grid, whose row 0 is the
// header); column 0 shows the node's number, columns 1 and 2 its x and y in micrometres.
class TNodeTableModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  // Reads a typed length; true when the text is no number.
  using Reader = std::function<bool(const QString& text, double* nanometres)>;

  explicit TNodeTableModel(std::vector<double>& nodes, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  // An edit of a node cell from start to end: the text is evaluated and read as a length.
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  int Count() const { return static_cast<int>(nodes_.size() / 2); }
  const double* Nodes() const { return nodes_.data(); }
  void SetReader(Reader reader) { reader_ = std::move(reader); }

  // The grid's texts by grid row (0 the header, 1 to Count() the nodes) and column.
  QString DisplText(int col, int row) const;
  // The text to edit; remembers the cell and its text as the cell being edited.
  QString EditText(int col, int row);
  void EditChange(const QString& text);
  // Ends the edit of the remembered cell: an expression is replaced by its value, the text is
  // read with the reader and stored. True when the node changed.
  bool EditDone();
  bool Editing() const { return editRow_ > 0; }

  // Replaces removeCount nodes from node `first` on by insertCount nodes that `fill` writes
  // (it gets the place of the first new node); rows follow.
  void Splice(int first, int removeCount, int insertCount,
              const std::function<void(double* place)>& fill = {});
  void Load(const double* nodes, int count);

 signals:
  // A node's value changed by an edit.
  void NodeEdited();

 private:
  bool IsNodeCell(int col, int row) const;
  void MakeRoom(std::size_t doubles);

  std::vector<double>& nodes_;
  Reader reader_;
  int editRow_ = -1;
  int editCol_ = -1;
  QString editText_;
  QString editStartText_;
};

// Editing of node cells through the model's edit steps; Enter moves on to the next cell (x to
// y, y to the next node's x).
class TNodeCellDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  TNodeCellDelegate(TNodeTableModel* model, QTableView* grid);
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  // Ends an open edit with the editor's text (as when the user leaves the cell).
  void FinishEdit();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  TNodeTableModel* model_;
  QTableView* grid_;
  mutable QPointer<QWidget> editor_;
};

// The node list of one dialog with its table and buttons: delete, insert, add, copy and paste
// on the selected rows, and the paste button that follows the clipboard.
class TNodeTableEditor : public QObject {
  Q_OBJECT
 public:
  TNodeTableEditor(TLxDlgBase* dialog, QTableView* grid, QAbstractButton* pasteButton);

  TNodeTableModel* Model() const { return model_; }
  TNodeCellDelegate* Delegate() const { return delegate_; }
  int Count() const { return model_->Count(); }
  const double* Nodes() const { return nodes_.data(); }
  void Load(const double* nodes, int count);

  // The selected rows as node indices (from 0); false when nothing is selected.
  bool SelectedRows(int* top, int* bottom) const;
  void DeleteNodes();
  void InsertNode();
  void AddNode();
  void CopyNodes();
  void PasteNodes();
  // Enables the paste button when the clipboard's text starts with a readable node.
  void CheckClipboard();
  void FitColumns();
  // Hands the nodes to a host record: a record array that is too small is freed with delete[]
  // and replaced by a new one of 2 * count + 2 doubles.
  void WriteTo(std::int32_t* nodeCount, double** nodes) const;

 signals:
  // The nodes changed in a way that changes the derived figure (area or length).
  void NodesChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SelectRows(int top, int bottom);

  TLxDlgBase* dialog_;
  QTableView* grid_;
  QAbstractButton* pasteButton_;
  std::vector<double> nodes_;
  TNodeTableModel* model_;
  TNodeCellDelegate* delegate_;
};

}  // namespace lx
