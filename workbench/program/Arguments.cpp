#include "workbench/program/Arguments.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t LongestName = 200; // bytes: file names and trace files have room for a little more

// Bytes that a terminal may not get are told by their numbers.
std::string Visible(const std::string& sWord) {
    return QByteArray::fromStdString(sWord).toPercentEncoding(" !\"#$&'()*+,/:;<=>?@[]^`{|}").toStdString();
}

} // namespace

Arguments::Arguments(const std::string& sCommand, const std::vector<Option>& aoOptions,
                     const std::vector<std::string>& asWords, const char* szPlain, const char* szPlainHelp)
    : m_sCommand(sCommand), m_sPlain(szPlain ? szPlain : "") {
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
    if (WantsHelp()) return;
    for (const auto& oOption : aoOptions) CheckValue(oOption);
}

void Arguments::CheckValue(const Option& oOption) const {
    if (!oOption.szValue || !Has(oOption.szName)) return;
    const QStringList asValues = m_oParser.values(oOption.szName);
    if (asValues.size() > 1) Refuse(oOption.szName, "is given twice");
    if (asValues.first().trimmed().isEmpty()) Refuse(oOption.szName, "is empty");
    const std::size_t nBytes = asValues.first().toStdString().size();
    if (std::string_view(oOption.szValue) == "name" && nBytes > LongestName) {
        Refuse(oOption.szName,
               "has " + std::to_string(nBytes) + " bytes, and a name at most " + std::to_string(LongestName));
    }
}

void Arguments::Refuse(const char* szName, const std::string& sWhat) const {
    throw UsageError(m_sCommand + ": --" + szName + " " + sWhat);
}

bool Arguments::Has(const char* szName) const { return m_oParser.isSet(szName); }

std::string Arguments::Text(const char* szName, const std::string& sDefault) const {
    return Has(szName) ? m_oParser.value(szName).toStdString() : sDefault;
}

std::string Arguments::Required(const char* szName) const {
    std::string sText = Text(szName);
    if (sText.empty()) Refuse(szName, "is needed");
    return sText;
}

std::int32_t Arguments::Number(const char* szName, std::int32_t lDefault, std::int32_t lLowest) const {
    if (!Has(szName)) return lDefault;
    const std::int32_t lNumber = ReadNumber(Text(szName), m_sCommand + ": --" + szName);
    if (lNumber >= lLowest) return lNumber;
    Refuse(szName, "is " + std::to_string(lNumber) + ", below " + std::to_string(lLowest));
}

std::vector<std::string> Arguments::List(const char* szName) const {
    std::vector<std::string> asParts;
    for (const auto& sPart : QString::fromStdString(Text(szName)).split(',')) {
        if (!sPart.trimmed().isEmpty()) asParts.push_back(sPart.trimmed().toStdString());
    }
    if (Has(szName) && asParts.empty()) Refuse(szName, "is empty");
    return asParts;
}

std::vector<std::string> Arguments::Plain() const {
    std::vector<std::string> asPlain;
    for (const auto& sPlain : m_oParser.positionalArguments()) asPlain.push_back(sPlain.toStdString());
    return asPlain;
}

void Arguments::RequireBeside(const char* szName, const char* szOther) const {
    if (Has(szName) && !Has(szOther)) Refuse(szName, std::string("needs --") + szOther);
}

void Arguments::RefuseBeside(const char* szName, const char* szOther) const {
    if (Has(szName) && Has(szOther)) Refuse(szName, std::string("does not go with --") + szOther);
}

// The toolkit's own first line knows the program, but not the command.
std::string Arguments::HelpText() const {
    const std::string sText = m_oParser.helpText().toStdString();
    return "Usage: gleaner-workbench " + m_sCommand + " [options]" +
           (m_sPlain.empty() ? "" : " " + m_sPlain) + sText.substr(sText.find('\n'));
}

void CheckWord(const std::string& sWord, std::size_t nPlace) {
    const auto fnRefuse = [&](const char* szWhat) {
        throw UsageError("word " + std::to_string(nPlace) + " (" + Visible(sWord) + ") " + szWhat);
    };
    QStringDecoder oDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString sText = oDecoder(QByteArray::fromStdString(sWord));
    if (oDecoder.hasError()) fnRefuse("is no UTF-8");
    const auto fnIsControl = [](QChar cChar) { return cChar.category() == QChar::Other_Control; };
    if (std::any_of(sText.begin(), sText.end(), fnIsControl)) fnRefuse("has a control character");
}

std::int32_t ReadNumber(const std::string& sText, const std::string& sWhat) {
    std::int32_t lNumber = 0;
    const auto [pRead, eError] =
        std::from_chars(std::to_address(sText.begin()), std::to_address(sText.end()), lNumber);
    const bool bWhole = pRead == std::to_address(sText.end());
    if (bWhole && eError == std::errc()) return lNumber;
    if (bWhole && eError == std::errc::result_out_of_range)
        throw UsageError(sWhat + ": " + sText + " is beyond what a number here can be");
    throw UsageError(sWhat + ": \"" + sText + "\" is no whole number");
}

} // namespace GleanerSvc::Workbench
