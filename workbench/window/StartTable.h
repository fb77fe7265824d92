// Rows of a lab behind a table view: the cells are made when they are shown, so that a hundred thousand rows
// cost what the rows themselves do.
#pragma once

#include <QAbstractTableModel>

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace GleanerSvc::Workbench {

// What a column shows of a row, and what it is sorted by where that is something else.
template<class Row>
struct StartColumn {
    const char* szHeading = "";
    std::function<QVariant(const Row&)> fnValue;
    std::function<QVariant(const Row&)> fnKey{};
};

inline QVariant TextCell(const std::string& sText) { return QString::fromStdString(sText); }

template<class Row>
class StartTable : public QAbstractTableModel {
  public:
    StartTable(std::vector<StartColumn<Row>> aoColumns, QObject* pParent)
        : QAbstractTableModel(pParent), m_aoColumns(std::move(aoColumns)) {}

    // In their order, unless the user has sorted the table.
    void Show(std::vector<Row> aoRows) {
        beginResetModel();
        m_aoRows = std::move(aoRows);
        m_anOrder = Sorted();
        endResetModel();
    }
    const Row& RowAt(int nRow) const { return m_aoRows[m_anOrder[static_cast<std::size_t>(nRow)]]; }
    const std::vector<Row>& Rows() const { return m_aoRows; }
    std::optional<int> PlaceOf(const std::function<bool(const Row&)>& fnIsIt) const {
        for (int nRow = 0; nRow < Count(); ++nRow) {
            if (fnIsIt(RowAt(nRow))) return nRow;
        }
        return std::nullopt;
    }
    int Count() const { return static_cast<int>(m_aoRows.size()); }

    int rowCount(const QModelIndex& oParent = {}) const override { return oParent.isValid() ? 0 : Count(); }
    int columnCount(const QModelIndex& oParent = {}) const override {
        return oParent.isValid() ? 0 : static_cast<int>(m_aoColumns.size());
    }
    QVariant data(const QModelIndex& oCell, int nRole) const override {
        if (nRole != Qt::DisplayRole && nRole != Qt::ToolTipRole && nRole != Qt::TextAlignmentRole) return {};
        QVariant vValue = ColumnAt(oCell.column()).fnValue(RowAt(oCell.row()));
        if (nRole != Qt::TextAlignmentRole) return vValue;
        return static_cast<int>(Qt::AlignVCenter | (IsText(vValue) ? Qt::AlignLeft : Qt::AlignRight));
    }
    QVariant headerData(int nSection, Qt::Orientation eSide, int nRole) const override {
        if (eSide == Qt::Vertical) return QAbstractTableModel::headerData(nSection, eSide, nRole);
        if (nRole == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft);
        return nRole == Qt::DisplayRole ? QVariant(ColumnAt(nSection).szHeading) : QVariant();
    }
    // By no column (-1): the order in which the rows were given.
    void sort(int nColumn, Qt::SortOrder eOrder) override {
        layoutAboutToBeChanged({}, VerticalSortHint);
        m_nSorted = nColumn;
        m_eOrder = eOrder;
        const auto anBefore = std::exchange(m_anOrder, Sorted());
        std::vector<int> anPlaces(m_anOrder.size());
        for (std::size_t nPlace = 0; nPlace < m_anOrder.size(); ++nPlace)
            anPlaces[m_anOrder[nPlace]] = static_cast<int>(nPlace);
        const QModelIndexList aoFrom = persistentIndexList();
        QModelIndexList aoTo;
        for (const auto& oFrom : aoFrom)
            aoTo.append(index(anPlaces[anBefore[static_cast<std::size_t>(oFrom.row())]], oFrom.column()));
        changePersistentIndexList(aoFrom, aoTo);
        layoutChanged({}, VerticalSortHint);
    }

  private:
    const StartColumn<Row>& ColumnAt(int nColumn) const {
        return m_aoColumns[static_cast<std::size_t>(nColumn)];
    }
    static bool IsText(const QVariant& vValue) { return vValue.typeId() == QMetaType::QString; }
    static bool IsLess(const QVariant& vLeft, const QVariant& vRight) {
        if (!IsText(vLeft) || !IsText(vRight)) return vLeft.toLongLong() < vRight.toLongLong();
        return QString::compare(vLeft.toString(), vRight.toString(), Qt::CaseInsensitive) < 0;
    }
    std::vector<std::size_t> Sorted() const {
        std::vector<std::size_t> anOrder(m_aoRows.size());
        std::iota(anOrder.begin(), anOrder.end(), 0U);
        if (m_nSorted < 0) return anOrder;
        const auto& oColumn = ColumnAt(m_nSorted);
        std::vector<QVariant> avKeys;
        avKeys.reserve(m_aoRows.size());
        for (const auto& oRow : m_aoRows)
            avKeys.push_back(oColumn.fnKey ? oColumn.fnKey(oRow) : oColumn.fnValue(oRow));
        const bool bUp = m_eOrder == Qt::AscendingOrder;
        std::stable_sort(anOrder.begin(), anOrder.end(), [&](std::size_t nLeft, std::size_t nRight) {
            return bUp ? IsLess(avKeys[nLeft], avKeys[nRight]) : IsLess(avKeys[nRight], avKeys[nLeft]);
        });
        return anOrder;
    }

    std::vector<StartColumn<Row>> m_aoColumns;
    std::vector<Row> m_aoRows;
    std::vector<std::size_t> m_anOrder; // of the rows as they are shown
    int m_nSorted = -1;
    Qt::SortOrder m_eOrder = Qt::AscendingOrder;
};

} // namespace GleanerSvc::Workbench
