#include "models/GridSort.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>
#include <optional>

#include "models/DateText.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

enum class Rank { Number, Date, Text };

// A cell, taken apart once.
struct SortCell {
    Rank eRank = Rank::Text;
    double dValue = 0;
    std::string sText; // of Rank::Text, folded where case does not count
};

std::string_view TrimBlanks(std::string_view sText) {
    sText = RightTrim(sText);
    return sText.substr(std::min(sText.find_first_not_of(' '), sText.size()));
}

std::optional<double> ReadNumber(std::string_view sText) {
    std::string_view sDigits = TrimBlanks(sText);
    if (sDigits.size() > 1 && sDigits.front() == '+' && sDigits[1] != '-') sDigits.remove_prefix(1);
    double dNumber = 0;
    const char* pEnd = sDigits.data() + sDigits.size();
    const auto oRead = std::from_chars(sDigits.data(), pEnd, dNumber);
    if (oRead.ec != std::errc() || oRead.ptr != pEnd || !std::isfinite(dNumber)) return std::nullopt;
    return dNumber;
}

SortCell ReadCell(std::string_view sText, const SortKey& oKey) {
    if (oKey.bByValue) {
        if (const auto dNumber = ReadNumber(sText)) return {Rank::Number, *dNumber, {}};
        if (const auto dtValue = ReadDateText(sText)) return {Rank::Date, dtValue->Serial(), {}};
    }
    return {Rank::Text, 0, oKey.bCase ? std::string(sText) : FoldCase(sText)};
}

// Below, at or above 0 as the left cell comes before, with or after the right one.
int Compare(const SortCell& oLeft, const SortCell& oRight) {
    if (oLeft.eRank != oRight.eRank) return oLeft.eRank < oRight.eRank ? -1 : 1;
    if (oLeft.eRank == Rank::Text) return oLeft.sText.compare(oRight.sText);
    return oLeft.dValue < oRight.dValue ? -1 : oLeft.dValue > oRight.dValue ? 1 : 0;
}

} // namespace

void SortInfo::SortType(std::int16_t iType) {
    Call("SortType", iType);
    if (iType != GridConst::SortByText && iType != GridConst::SortByNumberOrDate) {
        throw Failure(FailureNumber::InvalidPropertyValue, ObjectName(),
                      ObjectName() + " knows no sort type " + DecimalText(iType) + ".");
    }
    m_oKey.bByValue = iType == GridConst::SortByNumberOrDate;
}

std::vector<std::size_t>
SortedOrder(std::size_t nRows, const std::vector<SortKey>& aoKeys,
            const std::function<std::string_view(std::size_t, const SortKey&)>& fnText) {
    std::vector<SortCell> aoCells; // a row's keys side by side
    aoCells.reserve(nRows * aoKeys.size());
    for (std::size_t nRow = 0; nRow < nRows; ++nRow) {
        for (const SortKey& oKey : aoKeys) aoCells.push_back(ReadCell(fnText(nRow, oKey), oKey));
    }
    const auto IsBefore = [&](std::size_t nLeft, std::size_t nRight) {
        for (std::size_t nKey = 0; nKey < aoKeys.size(); ++nKey) {
            const int nOrder =
                Compare(aoCells[nLeft * aoKeys.size() + nKey], aoCells[nRight * aoKeys.size() + nKey]);
            if (nOrder != 0) return aoKeys[nKey].bDescending ? nOrder > 0 : nOrder < 0;
        }
        return false;
    };
    std::vector<std::size_t> anOrder(nRows);
    std::iota(anOrder.begin(), anOrder.end(), std::size_t{0});
    std::stable_sort(anOrder.begin(), anOrder.end(), IsBefore);
    return anOrder;
}

} // namespace GleanerSvc::Models
