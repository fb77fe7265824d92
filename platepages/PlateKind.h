// What tells the two plate pages apart as far as constants go, side by side. The rest is what each page does
// on its own: how it reads a well, and what it does when the wizard enters, leaves and commits.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "pagebind/DataStore.h"

namespace GleanerSvc {

// What a plate says of a well. Any further value is drawn as an empty one.
namespace WellState {
inline constexpr std::int32_t Empty = 0;
inline constexpr std::int32_t Plain = 1;   // one result, or a sample that no analysis used yet
inline constexpr std::int32_t Special = 2; // several results, or a sample that was analyzed
} // namespace WellState

struct PlateKind {
    std::string_view sClass; // and the name of its tab control
    std::string_view sTabClick;
    std::string_view sTitle;
    std::string_view sSource; // what the embedded list is initialized with
    std::string_view sLegend;
    // Of the pictures RawChecked, WarningChecked, Empty, Raw, Warning.
    std::array<std::string_view, 5> asLegends;
    std::string_view sShowPlateRecords; // the name under which the rebuild of the list reports
    std::string_view sGridTypeID;
    bool bHasDescription;         // in column 3
    std::int32_t lProjectColumn;  // hidden, and the key behind it as well; there are no more columns
    std::string_view sKeyHeading; // of the key column
    bool bResetsGrid;             // rows and one static option, while the page is initialized
    double dSortColumn;           // at first
    double dLastSortColumn;       // headings from column 1 to this one sort

    std::int32_t KeyColumn() const { return lProjectColumn + 1; }
};

inline constexpr PlateKind ResultKind{
    .sClass = "ResultSelectionPage",
    .sTabClick = "ResultSelectionPage_Click",
    .sTitle = "Select Result Data",
    .sSource = "Result Data",
    .sLegend = "Result Legend:",
    .asLegends = {"Result Selected", "Most Recent Result Selected", "No Result Available",
                  "One Result Available", "Multiple Results Available"},
    .sShowPlateRecords = "ShowPlateResults",
    .sGridTypeID = GridTypeID::ResultList,
    .bHasDescription = true,
    .lProjectColumn = 4,
    .sKeyHeading = "ResID",
    .bResetsGrid = true,
    .dSortColumn = 2,
    .dLastSortColumn = 3,
};

inline constexpr PlateKind SampleKind{
    .sClass = "SampleSelectionPage",
    .sTabClick = "SampleSelectionPage_Click",
    .sTitle = "Select Raw Data",
    .sSource = "Raw Data",
    .sLegend = "Raw Data Legend:",
    .asLegends = {"Selected For Analysis", "Selected For Re-Analysis", "No Data Available", "Data Available",
                  "Data Already Analyzed"},
    .sShowPlateRecords = "ShowPlateSamples",
    .sGridTypeID = GridTypeID::RawList,
    .bHasDescription = false,
    .lProjectColumn = 3,
    .sKeyHeading = "SampID",
    .bResetsGrid = false,
    .dSortColumn = 1,
    .dLastSortColumn = 2,
};

} // namespace GleanerSvc
