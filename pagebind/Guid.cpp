#include "pagebind/Guid.h"

#include "pagebind/Failure.h"

namespace GleanerSvc {

std::string Guid::Text() const {
    constexpr std::string_view sDigits = "0123456789ABCDEF";
    std::string sText;
    for (std::size_t nByte = 0; nByte < m_anBytes.size(); ++nByte) {
        if (HasDashBefore(nByte)) sText += '-';
        sText += sDigits[m_anBytes[nByte] / 16U];
        sText += sDigits[m_anBytes[nByte] % 16U];
    }
    return sText;
}

void Guid::FailOn(std::string_view sText) {
    throw Failure(FailureNumber::TypeMismatch, "Guid", "\"" + std::string(sText) + "\" is no GUID.");
}

} // namespace GleanerSvc
