// The compact description that the data store fills from, so that a scenario reads in three lines:
//
//     Alpha: A1 A2@2026-03-01 A3#P1.C5
//     Alpha results: R1 of A1 R2@2026-03-02/2026-01-15 R3 of A3
//     Beta: B1@2026-03-01T23:59:59/2026-01-15#P2.H12
//
// A line is a project's name, which may hold blanks, a colon and the words for its samples; "results" before
// the colon makes them results. Empty lines do not count. A word is
//
//     NAME [@MODIFIED[/COLLECTED]] [#PLATE[.WELL]]      and for a result also: of SAMPLE
//
// with both parts in either order and no blank inside; a time is joined to its day with T. A sample is
// looked for in its project by name.
//
// Projects and plates are made when first named. Projects are numbered from 1, plates from 11, the samples of
// project p from 100 p + 1 and its results from 1000 p + 1, at most 99 and 999 of them. Without dates a
// record was modified on 1 January 2026 and collected on 1 January 2025, plus a day for each sample and
// result before it in the store. A result without a plate has that of its sample. "about NAME" is its
// description, and "details of NAME" are a record's details.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pagebind/Date.h"
#include "pagebind/Well.h"

namespace GleanerSvc::Models {

struct StoreWord {
    std::int32_t lLine = 0; // from 1
    std::string sText;      // the word as it stands
    std::string sName;
    std::optional<Date> dtModified;
    std::optional<Date> dtCollected;
    std::string sPlate;
    std::optional<Well> oWell;
    std::string sSample; // of a result
};

struct StoreLine {
    std::string sProject;
    bool bResults = false;
    std::vector<StoreWord> aoWords;
};

// Bad text fails with invalid call, naming line and word.
std::vector<StoreLine> ReadStoreText(std::string_view sText);

class DataStore;

// Adds what the lines describe. A record that the store refuses fails as the store does, with line and word
// before its message; the records before it stay.
void AddStoreLines(DataStore& oStore, const std::vector<StoreLine>& aoLines);

} // namespace GleanerSvc::Models
