#include "workbench/program/Arguments.h"

#include <QStringList>

#include <charconv>

namespace GleanerSvc::Workbench {

Arguments::Arguments(const std::string& sCommand, const std::vector<Option>& aoOptions,
                     const std::vector<std::string>& asWords, const char* szPlain, const char* szPlainHelp)
    : m_sCommand(sCommand) {
    m_oParser.addOption({{"h", "help"}, "Show this text."});
    for (const auto& oOption : aoOptions) {
        QCommandLineOption oAdded(oOption.szName, oOption.szHelp);
        if (oOption.szValue) oAdded.setValueName(oOption.szValue);
        m_oParser.addOption(oAdded);
    }
    if (szPlain) m_oParser.addPositionalArgument(szPlain, szPlainHelp);
    QStringList asAll{QString::fromStdString("gleaner-workbench " + sCommand)};
    for (const auto& sWord : asWords) asAll.append(QString::fromStdString(sWord));
    if (!m_oParser.parse(asAll)) throw UsageError(sCommand + ": " + m_oParser.errorText().toStdString());
    if (szPlain == nullptr && !m_oParser.positionalArguments().isEmpty()) {
        throw UsageError(sCommand + ": it takes no \"" +
                         m_oParser.positionalArguments().first().toStdString() + "\"");
    }
}

bool Arguments::Has(const char* szName) const { return m_oParser.isSet(szName); }

std::string Arguments::Text(const char* szName, const std::string& sDefault) const {
    return Has(szName) ? m_oParser.value(szName).toStdString() : sDefault;
}

std::string Arguments::Required(const char* szName) const {
    std::string sText = Text(szName);
    if (sText.empty()) throw UsageError(m_sCommand + ": --" + szName + " is needed");
    return sText;
}

std::int32_t Arguments::Number(const char* szName, std::int32_t lDefault, std::int32_t lLowest) const {
    if (!Has(szName)) return lDefault;
    const std::int32_t lNumber = ReadNumber(Text(szName), m_sCommand + ": --" + szName);
    if (lNumber >= lLowest) return lNumber;
    throw UsageError(m_sCommand + ": --" + szName + " is " + std::to_string(lNumber) + ", below " +
                     std::to_string(lLowest));
}

std::vector<std::string> Arguments::List(const char* szName) const {
    std::vector<std::string> asParts;
    for (const auto& sPart : QString::fromStdString(Text(szName)).split(',', Qt::SkipEmptyParts))
        asParts.push_back(sPart.trimmed().toStdString());
    return asParts;
}

std::vector<std::string> Arguments::Plain() const {
    std::vector<std::string> asPlain;
    for (const auto& sPlain : m_oParser.positionalArguments()) asPlain.push_back(sPlain.toStdString());
    return asPlain;
}

std::string Arguments::HelpText() const { return m_oParser.helpText().toStdString(); }

std::int32_t ReadNumber(const std::string& sText, const std::string& sWhat) {
    std::int32_t lNumber = 0;
    const auto [pRead, eError] =
        std::from_chars(std::to_address(sText.begin()), std::to_address(sText.end()), lNumber);
    if (eError == std::errc() && pRead == std::to_address(sText.end())) return lNumber;
    throw UsageError(sWhat + ": \"" + sText + "\" is no whole number");
}

} // namespace GleanerSvc::Workbench
