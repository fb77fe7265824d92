// One run of the selection list: a store with many samples, a list that was just opened on it, and the
// operator's gestures that are measured.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "models/ModelLibraries.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc::Bench {

// Samples 1 to lSamples in eight projects, all with dates and times. Names are not in order, and each stands
// four times, so that a sort has work to do with both of its keys. The journal records nothing.
Ref<Models::ModelLibraries> MakeSamples(std::int32_t lSamples);

// A new list on "[All Projects]" with nothing selected. Each run has its own, so that every run begins in the
// same state; the store is shared and is not changed.
class ListRun {
  public:
    explicit ListRun(Models::ModelLibraries& oLibraries);

    GleanerCtl& List() { return m_oList; }
    const std::string& AvailableName() const { return m_oList.grdAvailable.Name(); }
    const Models::GridModel& Available() const { return Model(m_oList.grdAvailable); }

    void Refresh() { m_oList.RefreshView(); }
    void AddAll() { m_oList.cmdAddAll.Press(); }
    void RemoveAll() { m_oList.cmdRemoveAll.Press(); }
    void HighlightEverySecond(); // rows 1, 3, 5...
    void Add() { m_oList.cmdAddSingle.Press(); }
    void SortByDate() { Model(m_oList.grdAvailable).ClickLeft(0, 2); }
    // Selects samples 1, 3, 5... behind the list's back: what a page does whose host comes with a selection.
    void SelectEverySecond();

    // "available=500 selected=500 items=500 reports=0": rows of both lists, items of the collection, failures
    // reported.
    std::string ToString() const;

  private:
    static Models::GridModel& Model(const GridControl& oGrid) {
        return dynamic_cast<Models::GridModel&>(*oGrid);
    }

    Models::ModelLibraries& m_oLibraries;
    Ref<KeyedCollection> m_colSelected = std::make_shared<KeyedCollection>();
    GleanerCtl m_oList;
};

} // namespace GleanerSvc::Bench
