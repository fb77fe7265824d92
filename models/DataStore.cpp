#include "models/DataStore.h"

#include <array>
#include <utility>

#include "models/StoreText.h"
#include "pagebind/DataStore.h"
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

constexpr std::int32_t NameTwips = 2200;
constexpr std::int32_t DateTwips = 1600;
constexpr std::int32_t TextTwips = 2600;

using Columns = std::vector<GridTypeRecord::Column>;

// The two last columns of a list are hidden and get their headings from the page.
Columns ResultColumns() {
    return {{"Name", NameTwips}, {"Date", DateTwips}, {"Description", TextTwips}, {"", 0}, {"", 0}};
}
Columns RawColumns() { return {{"Name", NameTwips}, {"Date", DateTwips}, {"", 0}, {"", 0}}; }
Columns ItemColumns() {
    return {{"Name", NameTwips}, {"Date", DateTwips}, {"Status", TextTwips}, {"Completed", DateTwips}};
}

struct GridLayout {
    std::string_view sGridTypeID;
    Columns (*fnColumns)();
};

constexpr std::array GridLayouts = {
    GridLayout{GridTypeID::ResultList, ResultColumns}, GridLayout{GridTypeID::ResultSelected, ResultColumns},
    GridLayout{GridTypeID::RawList, RawColumns},       GridLayout{GridTypeID::RawSelected, RawColumns},
    GridLayout{GridTypeID::AnalyzeItems, ItemColumns}, GridLayout{GridTypeID::AlleleItems, ItemColumns},
};

} // namespace

DataStore::DataStore(Ref<Journal> oJournal) : m_oSettings(std::make_shared<StoreSettings>()) {
    m_oSettings->oJournal = std::move(oJournal);
    for (const auto& oLayout : GridLayouts) {
        const auto lGridTypeID = ToInt32(oLayout.sGridTypeID);
        m_oGridTypes[lGridTypeID] = std::make_shared<GridTypeRecord>(lGridTypeID, oLayout.fnColumns());
    }
}

DataStore::~DataStore() {
    for (const auto& oWeak : m_aoStudyResults) {
        if (const auto oStudyResult = oWeak.lock()) oStudyResult->Detach();
    }
}

Ref<ProjectRecord> DataStore::AddProject(std::int32_t lProjectID, std::string_view sName) {
    auto oProject = std::make_shared<ProjectRecord>(m_oSettings, lProjectID, std::string(sName));
    m_oProjects.Add(oProject);
    return oProject;
}

Ref<PlateRecord> DataStore::AddPlate(std::int32_t lPlateID, std::int32_t lProjectID, std::string_view sName) {
    const auto& oProject = m_oProjects.At(lProjectID);
    auto oPlate = std::make_shared<PlateRecord>(m_oSettings, lPlateID, lProjectID, std::string(sName));
    m_oPlates.Add(oPlate);
    oProject->Put(oPlate);
    return oPlate;
}

Ref<SampleRecord> DataStore::AddSample(SampleFields oFields) {
    m_oSamples.RequireNew(oFields.lSampleID);
    const auto& oProject = m_oProjects.At(oFields.lProjectID);
    const auto oPlate = PlateFor(*oProject, oFields.lPlateID, oFields.oWell.has_value());
    auto oSample = std::make_shared<SampleRecord>(m_oSettings, std::move(oFields));
    if (oPlate) oPlate->Put(oSample);
    m_oSamples.Add(oSample);
    oProject->Put(oSample);
    return oSample;
}

Ref<ResultRecord> DataStore::AddResult(ResultFields oFields) {
    m_oResults.RequireNew(oFields.lResultID);
    const auto oSample = oFields.lSampleID == 0 ? nullptr : m_oSamples.At(oFields.lSampleID);
    if (oSample && oFields.lProjectID == 0) oFields.lProjectID = oSample->Made().lProjectID;
    if (oSample && oFields.lPlateID == 0 && !oFields.oWell) {
        oFields.lPlateID = oSample->Made().lPlateID;
        oFields.oWell = oSample->Made().oWell;
    }
    const auto& oProject = m_oProjects.At(oFields.lProjectID);
    const auto oPlate = PlateFor(*oProject, oFields.lPlateID, oFields.oWell.has_value());
    auto oResult = std::make_shared<ResultRecord>(m_oSettings, std::move(oFields), oSample);
    if (oPlate) oPlate->Put(oResult);
    if (oSample) oSample->MarkAnalyzed();
    m_oResults.Add(oResult);
    oProject->Put(oResult);
    return oResult;
}

Ref<PlateRecord> DataStore::PlateFor(const ProjectRecord& oProject, std::int32_t lPlateID,
                                     bool bHasWell) const {
    if (lPlateID == 0) {
        if (!bHasWell) return nullptr;
        throw Failure(FailureNumber::InvalidCall, "DataStore", "A record has a well, but no plate.");
    }
    const auto& oPlate = m_oPlates.At(lPlateID);
    if (oPlate->OwnerID() != oProject.RecordID()) {
        throw Failure(FailureNumber::InvalidCall, "DataStore",
                      "Plate " + oPlate->ToString() + " is not of project " +
                          DecimalText(oProject.RecordID()) + ".");
    }
    return oPlate;
}

Ref<AnalysisParameterRecord> DataStore::AddAnalysisParameter(std::int32_t lParameterID,
                                                             std::string_view sName) {
    auto oParameter =
        std::make_shared<AnalysisParameterRecord>(m_oSettings, lParameterID, std::string(sName));
    m_oParameters.Add(oParameter);
    return oParameter;
}

Ref<StudyRecord> DataStore::AddStudy(std::int32_t lStudyID, const std::vector<std::int32_t>& alResultIDs) {
    auto oStudy = std::make_shared<StudyRecord>(m_oSettings, lStudyID);
    m_oStudies.Add(oStudy);
    for (const auto lResultID : alResultIDs) {
        auto oStudyResult = NewStudyResult();
        oStudyResult->Store(oStudy, lResultID);
        oStudy->Put(oStudyResult);
    }
    return oStudy;
}

Ref<StudyRecord> DataStore::NewStudy() const { return std::make_shared<StudyRecord>(m_oSettings, 0); }

Ref<StudyResultRecord> DataStore::NewStudyResult() {
    auto oStudyResult = std::make_shared<StudyResultRecord>(m_oSettings, *this);
    m_aoStudyResults.push_back(oStudyResult);
    return oStudyResult;
}

Ref<AnalysisParameterRecord> DataStore::NewAnalysisParameter() const {
    return std::make_shared<AnalysisParameterRecord>(m_oSettings, 0, "");
}

Ref<ParameterDefinitionRecord> DataStore::NewParameterDefinition(std::int32_t lParameterID,
                                                                 std::string_view sName) const {
    return std::make_shared<ParameterDefinitionRecord>(m_oSettings, lParameterID, std::string(sName));
}

void DataStore::Fill(std::string_view sText) { AddStoreLines(*this, ReadStoreText(sText)); }

Ref<GridTypeRecord> DataStore::GridType(std::int32_t lGridTypeID) const {
    const auto itGridType = m_oGridTypes.find(lGridTypeID);
    if (itGridType == m_oGridTypes.end()) {
        throw Failure(FailureNumber::InvalidCall, "DataStore",
                      "GridType " + DecimalText(lGridTypeID) + " is not in the data store.");
    }
    return itGridType->second;
}

std::string DataStore::ToString() const {
    const auto Part = [](const char* sName, const auto& oTable) {
        return sName + DecimalText(std::ssize(oTable.All()));
    };
    return Part("projects=", m_oProjects) + Part(" plates=", m_oPlates) + Part(" samples=", m_oSamples) +
           Part(" results=", m_oResults) + Part(" studies=", m_oStudies) +
           Part(" parameters=", m_oParameters);
}

} // namespace GleanerSvc::Models
