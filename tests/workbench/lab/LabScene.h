// A lab in a folder of its own, with a simulated plate: what tests of the workbench begin with.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "workbench/lab/LabLibraries.h"
#include "workbench/lab/SimulatedPlate.h"

namespace GleanerSvc::Workbench {

// Ends with the scene.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string sName = (std::filesystem::temp_directory_path() / "gleaner-XXXXXX").string();
        if (!mkdtemp(sName.data())) throw std::filesystem::filesystem_error("mkdtemp", {});
        m_oPath = sName;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code oIgnored;
        std::filesystem::remove_all(m_oPath, oIgnored);
    }
    const std::filesystem::path& Path() const { return m_oPath; }

  private:
    std::filesystem::path m_oPath;
};

struct LabScene {
    explicit LabScene(AlleleType eOfType = AlleleType::Str) : eType(eOfType) {
        oKit = eType == AlleleType::Str ? SimulatedStrKit() : SimulatedSnpKit();
        oOrder.oPanel = ReadPanelTables(oKit.oPanels, oKit.oBins).front();
        oOrder.sPlate = "P1";
    }
    // Makes the plate that is ordered by then.
    void MakePlate() {
        aoWells = SimulatePlate(oOrder);
        ImportPlate(*oLab, {"Trial", oOrder.sPlate}, oKit, aoWells);
        const auto oProject = oLab->FindProject("Trial");
        aoSamples = oLab->SamplesOfPlate(oLab->FindPlate(oProject->lProjectID, "P1")->lPlateID);
    }
    const SimulatedWell& Made(const SampleRow& oSample) const {
        return *std::find_if(aoWells.begin(), aoWells.end(),
                             [&](const auto& oWell) { return oWell.sFile == oSample.sFile; });
    }
    std::vector<std::int32_t> SampleIDs() const {
        std::vector<std::int32_t> alIDs;
        for (const auto& oSample : aoSamples) alIDs.push_back(oSample.lSampleID);
        return alIDs;
    }
    // "S01: 12 14" for each locus that has calls, in the panel's order.
    std::vector<KnownGenotype> Called(std::int32_t lResultID) const {
        std::vector<KnownGenotype> aoGenotype;
        for (const auto& oCall : oLab->CalledOf(lResultID).aoCalls) {
            if (aoGenotype.empty() || aoGenotype.back().sLocus != oCall.sLocus)
                aoGenotype.push_back({oCall.sLocus, {}});
            aoGenotype.back().asAlleles.push_back(oCall.sAllele);
        }
        return aoGenotype;
    }

    TemporaryFolder oFolder;
    Ref<Lab> oLab = Lab::Open(oFolder.Path() / "lab.sqlite", LabMode::CreateIfMissing);
    AlleleType eType;
    KitTables oKit;
    PlateOrder oOrder;
    std::vector<SimulatedWell> aoWells;
    std::vector<SampleRow> aoSamples;
};

} // namespace GleanerSvc::Workbench
