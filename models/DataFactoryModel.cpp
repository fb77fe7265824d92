#include "models/DataFactoryModel.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "models/DataCollectionModel.h"
#include "models/IdText.h"

namespace GleanerSvc::Models {

namespace {

constexpr std::string_view ProjectType = "Project";

[[noreturn]] void Refuse(std::initializer_list<std::string_view> asParts) {
    std::string sText;
    for (const auto sPart : asParts) sText += sPart;
    throw Failure(FailureNumber::InvalidCall, "DataFactory", sText);
}

std::int32_t RequireID(std::string_view sName, std::string_view sKeyValue) {
    const auto lID = ReadId(sKeyValue);
    if (!lID) Refuse({"\"", sKeyValue, "\" is no ID to look for \"", sName, "\" by."});
    return *lID;
}

void RequireKeyName(std::string_view sName, std::string_view sExpected, std::string_view sKeyName) {
    if (sKeyName != sExpected) Refuse({"\"", sName, "\" has no key \"", sKeyName, "\"."});
}

struct RecordLookup {
    std::string_view sType;
    std::string_view sKeyName;
    Ref<IObject> (*fnFind)(const DataStore&, std::int32_t);
};

constexpr std::array RecordLookups = {
    RecordLookup{
        ProjectType, KeyName::ProjectID,
        [](const DataStore& oStore, std::int32_t lID) -> Ref<IObject> { return oStore.Projects().At(lID); }},
    RecordLookup{
        RecordName::Result, KeyName::ResultID,
        [](const DataStore& oStore, std::int32_t lID) -> Ref<IObject> { return oStore.Results().At(lID); }},
    RecordLookup{
        RecordName::GridType, KeyName::GridTypeID,
        [](const DataStore& oStore, std::int32_t lID) -> Ref<IObject> { return oStore.GridType(lID); }},
};

template<class T>
Ref<IDataCollection> Collect(const DataStore& oStore, std::string_view sName,
                             const std::vector<Ref<T>>& aoRecords) {
    return std::make_shared<DataCollectionModel>(oStore.SharedJournal(), sName, aoRecords);
}

// What the project owns of one kind; an empty collection when there is no such project.
template<class T>
Ref<IDataCollection> CollectOwn(const DataStore& oStore, std::string_view sName, std::int32_t lProjectID,
                                const std::vector<Ref<T>>& (ProjectRecord::*fnOwn)() const) {
    const auto oProject = oStore.Projects().Find(lProjectID);
    return Collect(oStore, sName, oProject ? (*oProject.*fnOwn)() : std::vector<Ref<T>>());
}

struct Query {
    std::string_view sName;
    std::string_view sKeyName; // a query without one takes no key value
    Ref<IDataCollection> (*fnRun)(const DataStore&, std::int32_t lProjectID);
};

constexpr std::array Queries = {
    Query{QueryName::Projects, KeyName::None,
          [](const DataStore& oStore, std::int32_t) {
              return Collect(oStore, "Projects", oStore.Projects().All());
          }},
    Query{QueryName::Samples, KeyName::None,
          [](const DataStore& oStore, std::int32_t) {
              return Collect(oStore, "Samples", oStore.Samples().All());
          }},
    Query{QueryName::Results, KeyName::None,
          [](const DataStore& oStore, std::int32_t) {
              return Collect(oStore, "Results", oStore.Results().All());
          }},
    Query{QueryName::PlatesByProjectID, KeyName::ProjectID,
          [](const DataStore& oStore, std::int32_t lID) {
              return CollectOwn(oStore, "Plates", lID, &ProjectRecord::OwnPlates);
          }},
    Query{QueryName::SamplesByProjectID, KeyName::ProjectID,
          [](const DataStore& oStore, std::int32_t lID) {
              return CollectOwn(oStore, "Samples", lID, &ProjectRecord::OwnSamples);
          }},
    Query{QueryName::ResultsByProjectID, KeyName::ProjectID,
          [](const DataStore& oStore, std::int32_t lID) {
              return CollectOwn(oStore, "Results", lID, &ProjectRecord::OwnResults);
          }},
};

} // namespace

Ref<IDataFactory> DataFactoryModel::DataFactory() {
    Call("DataFactory");
    return shared_from_this();
}

Ref<IObject> DataFactoryModel::CreateRecord(std::string_view sType) {
    Call("CreateRecord", sType);
    if (sType == RecordName::AnalysisParameter) return m_oStore->NewAnalysisParameter();
    if (sType == RecordName::Study) return m_oStore->NewStudy();
    if (sType == RecordName::StudyResult) return m_oStore->NewStudyResult();
    Refuse({"No record of the type \"", sType, "\" can be made."});
}

Ref<IObject> DataFactoryModel::GetRecord(std::string_view sType, std::string_view sKeyName,
                                         std::string_view sKeyValue, std::int32_t lOption, bool bFlag) {
    Call("GetRecord", sType, sKeyName, sKeyValue, lOption, bFlag);
    const auto* pLookup = std::find_if(RecordLookups.begin(), RecordLookups.end(),
                                       [&](const RecordLookup& oLookup) { return oLookup.sType == sType; });
    if (pLookup == RecordLookups.end()) Refuse({"There are no records of the type \"", sType, "\"."});
    RequireKeyName(sType, pLookup->sKeyName, sKeyName);
    return pLookup->fnFind(*m_oStore, RequireID(sType, sKeyValue));
}

Ref<IDataCollection> DataFactoryModel::GetCollection(std::string_view sQuery, std::string_view sKeyName,
                                                     std::string_view sKeyValue, std::string_view sOrder,
                                                     std::int32_t lOption, bool bFlag) {
    Call("GetCollection", sQuery, sKeyName, sKeyValue, sOrder, lOption, bFlag);
    const auto* pQuery = std::find_if(Queries.begin(), Queries.end(),
                                      [&](const Query& oQuery) { return oQuery.sName == sQuery; });
    if (pQuery == Queries.end()) Refuse({"There is no query \"", sQuery, "\"."});
    RequireKeyName(sQuery, pQuery->sKeyName, sKeyName);
    if (!pQuery->sKeyName.empty()) return pQuery->fnRun(*m_oStore, RequireID(sQuery, sKeyValue));
    if (!sKeyValue.empty()) Refuse({"The query \"", sQuery, "\" takes no key value \"", sKeyValue, "\"."});
    return pQuery->fnRun(*m_oStore, 0);
}

} // namespace GleanerSvc::Models
