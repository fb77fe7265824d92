// A scripted fragment analyzer: it plays a list of status updates and completions as events.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "models/Journal.h"
#include "pagebind/Analyzer.h"

namespace GleanerSvc::Models {

enum class PlayMode {
    InsideCall, // the operation plays the whole script and returns then
    StepByStep  // the operation returns at once; PlayNext and PlayAll play
};

// What Stop does to the script. The present item is the one of the last step that named an item; it is over
// with its completion, or when a step of another item is next.
enum class StopMode { AtOnce, AfterItem, Ignored };

// What a failure of a handler does to the script.
enum class HandlerFailure { GoOn, End };

// The steps, and how they are played. Items count from 0; an index is passed on as it stands.
//
//     AnalyzerScript().Update(0, "Reading.").Complete(0, 501, StatusCode).Complete(1, 0, OtherCode)
struct AnalyzerScript {
    struct StatusUpdate {
        std::int32_t lIndex;
        std::string sText;
    };
    struct Completion {
        std::int32_t lIndex;
        std::int32_t lResultID;
        std::int32_t lStatus;
    };
    using Step = std::variant<StatusUpdate, Completion>;

    AnalyzerScript& Update(std::int32_t lIndex, std::string_view sText);
    AnalyzerScript& Complete(std::int32_t lIndex, std::int32_t lResultID, std::int32_t lStatus);

    std::vector<Step> aoSteps;
    PlayMode ePlay = PlayMode::InsideCall;
    StopMode eStop = StopMode::AtOnce;
    HandlerFailure eFailure = HandlerFailure::End;
};

// The arguments of an operation: those of the other operations are empty.
struct AnalyzerCall {
    std::string sOperation;
    Value vItems;
    std::int32_t lParameterID = 0;
    Ref<IObject> oFirstPart;
    Ref<IObject> oSecondPart;
    std::int16_t iOption = 0;

    // "AnalyzeSamples([11, 12], 7)", "ReanalyzeAlleles(2 objects, object, nothing, 0)"
    std::string ToString() const;
};

// Make it with std::make_shared: it keeps itself alive while it plays, so that a handler may let go of the
// last reference. Each operation plays the script from its start. A failure of a handler comes to the
// analyzer, which keeps it; the operation itself doesn't fail for it.
class AnalyzerModel final : public IZemFragmentAnalyzer,
                            public std::enable_shared_from_this<AnalyzerModel>,
                            private Journaled {
  public:
    explicit AnalyzerModel(Ref<Journal> oJournal, AnalyzerScript oScript = {})
        : Journaled(std::move(oJournal), "Analyzer"), m_oScript(std::move(oScript)) {}

    // Fail with type mismatch when the value holds no array of that kind.
    void AnalyzeSamples(const Value& vSampleIDs, std::int32_t lParameterID) override;
    void ReanalyzeResults(const Value& vResultIDs, std::int32_t lParameterID) override;
    void ReanalyzeAlleles(const Value& vSampleData, const Ref<IObject>& oFirstPart,
                          const Ref<IObject>& oSecondPart, std::int16_t iOption) override;
    void Stop() override;
    AnalyzerEvents& Events() override { return m_oEvents; } // a connection, not a call: not in the journal

    // Plays the next step; False when the script has ended or no operation was called yet.
    bool PlayNext();
    void PlayAll();

    const std::optional<AnalyzerCall>& LastCall() const { return m_oCall; }
    const std::optional<Failure>& LastFailure() const { return m_oFailure; } // of a handler
    std::int32_t StopCount() const { return m_lStops; }
    bool HasEnded() const { return m_bBroken || IsOver(); } // the script, by itself, by Stop or by a failure

    // "AnalyzeSamples([11, 12], 7) played=3/6 stops=1 ended", "idle" before the first operation.
    std::string ToString() const;

  private:
    void Run(AnalyzerCall oCall);
    bool IsOver() const;
    void Play(const AnalyzerScript::Step& oStep);
    void PlayStep(const AnalyzerScript::StatusUpdate& oUpdate);
    void PlayStep(const AnalyzerScript::Completion& oCompletion);

    AnalyzerScript m_oScript;
    AnalyzerEvents m_oEvents;
    std::optional<AnalyzerCall> m_oCall;
    std::optional<Failure> m_oFailure;
    std::size_t m_nPlayed = 0;
    bool m_bBroken = false;              // a failure of a handler ended this run
    bool m_bStopping = false;            // Stop was called in this run
    std::optional<std::int32_t> m_lItem; // the present item
    std::int32_t m_lStops = 0;
};

} // namespace GleanerSvc::Models
