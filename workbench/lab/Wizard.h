// A wizard run of the workbench: pages in their order, one parameter store, one study.
#pragma once

#include <string>
#include <vector>

#include "analysispage/AnalysisPage.h"
#include "locuspage/LocusTagSelectPage.h"
#include "models/WizardHost.h"
#include "pagebind/Apartment.h"
#include "pagebind/Subscriptions.h"
#include "platepages/ResultSelectionPage.h"
#include "platepages/SampleSelectionPage.h"
#include "workbench/lab/LabLibraries.h"

namespace GleanerSvc::Workbench {

// What a wizard is started for. Each kind of reanalysis works on stored results.
enum class Task { Analyze, ReanalyzeResults, ReanalyzeAlleles };

// An analysis walks over samples, locus tags, analysis and results into the study; a reanalysis, whose work
// is given, over locus tags and analysis alone. The pages that a task does not have are nothing.
class Wizard {
  public:
    // The study is taken by an analysis only, and made by its Finish when it is not there. Results to analyze
    // again are by ID; one that the lab does not have fails.
    struct Start {
        Task eTask = Task::Analyze;
        std::string sStudy{};
        std::vector<std::int32_t> alResultIDs{};
    };
    Wizard(Ref<LabLibraries> oLibraries, Ref<IPlatform> oPlatform, const Start& oStart);
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;
    ~Wizard() = default;

    Ref<SampleSelectionPage> oSamples;
    Ref<LocusTagSelectPage> oLoci;
    Ref<AnalysisPage> oAnalysis;
    Ref<ResultSelectionPage> oResults;

    Models::WizardHost& Host() const { return *m_oHost; }
    IPageAccess& PageAt(std::int32_t lPage) const { return *m_aoPages[static_cast<std::size_t>(lPage) - 1]; }
    // The selectors of the locus tag page.
    StrTagSelector& StrSelector() const;
    SnpTagSelector& SnpSelector() const;

    // Whether the gesture that began an analysis is still at work. What the page shows does not tell: after
    // an analysis that broke it looks as in its middle.
    bool IsAnalyzing() const { return m_bAnalyzing; }
    Event<> OnAnalyzing; // an analysis has begun or ended

    // The operator's Finish: what the pages save is stored whole or not at all, and so is a study that is
    // made for it. True when it is stored and the wizard has ended; otherwise the wizard stays open for
    // another try, and the host has what failed.
    bool PressFinish();

  private:
    void AddPage(const Ref<IPageAccess>& oPage);
    void WatchAnalysis();
    void ShowAnalyzing(bool bAnalyzing);
    void PutWork(const Start& oStart);
    void PutStudy(std::int32_t lStudyID);
    std::int32_t StoredStudy();
    Ref<IResult> ResultOf(std::int32_t lResultID) const;

    Ref<LabLibraries> m_oLibraries;
    std::string m_sStudy; // empty for a reanalysis
    Ref<Apartment> m_oApartment;
    Ref<KeyedCollection> m_colParameters = std::make_shared<KeyedCollection>();
    Ref<Models::WizardHost> m_oHost;
    std::vector<Ref<IPageAccess>> m_aoPages;
    bool m_bAnalyzing = false;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc::Workbench
