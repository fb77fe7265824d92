// What a plate page should show, worked out plainly from the store and from the IDs that are selected.
#pragma once

#include <algorithm>
#include <map>

#include "tests/platepages/PlateScene.h"

namespace GleanerSvc {

class PlatePageProbe {
  public:
    static const KeyedCollection& Selection(const PlatePage& oPage) {
        return dynamic_cast<const KeyedCollection&>(*oPage.m_colSelected);
    }
};

struct WellContent {
    std::int32_t lState = 0; // 0 for an empty well
    std::int32_t lID = 0;    // of the record that the well gives
};
struct PlateContent {
    std::vector<WellContent> aoWells{97};        // by index
    std::map<std::int32_t, std::string> asNames; // of all records of the plate, by ID
};

inline const auto& RecordsOf(const ResultScene& oScene) { return oScene.Store().Results(); }
inline const auto& RecordsOf(const SampleScene& oScene) { return oScene.Store().Samples(); }

inline WellContent ContentOf(const ResultScene& /*oScene*/, IPlate& oPlate, const Well& o) {
    const auto oResult = oPlate.ResultAt(o.iCol, o.iRow);
    return {oPlate.ResultState(o.iCol, o.iRow), oResult ? oResult->ResultID() : 0};
}
inline WellContent ContentOf(const SampleScene& /*oScene*/, IPlate& oPlate, const Well& o) {
    const auto oSample = oPlate.SampleAt(o.iCol, o.iRow);
    return {oPlate.SampleState(o.iCol, o.iRow), oSample ? oSample->SampleID() : 0};
}

template<class Scene>
PlateContent PlateContentOf(const Scene& oScene, std::int32_t lPlateID) {
    PlateContent oContent;
    IPlate& oPlate = *oScene.Store().Plates().At(lPlateID);
    for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex)
        oContent.aoWells[static_cast<std::size_t>(iIndex)] = ContentOf(oScene, oPlate, WellAt(iIndex));
    for (const auto& oRecord : RecordsOf(oScene).All())
        if (oRecord->Made().lPlateID == lPlateID)
            oContent.asNames[oRecord->RecordID()] = oRecord->PlainName();
    return oContent;
}

inline IDs SelectionOf(const PlatePage& oPage) { return IDsIn(PlatePageProbe::Selection(oPage).ToString()); }

inline bool Holds(const IDs& alIDs, std::int32_t lID) {
    return std::find(alIDs.begin(), alIDs.end(), lID) != alIDs.end();
}

// "wells=[A1* B1!] listed=[R1] selected=2"; nullptr for a project without plates.
inline std::string ExpectedState(const PlateContent* pPlate, const IDs& alSelected) {
    std::string sWells;
    std::string sListed;
    for (std::int16_t iIndex = 1; pPlate && iIndex <= PlateWells; ++iIndex) {
        const auto& oWell = pPlate->aoWells[static_cast<std::size_t>(iIndex)];
        if (oWell.lState == 0) continue;
        sWells += (sWells.empty() ? "" : " ") + WellText(WellAt(iIndex)) + (oWell.lState == 2 ? "!" : "") +
                  (Holds(alSelected, oWell.lID) ? "*" : "");
    }
    for (const std::int32_t lID : alSelected) {
        if (!pPlate || !pPlate->asNames.contains(lID)) continue;
        sListed += (sListed.empty() ? "" : " ") + pPlate->asNames.at(lID);
    }
    return "wells=[" + sWells + "] listed=[" + sListed + "] selected=" + std::to_string(alSelected.size());
}

} // namespace GleanerSvc
