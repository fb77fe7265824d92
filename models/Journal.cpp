#include "models/Journal.h"

#include <algorithm>
#include <iterator>

namespace GleanerSvc::Models {

std::vector<std::string> Journal::EntriesOf(std::string_view sBeginning) const {
    std::vector<std::string> asEntries;
    std::copy_if(m_asEntries.begin(), m_asEntries.end(), std::back_inserter(asEntries),
                 [&](const std::string& sEntry) { return sEntry.starts_with(sBeginning); });
    return asEntries;
}

void Journal::FailCall(std::int64_t nCall, const Failure& oFailure, FailureMode eMode) {
    m_oInjected = oFailure;
    m_eMode = eMode;
    m_nFailAt = m_nCalls + nCall;
    m_bFailed = false;
}

std::string Journal::ToString() const {
    std::string sText;
    for (const auto& sEntry : m_asEntries) sText += sEntry + '\n';
    return sText;
}

void Journal::AppendArgument(std::string& sArguments, const Value& vArgument) {
    if (!sArguments.empty()) sArguments += ", ";
    sArguments += vArgument.ToString();
}

void Journal::AppendArgument(std::string& sArguments, const Failure& oArgument) {
    if (!sArguments.empty()) sArguments += ", ";
    sArguments += oArgument.ToString();
}

void Journal::Record(std::string_view sObject, std::string_view sOperation, std::string_view sArguments) {
    std::string sEntry;
    sEntry.append(sObject).append(".").append(sOperation).append("(").append(sArguments).append(")");
    m_asEntries.push_back(std::move(sEntry));
}

void Journal::Fail() {
    const Failure oFailure = *m_oInjected;
    if (m_eMode == FailureMode::Once) StopFailing();
    m_bFailed = true;
    throw oFailure;
}

} // namespace GleanerSvc::Models
