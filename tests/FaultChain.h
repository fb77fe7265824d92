// The reports that one injected failure must lead to: which procedure begins, who reports behind whom, who
// ends.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "models/DataStore.h"
#include "models/UtilityModel.h"

namespace GleanerSvc {

inline const Failure Injected(4711, "Store room", "The store is away.", "store.hlp", 17);

using Words = std::set<std::string>;

inline Words WordsOf(const std::string& sText) {
    std::istringstream oText(sText);
    return {std::istream_iterator<std::string>(oText), {}};
}

// All that the store holds: what no failure may change.
inline std::string StoreText(const Models::DataStore& oStore) {
    std::string sText = oStore.ToString();
    for (const auto& oRecord : oStore.Samples().All()) sText += oRecord->ToString() + ";";
    for (const auto& oRecord : oStore.Results().All()) sText += oRecord->ToString() + ";";
    return sText;
}

// A trapped procedure with those that call it, and parts of calls that it alone makes: where such a call
// fails, it reports first. A word that begins with "_" is that event of any grid.
struct Procedure {
    const char* sName;
    const char* sCallers;
    const char* sCalls;
};

// The call that failed ("" when none did), and whether the failure came out of the library: to the platform,
// the host or the analyzer.
struct Injection {
    std::string sCall;
    bool bEscaped = false;
};

class FaultChain {
  public:
    // Of an embedded control, the reports come first, and which they are is another test's matter.
    FaultChain(std::string sClass, std::vector<Procedure> aoProcedures, std::string sEmbedded = "")
        : m_sClass(std::move(sClass)), m_sEmbedded(std::move(sEmbedded)),
          m_aoProcedures(std::move(aoProcedures)) {
        for (const auto& oProcedure : m_aoProcedures)
            if (*oProcedure.sName != '_') m_asDue.insert(oProcedure.sName);
    }

    // "" when the reports are right. sEnds: who may report last, a handler that shows it to the user or, with
    // "^", what the failure comes out of; "^" alone comes out without any report. What a page reports behind
    // a handler that has shown the failure is a trouble of its own, which the first one led to.
    std::string Trouble(std::vector<Models::Report> aoReports, const Injection& oInjection,
                        const std::string& sEnds) {
        const Words asEnds = WordsOf(sEnds);
        for (const auto& sEnd : asEnds)
            if (sEnd != "^") m_asDue.insert(sEnd.substr(0, sEnd.find('^')));
        if (oInjection.sCall.empty())
            return aoReports.empty() && !oInjection.bEscaped ? "" : "a report without a failure";
        const auto itShown = std::find_if(aoReports.begin(), aoReports.end(),
                                          [](const auto& oReport) { return oReport.bShowUser; });
        if (itShown != aoReports.end()) {
            const auto IsInjected = [](const auto& oReport) { return oReport.oFailure == Injected; };
            if (std::any_of(itShown + 1, aoReports.end(), IsInjected)) return "reported behind its end";
            aoReports.erase(itShown + 1, aoReports.end());
        }
        const auto itOwn = std::find_if(aoReports.begin(), aoReports.end(), [&](const auto& oReport) {
            return oReport.sObjectType != m_sEmbedded;
        });
        if (itOwn == aoReports.end() && !aoReports.empty())
            return aoReports.back().bShowUser != oInjection.bEscaped ? ""
                                                                     : "the embedded control is not the end";
        const bool bEmbedded = itOwn != aoReports.begin();
        std::string sLast;
        for (auto itReport = itOwn; itReport != aoReports.end(); ++itReport) {
            m_asReporters.insert(itReport->sProcedure);
            if (!sLast.empty() && !IsCalledBy(sLast, itReport->sProcedure))
                return sLast + " -> " + itReport->sProcedure;
            const bool bShown = itReport + 1 == aoReports.end() && !oInjection.bEscaped;
            const bool bRight = itReport->oFailure == Injected && itReport->sAppTitle == "Workstation" &&
                                itReport->sObjectType == m_sClass && itReport->sExtra.empty();
            if (!bRight || itReport->bShowUser != bShown) return "report " + itReport->ToString();
            sLast = itReport->sProcedure;
        }
        if (!asEnds.contains(sLast + (oInjection.bEscaped ? "^" : ""))) return "ends with " + sLast;
        return bEmbedded ? "" : BeginTrouble(aoReports.empty() ? "" : itOwn->sProcedure, oInjection.sCall);
    }

    // Which of the procedures and of those who may end have never reported.
    Words Silent() const {
        Words asSilent = m_asDue;
        for (const auto& sReporter : m_asReporters) asSilent.erase(sReporter);
        return asSilent;
    }

  private:
    static bool IsMeant(const std::string& sWord, const std::string& sProcedure) {
        return sWord.starts_with("_") ? sProcedure.starts_with("grd") && sProcedure.ends_with(sWord)
                                      : sWord == sProcedure;
    }

    static bool NameIt(const char* sWords, const std::string& sProcedure) {
        const Words asWords = WordsOf(sWords);
        return std::any_of(asWords.begin(), asWords.end(),
                           [&](const auto& s) { return IsMeant(s, sProcedure); });
    }
    bool IsCalledBy(const std::string& sProcedure, const std::string& sCaller) const {
        return std::any_of(m_aoProcedures.begin(), m_aoProcedures.end(), [&](const auto& oProcedure) {
            return oProcedure.sName == sProcedure && NameIt(oProcedure.sCallers, sCaller);
        });
    }
    std::string BeginTrouble(const std::string& sFirst, const std::string& sCall) const {
        for (const auto& oProcedure : m_aoProcedures)
            for (const auto& sPart : WordsOf(oProcedure.sCalls))
                if (sCall.find(sPart) != std::string::npos && !IsMeant(oProcedure.sName, sFirst))
                    return std::string("begins without ") + oProcedure.sName;
        return "";
    }

    std::string m_sClass;
    std::string m_sEmbedded;
    std::vector<Procedure> m_aoProcedures;
    Words m_asReporters;
    Words m_asDue; // to report
};

// sEnds: who may report last, as FaultChain has it.
template<class Scene>
struct Gesture {
    using Step = std::function<void(Scene&)>;
    std::string sName;
    std::string sEnds;
    std::vector<Step> afnBefore;
    Step fnMake;
};

// Makes the gesture with call number nCall failing, none for 0.
template<class Scene>
Injection Inject(Scene& oScene, const Gesture<Scene>& oGesture, std::int64_t nCall) {
    Models::Journal& oJournal = oScene.Journal();
    oJournal.Clear();
    oJournal.Recording(true);
    if (nCall > 0) oJournal.FailCall(nCall, Injected);
    bool bThrown = false;
    try {
        oGesture.fnMake(oScene);
    } catch (const Failure& oFailure) {
        bThrown = true;
        EXPECT_EQ(oFailure, Injected);
    }
    oJournal.StopFailing();
    oJournal.Recording(false);
    if (!oJournal.HasFailed()) return {"", bThrown};
    return {oJournal.Entries().at(static_cast<std::size_t>(nCall) - 1), bThrown || oScene.HasFailed()};
}

// Makes the gesture on one scene after the other, first without a failure, then with each of its calls
// failing in turn. fnExpect(scene, gesture, injection) looks at what is left.
template<class Scene, class F, class... Args>
void Walk(FaultChain& oChain, const Gesture<Scene>& oGesture, F&& fnExpect, const Args&... aOfScene) {
    bool bFailed = true;
    for (std::int64_t nCall = 0; bFailed; ++nCall) {
        Scene oScene(aOfScene...);
        oScene.Journal().Recording(false);
        for (const auto& fnStep : oGesture.afnBefore) fnStep(oScene);
        const Injection oInjection = Inject(oScene, oGesture, nCall);
        SCOPED_TRACE(oGesture.sName + ": " + oInjection.sCall);
        EXPECT_EQ(oChain.Trouble(oScene.Utility().Reports(), oInjection, oGesture.sEnds), "");
        fnExpect(oScene, oGesture, oInjection);
        bFailed = nCall == 0 || !oInjection.sCall.empty();
    }
}

} // namespace GleanerSvc
