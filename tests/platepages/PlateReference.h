// What a plate page should show, worked out plainly from the store and from the IDs that are selected.
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/platepages/PlateScene.h"

namespace GleanerSvc {

class PlatePageProbe {
  public:
    static const KeyedCollection& Selection(const PlatePage& oPage) {
        return dynamic_cast<const KeyedCollection&>(*oPage.m_colSelected);
    }
};

using IDs = std::vector<std::int32_t>;

// Wells by index; 0 for the state of an empty one.
struct PlateContent {
    struct WellContent {
        std::int32_t lState = 0;
        std::int32_t lID = 0; // of the record that the well gives
    };
    std::vector<WellContent> aoWells{97};
    std::map<std::int32_t, std::string> asNames; // of all records of the plate, by ID
};

inline PlateContent ContentOf(const ResultScene& /*oScene*/, IPlate& oPlate) {
    PlateContent oContent;
    for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
        const Well oWell = WellAt(iIndex);
        const auto oResult = oPlate.ResultAt(oWell.iCol, oWell.iRow);
        oContent.aoWells[static_cast<std::size_t>(iIndex)] = {oPlate.ResultState(oWell.iCol, oWell.iRow),
                                                              oResult ? oResult->ResultID() : 0};
    }
    ForEach<IResult>(*oPlate.Results(), [&](IResult& oResult) {
        oContent.asNames[oResult.ResultID()] = RightTrim(oResult.Name());
    });
    return oContent;
}

inline PlateContent ContentOf(const SampleScene& /*oScene*/, IPlate& oPlate) {
    PlateContent oContent;
    for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
        const Well oWell = WellAt(iIndex);
        const auto oSample = oPlate.SampleAt(oWell.iCol, oWell.iRow);
        oContent.aoWells[static_cast<std::size_t>(iIndex)] = {oPlate.SampleState(oWell.iCol, oWell.iRow),
                                                              oSample ? oSample->SampleID() : 0};
    }
    ForEach<ISample>(*oPlate.Samples(), [&](ISample& oSample) {
        oContent.asNames[oSample.SampleID()] = RightTrim(oSample.Name());
    });
    return oContent;
}

inline IDs SelectionOf(const PlatePage& oPage) {
    std::istringstream oKeys(PlatePageProbe::Selection(oPage).ToString());
    IDs alIDs;
    for (std::int32_t lID = 0; oKeys >> lID;) alIDs.push_back(lID);
    return alIDs;
}

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
