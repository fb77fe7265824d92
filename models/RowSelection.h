// The highlighted rows of a grid, as ranges in the order in which they were made.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace GleanerSvc::Models {

// Rows from nTop to nBottom, both included; empty when nBottom is above nTop. Row 0 is the heading row.
struct RowSpan {
    std::size_t nTop = 1;
    std::size_t nBottom = 0;

    bool IsEmpty() const { return nBottom < nTop; }
};

// No row stands in two ranges: a row that is selected again goes over to the newer range, unless one range
// holds all of the new one already. Selecting and asking cost O(log ranges). A removal of rows also costs a
// step for each range above it or for each one below it, whichever are fewer.
class RowSelection {
  public:
    std::function<void()> OnChanged; // told after a change, and perhaps when there was none

    // Off: there is no range, and nothing can be selected.
    void Enable(bool bOn);
    void Clear();
    void Add(RowSpan oSpan);
    void TakeOut(RowSpan oSpan);

    // The grid lost these rows, and those below moved up.
    void RowsRemoved(RowSpan oSpan);

    bool IsEmpty() const { return m_oRanges.empty(); }
    bool Holds(std::size_t nRow) const;
    std::vector<RowSpan> Spans() const;        // in the order of making
    std::size_t DataRowCount() const;          // without the heading row
    std::vector<std::size_t> DataRows() const; // ascending

    // "1-3 7-7", in the order of making; "off" while nothing can be selected.
    std::string ToString() const;

  private:
    using Row = std::int64_t;

    // Row numbers less m_nOffset. Ranges may be moved where they stand, as long as none passes another.
    struct Range {
        mutable Row nTop;
        mutable Row nBottom;
        std::uint64_t nMade; // rises from range to range
    };
    struct ByTop {
        using is_transparent = void;
        bool operator()(const Range& oLeft, const Range& oRight) const { return oLeft.nTop < oRight.nTop; }
        bool operator()(const Range& oLeft, Row nRight) const { return oLeft.nTop < nRight; }
        bool operator()(Row nLeft, const Range& oRight) const { return nLeft < oRight.nTop; }
    };
    using Ranges = std::set<Range, ByTop>;

    void Changed() const {
        if (OnChanged) OnChanged();
    }
    Row Stored(std::size_t nRow) const { return static_cast<Row>(nRow) - m_nOffset; }
    RowSpan Shown(const Range& oRange) const;
    Ranges::const_iterator FirstReaching(Row nRow) const;
    void MoveUp(Row nFrom, Row nRows);
    void JoinAt(Row nRow);

    Ranges m_oRanges;
    Row m_nOffset = 0;
    std::uint64_t m_nMade = 0;
    bool m_bOn = true;
};

} // namespace GleanerSvc::Models
