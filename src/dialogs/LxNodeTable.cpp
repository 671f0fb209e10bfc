#include "dialogs/LxNodeTable.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTableView>

#include <algorithm>
#include <climits>
#include <new>

#include "dialogs/LxNodeText.h"
#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxMisc.h"
#include "lxcomp/LxParser.h"

namespace lx {
namespace {

QString MicronText(double nanometres) {
  wchar_t text[64];
  PrintMicrons(nanometres, text, 64);
  return QString::fromWCharArray(text);
}

QString DoubleText(double value) {
  wchar_t text[256];
  PrintDouble(value, text, 256);
  return QString::fromWCharArray(text);
}

bool IsEnterKey(QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// Enter moves on as nodes are typed: from x to y, from y to the next node's x.
void MoveToNextCell(QTableView* grid, const QModelIndex& current) {
  if (!current.isValid()) return;
  const QModelIndex next =
      current.column() == 1 ? current.siblingAtColumn(2) : current.sibling(current.row() + 1, 1);
  if (next.isValid()) grid->setCurrentIndex(next);
}

// The clipboard looks at no more than this many nodes to decide whether it can be pasted.
constexpr int kClipboardProbeNodes = 11;
// Node counts travel as int, and a host array holds 2 * count + 2 doubles.
constexpr qint64 kMostNodes = INT_MAX / 2 - 1;

}  // namespace

// ---------------------------------------------------------------------------------------------
// TNodeTableModel

TNodeTableModel::TNodeTableModel(std::vector<double>& nodes, QObject* parent)
    : QAbstractTableModel(parent), nodes_(nodes) {
  reader_ = [](const QString& text, double* value) { return GetCoordinateNoMessage(text, value); };
}

int TNodeTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Count();
}

int TNodeTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 3;
}

QVariant TNodeTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole)
    return DisplText(index.column(), index.row() + 1);
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
  return {};
}

QVariant TNodeTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  static const char* const titles[] = {"", "X", "Y"};
  return section >= 0 && section < 3 ? QString::fromLatin1(titles[section]) : QString();
}

Qt::ItemFlags TNodeTableModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags cell = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return index.column() == 0 ? cell : cell | Qt::ItemIsEditable;
}

bool TNodeTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole) return false;
  EditText(index.column(), index.row() + 1);
  EditChange(value.toString());
  return EditDone();
}

bool TNodeTableModel::IsNodeCell(int col, int row) const {
  return row >= 1 && row <= Count() && (col == 1 || col == 2);
}

QString TNodeTableModel::DisplText(int col, int row) const {
  if (row < 1 || row > Count()) return {};
  if (col == 0) return QString::number(row);
  if (col == 1 || col == 2) return MicronText(nodes_[2 * std::size_t(row - 1) + (col - 1)]);
  return {};
}

QString TNodeTableModel::EditText(int col, int row) {
  editRow_ = row;
  editCol_ = col;
  editText_ = editStartText_ = DisplText(col, row);
  return editText_;
}

void TNodeTableModel::EditChange(const QString& text) {
  editText_ = text;
}

bool TNodeTableModel::EditDone() {
  const int row = editRow_;
  const int col = editCol_;
  // Cleared first: a message box below moves the focus, which must not end this edit again.
  editRow_ = -1;
  if (!IsNodeCell(col, row) || editText_ == editStartText_) return false;
  QString text = editText_;
  double value = 0;
  if (IsExpression(text) && !EvaluateExpression(text, &value)) text = DoubleText(value);
  if (reader_(text, &value)) return false;
  nodes_[2 * std::size_t(row - 1) + (col - 1)] = value;
  const QModelIndex cell = index(row - 1, col);
  emit dataChanged(cell, cell);
  emit NodeEdited();
  return true;
}

void TNodeTableModel::MakeRoom(std::size_t doubles) {
  if (doubles <= nodes_.capacity()) return;
  nodes_.reserve(doubles + doubles / 8);  // some room for the next insert, not twice the list
}

void TNodeTableModel::Splice(int first, int removeCount, int insertCount,
                             const std::function<void(double*)>& fill) {
  const int kept = std::min(removeCount, insertCount);
  const auto at = [first](int node) { return std::ptrdiff_t(2) * (first + node); };
  if (insertCount > removeCount) {
    MakeRoom(nodes_.size() + 2 * std::size_t(insertCount - removeCount));
    beginInsertRows({}, first + removeCount, first + insertCount - 1);
    nodes_.insert(nodes_.begin() + at(removeCount), 2 * std::size_t(insertCount - removeCount),
                  0.0);
    if (fill) fill(nodes_.data() + at(0));
    endInsertRows();
  } else if (removeCount > insertCount) {
    beginRemoveRows({}, first + insertCount, first + removeCount - 1);
    nodes_.erase(nodes_.begin() + at(insertCount), nodes_.begin() + at(removeCount));
    if (fill) fill(nodes_.data() + at(0));
    endRemoveRows();
  } else if (fill) {
    fill(nodes_.data() + at(0));
  }
  if (kept > 0) emit dataChanged(index(first, 1), index(first + kept - 1, 2));
  // Row numbers below a changed count move.
  if (insertCount != removeCount && first + insertCount < Count())
    emit dataChanged(index(first + insertCount, 0), index(Count() - 1, 0));
}

void TNodeTableModel::Load(const double* nodes, int count) {
  beginResetModel();
  nodes_.clear();
  nodes_.shrink_to_fit();
  if (nodes && count > 0) nodes_.assign(nodes, nodes + 2 * std::size_t(count));
  editRow_ = -1;
  endResetModel();
}

// ---------------------------------------------------------------------------------------------
// TNodeCellDelegate

TNodeCellDelegate::TNodeCellDelegate(TNodeTableModel* model, QTableView* grid)
    : QStyledItemDelegate(grid), model_(model), grid_(grid) {}

QWidget* TNodeCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex&) const {
  auto* editor = new QLineEdit(parent);
  editor->setFrame(false);
  editor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  connect(editor, &QLineEdit::textEdited, model_, &TNodeTableModel::EditChange);
  editor_ = editor;
  return editor;
}

void TNodeCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (auto* line = qobject_cast<QLineEdit*>(editor))
    line->setText(model_->EditText(index.column(), index.row() + 1));
}

void TNodeCellDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                     const QModelIndex&) const {
  if (auto* line = qobject_cast<QLineEdit*>(editor)) model_->EditChange(line->text());
  model_->EditDone();
}

void TNodeCellDelegate::FinishEdit() {
  if (!editor_ || !model_->Editing()) return;
  QWidget* editor = editor_;
  setModelData(editor, model_, {});
  emit closeEditor(editor, NoHint);
}

bool TNodeCellDelegate::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<QWidget*>(watched);
  if (editor && IsEnterKey(event)) {
    const QModelIndex current = grid_->currentIndex();
    emit commitData(editor);
    emit closeEditor(editor, NoHint);
    MoveToNextCell(grid_, current);
    return true;
  }
  return QStyledItemDelegate::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------------------------
// TNodeTableEditor

TNodeTableEditor::TNodeTableEditor(TLxDlgBase* dialog, QTableView* grid,
                                   QAbstractButton* pasteButton)
    : QObject(dialog), dialog_(dialog), grid_(grid), pasteButton_(pasteButton) {
  model_ = new TNodeTableModel(nodes_, this);
  model_->SetReader(
      [dialog](const QString& text, double* value) { return dialog->GetCoordinate(text, value); });
  connect(model_, &TNodeTableModel::NodeEdited, this, &TNodeTableEditor::NodesChanged);
  delegate_ = new TNodeCellDelegate(model_, grid);
  grid->setModel(model_);
  grid->setItemDelegate(delegate_);
  grid->setSelectionMode(QAbstractItemView::ContiguousSelection);
  grid->setSelectionBehavior(QAbstractItemView::SelectItems);
  grid->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                        QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  grid->setWordWrap(false);
  grid->verticalHeader()->hide();
  grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 6);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  grid->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  grid->horizontalHeader()->setHighlightSections(false);
  grid->installEventFilter(this);
}

bool TNodeTableEditor::eventFilter(QObject* watched, QEvent* event) {
  if (watched == grid_ && IsEnterKey(event)) {
    MoveToNextCell(grid_, grid_->currentIndex());
    return true;  // Enter in the table moves on; it does not press the dialog's OK button
  }
  return QObject::eventFilter(watched, event);
}

void TNodeTableEditor::Load(const double* nodes, int count) {
  model_->Load(nodes, count);
  FitColumns();
  if (count > 0) grid_->setCurrentIndex(model_->index(0, 1));
}

void TNodeTableEditor::FitColumns() {
  // The number column holds the widest row number; the x and y columns share the rest.
  const QString widest = QString(QString::number(std::max(Count(), 1)).size() + 1, u'8');
  const int padding =
      2 * grid_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grid_) + 12;
  grid_->setColumnWidth(0, grid_->fontMetrics().horizontalAdvance(widest) + padding);
}

bool TNodeTableEditor::SelectedRows(int* top, int* bottom) const {
  const QItemSelection selection = grid_->selectionModel()->selection();
  int first = INT_MAX;
  int last = -1;
  for (const QItemSelectionRange& range : selection) {
    first = std::min(first, range.top());
    last = std::max(last, range.bottom());
  }
  if (last < 0) {
    const QModelIndex current = grid_->currentIndex();
    if (!current.isValid()) return false;
    first = last = current.row();
  }
  *top = first;
  *bottom = std::min(last, Count() - 1);
  return *top <= *bottom;
}

void TNodeTableEditor::SelectRows(int top, int bottom) {
  if (top > bottom) return;
  const QItemSelection rows(model_->index(top, 1), model_->index(bottom, 2));
  grid_->selectionModel()->setCurrentIndex(model_->index(top, 1), QItemSelectionModel::NoUpdate);
  grid_->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

void TNodeTableEditor::DeleteNodes() {
  int top = 0;
  int bottom = 0;
  if (!SelectedRows(&top, &bottom)) return;
  if (Count() - (bottom - top + 1) < 3) return;
  model_->Splice(top, bottom - top + 1, 0);
  FitColumns();
  emit NodesChanged();
}

void TNodeTableEditor::InsertNode() {
  int top = 0;
  int bottom = 0;
  if (!SelectedRows(&top, &bottom)) return;
  model_->Splice(top, 0, 1, [](double* place) {
    place[0] = place[2];
    place[1] = place[3];
  });
  FitColumns();
}

void TNodeTableEditor::AddNode() {
  const int count = Count();
  model_->Splice(count, 0, 1, [count](double* place) {
    place[0] = count > 0 ? place[-2] : 0.0;
    place[1] = count > 0 ? place[-1] : 0.0;
  });
  FitColumns();
}

void TNodeTableEditor::CopyNodes() {
  int top = 0;
  int bottom = 0;
  if (!SelectedRows(&top, &bottom)) return;
  // The nodes go out whole: a selection in one column stands for the x and y of its rows.
  SelectRows(top, bottom);
  QGuiApplication::clipboard()->setText(PrintNodeText(Nodes(), top, bottom - top + 1));
  pasteButton_->setEnabled(true);
}

void TNodeTableEditor::PasteNodes() {
  try {
    const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
    if (!mime || !mime->hasText()) return;
    const QString text = mime->text();
    const TNodeTextScan scan = ScanNodeText(text, INT_MAX);
    if (scan.failed || scan.nodes == 0) {
      double ignored = 0;
      if (scan.failed) dialog_->GetCoordinate(scan.badNumber, &ignored);
      ShowK6Error(QStringLiteral("Invalid clipboard data"), dialog_->GetHelpContext());
      return;
    }
    int top = 0;
    int bottom = 0;
    int replaced = 0;
    if (!SelectedRows(&top, &bottom)) {
      top = Count();
    } else if (top != bottom) {
      replaced = bottom - top + 1;
      if (Count() - replaced + scan.nodes < 3) return;
    }
    if (Count() - replaced + qint64(scan.nodes) > kMostNodes) return;
    const int pasted = scan.nodes;
    model_->Splice(top, replaced, pasted,
                   [&text, pasted](double* place) { ScanNodeText(text, pasted, place); });
    SelectRows(top, top + pasted - 1);
    FitColumns();
    emit NodesChanged();
  } catch (const std::bad_alloc&) {
    // Not enough memory for the pasted nodes: the list stays as it was.
  }
}

void TNodeTableEditor::CheckClipboard() {
  bool readable = false;
  try {
    const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
    readable =
        mime && mime->hasText() && ScanNodeText(mime->text(), kClipboardProbeNodes).nodes > 0;
  } catch (...) {
    readable = false;
  }
  pasteButton_->setEnabled(readable);
}

void TNodeTableEditor::WriteTo(std::int32_t* nodeCount, double** nodes) const {
  const int count = Count();
  if (count > *nodeCount || !*nodes) {
    double* room = new double[2 * std::size_t(count) + 2];  // before freeing: never lose the old
    delete[] * nodes;
    *nodes = room;
  }
  *nodeCount = count;
  std::copy(nodes_.begin(), nodes_.end(), *nodes);
}

}  // namespace lx
