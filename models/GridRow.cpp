#include "models/GridRow.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>

#include "pagebind/Failure.h"

namespace GleanerSvc::Models {

namespace {

using Length = std::uint32_t;

// Of a row of five cells, so that it grows in one step; also too large for a string to hold in itself.
constexpr std::size_t UsualBytes = 103;

Length LengthAt(const std::string& sCells, std::size_t nPlace) {
    Length nLength = 0;
    std::memcpy(&nLength, &sCells[nPlace], sizeof nLength);
    return nLength;
}

void WriteLength(std::string& sCells, std::size_t nPlace, std::size_t nBytes) {
    const auto nLength = static_cast<Length>(nBytes);
    std::memcpy(&sCells[nPlace], &nLength, sizeof nLength);
}

std::size_t EndOfCell(const std::string& sCells, std::size_t nPlace) {
    return nPlace + sizeof(Length) + LengthAt(sCells, nPlace);
}

void AppendCell(std::string& sCells, std::string_view sText) {
    const std::size_t nPlace = sCells.size();
    sCells.append(sizeof(Length), '\0').append(sText);
    WriteLength(sCells, nPlace, sText.size());
}

bool LiesIn(std::string_view sText, const std::string& sCells) {
    const std::less<const char*> Less;
    return !Less(sText.data(), sCells.data()) && Less(sText.data(), &sCells[sCells.size()]);
}

} // namespace

std::string_view GridRow::Text(std::size_t nCol) const {
    std::size_t nPlace = 0;
    for (; nPlace < m_sCells.size(); nPlace = EndOfCell(m_sCells, nPlace)) {
        if (nCol-- == 0) return {&m_sCells[nPlace + sizeof(Length)], LengthAt(m_sCells, nPlace)};
    }
    return {};
}

void GridRow::Write(std::size_t nCol, std::string_view sText) {
    if (sText.size() > std::numeric_limits<Length>::max()) throw Failure::Of(FailureNumber::Overflow);
    if (LiesIn(sText, m_sCells)) return Write(nCol, std::string(sText)); // the block may move
    std::size_t nPlace = 0;
    for (; nCol > 0 && nPlace < m_sCells.size(); --nCol) nPlace = EndOfCell(m_sCells, nPlace);
    if (nPlace < m_sCells.size()) {
        m_sCells.replace(nPlace + sizeof(Length), LengthAt(m_sCells, nPlace), sText);
        return WriteLength(m_sCells, nPlace, sText.size());
    }
    if (m_sCells.empty()) m_sCells.reserve(UsualBytes);
    for (; nCol > 0; --nCol) AppendCell(m_sCells, {});
    AppendCell(m_sCells, sText);
}

void GridRow::CutColumns(std::size_t nCols) {
    if (m_oLooks && m_oLooks->size() > nCols) {
        const auto itFirst = m_oLooks->begin();
        m_oLooks = std::make_shared<const Looks>(itFirst, itFirst + static_cast<std::ptrdiff_t>(nCols));
    }
    std::size_t nPlace = 0;
    for (; nCols > 0 && nPlace < m_sCells.size(); --nCols) nPlace = EndOfCell(m_sCells, nPlace);
    m_sCells.resize(std::min(nPlace, m_sCells.size()));
}

} // namespace GleanerSvc::Models
