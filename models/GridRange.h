// Ranges of grid cells, and lists of them.
#pragma once

#include <limits>

#include "models/Journal.h"
#include "pagebind/Grid.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

// A rectangle of cells, corners included, or the whole table. A new range covers nothing. Whether it lies in
// the grid is asked when the grid uses it.
class GridRange final : public IGridRange, Journaled {
  public:
    struct Corners {
        double dLeft = 1;
        double dTop = 1;
        double dRight = 0;
        double dBottom = 0;
    };

    GridRange(Ref<Journal> oJournal, std::string sObject)
        : Journaled(std::move(oJournal), std::move(sObject)) {}
    GridRange(Ref<Journal> oJournal, std::string sObject, const Corners& oCorners)
        : Journaled(std::move(oJournal), std::move(sObject)), m_oCorners(oCorners) {}

    void SetTable() override {
        Call("SetTable");
        m_oCorners = {0, 1, std::numeric_limits<std::int16_t>::max(),
                      std::numeric_limits<std::int32_t>::max()};
        m_bTable = true;
    }
    void InitRange(double nLeft, double nTop, double nRight, double nBottom) override {
        Call("initRange", nLeft, nTop, nRight, nBottom);
        m_oCorners = {nLeft, nTop, nRight, nBottom};
        m_bTable = false;
    }
    double Top() override {
        Call("Top");
        return m_oCorners.dTop;
    }
    // The whole table has no last row of its own: it reads as the greatest 32-bit number.
    double Bottom() override {
        Call("Bottom");
        return m_oCorners.dBottom;
    }

    // Read without a journal entry.
    bool IsTable() const { return m_bTable; }
    const Corners& Place() const { return m_oCorners; }
    // "1,2 to 4,2", left and top first; "table".
    std::string ToString() const;

  private:
    Corners m_oCorners;
    bool m_bTable = false;
};

class GridRangeList final : public IGridRangeList, Journaled {
  public:
    GridRangeList(Ref<Journal> oJournal, std::string sObject)
        : Journaled(std::move(oJournal), std::move(sObject)) {}

    std::int32_t GetCount() override {
        Call("GetCount");
        return static_cast<std::int32_t>(m_aoRanges.size());
    }
    // A place outside 1 to GetCount fails with subscript.
    Ref<IGridRange> Range(std::int32_t lPlace) override;

    // Filled without journal entries.
    void Fill(std::vector<Ref<IGridRange>> aoRanges) { m_aoRanges = std::move(aoRanges); }

  private:
    std::vector<Ref<IGridRange>> m_aoRanges;
};

} // namespace GleanerSvc::Models
