// The order of grid rows under sort keys.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "models/Journal.h"
#include "pagebind/Grid.h"

namespace GleanerSvc::Models {

struct SortKey {
    double dCol = 1;
    bool bByValue = false; // numbers and dates by value; otherwise everything as text
    bool bCase = false;    // text with regard to case
    bool bDescending = false;
};

// A new key sorts by the text of column 1, ascending, without regard to case.
class SortInfo final : public ISortInfo, Journaled {
  public:
    SortInfo(Ref<Journal> oJournal, std::string sObject)
        : Journaled(std::move(oJournal), std::move(sObject)) {}

    void nRC(double dCol) override {
        Call("nRC", dCol);
        m_oKey.dCol = dCol;
    }
    // SortByText or SortByNumberOrDate; another type fails with invalid property value.
    void SortType(std::int16_t iType) override;
    void bCase(bool bCase) override {
        Call("bCase", bCase);
        m_oKey.bCase = bCase;
    }
    // SortDescending; any other order is ascending.
    void SortOrder(std::int16_t iOrder) override {
        Call("SortOrder", iOrder);
        m_oKey.bDescending = iOrder == GridConst::SortDescending;
    }

    const SortKey& Key() const { return m_oKey; }

  private:
    SortKey m_oKey;
};

// Gives the order in which nRows rows stand when sorted: the old place of each new one, from 0. fnText(place,
// key) is the text of a row's cell in that key's column; it is asked once for each. Stable, descending too.
// By value, numbers come before dates and dates before any other text; text that is no finite number and no
// date is such.
std::vector<std::size_t>
SortedOrder(std::size_t nRows, const std::vector<SortKey>& aoKeys,
            const std::function<std::string_view(std::size_t, const SortKey&)>& fnText);

} // namespace GleanerSvc::Models
