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
    // asWords are the words behind the subcommand's name. Fails with UsageError.
    Arguments(const std::string& sCommand, const std::vector<Option>& aoOptions,
              const std::vector<std::string>& asWords, const char* szPlain, const char* szPlainHelp);

    bool Has(const char* szName) const;
    std::string Text(const char* szName, const std::string& sDefault = "") const;
    std::string Required(const char* szName) const; // fails with UsageError when it is missing
    std::int32_t Number(const char* szName, std::int32_t lDefault, std::int32_t lLowest) const;
    std::vector<std::string> List(const char* szName) const; // separated by commas; blanks around go
    std::vector<std::string> Plain() const;                  // what is no option

    bool WantsHelp() const { return Has("help"); }
    std::string HelpText() const;

  private:
    std::string m_sCommand;
    QCommandLineParser m_oParser;
};

// A whole number in decimal; fails with UsageError, naming what it is for.
std::int32_t ReadNumber(const std::string& sText, const std::string& sWhat);

} // namespace GleanerSvc::Workbench
