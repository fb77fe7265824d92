// The in-memory data store: projects, plates, samples, results, studies and parameter records. Tests and
// benchmarks fill and read it here, without an entry in the journal; pages reach it through its factory.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "models/FragmentRecords.h"
#include "models/GridTypeRecord.h"
#include "models/ParameterRecords.h"
#include "models/PlateRecord.h"
#include "models/ProjectRecord.h"
#include "models/RecordTable.h"
#include "models/StoreRecord.h"
#include "models/StudyRecords.h"

namespace GleanerSvc::Models {

// Owns its records. It holds the six grid type records from the start.
class DataStore {
  public:
    explicit DataStore(Ref<Journal> oJournal);
    DataStore(const DataStore&) = delete;
    DataStore& operator=(const DataStore&) = delete;
    ~DataStore();

    // Each fails, changing nothing, for an ID that its kind has already (duplicate key), for an ID of another
    // record that is not there, for a plate of another project, for a well without a plate, and for a well
    // that no plate has or that holds a sample already. Messages name the record.
    Ref<ProjectRecord> AddProject(std::int32_t lProjectID, std::string_view sName);
    Ref<PlateRecord> AddPlate(std::int32_t lPlateID, std::int32_t lProjectID, std::string_view sName);
    Ref<SampleRecord> AddSample(SampleFields oFields);
    Ref<ResultRecord> AddResult(ResultFields oFields);
    Ref<AnalysisParameterRecord> AddAnalysisParameter(std::int32_t lParameterID, std::string_view sName);
    // With a study result for each of these result IDs, which need not exist.
    Ref<StudyRecord> AddStudy(std::int32_t lStudyID, const std::vector<std::int32_t>& alResultIDs = {});

    // New, empty records that the store does not keep.
    Ref<StudyRecord> NewStudy() const;
    Ref<StudyResultRecord> NewStudyResult();
    Ref<AnalysisParameterRecord> NewAnalysisParameter() const;
    Ref<ParameterDefinitionRecord> NewParameterDefinition(std::int32_t lParameterID = 0,
                                                          std::string_view sName = "") const;

    // Adds projects, plates, samples and results from a compact description; see StoreText.h.
    void Fill(std::string_view sText);

    const RecordTable<ProjectRecord>& Projects() const { return m_oProjects; }
    const RecordTable<PlateRecord>& Plates() const { return m_oPlates; }
    const RecordTable<SampleRecord>& Samples() const { return m_oSamples; }
    const RecordTable<ResultRecord>& Results() const { return m_oResults; }
    const RecordTable<StudyRecord>& Studies() const { return m_oStudies; }
    const RecordTable<AnalysisParameterRecord>& AnalysisParameters() const { return m_oParameters; }
    // Fails with invalid call, naming the ID.
    Ref<GridTypeRecord> GridType(std::int32_t lGridTypeID) const;

    const Ref<Journal>& SharedJournal() const { return m_oSettings->oJournal; }

    // Names and descriptions are padded with blanks to that many bytes, 20 at first.
    void NameWidth(std::size_t nWidth) { m_oSettings->nNameWidth = nWidth; }
    // On: the collections of a plate hold other objects, with marks of their own, than its wells give. Off at
    // first.
    void SeparateCopies(bool bSeparate) { m_oSettings->bSeparateCopies = bSeparate; }

    std::string ToString() const; // "projects=2 plates=1 samples=6 results=3 studies=0 parameters=0"

  private:
    // The plate of a record; nothing for the ID 0.
    Ref<PlateRecord> PlateFor(const ProjectRecord& oProject, std::int32_t lPlateID, bool bHasWell) const;

    Ref<StoreSettings> m_oSettings;
    RecordTable<ProjectRecord> m_oProjects;
    RecordTable<PlateRecord> m_oPlates;
    RecordTable<SampleRecord> m_oSamples;
    RecordTable<ResultRecord> m_oResults;
    RecordTable<StudyRecord> m_oStudies;
    RecordTable<AnalysisParameterRecord> m_oParameters;
    std::map<std::int32_t, Ref<GridTypeRecord>> m_oGridTypes;
    std::vector<std::weak_ptr<StudyResultRecord>> m_aoStudyResults; // all that were made
};

} // namespace GleanerSvc::Models
