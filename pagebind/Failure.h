// The pending failure: the one exception type that travels through the library.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace GleanerSvc {

// The failure numbers that the library and the platform's language level raise.
enum class FailureNumber : std::int32_t {
    None = 0,
    InvalidCall = 5, // also: a collection asked for a key that it does not hold
    Overflow = 6,
    OutOfMemory = 7,
    Subscript = 9,
    TypeMismatch = 13,
    Unexpected = 51, // an exception of the standard library that has no number of its own
    ObjectNotSet = 91,
    InvalidPropertyValue = 380,
    TextNotInList = 383,
    MemberNotFound = 438,
    DuplicateKey = 457,
    CheckParameters = static_cast<std::int32_t>(0x80040000), // the library's own, raised by HighlightRow
    ClassNotAvailable = static_cast<std::int32_t>(0x80040111)
};

// Five fields, read in this order and passed on unchanged when the failure travels further.
class Failure : public std::exception {
  public:
    Failure() = default; // the emptied record; its number 0 is a failure all the same
    Failure(std::int32_t lNumber, std::string sSource, std::string sDescription, std::string sHelpFile = "",
            std::int32_t lHelpContext = 0);
    Failure(FailureNumber eNumber, std::string sSource, std::string sDescription);

    // A language-level failure with the platform's own description of that number.
    static Failure Of(FailureNumber eNumber);

    // The exception in flight as a pending failure: a Failure as it is, an out-of-memory and any other
    // exception under the number that stands for it. Call only while an exception is handled.
    static Failure Pending();

    std::int32_t Number() const { return m_lNumber; }
    bool Is(FailureNumber eNumber) const { return m_lNumber == static_cast<std::int32_t>(eNumber); }
    const std::string& Source() const { return m_sSource; }
    const std::string& Description() const { return m_sDescription; }
    const std::string& HelpFile() const { return m_sHelpFile; }
    std::int32_t HelpContext() const { return m_lHelpContext; }

    const char* what() const noexcept override { return m_sDescription.c_str(); }

    // "457 Collection: This key is already associated with an element of this collection."
    std::string ToString() const;

    friend bool operator==(const Failure& oLeft, const Failure& oRight);

  private:
    std::int32_t m_lNumber = 0;
    std::string m_sSource;
    std::string m_sDescription;
    std::string m_sHelpFile;
    std::int32_t m_lHelpContext = 0;
};

} // namespace GleanerSvc
