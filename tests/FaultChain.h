// The reports that one injected failure must lead to: which procedure begins, who reports behind whom, who
// ends.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
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

// Makes a gesture whose call number nCall fails, none for 0. fnHasCome tells whether a host or an analyzer
// has got the failure.
template<class F, class G>
Injection Inject(Models::Journal& oJournal, std::int64_t nCall, F&& fnMake, G&& fnHasCome) {
    oJournal.Clear();
    oJournal.Recording(true);
    if (nCall > 0) oJournal.FailCall(nCall, Injected);
    bool bThrown = false;
    try {
        fnMake();
    } catch (const Failure& oFailure) {
        bThrown = true;
        EXPECT_EQ(oFailure, Injected);
    }
    oJournal.StopFailing();
    oJournal.Recording(false);
    if (!oJournal.HasFailed()) return {"", bThrown};
    return {oJournal.Entries().at(static_cast<std::size_t>(nCall) - 1), bThrown || fnHasCome()};
}

class FaultChain {
  public:
    // Of an embedded control, the reports come first, and which they are is another test's matter.
    FaultChain(std::string sClass, std::vector<Procedure> aoProcedures, std::string sEmbedded = "")
        : m_sClass(std::move(sClass)), m_sEmbedded(std::move(sEmbedded)),
          m_aoProcedures(std::move(aoProcedures)) {}

    // "" when the reports are right. sEnds: who may report last, a handler that shows it to the user or, with
    // "^", what the failure comes out of; "^" alone comes out without any report. What a page reports behind
    // a handler that has shown the failure is a trouble of its own, which the first one led to.
    std::string Trouble(std::vector<Models::Report> aoReports, const Injection& oInjection,
                        const std::string& sEnds) {
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
        if (!WordsOf(sEnds).contains(sLast + (oInjection.bEscaped ? "^" : ""))) return "ends with " + sLast;
        return bEmbedded ? "" : BeginTrouble(aoReports.empty() ? "" : itOwn->sProcedure, oInjection.sCall);
    }

    // All that have reported so far.
    Words& Reporters() { return m_asReporters; }

  private:
    static bool IsMeant(const std::string& sWord, const std::string& sProcedure) {
        return sWord.starts_with("_") ? sProcedure.starts_with("grd") && sProcedure.ends_with(sWord)
                                      : sWord == sProcedure;
    }

    bool IsCalledBy(const std::string& sProcedure, const std::string& sCaller) const {
        for (const auto& oProcedure : m_aoProcedures) {
            if (oProcedure.sName != sProcedure) continue;
            for (const auto& sWord : WordsOf(oProcedure.sCallers)) {
                if (IsMeant(sWord, sCaller)) return true;
            }
        }
        return false;
    }

    std::string BeginTrouble(const std::string& sFirst, const std::string& sCall) const {
        for (const auto& oProcedure : m_aoProcedures) {
            for (const auto& sPart : WordsOf(oProcedure.sCalls)) {
                if (sCall.find(sPart) != std::string::npos && !IsMeant(oProcedure.sName, sFirst))
                    return std::string("begins without ") + oProcedure.sName;
            }
        }
        return "";
    }

    std::string m_sClass;
    std::string m_sEmbedded;
    std::vector<Procedure> m_aoProcedures;
    Words m_asReporters;
};

} // namespace GleanerSvc
