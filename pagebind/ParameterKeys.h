// The keys by which pages of one wizard run hand values to each other, and their fixed values. Other
// libraries write and read some of them. Keys compare without regard to case; adding an existing key fails,
// and so does reading or removing an absent one.
#pragma once

#include <string_view>

namespace GleanerSvc {

namespace ParameterKey {
inline constexpr std::string_view Action = "Action";                     // string, written outside
inline constexpr std::string_view Study = "Study";                       // IStudy, written outside
inline constexpr std::string_view ReAnalyzeResults = "ReAnalyzeResults"; // collection, written outside
inline constexpr std::string_view Project = "Project";                   // string, a project's name
inline constexpr std::string_view Samples = "Samples";                   // collection of ISample
inline constexpr std::string_view SkipForward = "Skip>>";                // string "SKIP"
inline constexpr std::string_view SkipBackward = "<<Skip";               // string "SKIP"
inline constexpr std::string_view AnalysisParameter =
    "AnalysisParameter";                                         // IAnalysisParameter or IParameterDefinition
inline constexpr std::string_view AlleleIDType = "AlleleIDType"; // string "none", "STR" or "SNP"
inline constexpr std::string_view AnalyzedResults = "AnalyzedResults"; // collection of IResult
} // namespace ParameterKey

// The value under both skip markers; their presence is what counts.
inline constexpr std::string_view SkipValue = "SKIP";

// Keys of the small store that the single sample view is opened with.
namespace SingleViewKey {
inline constexpr std::string_view SampleData = "SampleData"; // ISampleData
inline constexpr std::string_view Result = "Result";         // IStudyResult, or nothing for raw data
} // namespace SingleViewKey

// Values of "Action"; an absent or empty one means a plain analysis.
namespace ActionCode {
inline constexpr std::string_view ReAnalyze = "ReAnalyze";
inline constexpr std::string_view OptimizedReAnalyze = "OptimizedReAnalyze";
inline constexpr std::string_view ReAnalyzeAlleleID = "ReAnalyzeAlleleID";
} // namespace ActionCode

namespace AlleleType {
inline constexpr std::string_view None = "none";
inline constexpr std::string_view Str = "STR";
inline constexpr std::string_view Snp = "SNP";
} // namespace AlleleType

// Further wizards that are opened by name.
namespace WizardName {
inline constexpr std::string_view SingleSample = "SingleSample";
inline constexpr std::string_view SingleRawSample = "SingleRawSample";
} // namespace WizardName

} // namespace GleanerSvc
