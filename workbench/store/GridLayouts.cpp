#include "workbench/store/GridLayouts.h"

#include <span>
#include <string_view>

#include "pagebind/DataStore.h"
#include "pagebind/Numbers.h"

namespace GleanerSvc::Workbench {

namespace {

struct Column {
    std::string_view sHeading;
    std::int32_t lWidth;
};

constexpr std::int32_t NameTwips = 2000;
constexpr std::int32_t DateTwips = 1950;
constexpr std::int32_t TextTwips = 2600;

// The two last columns of a list are hidden and get their headings from the page.
constexpr Column ResultColumns[] = {
    {"Name", NameTwips}, {"Date", DateTwips}, {"Description", TextTwips}, {"", 0}, {"", 0}};
constexpr Column RawColumns[] = {{"Name", NameTwips}, {"Date", DateTwips}, {"", 0}, {"", 0}};
constexpr Column ItemColumns[] = {
    {"Name", NameTwips}, {"Date", DateTwips}, {"Status", TextTwips}, {"Completed", DateTwips}};

struct Layout {
    std::string_view sGridTypeID;
    std::span<const Column> aoColumns;
};

constexpr Layout Layouts[] = {
    {GridTypeID::ResultList, ResultColumns}, {GridTypeID::ResultSelected, ResultColumns},
    {GridTypeID::RawList, RawColumns},       {GridTypeID::RawSelected, RawColumns},
    {GridTypeID::AnalyzeItems, ItemColumns}, {GridTypeID::AlleleItems, ItemColumns},
};

} // namespace

std::vector<GridLayoutColumn> GridLayoutColumns() {
    std::vector<GridLayoutColumn> aoAll;
    for (const auto& oLayout : Layouts) {
        std::int32_t lPlace = 0;
        for (const auto& oColumn : oLayout.aoColumns) {
            aoAll.push_back(
                {ToInt32(oLayout.sGridTypeID), ++lPlace, std::string(oColumn.sHeading), oColumn.lWidth});
        }
    }
    return aoAll;
}

} // namespace GleanerSvc::Workbench
