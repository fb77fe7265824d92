// The arguments of one subcommand, read and checked.
#pragma once

#include <QCommandLineParser>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace GleanerSvc::Workbench {

// A command that cannot be understood: an unknown option, a missing or impossible value.
class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// One option of a subcommand. One without a value name is a switch.
struct Option {
    const char* szName;
    const char* szValue; // nullptr for a switch
    const char* szHelp;
};

class Arguments {
  public:
    // asWords are the words behind the subcommand's name. Fails with UsageError, also for an option that is
    // given twice, and for a value that is empty or, where a name is asked for, too long.
    Arguments(const std::string& sCommand, const std::vector<Option>& aoOptions,
              const std::vector<std::string>& asWords, const char* szPlain, const char* szPlainHelp);

    bool Has(const char* szName) const;
    std::string Text(const char* szName, const std::string& sDefault = "") const;
    std::string Required(const char* szName) const; // fails with UsageError when it is missing
    std::int32_t Number(const char* szName, std::int32_t lDefault, std::int32_t lLowest) const;
    // Separated by commas; blanks around go. Fails with UsageError when nothing stands between them.
    std::vector<std::string> List(const char* szName) const;
    std::vector<std::string> Plain() const; // what is no option

    // What says nothing without another option, or beside one, fails with UsageError.
    void RequireBeside(const char* szName, const char* szOther) const;
    void RefuseBeside(const char* szName, const char* szOther) const;

    bool WantsHelp() const { return Has("help"); }
    std::string HelpText() const;

  private:
    void CheckValue(const Option& oOption) const;
    [[noreturn]] void Refuse(const char* szName, const std::string& sWhat) const;

    std::string m_sCommand;
    std::string m_sPlain;
    QCommandLineParser m_oParser;
};

// What may stand in a message or be stored as a name: UTF-8 without control characters. Fails with
// UsageError, naming the word by its place.
void CheckWord(const std::string& sWord, std::size_t nPlace);

// A whole number in decimal; fails with UsageError, naming what it is for.
std::int32_t ReadNumber(const std::string& sText, const std::string& sWhat);

} // namespace GleanerSvc::Workbench
