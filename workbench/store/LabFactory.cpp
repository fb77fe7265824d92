#include "workbench/store/LabFactory.h"

#include <algorithm>
#include <initializer_list>

#include "models/IdText.h"
#include "workbench/store/AnalysisParameterRecord.h"
#include "workbench/store/FragmentRecords.h"
#include "workbench/store/PlateRecord.h"
#include "workbench/store/ProjectRecord.h"
#include "workbench/store/RecordCollection.h"
#include "workbench/store/StudyRecords.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::string_view ProjectType = "Project";

[[noreturn]] void Refuse(std::initializer_list<std::string_view> asParts) {
    std::string sText;
    for (const auto sPart : asParts) sText += sPart;
    throw Failure(FailureNumber::InvalidCall, "DataFactory", sText);
}

std::int32_t RequireID(std::string_view sName, std::string_view sKeyValue) {
    const auto lID = Models::ReadId(sKeyValue);
    if (!lID) Refuse({"\"", sKeyValue, "\" is no ID to look for \"", sName, "\" by."});
    return *lID;
}

void RequireKeyName(std::string_view sName, std::string_view sExpected, std::string_view sKeyName) {
    if (sKeyName != sExpected) Refuse({"\"", sName, "\" has no key \"", sKeyName, "\"."});
}

Ref<IObject> FindProject(const Ref<Lab>& oLab, std::int32_t lProjectID) {
    auto oRow = oLab->FindProject(lProjectID);
    return oRow ? std::make_shared<ProjectRecord>(oLab, *std::move(oRow)) : nullptr;
}

Ref<IObject> FindResult(const Ref<Lab>& oLab, std::int32_t lResultID) {
    auto oRow = oLab->FindResult(lResultID);
    return oRow ? std::make_shared<ResultRecord>(oLab, *std::move(oRow)) : nullptr;
}

Ref<IObject> FindGridType(const Ref<Lab>& oLab, std::int32_t lGridTypeID) {
    auto aoColumns = oLab->GridColumns(lGridTypeID);
    if (aoColumns.empty()) return nullptr;
    return std::make_shared<Models::GridTypeRecord>(lGridTypeID, std::move(aoColumns));
}

struct RecordLookup {
    std::string_view sType;
    std::string_view sKeyName;
    Ref<IObject> (*fnFind)(const Ref<Lab>&, std::int32_t lID); // nothing when there is none
};

constexpr RecordLookup RecordLookups[] = {{ProjectType, KeyName::ProjectID, FindProject},
                                          {RecordName::Result, KeyName::ResultID, FindResult},
                                          {RecordName::GridType, KeyName::GridTypeID, FindGridType}};

template<class Record, class Row>
Ref<IDataCollection> Collect(const Ref<Lab>& oLab, const char* sName, std::vector<Row> aoRows) {
    auto colRecords = std::make_shared<RecordCollection>(sName);
    for (auto& oRow : aoRows) colRecords->Put(std::make_shared<Record>(oLab, std::move(oRow)));
    return colRecords;
}

struct Query {
    std::string_view sName;
    std::string_view sKeyName; // a query without one takes no key value
    Ref<IDataCollection> (*fnRun)(const Ref<Lab>&, std::int32_t lProjectID);
};

constexpr Query Queries[] = {
    {QueryName::Projects, KeyName::None,
     [](const Ref<Lab>& oLab, std::int32_t) {
         return Collect<ProjectRecord>(oLab, "Projects", oLab->Projects());
     }},
    {QueryName::PlatesByProjectID, KeyName::ProjectID,
     [](const Ref<Lab>& oLab, std::int32_t lProjectID) {
         return Collect<PlateRecord>(oLab, "Plates", oLab->Plates(lProjectID));
     }},
    {QueryName::Samples, KeyName::None, SamplesOf},
    {QueryName::SamplesByProjectID, KeyName::ProjectID, SamplesOf},
    {QueryName::Results, KeyName::None, ResultsOf},
    {QueryName::ResultsByProjectID, KeyName::ProjectID, ResultsOf},
};

// Without a key a query is about all projects.
std::int32_t ProjectFor(const Query& oQuery, std::string_view sKeyValue) {
    if (!oQuery.sKeyName.empty()) return RequireID(oQuery.sName, sKeyValue);
    if (!sKeyValue.empty())
        Refuse({"The query \"", oQuery.sName, "\" takes no key value \"", sKeyValue, "\"."});
    return AllProjectsID;
}

} // namespace

LabFactory::LabFactory(Ref<Lab> oLab) : m_oLab(std::move(oLab)) {}

Ref<IObject> LabFactory::CreateRecord(std::string_view sType) {
    if (sType == RecordName::AnalysisParameter) return std::make_shared<AnalysisParameterRecord>();
    if (sType == RecordName::Study) return std::make_shared<StudyRecord>();
    if (sType == RecordName::StudyResult) return std::make_shared<StudyResultRecord>(m_oLab);
    Refuse({"No record of the type \"", sType, "\" can be made."});
}

Ref<IObject> LabFactory::GetRecord(std::string_view sType, std::string_view sKeyName,
                                   std::string_view sKeyValue, std::int32_t /*lOption*/, bool /*bFlag*/) {
    const auto* pLookup = std::find_if(std::begin(RecordLookups), std::end(RecordLookups),
                                       [&](const RecordLookup& oLookup) { return oLookup.sType == sType; });
    if (pLookup == std::end(RecordLookups)) Refuse({"There are no records of the type \"", sType, "\"."});
    RequireKeyName(sType, pLookup->sKeyName, sKeyName);
    if (auto oRecord = pLookup->fnFind(m_oLab, RequireID(sType, sKeyValue))) return oRecord;
    Refuse({sType, " ", sKeyValue, " is not in the lab ", m_oLab->File().string(), "."});
}

Ref<IDataCollection> LabFactory::GetCollection(std::string_view sQuery, std::string_view sKeyName,
                                               std::string_view sKeyValue, std::string_view /*sOrder*/,
                                               std::int32_t /*lOption*/, bool /*bFlag*/) {
    const auto* pQuery = std::find_if(std::begin(Queries), std::end(Queries),
                                      [&](const Query& oQuery) { return oQuery.sName == sQuery; });
    if (pQuery == std::end(Queries)) Refuse({"There is no query \"", sQuery, "\"."});
    RequireKeyName(sQuery, pQuery->sKeyName, sKeyName);
    return pQuery->fnRun(m_oLab, ProjectFor(*pQuery, sKeyValue));
}

Ref<IStudy> LabFactory::Study(std::int32_t lStudyID) {
    return std::make_shared<StudyRecord>(m_oLab, lStudyID);
}

} // namespace GleanerSvc::Workbench
