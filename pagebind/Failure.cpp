#include "pagebind/Failure.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace GleanerSvc {

namespace {

const char* DescriptionOf(FailureNumber eNumber) {
    switch (eNumber) {
    case FailureNumber::None:
        return "";
    case FailureNumber::InvalidCall:
        return "Invalid procedure call or argument";
    case FailureNumber::Overflow:
        return "Overflow";
    case FailureNumber::OutOfMemory:
        return "Out of memory";
    case FailureNumber::Subscript:
        return "Subscript out of range";
    case FailureNumber::TypeMismatch:
        return "Type mismatch";
    case FailureNumber::Unexpected:
        return "Internal error";
    case FailureNumber::ObjectNotSet:
        return "Object variable not set";
    case FailureNumber::InvalidPropertyValue:
        return "Invalid property value";
    case FailureNumber::TextNotInList:
        return "The text is not an item of the list";
    case FailureNumber::MemberNotFound:
        return "The object has no such member";
    case FailureNumber::DuplicateKey:
        return "This key is already associated with an element of this collection";
    case FailureNumber::CheckParameters:
        return "Invalid parameter";
    case FailureNumber::ClassNotAvailable:
        return "The library has no such class";
    }
    return "";
}

} // namespace

Failure::Failure(std::int32_t lNumber, std::string sSource, std::string sDescription, std::string sHelpFile,
                 std::int32_t lHelpContext)
    : m_lNumber(lNumber), m_sSource(std::move(sSource)), m_sDescription(std::move(sDescription)),
      m_sHelpFile(std::move(sHelpFile)), m_lHelpContext(lHelpContext) {}

Failure::Failure(FailureNumber eNumber, std::string sSource, std::string sDescription)
    : Failure(static_cast<std::int32_t>(eNumber), std::move(sSource), std::move(sDescription)) {}

Failure Failure::Of(FailureNumber eNumber) { return Failure(eNumber, "GleanerSvc", DescriptionOf(eNumber)); }

Failure Failure::Pending() {
    try {
        throw;
    } catch (const Failure& oFailure) {
        return oFailure;
    } catch (const std::bad_alloc&) {
        return Of(FailureNumber::OutOfMemory);
    } catch (const std::out_of_range&) {
        return Of(FailureNumber::Subscript);
    } catch (const std::exception& oException) {
        return Failure(FailureNumber::Unexpected, "GleanerSvc", oException.what());
    } catch (...) {
        return Of(FailureNumber::Unexpected);
    }
}

std::string Failure::ToString() const {
    return std::to_string(m_lNumber) + " " + m_sSource + ": " + m_sDescription;
}

bool operator==(const Failure& oLeft, const Failure& oRight) {
    return oLeft.m_lNumber == oRight.m_lNumber && oLeft.m_sSource == oRight.m_sSource &&
           oLeft.m_sDescription == oRight.m_sDescription && oLeft.m_sHelpFile == oRight.m_sHelpFile &&
           oLeft.m_lHelpContext == oRight.m_lHelpContext;
}

} // namespace GleanerSvc
