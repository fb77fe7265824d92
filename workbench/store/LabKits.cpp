// Kits with their panels, and what an analyzer is told to do with them.
#include <algorithm>
#include <span>

#include "pagebind/Text.h"
#include "workbench/store/Columns.h"
#include "workbench/store/Database.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr char LocusEnd = '\t'; // no locus of a tab-separated table has one in its name

// Tables are kept as bytes: their texts are of no known encoding.
std::span<const std::byte> AsBytes(const std::string& sText) { return std::as_bytes(std::span(sText)); }

std::string AsText(const std::vector<std::byte>& abContent) {
    std::string sText(abContent.size(), '\0');
    std::transform(abContent.begin(), abContent.end(), sText.begin(),
                   [](std::byte bContent) { return static_cast<char>(bContent); });
    return sText;
}

bool HasName(const Panel& oPanel, std::string_view sName) {
    return EqualsIgnoringCase(RightTrim(oPanel.sName), RightTrim(sName));
}

std::string JoinLoci(const std::vector<std::string>& asLoci) {
    std::string sJoined;
    for (const auto& sLocus : asLoci) sJoined += sLocus + LocusEnd;
    return sJoined;
}

std::vector<std::string> SplitLoci(std::string_view sJoined) {
    std::vector<std::string> asLoci;
    for (auto nEnd = sJoined.find(LocusEnd); nEnd != std::string_view::npos; nEnd = sJoined.find(LocusEnd)) {
        asLoci.emplace_back(sJoined.substr(0, nEnd));
        sJoined.remove_prefix(nEnd + 1);
    }
    return asLoci;
}

} // namespace

std::size_t Lab::SaveKit(std::string_view sName, const TableText& oPanels, const TableText& oBins) {
    RequireNewName(false, "kit", sName);
    const std::size_t nPanels = ReadPanelTables(oPanels, oBins).size();
    if (nPanels == 0) throw InputError(oPanels.sInput, "", "no panel of it has bins in " + oBins.sInput);
    Transaction oAll(*this);
    m_oDatabase->Write("DELETE FROM kits WHERE folded_name = ?", FoldedName(sName));
    m_oDatabase->Write(
        "INSERT INTO kits (name, folded_name, panel_source, panel_table, bin_source, bin_table) "
        "VALUES (?, ?, ?, ?, ?, ?)",
        RightTrim(sName), FoldedName(sName), oPanels.sInput, AsBytes(oPanels.sText), oBins.sInput,
        AsBytes(oBins.sText));
    oAll.Commit();
    m_oPanels.reset();
    return nPanels;
}

const std::vector<Panel>& Lab::KeptPanels() {
    if (m_oPanels) return *m_oPanels;
    std::vector<Panel> aoPanels;
    Statement oRows = m_oDatabase->Query(
        "SELECT panel_source, panel_table, bin_source, bin_table FROM kits ORDER BY kit_id DESC");
    while (oRows.Next()) {
        for (auto& oPanel : ReadPanelTables({oRows.Text(0), AsText(oRows.Bytes(1))},
                                            {oRows.Text(2), AsText(oRows.Bytes(3))})) {
            const auto IsNamesake = [&](const Panel& oKept) { return HasName(oKept, oPanel.sName); };
            if (std::none_of(aoPanels.begin(), aoPanels.end(), IsNamesake))
                aoPanels.push_back(std::move(oPanel));
        }
    }
    return m_oPanels.emplace(std::move(aoPanels));
}

std::vector<Panel> Lab::Panels() { return KeptPanels(); }

std::optional<Panel> Lab::FindPanel(std::string_view sName) {
    const auto& aoPanels = KeptPanels();
    const auto itPanel = std::find_if(aoPanels.begin(), aoPanels.end(),
                                      [&](const Panel& oPanel) { return HasName(oPanel, sName); });
    return itPanel == aoPanels.end() ? std::nullopt : std::optional(*itPanel);
}

std::int32_t Lab::AddParameter(const ParameterRow& oParameter) {
    const auto lType = static_cast<std::int32_t>(oParameter.eType);
    const std::string sLoci = JoinLoci(oParameter.asLoci);
    Statement oRows = m_oDatabase->Query(
        "SELECT parameter_id FROM parameters WHERE allele_type = ? AND loci = ?", lType, sLoci);
    if (oRows.Next()) return oRows.Int(0);
    return m_oDatabase->Insert("INSERT INTO parameters (name, allele_type, loci) VALUES (?, ?, ?)",
                               oParameter.sName, lType, sLoci);
}

std::optional<ParameterRow> Lab::FindParameter(std::int32_t lParameterID) {
    Statement oRows = m_oDatabase->Query(
        "SELECT name, allele_type, loci FROM parameters WHERE parameter_id = ?", lParameterID);
    if (!oRows.Next()) return std::nullopt;
    return ParameterRow{lParameterID, oRows.Text(0), static_cast<AlleleType>(oRows.Int(1)),
                        SplitLoci(oRows.Text(2))};
}

} // namespace GleanerSvc::Workbench
