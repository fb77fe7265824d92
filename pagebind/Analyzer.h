// The closed fragment analyzer and its events.
#pragma once

#include <cstdint>
#include <string_view>

#include "pagebind/Event.h"
#include "pagebind/Object.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

// Raised on the page's thread. Items are numbered from 0 in the order of the array that was passed.
struct AnalyzerEvents {
    // Item index, status text. -1 is a message for no item; below -1 the item cannot be analyzed.
    Event<std::int32_t, std::string_view> OnStatusUpdate;
    // Item index, record ID of the stored result (0 or less: none was stored), status code.
    Event<std::int32_t, std::int32_t, std::int32_t> OnComplete;
};

// It stays alive while it raises an event: a handler may let go of the last reference to it.
class IZemFragmentAnalyzer : public virtual IObject {
  public:
    // The first argument holds an array of 32-bit record IDs; the last is the parameter record's ID. A call
    // may last as long as the run.
    virtual void AnalyzeSamples(const Value& vSampleIDs, std::int32_t lParameterID) = 0;
    virtual void ReanalyzeResults(const Value& vResultIDs, std::int32_t lParameterID) = 0;

    // The first argument holds an array of ISampleData; places may be nothing. The last is always 0.
    virtual void ReanalyzeAlleles(const Value& vSampleData, const Ref<IObject>& oFirstPart,
                                  const Ref<IObject>& oSecondPart, std::int16_t iOption) = 0;

    virtual void Stop() = 0; // asks it to stop
    virtual AnalyzerEvents& Events() = 0;
};

} // namespace GleanerSvc
