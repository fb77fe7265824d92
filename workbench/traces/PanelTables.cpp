#include "workbench/traces/PanelTables.h"

#include <algorithm>
#include <map>
#include <utility>

#include "workbench/traces/TableRows.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double LongestFragment = 10000; // bp; far beyond what a capillary separates

// Far beyond any kit. What is looked up by going through them all stays quick.
constexpr std::size_t MostPanels = 500;
constexpr std::size_t MostLoci = 500;
constexpr std::size_t MostBins = 1000;

// One line of a locus. A kit of SNPs has several for a locus, one for each dye.
struct LocusLine {
    std::size_t nLine = 0;
    Locus oLocus; // without bins
};

struct PanelLines {
    std::string sName;
    std::vector<LocusLine> aoLines;
};

struct BinList {
    std::size_t nLine = 0;
    std::string sLocus;
    std::vector<Bin> aoBins;
    std::vector<std::size_t> anLines; // of each bin
    bool bTaken = false;              // by a line of the panel table
};

using BinLists = std::map<std::string, std::vector<BinList>>; // by panel

double SizeIn(const std::string& sInput, std::size_t nLine, const std::string& sText) {
    const auto dSize = NumberAt(sInput, nLine, sText);
    if (dSize < 0 || dSize > LongestFragment) FailAt(sInput, nLine, "'" + sText + "' is no size in bp");
    return dSize;
}

// The panel table.

class PanelReader {
  public:
    explicit PanelReader(const TableText& oTable) : m_oTable(oTable) {}

    std::vector<PanelLines> Read() {
        for (const auto& oRow : RowsOf(m_oTable.sInput, m_oTable.sText)) ReadRow(oRow);
        if (m_aoPanels.empty()) throw InputError(m_oTable.sInput, "", "the table has no panel");
        return std::move(m_aoPanels);
    }

    AlleleType Type() const { return m_eType; }

  private:
    void ReadRow(const TableRow& oRow) {
        if (oRow.Begins("Panel")) return ReadPanel(oRow);
        if (!m_aoPanels.empty()) return ReadLocus(oRow);
        if (oRow.Begins("Kit type")) return ReadType(oRow);
        if (!oRow.Begins("Version") && !oRow.Begins("Chemistry Kit"))
            Fail(oRow, "'" + oRow.asCells.front() + "' stands before the first panel");
    }

    void ReadType(const TableRow& oRow) {
        const TableRow oValue{oRow.nLine, {oRow.Value()}};
        if (oValue.Begins("SNP"))
            m_eType = AlleleType::Snp;
        else if (!oValue.Begins("Microsatellite"))
            Fail(oRow, "the kit type '" + oRow.Value() + "' is unknown");
    }

    void ReadPanel(const TableRow& oRow) {
        const auto sName = oRow.Value();
        if (sName.empty()) Fail(oRow, "the panel has no name");
        if (m_aoPanels.size() == MostPanels)
            Fail(oRow, "more than " + std::to_string(MostPanels) + " panels");
        if (std::ranges::find(m_aoPanels, sName, &PanelLines::sName) != m_aoPanels.end())
            Fail(oRow, "the panel '" + sName + "' stands there twice");
        m_aoPanels.push_back({sName, {}});
    }

    // Empty columns may stand anywhere in the line, so only the filled ones count: name, colour, lowest and
    // highest size, control alleles, repeat, stutter, a remark, ladder alleles. An SNP has no ladder.
    void ReadLocus(const TableRow& oRow) {
        auto asCells = oRow.asCells;
        std::erase(asCells, "");
        if (m_aoPanels.back().aoLines.size() == MostLoci)
            Fail(oRow, "the panel has more than " + std::to_string(MostLoci) + " loci");
        const auto nLeast = std::size_t{m_eType == AlleleType::Snp ? 8U : 9U};
        if (asCells.size() < nLeast || asCells.size() > 9)
            Fail(oRow, "a locus has 9 filled columns, this line " + std::to_string(asCells.size()));
        Locus oLocus{asCells[0],
                     asCells[1],
                     SizeIn(m_oTable.sInput, oRow.nLine, asCells[2]),
                     SizeIn(m_oTable.sInput, oRow.nLine, asCells[3]),
                     SizeIn(m_oTable.sInput, oRow.nLine, asCells[5]),
                     {},
                     {}};
        if (asCells.size() == 9) oLocus.asLadder = ListOf(asCells[8]);
        CheckLocus(oRow, oLocus);
        oLocus.sColour = ColourOfDye(DyeOfColour(oLocus.sColour));
        m_aoPanels.back().aoLines.push_back({oRow.nLine, std::move(oLocus)});
    }

    void CheckLocus(const TableRow& oRow, const Locus& oLocus) const {
        if (!IsColour(oLocus.sColour)) Fail(oRow, "'" + oLocus.sColour + "' is no colour of a dye");
        if (oLocus.dLow >= oLocus.dHigh) Fail(oRow, "the lowest size is not below the highest");
        if (m_eType == AlleleType::Str && oLocus.dRepeat <= 0) Fail(oRow, "the repeat has no length");
        auto asLadder = oLocus.asLadder;
        std::ranges::sort(asLadder);
        if (const auto it = std::ranges::adjacent_find(asLadder); it != asLadder.end())
            Fail(oRow, "the ladder has the allele '" + *it + "' twice");
        for (const auto& oOther : m_aoPanels.back().aoLines)
            if (oOther.oLocus.sName == oLocus.sName &&
                (m_eType == AlleleType::Str ||
                 DyeOfColour(oLocus.sColour) == DyeOfColour(oOther.oLocus.sColour)))
                Fail(oRow, "the locus '" + oLocus.sName + "' stands there twice");
    }

    [[noreturn]] void Fail(const TableRow& oRow, const std::string& sWhat) const {
        FailAt(m_oTable.sInput, oRow.nLine, sWhat);
    }

    const TableText& m_oTable;
    AlleleType m_eType = AlleleType::Str;
    std::vector<PanelLines> m_aoPanels;
};

// The bin table.

class BinReader {
  public:
    explicit BinReader(const TableText& oTable) : m_oTable(oTable) {}

    BinLists Read() {
        for (const auto& oRow : RowsOf(m_oTable.sInput, m_oTable.sText)) ReadRow(oRow);
        if (m_oLists.empty()) throw InputError(m_oTable.sInput, "", "the table has no panel");
        return std::move(m_oLists);
    }

  private:
    void ReadRow(const TableRow& oRow) {
        if (oRow.Begins("Panel Name")) return ReadPanel(oRow);
        if (m_paoPanel != nullptr) return ReadOfPanel(oRow);
        if (!oRow.Begins("Version") && !oRow.Begins("Chemistry Kit") && !oRow.Begins("BinSet Name"))
            Fail(oRow, "'" + oRow.asCells.front() + "' stands before the first panel");
    }

    void ReadPanel(const TableRow& oRow) {
        if (oRow.Value().empty()) Fail(oRow, "the panel has no name");
        const auto [it, bIsNew] = m_oLists.try_emplace(oRow.Value());
        if (!bIsNew) Fail(oRow, "the panel '" + oRow.Value() + "' stands there twice");
        m_paoPanel = &it->second;
    }

    void ReadOfPanel(const TableRow& oRow) {
        if (!oRow.Begins("Marker Name")) return ReadBin(oRow);
        if (oRow.Value().empty()) Fail(oRow, "the locus has no name");
        if (m_paoPanel->size() == MostLoci)
            Fail(oRow, "the panel has more than " + std::to_string(MostLoci) + " loci");
        m_paoPanel->push_back({oRow.nLine, oRow.Value(), {}, {}, false});
    }

    // Allele, centre, left and right width, and perhaps a mark that the ladder lacks it.
    void ReadBin(const TableRow& oRow) {
        auto asCells = oRow.asCells;
        std::erase(asCells, "");
        if (m_paoPanel->empty()) Fail(oRow, "a bin stands before the first locus of its panel");
        if (asCells.size() < 4 || asCells.size() > 5)
            Fail(oRow, "a bin has 4 or 5 filled columns, this line " + std::to_string(asCells.size()));
        auto& oList = m_paoPanel->back();
        if (oList.aoBins.size() == MostBins)
            Fail(oRow, "the locus has more than " + std::to_string(MostBins) + " bins");
        oList.aoBins.push_back({asCells[0],
                                {},
                                SizeIn(m_oTable.sInput, oRow.nLine, asCells[1]),
                                SizeIn(m_oTable.sInput, oRow.nLine, asCells[2]),
                                SizeIn(m_oTable.sInput, oRow.nLine, asCells[3]),
                                asCells.size() == 5});
        oList.anLines.push_back(oRow.nLine);
    }

    [[noreturn]] void Fail(const TableRow& oRow, const std::string& sWhat) const {
        FailAt(m_oTable.sInput, oRow.nLine, sWhat);
    }

    const TableText& m_oTable;
    BinLists m_oLists;
    std::vector<BinList>* m_paoPanel = nullptr;
};

// Both together.

class PanelBuilder {
  public:
    PanelBuilder(const TableText& oPanels, const TableText& oBins, AlleleType eType)
        : m_sPanels(oPanels.sInput), m_sBins(oBins.sInput), m_eType(eType) {}

    Panel Build(const PanelLines& oLines, std::vector<BinList>& aoLists) const {
        Panel oPanel{oLines.sName, m_eType, {}};
        for (const auto& oLine : oLines.aoLines) AddLine(oPanel, oLine.oLocus, aoLists);
        for (const auto& oList : aoLists)
            if (!oList.bTaken)
                FailAt(m_sBins, oList.nLine,
                       "the panel '" + oPanel.sName + "' has no such locus, or not so often: '" +
                           oList.sLocus + "'");
        RequireBinsOfAllOrNone(oPanel, oLines);
        for (auto& oLocus : oPanel.aoLoci) Order(oLocus);
        return oPanel;
    }

  private:
    void AddLine(Panel& oPanel, const Locus& oLine, std::vector<BinList>& aoLists) const {
        auto it = std::ranges::find(oPanel.aoLoci, oLine.sName, &Locus::sName);
        if (it == oPanel.aoLoci.end()) it = oPanel.aoLoci.insert(it, oLine);
        it->dLow = std::min(it->dLow, oLine.dLow);
        it->dHigh = std::max(it->dHigh, oLine.dHigh);
        const auto itList = std::ranges::find_if(
            aoLists, [&](const BinList& oList) { return !oList.bTaken && oList.sLocus == oLine.sName; });
        if (itList == aoLists.end()) return;
        itList->bTaken = true;
        AddBins(*it, oLine.sColour, *itList);
    }

    void AddBins(Locus& oLocus, const std::string& sColour, const BinList& oList) const {
        for (std::size_t n = 0; n < oList.aoBins.size(); ++n) {
            if (oLocus.FindBin(oList.aoBins[n].sAllele) != nullptr)
                FailAt(m_sBins, oList.anLines[n],
                       "the locus '" + oLocus.sName + "' has the allele '" + oList.aoBins[n].sAllele +
                           "' twice");
            oLocus.aoBins.push_back(oList.aoBins[n]);
            oLocus.aoBins.back().sColour = sColour;
        }
    }

    // A locus without bins would be missing in every sample.
    void RequireBinsOfAllOrNone(const Panel& oPanel, const PanelLines& oLines) const {
        const auto IsBare = [](const Locus& oLocus) { return oLocus.aoBins.empty(); };
        const auto itBare = std::ranges::find_if(oPanel.aoLoci, IsBare);
        if (itBare == oPanel.aoLoci.end() || std::ranges::all_of(oPanel.aoLoci, IsBare)) return;
        for (const auto& oLine : oLines.aoLines)
            if (oLine.oLocus.sName == itBare->sName)
                FailAt(m_sPanels, oLine.nLine,
                       m_sBins + " has no bins for the locus '" + itBare->sName + "'");
    }

    // A ladder allele without a bin has no known place and cannot be looked for.
    static void Order(Locus& oLocus) {
        std::ranges::stable_sort(oLocus.aoBins, {}, &Bin::dCentre);
        const auto asNamed = std::exchange(oLocus.asLadder, {});
        for (const auto& oBin : oLocus.aoBins)
            if (std::ranges::find(asNamed, oBin.sAllele) != asNamed.end())
                oLocus.asLadder.push_back(oBin.sAllele);
    }

    std::string m_sPanels;
    std::string m_sBins;
    AlleleType m_eType;
};

} // namespace

std::vector<Panel> ReadPanelTables(const TableText& oPanels, const TableText& oBins) {
    PanelReader oPanelReader(oPanels);
    const auto aoLines = oPanelReader.Read();
    auto oLists = BinReader(oBins).Read();
    const PanelBuilder oBuilder(oPanels, oBins, oPanelReader.Type());
    std::vector<Panel> aoPanels;
    for (const auto& oLines : aoLines)
        if (const auto it = oLists.find(oLines.sName); it != oLists.end())
            aoPanels.push_back(oBuilder.Build(oLines, it->second));
    std::erase_if(aoPanels, [](const Panel& oPanel) {
        return std::ranges::all_of(oPanel.aoLoci, [](const Locus& oLocus) { return oLocus.aoBins.empty(); });
    });
    return aoPanels;
}

} // namespace GleanerSvc::Workbench
