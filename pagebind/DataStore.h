// The data factory of the closed store: named queries for records.
#pragma once

#include <cstdint>
#include <string_view>

#include "pagebind/Records.h"

namespace GleanerSvc {

// Stands for "[All Projects]" wherever a project ID is asked for.
inline constexpr std::int32_t AllProjectsID = -1;
inline constexpr std::string_view AllProjectsName = "[All Projects]";

// Record types, queries and key names.
namespace RecordName {
inline constexpr std::string_view AnalysisParameter = "AnalysisParameter";
inline constexpr std::string_view GridType = "GridType";
inline constexpr std::string_view Result = "Result";
inline constexpr std::string_view Study = "Study";
inline constexpr std::string_view StudyResult = "StudyResult";
} // namespace RecordName

namespace QueryName {
inline constexpr std::string_view PlatesByProjectID = "PlatesByProjectID";
inline constexpr std::string_view Projects = "Projects";
inline constexpr std::string_view Results = "Results";
inline constexpr std::string_view ResultsByProjectID = "ResultsByProjectID";
inline constexpr std::string_view Samples = "Samples";
inline constexpr std::string_view SamplesByProjectID = "SamplesByProjectID";
} // namespace QueryName

namespace KeyName {
inline constexpr std::string_view None;
inline constexpr std::string_view GridTypeID = "GridTypeID";
inline constexpr std::string_view ProjectID = "ProjectID";
inline constexpr std::string_view ResultID = "ResultID";
} // namespace KeyName

// IDs of the grid type records, as the text that GetRecord takes.
namespace GridTypeID {
inline constexpr std::string_view ResultList = "4"; // also the plate list of results
inline constexpr std::string_view ResultSelected = "5";
inline constexpr std::string_view RawList = "8"; // also the plate list of samples
inline constexpr std::string_view RawSelected = "9";
inline constexpr std::string_view AnalyzeItems = "17";
inline constexpr std::string_view AlleleItems = "25";
} // namespace GridTypeID

class IDataFactory : public virtual IObject {
  public:
    virtual Ref<IObject> CreateRecord(std::string_view sType) = 0; // a new, empty record

    // The one record with that key; an unknown key fails. The library passes 0 and True last.
    virtual Ref<IObject> GetRecord(std::string_view sType, std::string_view sKeyName,
                                   std::string_view sKeyValue, std::int32_t lOption, bool bFlag) = 0;

    // May be empty, is never nothing. The library passes "", 0 and True last.
    virtual Ref<IDataCollection> GetCollection(std::string_view sQuery, std::string_view sKeyName,
                                               std::string_view sKeyValue, std::string_view sOrder,
                                               std::int32_t lOption, bool bFlag) = 0;
};

} // namespace GleanerSvc
