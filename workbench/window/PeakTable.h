// The peaks of a trace as a table, each with what it was called as.
#pragma once

#include <QAbstractTableModel>

#include <string>
#include <vector>

#include "workbench/window/RecordContent.h"

namespace GleanerSvc::Workbench {

enum class PeakColumn { Dye, Locus, Allele, Size, Height, Width, Scan, Count };

// A row for each peak, in their order. Reads the content where it stands, which outlives the model.
class PeakTable final : public QAbstractTableModel {
  public:
    enum Role {
        SortRole = Qt::UserRole, // numbers stay numbers
        CalledRole,              // "called" or empty, to filter by
    };

    explicit PeakTable(const RecordContent& oContent);

    int rowCount(const QModelIndex& oParent = {}) const override;
    int columnCount(const QModelIndex& oParent = {}) const override;
    QVariant data(const QModelIndex& oIndex, int eRole) const override;
    QVariant headerData(int nSection, Qt::Orientation eOrientation, int eRole) const override;

    void Dark(bool bDark); // of the colours of the dyes

  private:
    QString TextAt(std::size_t nPeak, PeakColumn eColumn) const;
    QString LocusAt(std::size_t nPeak) const;
    QString AlleleAt(std::size_t nPeak) const;
    QVariant SortValue(std::size_t nPeak, PeakColumn eColumn) const;

    const RecordContent& m_oContent;
    std::vector<const AlleleCall*> m_apCalls;     // by peak; nothing where it was not called
    std::vector<const StandardPoint*> m_apPoints; // by peak; nothing where it is none of the standard
    bool m_bDark = false;
};

// RFC 4180 with a heading, the rows and columns as the model has them.
std::string PeaksAsCsv(const QAbstractItemModel& oModel);

} // namespace GleanerSvc::Workbench
