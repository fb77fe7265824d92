// What the selection list should show, by the plain rules: the records of the project on show that pass the
// date filter and are not selected, beside the selected ones.
#pragma once

#include <map>

#include "models/DateText.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {

struct ReferenceRecord {
    Ref<IObject> oRecord;
    std::int32_t lProject;
    Date dtModified;
    Date dtCollected;
    std::string sName;
    bool bSelected = false;
};

struct ListReference {
    ListReference(const Models::DataStore& oStore, bool bRaw) {
        bRaw ? Learn(oStore.Samples().All()) : Learn(oStore.Results().All());
    }

    bool IsOnShow(const ReferenceRecord& oRecord) const {
        return lProject == AllProjectsID || lProject == oRecord.lProject;
    }
    Date InUse(const ReferenceRecord& oRecord) const {
        return bModified ? oRecord.dtModified : oRecord.dtCollected;
    }
    bool IsAvailable(const ReferenceRecord& oRecord) const {
        const Date dtDay = InUse(oRecord).Day();
        return IsOnShow(oRecord) && !oRecord.bSelected && (!bFilter || (dtDay >= dtFirst && dtDay <= dtLast));
    }
    // IDs in order.
    std::vector<std::int32_t> Rows(bool bAvailable) const {
        std::vector<std::int32_t> alIDs;
        for (const auto& [lID, oRecord] : oRecords) {
            if (bAvailable ? IsAvailable(oRecord) : oRecord.bSelected) alIDs.push_back(lID);
        }
        return alIDs;
    }

    std::map<std::int32_t, ReferenceRecord> oRecords; // by ID
    std::int32_t lProject = AllProjectsID;
    bool bFilter = false;
    bool bModified = true; // the date in use
    Date dtFirst = Date::Of({2026, 11, 22});
    Date dtLast = dtFirst;

  private:
    template<class T>
    void Learn(const std::vector<Ref<T>>& aoRecords) {
        for (const auto& oRecord : aoRecords) {
            const auto& oMade = oRecord->Made();
            oRecords[oRecord->RecordID()] = {oRecord, oMade.lProjectID, oMade.dtModified, oMade.dtCollected,
                                             oMade.sName};
        }
    }
};

} // namespace GleanerSvc
