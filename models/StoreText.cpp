#include "models/StoreText.h"

#include <algorithm>

#include "models/DataStore.h"
#include "models/DateText.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view ResultsMarker = " results";
constexpr std::int32_t FirstPlateID = 11;
constexpr std::int32_t SamplesPerProject = 100;  // IDs are this times the project's
constexpr std::int32_t ResultsPerProject = 1000; // the same

std::string PlaceText(std::int32_t lLine, std::string_view sWord) {
    return "Line " + DecimalText(lLine) + ", \"" + std::string(sWord) + "\": ";
}

[[noreturn]] void Refuse(const std::string& sTrouble) {
    throw Failure(FailureNumber::InvalidCall, "DataStore", sTrouble);
}

[[noreturn]] void Refuse(std::int32_t lLine, std::string_view sWord, std::string_view sTrouble) {
    Refuse(PlaceText(lLine, sWord) + std::string(sTrouble));
}

[[noreturn]] void Refuse(const StoreWord& oWord, std::string_view sTrouble) {
    Refuse(oWord.lLine, oWord.sText, sTrouble);
}

std::string_view Trim(std::string_view sText) {
    const auto nFirst = sText.find_first_not_of(Blanks);
    if (nFirst == std::string_view::npos) return {};
    return sText.substr(nFirst, sText.find_last_not_of(Blanks) - nFirst + 1);
}

// Cuts the text before the first of these marks off and returns it; the mark itself goes too.
std::string_view CutAt(std::string_view& sText, std::string_view sMarks) {
    const auto nEnd = std::min(sText.find_first_of(sMarks), sText.size());
    const auto sCut = sText.substr(0, nEnd);
    sText.remove_prefix(std::min(nEnd + 1, sText.size()));
    return sCut;
}

Date ReadWordDate(const StoreWord& oWord, std::string_view sText) {
    std::string sDate(sText);
    std::replace(sDate.begin(), sDate.end(), 'T', ' ');
    const auto dtRead = ReadDateText(sDate);
    if (!dtRead) Refuse(oWord, "\"" + std::string(sText) + "\" is no date.");
    return *dtRead;
}

void ReadDates(StoreWord& oWord, std::string_view sPart) {
    if (oWord.dtModified) Refuse(oWord, "it has dates twice.");
    oWord.dtModified = ReadWordDate(oWord, CutAt(sPart, "/"));
    if (!sPart.empty()) oWord.dtCollected = ReadWordDate(oWord, sPart);
}

void ReadPlate(StoreWord& oWord, std::string_view sPart) {
    if (!oWord.sPlate.empty()) Refuse(oWord, "it has a plate twice.");
    const bool bHasWell = sPart.find('.') != std::string_view::npos;
    oWord.sPlate = CutAt(sPart, ".");
    if (oWord.sPlate.empty()) Refuse(oWord, "the plate has no name.");
    if (!bHasWell) return;
    oWord.oWell = ReadWell(sPart);
    if (!oWord.oWell) Refuse(oWord, "\"" + std::string(sPart) + "\" is no well.");
}

StoreWord ReadWord(std::int32_t lLine, std::string_view sText) {
    StoreWord oWord;
    oWord.lLine = lLine;
    oWord.sText = sText;
    const auto nName = std::min(sText.find_first_of("@#"), sText.size());
    oWord.sName = sText.substr(0, nName);
    if (oWord.sName.empty()) Refuse(oWord, "the record has no name.");
    sText.remove_prefix(nName);
    while (!sText.empty()) {
        const char cMark = sText.front();
        sText.remove_prefix(1);
        const auto nEnd = std::min(sText.find_first_of("@#"), sText.size());
        (cMark == '@' ? ReadDates : ReadPlate)(oWord, sText.substr(0, nEnd));
        sText.remove_prefix(nEnd);
    }
    return oWord;
}

std::vector<std::string_view> Words(std::string_view sText) {
    std::vector<std::string_view> asWords;
    for (sText = Trim(sText); !sText.empty(); sText = Trim(sText)) asWords.push_back(CutAt(sText, Blanks));
    return asWords;
}

void ReadWords(StoreLine& oLine, std::int32_t lLine, std::string_view sText) {
    const auto asWords = Words(sText);
    for (std::size_t nWord = 0; nWord < asWords.size(); ++nWord) {
        if (asWords[nWord] != "of") {
            oLine.aoWords.push_back(ReadWord(lLine, asWords[nWord]));
            continue;
        }
        if (!oLine.bResults || oLine.aoWords.empty() || nWord + 1 == asWords.size() ||
            !oLine.aoWords.back().sSample.empty()) {
            Refuse(lLine, "of", "it stands between a result and its sample only.");
        }
        oLine.aoWords.back().sSample = asWords[++nWord];
    }
}

StoreLine ReadLine(std::int32_t lLine, std::string_view sText) {
    const auto nColon = sText.find(':');
    if (nColon == std::string_view::npos) Refuse(lLine, sText, "no colon follows the project's name.");
    auto sProject = Trim(sText.substr(0, nColon));
    StoreLine oLine;
    oLine.bResults = sProject.ends_with(ResultsMarker);
    if (oLine.bResults) sProject = Trim(sProject.substr(0, sProject.size() - ResultsMarker.size()));
    if (sProject.empty()) Refuse(lLine, sText, "the project has no name.");
    oLine.sProject = sProject;
    ReadWords(oLine, lLine, sText.substr(nColon + 1));
    return oLine;
}

template<class T>
Ref<T> Named(const std::vector<Ref<T>>& aoRecords, std::string_view sName) {
    const auto itRecord = std::find_if(aoRecords.begin(), aoRecords.end(),
                                       [&](const auto& oRecord) { return oRecord->PlainName() == sName; });
    return itRecord == aoRecords.end() ? nullptr : *itRecord;
}

template<class T>
std::int32_t NextID(const std::vector<Ref<T>>& aoRecords, std::int32_t lFirst) {
    std::int32_t lNext = lFirst;
    for (const auto& oRecord : aoRecords) lNext = std::max(lNext, oRecord->RecordID() + 1);
    return lNext;
}

// Adds the words of one line to their project.
class LineAdder {
  public:
    LineAdder(DataStore& oStore, const StoreLine& oLine) : m_oStore(oStore), m_oProject(ProjectOf(oLine)) {}

    // A refusal names line and word.
    void Add(const StoreWord& oWord, bool bResult) {
        try {
            bResult ? AddResult(oWord) : AddSample(oWord);
        } catch (const Failure& oFailure) {
            throw Failure(oFailure.Number(), oFailure.Source(),
                          PlaceText(oWord.lLine, oWord.sText) + oFailure.Description());
        }
    }

  private:
    void AddSample(const StoreWord& oWord) {
        SampleFields oFields;
        oFields.lSampleID = RecordID(SamplesPerProject, m_oProject->OwnSamples().size());
        FillCommon(oFields, oWord);
        m_oStore.AddSample(std::move(oFields));
    }

    void AddResult(const StoreWord& oWord) {
        ResultFields oFields;
        oFields.lResultID = RecordID(ResultsPerProject, m_oProject->OwnResults().size());
        oFields.lSampleID = SampleID(oWord);
        oFields.sDescription = "about " + oWord.sName;
        FillCommon(oFields, oWord);
        m_oStore.AddResult(std::move(oFields));
    }

    Ref<ProjectRecord> ProjectOf(const StoreLine& oLine) {
        const auto& aoProjects = m_oStore.Projects().All();
        if (auto oProject = Named(aoProjects, oLine.sProject)) return oProject;
        return m_oStore.AddProject(NextID(aoProjects, 1), oLine.sProject);
    }

    std::int32_t RecordID(std::int32_t lPerProject, std::size_t nPresent) const {
        const auto lNumber = static_cast<std::int32_t>(nPresent) + 1;
        if (lNumber >= lPerProject) Refuse("the project has no ID left for it.");
        return m_oProject->RecordID() * lPerProject + lNumber;
    }

    std::int32_t SampleID(const StoreWord& oWord) const {
        if (oWord.sSample.empty()) return 0;
        const auto oSample = Named(m_oProject->OwnSamples(), oWord.sSample);
        if (!oSample) Refuse("the project has no sample \"" + oWord.sSample + "\".");
        return oSample->RecordID();
    }

    std::int32_t PlateID(const std::string& sPlate) {
        if (sPlate.empty()) return 0;
        if (const auto oPlate = Named(m_oProject->OwnPlates(), sPlate)) return oPlate->RecordID();
        const auto lPlateID = NextID(m_oStore.Plates().All(), FirstPlateID);
        return m_oStore.AddPlate(lPlateID, m_oProject->RecordID(), sPlate)->RecordID();
    }

    template<class Fields>
    void FillCommon(Fields& oFields, const StoreWord& oWord) {
        static const double dModified = Date::Of({2026, 1, 1}).Serial();
        static const double dCollected = Date::Of({2025, 1, 1}).Serial();
        const auto dBefore =
            static_cast<double>(m_oStore.Samples().All().size() + m_oStore.Results().All().size());
        oFields.lProjectID = m_oProject->RecordID();
        oFields.lPlateID = PlateID(oWord.sPlate);
        oFields.oWell = oWord.oWell;
        oFields.sName = oWord.sName;
        oFields.dtModified = oWord.dtModified.value_or(Date(dModified + dBefore));
        oFields.dtCollected = oWord.dtCollected.value_or(Date(dCollected + dBefore));
        oFields.sDetails = "details of " + oWord.sName;
    }

    DataStore& m_oStore;
    Ref<ProjectRecord> m_oProject;
};

} // namespace

std::vector<StoreLine> ReadStoreText(std::string_view sText) {
    std::vector<StoreLine> aoLines;
    for (std::int32_t lLine = 1; !sText.empty(); ++lLine) {
        const auto sLine = Trim(CutAt(sText, "\n"));
        if (!sLine.empty()) aoLines.push_back(ReadLine(lLine, sLine));
    }
    return aoLines;
}

void AddStoreLines(DataStore& oStore, const std::vector<StoreLine>& aoLines) {
    for (const auto& oLine : aoLines) {
        LineAdder oAdder(oStore, oLine);
        for (const auto& oWord : oLine.aoWords) oAdder.Add(oWord, oLine.bResults);
    }
}

} // namespace GleanerSvc::Models
