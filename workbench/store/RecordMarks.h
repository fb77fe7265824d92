// The marks of a lab's samples and results: which of them the selection pages have marked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace GleanerSvc::Workbench {

// Marked IDs. A bit an ID, since IDs run on from 1.
class MarkSet {
  public:
    bool Holds(std::int32_t lID) const {
        const auto nID = static_cast<std::size_t>(lID);
        return nID < m_abMarked.size() && m_abMarked[nID];
    }
    void Mark(std::int32_t lID, bool bMarked) {
        const auto nID = static_cast<std::size_t>(lID);
        if (nID >= m_abMarked.size()) {
            if (!bMarked) return;
            m_abMarked.resize(nID + 1);
        }
        m_abMarked[nID] = bMarked;
    }

  private:
    std::vector<bool> m_abMarked;
};

struct RecordMarks {
    MarkSet oSamples;
    MarkSet oResults;
};

} // namespace GleanerSvc::Workbench
