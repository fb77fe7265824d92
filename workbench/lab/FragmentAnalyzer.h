// The fragment analyzer over a lab: sizes traces, calls their alleles, and stores a result for each.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "pagebind/Analyzer.h"
#include "workbench/lab/LadderShelf.h"
#include "workbench/store/ParameterDefinition.h"

namespace GleanerSvc::Workbench {

// A call lasts as long as the run. Traces are sized ahead on worker threads; events come in the order of the
// items on the caller's thread, and an item's result is on disk before its completion is told. Stop ends the
// run before the next result is stored. An item whose record the lab does not have is refused by a status
// update with an index below -1. What the lab refuses goes to the caller as LabError.
//
// Make it with std::make_shared.
class FragmentAnalyzer final : public IZemFragmentAnalyzer,
                               public std::enable_shared_from_this<FragmentAnalyzer> {
  public:
    FragmentAnalyzer(Ref<Lab> oLab, int nThreads) : m_oLab(std::move(oLab)), m_nThreads(nThreads) {}

    void AnalyzeSamples(const Value& vSampleIDs, std::int32_t lParameterID) override;
    // Sizes and calls the samples of those results anew.
    void ReanalyzeResults(const Value& vResultIDs, std::int32_t lParameterID) override;
    // Calls alleles on the stored sizes of each; the data of a sample stand for its latest result. The first
    // part must be a ParameterDefinition.
    void ReanalyzeAlleles(const Value& vSampleData, const Ref<IObject>& oFirstPart,
                          const Ref<IObject>& oSecondPart, std::int16_t iOption) override;
    void Stop() override { m_bStopped = true; }
    AnalyzerEvents& Events() override { return m_oEvents; }

  private:
    using Sizer = std::function<SizedTrace(const SampleRow&)>;
    struct Item {
        std::int32_t nIndex = 0;
        std::int32_t lSampleID = 0; // 0 where there is none
        std::int32_t lResultID = 0; // whose sizes are used again; 0 for none
        std::string sTrouble{};     // why there is no sample
    };
    struct Batch {
        std::vector<Item> aoItems;
        ParameterRow oParameter;
    };

    void SizeAndCall(const Batch& oBatch);
    void CallAgain(const Batch& oBatch);
    template<class F>
    void ForEachItem(const Batch& oBatch, F&& fnAnalyze);
    void Finish(const Item& oItem, const ParameterRow& oParameter, const SampleRow& oSample,
                const SizedTrace& oSized, LadderShelf& oLadders);
    CalledTrace Call(const Item& oItem, const ParameterRow& oParameter, const SampleRow& oSample,
                     const SizedTrace& oSized, LadderShelf& oLadders);
    ParameterRow Parameter(std::int32_t lParameterID);
    Item ItemOfResult(std::int32_t nIndex, std::int32_t lResultID);
    Item ItemOfData(std::int32_t nIndex, const Ref<IObject>& oData);
    void Tell(const Item& oItem, const std::string& sText);
    void FillProgress(const Item& oItem);

    Ref<Lab> m_oLab;
    int m_nThreads;
    AnalyzerEvents m_oEvents;
    bool m_bStopped = false;
    int m_nTold = 0; // updates of the item in work
};

} // namespace GleanerSvc::Workbench
