// Named contents of the data store. Names come blank-padded, as from any store.
//
// IDs: projects from 1, plates from 11, samples from 101 (of the second project 201), results from 1001
// (2001). Records were modified on 1 January 2026 and collected on 1 January 2025, each a day later than the
// one before.
#pragma once

#include "models/DataStore.h"

namespace GleanerSvc::Tests {

inline void TwoProjectsWithThreeSamplesEach(Models::DataStore& oStore) {
    oStore.Fill("Alpha: A1 A2 A3\n"
                "Beta: B1 B2 B3");
}

inline void TwoProjectsWithThreeResultsEach(Models::DataStore& oStore) {
    oStore.Fill("Alpha results: R1 R2 R3\n"
                "Beta results: S1 S2 S3");
}

// On plate P1 of the project "Default" A1 has one result, A2 has two of which R3 is the latest, A3 none; B1
// lies on plate P2, and all other wells are empty.
inline void PlatesWithSamplesAndResults(Models::DataStore& oStore) {
    oStore.Fill("Default: A1#P1.A1 A2#P1.A2 A3#P1.A3 B1#P2.H12\n"
                "Default results: R1 of A1 R2@2026-02-01 of A2 R3@2026-03-01 of A2\n"
                "Other: C1");
}

} // namespace GleanerSvc::Tests
