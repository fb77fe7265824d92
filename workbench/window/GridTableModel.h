// The rows and columns of a grid as Qt's views want them. Reads through to the grid; copies no cell.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>

#include <map>
#include <string>

#include "models/GridModel.h"

namespace GleanerSvc::Workbench {

// Row 0 here is the grid's row 1, and the grid's heading row is the horizontal heading. Columns are the
// grid's.
class GridTableModel final : public QAbstractTableModel {
  public:
    explicit GridTableModel(const Models::GridModel& oGrid) : m_oGrid(oGrid) {}

    int rowCount(const QModelIndex& oParent = {}) const override { return oParent.isValid() ? 0 : m_nRows; }
    int columnCount(const QModelIndex& oParent = {}) const override {
        return oParent.isValid() ? 0 : m_nCols;
    }
    QVariant data(const QModelIndex& oIndex, int eRole) const override;
    QVariant headerData(int nSection, Qt::Orientation eOrientation, int eRole) const override;

    // Tells the views of all that changed since the last time.
    void Announce();

  private:
    QVariant PictureAt(std::int32_t lRow, std::int32_t lCol) const;

    const Models::GridModel& m_oGrid;
    int m_nRows = 0; // as announced: the grid may have fewer already
    int m_nCols = 0;
    mutable std::map<std::string, QIcon> m_oPictures; // by path; none where no picture could be read
};

} // namespace GleanerSvc::Workbench
