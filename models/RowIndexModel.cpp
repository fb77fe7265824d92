#include "models/RowIndexModel.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

void RequireKey(const Value& vKey) {
    if (vKey.IsText() || vKey.IsNumber()) return;
    throw Failure(FailureNumber::TypeMismatch, "RowIndex",
                  "The key of a row is a number or text, not " + vKey.ToString() + ".");
}

// The letters A to Z in lower case, as a number to order by.
unsigned char Folded(char cLetter) {
    return static_cast<unsigned char>(cLetter >= 'A' && cLetter <= 'Z' ? cLetter - 'A' + 'a' : cLetter);
}

constexpr std::uint64_t Multiplier = 0x9E3779B97F4A7C15; // spreads keys over the upper bits

// What Find gives for a key that is present.
std::int16_t AsFound(const Value& vValue) {
    if (!vValue.IsNumber()) return -1;
    using Limits = std::numeric_limits<std::int16_t>;
    const double dRounded = std::nearbyint(vValue.ToDouble());
    const bool bFits = dRounded >= Limits::min() && dRounded <= Limits::max() && dRounded != 0;
    return bFits ? static_cast<std::int16_t>(dRounded) : std::int16_t{-1};
}

} // namespace

std::size_t RowIndexModel::NumberRules::Hash(std::int32_t lKey) {
    return static_cast<std::size_t>((static_cast<std::uint64_t>(lKey) * Multiplier) >> 32);
}

std::size_t RowIndexModel::TextRules::Hash(std::string_view sKey) {
    std::uint64_t nHash = sKey.size();
    for (const char cLetter : sKey) nHash = (nHash ^ Folded(cLetter)) * Multiplier;
    return static_cast<std::size_t>(nHash >> 32);
}

bool RowIndexModel::TextRules::Equal(std::string_view sLeft, std::string_view sRight) {
    return EqualsIgnoringCase(sLeft, sRight);
}

bool RowIndexModel::TextRules::Less(std::string_view sLeft, std::string_view sRight) {
    return std::lexicographical_compare(
        sLeft.begin(), sLeft.end(), sRight.begin(), sRight.end(),
        [](char cLeft, char cRight) { return Folded(cLeft) < Folded(cRight); });
}

void RowIndexModel::Reset(bool bFlag) {
    Call("Reset", bFlag);
    m_oNumbers.Clear();
    m_oTexts.Clear();
}

void RowIndexModel::Add(const Value& vKey, const Value& vValue, bool bUnique) {
    Call("Add", vKey, vValue, bUnique);
    RequireKey(vKey);
    if (vKey.IsText()) {
        m_oTexts.Add(vKey.ToText(), vValue, !bUnique);
    } else {
        m_oNumbers.Add(vKey.ToInt32(), vValue, !bUnique);
    }
}

std::vector<Value> RowIndexModel::Keys() {
    Call("Keys");
    std::vector<Value> avKeys;
    avKeys.reserve(m_oNumbers.Size() + m_oTexts.Size() + 1);
    avKeys.emplace_back();
    const auto Append = [&](const auto& oEntry) { avKeys.emplace_back(oEntry.oKey); };
    m_oNumbers.ForEachSorted(Append);
    m_oTexts.ForEachSorted(Append);
    return avKeys;
}

std::int32_t RowIndexModel::Count() {
    Call("Count");
    return static_cast<std::int32_t>(m_oNumbers.Size() + m_oTexts.Size());
}

Value RowIndexModel::Item(const Value& vKey) {
    Call("Item", vKey);
    RequireKey(vKey);
    if (vKey.IsText()) {
        if (const auto* pEntry = m_oTexts.Find(vKey.ToText())) return pEntry->oMapped;
    } else {
        if (const auto* pEntry = m_oNumbers.Find(vKey.ToInt32())) return pEntry->oMapped;
    }
    throw Failure(FailureNumber::InvalidCall, "RowIndex",
                  "The row index has no key " + vKey.ToString() + ".");
}

void RowIndexModel::Find(std::string_view sKey, std::int16_t& iFound) {
    Call("Find", sKey);
    const auto* pEntry = m_oTexts.Find(sKey);
    iFound = pEntry ? AsFound(pEntry->oMapped) : std::int16_t{0};
}

std::string RowIndexModel::ToString() const {
    std::string sText;
    const auto Append = [&](const auto& oEntry) {
        sText += (sText.empty() ? "" : " ") + Value(oEntry.oKey).ToString() + "=" + oEntry.oMapped.ToString();
    };
    m_oNumbers.ForEachSorted(Append);
    m_oTexts.ForEachSorted(Append);
    return sText;
}

} // namespace GleanerSvc::Models
