#include "models/UtilityModel.h"

#include "pagebind/Numbers.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

std::string Report::ToString() const {
    return sObjectType + "." + sProcedure + (bShowUser ? "!: " : ": ") + oFailure.ToString();
}

Ref<ITrellisUtility> UtilityModel::Utility() {
    SharedJournal()->Call("TrellisGlobals", "Utility");
    return shared_from_this();
}

void UtilityModel::LogError(std::string_view sAppTitle, std::string_view sObjectType,
                            std::string_view sProcedure, const Failure& oErr, std::string_view sExtra,
                            bool bShowUser) {
    Call("LogError", sAppTitle, sObjectType, sProcedure, oErr, sExtra, bShowUser);
    m_aoReports.push_back({std::string(sAppTitle), std::string(sObjectType), std::string(sProcedure), oErr,
                           std::string(sExtra), bShowUser});
}

bool UtilityModel::IsDebugBreakEnabled() {
    Call("IsDebugBreakEnabled");
    return m_bBreakEnabled;
}

bool UtilityModel::CanDebugBreak(std::int32_t lAppValue) {
    Call("CanDebugBreak", lAppValue);
    m_lAppValue = lAppValue;
    return m_bBreakAllowed;
}

bool UtilityModel::IsInCollection(const IKeyedCollection& colAny, std::string_view sKey) {
    Call("IsInCollection", sKey);
    return colAny.Holds(sKey);
}

std::string UtilityModel::GetFolderPath(std::string_view sFolderName) {
    Call("GetFolderPath", sFolderName);
    const auto itFolder = m_asFolders.find(FoldCase(sFolderName));
    if (itFolder == m_asFolders.end()) {
        throw Failure(FailureNumber::InvalidCall, "Utility",
                      "The installation has no folder \"" + std::string(sFolderName) + "\".");
    }
    return itFolder->second;
}

bool UtilityModel::WillDatabaseOverflow(std::int32_t lNewResults) {
    Call("WillDatabaseOverflow", lNewResults);
    return m_oDatabase.dSize + lNewResults * m_oDatabase.dPerResult > m_oDatabase.dLimit;
}

bool UtilityModel::IsDatabaseLarge(std::int32_t& lSizeMB) {
    Call("IsDatabaseLarge");
    lSizeMB = ToInt32(m_oDatabase.dWarning);
    return m_oDatabase.dSize > m_oDatabase.dWarning;
}

Value UtilityModel::GetWindowSlot(const Value& vFirst, const Value& vSecond) {
    Call("GetWindowSlot", vFirst, vSecond);
    return m_vWindowSlot;
}

std::int16_t UtilityModel::GetWindowMode(std::int16_t iSlot) {
    Call("GetWindowMode", iSlot);
    return m_iWindowMode;
}

std::string UtilityModel::Chain() const {
    std::string sChain;
    for (const auto& oReport : m_aoReports) {
        if (!sChain.empty()) sChain += sChain.back() == '!' ? "; " : " -> ";
        sChain += oReport.sProcedure + (oReport.bShowUser ? "!" : "");
    }
    return sChain;
}

void UtilityModel::Folder(std::string_view sName, std::string_view sPath) {
    m_asFolders[FoldCase(sName)] = sPath;
}

std::string UtilityModel::ToString() const {
    const auto OnOff = [](bool bOn) { return std::string(bOn ? "on" : "off"); };
    return "reports=" + std::to_string(m_aoReports.size()) + " gates=" + OnOff(m_bBreakEnabled) + "/" +
           OnOff(m_bBreakAllowed) + " database=" + Value(m_oDatabase.dSize).ToString() +
           " MB slot=" + m_vWindowSlot.ToString() + " mode=" + DecimalText(m_iWindowMode);
}

} // namespace GleanerSvc::Models
