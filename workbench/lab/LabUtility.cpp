#include "workbench/lab/LabUtility.h"

namespace GleanerSvc::Workbench {

void LabUtility::LogError(std::string_view sAppTitle, std::string_view sObjectType,
                          std::string_view sProcedure, const Failure& oErr, std::string_view sExtra,
                          bool bShowUser) {
    LogRow oEntry;
    oEntry.sAppTitle = sAppTitle;
    oEntry.sObjectType = sObjectType;
    oEntry.sProcedure = sProcedure;
    oEntry.oFailure = oErr;
    oEntry.sExtra = sExtra;
    oEntry.bShowUser = bShowUser;
    try {
        m_oLab->Log(oEntry);
    } catch (const LabError& oError) {
        oEntry.sExtra +=
            std::string(oEntry.sExtra.empty() ? "" : " ") + "(not logged: " + oError.what() + ")";
        oEntry.bShowUser = true;
    }
    if (oEntry.bShowUser && OnShown) OnShown(oEntry);
}

bool LabUtility::IsInCollection(const IKeyedCollection& colAny, std::string_view sKey) {
    return colAny.Holds(sKey);
}

std::string LabUtility::GetFolderPath(std::string_view sFolderName) {
    return (m_oLab->File().parent_path() / sFolderName).string();
}

bool LabUtility::WillDatabaseOverflow(std::int32_t lNewResults) {
    return m_oLab->SizeMB() + lNewResults * m_oLab->ResultMB() > DatabaseLimitMB;
}

bool LabUtility::IsDatabaseLarge(std::int32_t& lSizeMB) {
    lSizeMB = m_oLab->Setting("WarningSizeMB", WarningSizeMB);
    return m_oLab->SizeMB() > lSizeMB;
}

Value LabUtility::GetWindowSlot(const Value& vFirst, const Value& /*vSecond*/) { return vFirst; }

} // namespace GleanerSvc::Workbench
