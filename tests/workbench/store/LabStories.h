// A folder of its own for each test, and small labs in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pagebind/Text.h"
#include "workbench/store/Database.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

class LabStory : public testing::Test {
  public:
    LabStory() {
        std::string sPattern = (std::filesystem::temp_directory_path() / "lab-XXXXXX").string();
        m_oFolder = mkdtemp(sPattern.data());
    }
    LabStory(const LabStory&) = delete;
    LabStory& operator=(const LabStory&) = delete;
    ~LabStory() override { std::filesystem::remove_all(m_oFolder); }

    std::filesystem::path File(std::string_view sName = "trial.lab") const { return m_oFolder / sName; }
    Ref<Lab> OpenLab(LabMode eMode = LabMode::CreateIfMissing) const { return Lab::Open(File(), eMode); }

  private:
    std::filesystem::path m_oFolder;
};

inline std::vector<std::byte> Bytes(std::string_view sText) {
    const auto abText = std::as_bytes(std::span(sText));
    return {abText.begin(), abText.end()};
}

// "" when nothing was refused.
inline std::string Refusal(const std::function<void()>& fnTry) {
    try {
        fnTry();
    } catch (const LabError& oError) {
        return oError.what();
    } catch (const Failure& oFailure) {
        return oFailure.ToString();
    }
    return "";
}

inline SampleRow SampleIn(std::int32_t lProjectID, std::int32_t lPlateID, std::string_view sWell,
                          std::string sName, double dCollected = 45000) {
    SampleRow oRow;
    oRow.lProjectID = lProjectID;
    oRow.lPlateID = lPlateID;
    oRow.oWell = ReadWell(sWell);
    oRow.sName = std::move(sName);
    oRow.sType = "Sample";
    oRow.sPanel = "Kit";
    oRow.sFile = oRow.sName + ".fsa";
    oRow.dtRun = Date(44999.5);
    oRow.dtCollected = Date(dCollected);
    return oRow;
}

inline std::int32_t AddSample(Lab& oLab, const SampleRow& oRow) {
    return oLab.AddSample(oRow, Bytes("trace of " + oRow.sName));
}

// Three peaks, one of them without a size, and two calls.
inline NewResult ResultOf(std::int32_t lSampleID) {
    NewResult oResult;
    oResult.lSampleID = lSampleID;
    oResult.sDescription = "OFF LADDER";
    oResult.oSized.sReason = "2 of 2 fragments";
    oResult.oSized.aoPeaks = {
        {0, 1000.25, 300, 7.5, 120.125}, {0, 1040.5, 280, 7, 124.1}, {4, 900, 50.5, 8, std::nullopt}};
    oResult.oSized.oFit = {{{100, 900}, {139, 1200.5}}, 0.99998, 0.4, 1, 0.1};
    oResult.oCalled = {
        Status::OffLadder, "D3S1358 at 124.1 bp", {{"D3S1358", "15", 0}, {"D3S1358", "OL", 1}}};
    return oResult;
}

inline std::vector<std::int32_t> IDsOf(const std::vector<ResultRow>& aoResults) {
    std::vector<std::int32_t> alIDs;
    alIDs.reserve(aoResults.size());
    for (const auto& oResult : aoResults) alIDs.push_back(oResult.lResultID);
    return alIDs;
}

} // namespace GleanerSvc::Workbench
