// What the selection list should show, by the plain rules: the records of the project on show that pass the
// date filter and are not selected, beside the selected ones.
#pragma once

#include <map>

#include "models/DateText.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {

struct ListReference {
    struct Entry {
        Ref<IObject> oRecord;
        std::int32_t lProject;
        Date dtModified;
        Date dtCollected;
        std::string sName;
        bool bSelected = false;
    };

    ListReference(const Models::DataStore& oStore, bool bRaw) {
        bRaw ? Learn(oStore.Samples().All()) : Learn(oStore.Results().All());
    }

    bool IsOnShow(const Entry& o) const { return lProject == AllProjectsID || lProject == o.lProject; }
    Date InUse(const Entry& o) const { return bModified ? o.dtModified : o.dtCollected; }
    bool IsAvailable(const Entry& o) const {
        const Date dtDay = InUse(o).Day();
        return IsOnShow(o) && !o.bSelected && (!bFilter || (dtDay >= dtFirst && dtDay <= dtLast));
    }
    // IDs in order.
    Rows IDs(bool bOfAvailable) const {
        Rows alIDs;
        for (const auto& [lID, oEntry] : oRecords)
            if (bOfAvailable ? IsAvailable(oEntry) : oEntry.bSelected) alIDs.push_back(lID);
        return alIDs;
    }

    std::map<std::int32_t, Entry> oRecords; // by ID
    std::int32_t lProject = AllProjectsID;
    bool bFilter = false;
    bool bModified = true; // the date in use
    Date dtFirst = Date::Of({2026, 11, 22});
    Date dtLast = dtFirst;

  private:
    template<class T>
    void Learn(const std::vector<Ref<T>>& aoRecords) {
        for (const auto& o : aoRecords)
            oRecords[o->RecordID()] = {o, o->Made().lProjectID, o->Made().dtModified, o->Made().dtCollected,
                                       o->PlainName()};
    }
};

} // namespace GleanerSvc
