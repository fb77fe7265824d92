#include "workbench/traces/Panel.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "workbench/traces/InputError.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::array<std::string_view, 5> Colours = {"blue", "green", "yellow", "red", "orange"};

char Lower(char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); }

} // namespace

const Bin* Locus::FindBin(std::string_view sAllele) const {
    const auto it = std::ranges::find(aoBins, sAllele, &Bin::sAllele);
    return it == aoBins.end() ? nullptr : &*it;
}

const Locus* Panel::FindLocus(std::string_view sLocus) const {
    const auto it = std::ranges::find(aoLoci, sLocus, &Locus::sName);
    return it == aoLoci.end() ? nullptr : &*it;
}

std::size_t Panel::LadderAlleles() const {
    return std::accumulate(
        aoLoci.begin(), aoLoci.end(), std::size_t{0},
        [](std::size_t nSum, const Locus& oLocus) { return nSum + oLocus.asLadder.size(); });
}

bool IsColour(std::string_view sColour) {
    return std::ranges::any_of(
        Colours, [&](std::string_view sKnown) { return std::ranges::equal(sKnown, sColour, {}, {}, Lower); });
}

std::size_t DyeOfColour(std::string_view sColour) {
    for (std::size_t n = 0; n < Colours.size(); ++n)
        if (std::ranges::equal(Colours.at(n), sColour, {}, {}, Lower)) return n;
    throw InputError(std::string(sColour), "", "this is no colour of a dye");
}

std::string_view ColourOfDye(std::size_t nDye) {
    if (nDye >= Colours.size())
        throw InputError("dye " + std::to_string(nDye), "", "a run has at most five dyes");
    return Colours.at(nDye);
}

} // namespace GleanerSvc::Workbench
