#include "workbench/window/GridTableModel.h"

#include <QColor>
#include <QPixmap>

#include "workbench/window/ShownText.h"

namespace GleanerSvc::Workbench {

namespace {

// Red stands in the lowest byte.
QColor ColourOf(std::int32_t lColour) {
    constexpr std::uint32_t Byte = 0xFF;
    const auto nColour = static_cast<std::uint32_t>(lColour);
    return {static_cast<int>(nColour & Byte), static_cast<int>(nColour >> 8U & Byte),
            static_cast<int>(nColour >> 16U & Byte)};
}

QVariant Colour(const std::optional<std::int32_t>& oColour) {
    return oColour ? QVariant(ColourOf(*oColour)) : QVariant();
}

} // namespace

QVariant GridTableModel::data(const QModelIndex& oIndex, int eRole) const {
    const std::int32_t lRow = oIndex.row() + 1;
    const std::int32_t lCol = oIndex.column();
    if (!oIndex.isValid() || lRow > m_oGrid.Rows() || lCol > m_oGrid.Cols()) return {};
    switch (eRole) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: // a long text is cut in its cell
        // Column 0 heads the rows; what a page keeps there is for itself.
        return lCol == 0 ? QVariant(lRow) : ShownText(m_oGrid.Text(lRow, lCol));
    case Qt::BackgroundRole:
        return Colour(m_oGrid.StyleAt(lRow, lCol).lInterior);
    case Qt::ForegroundRole:
        return Colour(m_oGrid.StyleAt(lRow, lCol).lTextColor);
    case Qt::DecorationRole:
        return PictureAt(lRow, lCol);
    default:
        return {};
    }
}

// A picture that cannot be read is none.
QVariant GridTableModel::PictureAt(std::int32_t lRow, std::int32_t lCol) const {
    const auto oNumber = m_oGrid.StyleAt(lRow, lCol).lBitmap;
    const std::string sPath = oNumber ? m_oGrid.BitmapPath(*oNumber) : "";
    if (sPath.empty()) return {};
    const auto [itPicture, bNew] = m_oPictures.try_emplace(sPath);
    if (bNew) {
        const QPixmap oPicture(ShownText(sPath));
        if (!oPicture.isNull()) itPicture->second = QIcon(oPicture);
    }
    return itPicture->second.isNull() ? QVariant() : QVariant(itPicture->second);
}

QVariant GridTableModel::headerData(int nSection, Qt::Orientation eOrientation, int eRole) const {
    const bool bSpoken = eRole == Qt::AccessibleTextRole;
    if ((eRole != Qt::DisplayRole && !bSpoken) || nSection < 0) return {};
    if (eOrientation == Qt::Vertical) return nSection + 1;
    if (nSection > m_oGrid.Cols()) return {};
    const QString sHeading = ShownText(m_oGrid.Text(0, nSection));
    const auto& oSortedBy = m_oGrid.SortedBy();
    if (!bSpoken || !oSortedBy || oSortedBy->dCol != nSection) return sHeading;
    return sHeading + (oSortedBy->bDescending ? ", sorted descending" : ", sorted ascending");
}

// Rows that came or went are told at the end of the table: the cells of all others are read anew in any case.
void GridTableModel::Announce() {
    const int nRows = m_oGrid.Rows();
    const int nCols = m_oGrid.Cols() + 1;
    if (nCols != m_nCols) {
        beginResetModel();
        m_nCols = nCols;
        m_nRows = nRows;
        endResetModel();
    } else if (nRows > m_nRows) {
        beginInsertRows({}, m_nRows, nRows - 1);
        m_nRows = nRows;
        endInsertRows();
    } else if (nRows < m_nRows) {
        beginRemoveRows({}, nRows, m_nRows - 1);
        m_nRows = nRows;
        endRemoveRows();
    }
    if (m_nRows > 0) emit dataChanged(index(0, 0), index(m_nRows - 1, m_nCols - 1));
    emit headerDataChanged(Qt::Horizontal, 0, m_nCols - 1);
}

} // namespace GleanerSvc::Workbench
