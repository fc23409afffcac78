#include "framework/Controls.h"
#include "framework/Exceptions.h"

namespace fw {

namespace {
const std::string kEmpty;
}

void RowControl::SetListIndex(int index) {
    if (index < -1 || index >= ListCount())
        throw OutOfBoundsException(Name() + ": row " + std::to_string(index));
    if (index == listIndex_) return;
    listIndex_ = index;
    Notify(Property::ListIndex);
    if (Change) Change();
}

void RowControl::AddRow(const std::string& text) {
    Row row;
    row.cells.push_back(text);
    rows_.push_back(std::move(row));
    Notify(Property::Rows);
}

void RowControl::DeleteAllRows() {
    // Emptying is no choice of the user's: the selection goes without a Change event.
    rows_.clear();
    listIndex_ = -1;
    Notify(Property::Rows);
}

void RowControl::RemoveRow(int row) {
    RowAt(row);
    rows_.erase(rows_.begin() + row);
    bool selectionMoved = false;
    if (listIndex_ == row) {
        listIndex_ = -1;
        selectionMoved = true;
    } else if (listIndex_ > row) {
        --listIndex_;
    }
    Notify(Property::Rows);
    if (selectionMoved && Change) Change();
}

const std::string& RowControl::List(int row) const {
    const Row& r = RowAt(row);
    return r.cells.empty() ? kEmpty : r.cells.front();
}

std::string RowControl::Text() const {
    return listIndex_ < 0 ? std::string() : List(listIndex_);
}

RowControl::Row& RowControl::RowAt(int row) {
    if (row < 0 || row >= ListCount())
        throw OutOfBoundsException(Name() + ": row " + std::to_string(row));
    return rows_[static_cast<size_t>(row)];
}

const RowControl::Row& RowControl::RowAt(int row) const {
    if (row < 0 || row >= ListCount())
        throw OutOfBoundsException(Name() + ": row " + std::to_string(row));
    return rows_[static_cast<size_t>(row)];
}

PopupMenu::PopupMenu(Window& owner, std::string name) : RowControl(owner, Kind::PopupMenu, std::move(name)) {}

Listbox::Listbox(Window& owner, std::string name, int columnCount, std::string columnWidths)
    : RowControl(owner, Kind::Listbox, std::move(name)),
      columnCount_(columnCount < 1 ? 1 : columnCount),
      columnWidths_(std::move(columnWidths)),
      columnTypes_(static_cast<size_t>(columnCount_), 0) {}

void Listbox::CheckColumn(int column) const {
    if (column < 0 || column >= columnCount_)
        throw OutOfBoundsException(Name() + ": column " + std::to_string(column));
}

int Listbox::ColumnType(int column) const {
    CheckColumn(column);
    return columnTypes_[static_cast<size_t>(column)];
}

void Listbox::SetColumnType(int column, int type) {
    CheckColumn(column);
    columnTypes_[static_cast<size_t>(column)] = type;
    Notify(Property::Rows);
}

std::string Listbox::Cell(int row, int column) const {
    CheckColumn(column);
    const Row& r = RowAt(row);
    return static_cast<size_t>(column) < r.cells.size() ? r.cells[static_cast<size_t>(column)] : std::string();
}

void Listbox::SetCell(int row, int column, const std::string& text) {
    CheckColumn(column);
    Row& r = RowAt(row);
    if (r.cells.size() <= static_cast<size_t>(column)) r.cells.resize(static_cast<size_t>(column) + 1);
    r.cells[static_cast<size_t>(column)] = text;
    Notify(Property::Rows);
}

bool Listbox::CellCheck(int row, int column) const {
    CheckColumn(column);
    const Row& r = RowAt(row);
    return static_cast<size_t>(column) < r.checks.size() && r.checks[static_cast<size_t>(column)];
}

void Listbox::SetCellCheck(int row, int column, bool checked) {
    CheckColumn(column);
    Row& r = RowAt(row);
    if (r.checks.size() <= static_cast<size_t>(column)) r.checks.resize(static_cast<size_t>(column) + 1);
    r.checks[static_cast<size_t>(column)] = checked;
    Notify(Property::Rows);
}

void Listbox::ClickCell(int row, int column, int x, int y) {
    CheckColumn(column);
    RowAt(row);
    if (CellClick && CellClick(row, column, x, y)) return;
    // The handler may have changed the rows; the click lands only if its cell still stands.
    if (row >= ListCount()) return;
    if (ColumnType(column) == 2) SetCellCheck(row, column, !CellCheck(row, column));
    SetListIndex(row);
}

}  // namespace fw
