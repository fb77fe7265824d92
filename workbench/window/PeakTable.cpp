#include "workbench/window/PeakTable.h"

#include <algorithm>
#include <array>

#include "workbench/calling/FixedText.h"

namespace GleanerSvc::Workbench {

namespace {

struct Heading {
    const char* szShown;
    const char* szCsv;
    const char* szTip;
};

constexpr std::array<Heading, static_cast<std::size_t>(PeakColumn::Count)> aoHeadings = {
    Heading{"Dye", "dye", "The dye in which the peak lies"},
    Heading{"Locus", "locus", "The locus of the call"},
    Heading{"Allele", "allele", "The allele that was called, OL for none, or the standard's fragment"},
    Heading{"Size [bp]", "size_bp", "Empty outside the size standard"},
    Heading{"Height [RFU]", "height_rfu", "Above the baseline"},
    Heading{"Width [scans]", "width_scans", "At half height"},
    Heading{"Scan", "scan", "Of the apex"}};

// Alleles and fragments by their number, other names after them.
QString SortText(const QString& sAllele) {
    bool bIsNumber = false;
    const double dNumber = sAllele.toDouble(&bIsNumber);
    return bIsNumber ? QString::number(dNumber, 'f', 2).rightJustified(12, '0') : sAllele;
}

QString Number(double dValue, int nDigits) { return QString::fromStdString(FixedText(dValue, nDigits)); }

std::string Quoted(const QString& sText) {
    if (!sText.contains(',') && !sText.contains('"') && !sText.contains('\n')) return sText.toStdString();
    return ('"' + QString(sText).replace("\"", "\"\"") + '"').toStdString();
}

} // namespace

PeakTable::PeakTable(const RecordContent& oContent)
    : m_oContent(oContent), m_apCalls(oContent.oSized.aoPeaks.size()),
      m_apPoints(oContent.oSized.aoPeaks.size()) {
    const auto& aoPeaks = oContent.oSized.aoPeaks;
    for (const auto& oPoint : oContent.oSized.oFit.aoPoints) {
        const auto itPeak = std::ranges::find_if(aoPeaks, [&](const Peak& oPeak) {
            return oPeak.dScan == oPoint.dScan && oPeak.nDye == oContent.oSized.StandardDye();
        });
        if (itPeak != aoPeaks.end()) m_apPoints[static_cast<std::size_t>(itPeak - aoPeaks.begin())] = &oPoint;
    }
    for (const auto& oCall : oContent.oCalled.aoCalls) {
        if (oCall.nPeak < aoPeaks.size()) m_apCalls[oCall.nPeak] = &oCall;
    }
}

int PeakTable::rowCount(const QModelIndex& oParent) const {
    return oParent.isValid() ? 0 : static_cast<int>(m_oContent.oSized.aoPeaks.size());
}

int PeakTable::columnCount(const QModelIndex& oParent) const {
    return oParent.isValid() ? 0 : static_cast<int>(PeakColumn::Count);
}

QVariant PeakTable::data(const QModelIndex& oIndex, int eRole) const {
    if (!checkIndex(oIndex, CheckIndexOption::IndexIsValid)) return {};
    const auto nPeak = static_cast<std::size_t>(oIndex.row());
    const auto eColumn = static_cast<PeakColumn>(oIndex.column());
    if (eRole == Qt::DisplayRole) return TextAt(nPeak, eColumn);
    if (eRole == SortRole) return SortValue(nPeak, eColumn);
    if (eRole == CalledRole) return m_apCalls[nPeak] ? "called" : "";
    if (eRole == Qt::DecorationRole && eColumn == PeakColumn::Dye)
        return DyeInk(m_oContent.oSized.aoPeaks[nPeak].nDye, m_bDark);
    if (eRole == Qt::TextAlignmentRole && eColumn >= PeakColumn::Size)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant PeakTable::headerData(int nSection, Qt::Orientation eOrientation, int eRole) const {
    if (eOrientation == Qt::Vertical || nSection < 0 || nSection >= columnCount())
        return QAbstractTableModel::headerData(nSection, eOrientation, eRole);
    const auto& oHeading = aoHeadings.at(static_cast<std::size_t>(nSection));
    if (eRole == Qt::DisplayRole) return oHeading.szShown;
    if (eRole == Qt::ToolTipRole) return oHeading.szTip;
    if (eRole == Qt::EditRole) return oHeading.szCsv;
    return QAbstractTableModel::headerData(nSection, eOrientation, eRole);
}

void PeakTable::Dark(bool bDark) {
    m_bDark = bDark;
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::DecorationRole});
}

QString PeakTable::LocusAt(std::size_t nPeak) const {
    if (m_apCalls[nPeak]) return QString::fromStdString(m_apCalls[nPeak]->sLocus);
    return m_apPoints[nPeak] ? "Size standard" : "";
}

QString PeakTable::AlleleAt(std::size_t nPeak) const {
    if (m_apCalls[nPeak]) return QString::fromStdString(m_apCalls[nPeak]->sAllele);
    return m_apPoints[nPeak] ? Number(m_apPoints[nPeak]->dSize, 0) : QString();
}

QString PeakTable::TextAt(std::size_t nPeak, PeakColumn eColumn) const {
    const Peak& oPeak = m_oContent.oSized.aoPeaks[nPeak];
    switch (eColumn) {
    case PeakColumn::Dye:
        return oPeak.nDye < m_oContent.oTrace.aoDyes.size()
                   ? QString::fromStdString(m_oContent.oTrace.aoDyes[oPeak.nDye].sName)
                   : QString::number(oPeak.nDye + 1);
    case PeakColumn::Locus:
        return LocusAt(nPeak);
    case PeakColumn::Allele:
        return AlleleAt(nPeak);
    case PeakColumn::Size:
        return oPeak.dSize ? Number(*oPeak.dSize, 2) : QString();
    case PeakColumn::Height:
        return Number(oPeak.dHeight, 0);
    case PeakColumn::Width:
        return Number(oPeak.dWidth, 1);
    case PeakColumn::Scan:
        return Number(oPeak.dScan, 1);
    case PeakColumn::Count:
        break;
    }
    return {};
}

QVariant PeakTable::SortValue(std::size_t nPeak, PeakColumn eColumn) const {
    const Peak& oPeak = m_oContent.oSized.aoPeaks[nPeak];
    switch (eColumn) {
    case PeakColumn::Dye:
        return static_cast<qulonglong>(oPeak.nDye);
    case PeakColumn::Allele:
        return SortText(AlleleAt(nPeak));
    case PeakColumn::Size:
        return oPeak.dSize.value_or(-1);
    case PeakColumn::Height:
        return oPeak.dHeight;
    case PeakColumn::Width:
        return oPeak.dWidth;
    case PeakColumn::Scan:
        return oPeak.dScan;
    default:
        return TextAt(nPeak, eColumn);
    }
}

std::string PeaksAsCsv(const QAbstractItemModel& oModel) {
    std::string sCsv;
    const auto AddLine = [&](const auto& fnCell) {
        for (int nCol = 0; nCol < oModel.columnCount(); ++nCol)
            sCsv += (nCol > 0 ? "," : "") + Quoted(fnCell(nCol));
        sCsv += "\r\n";
    };
    AddLine([&](int nCol) { return oModel.headerData(nCol, Qt::Horizontal, Qt::EditRole).toString(); });
    for (int nRow = 0; nRow < oModel.rowCount(); ++nRow)
        AddLine([&](int nCol) { return oModel.index(nRow, nCol).data().toString(); });
    return sCsv;
}

} // namespace GleanerSvc::Workbench
