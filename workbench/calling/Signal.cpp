#include "workbench/calling/Signal.h"

#include <algorithm>
#include <array>
#include <deque>
#include <functional>
#include <numeric>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t HalfWindow = 125; // on either side of a scan: 251 in all

// The foremost value, by oBefore, of each window. The queue holds the scans that can still be the foremost of
// a window to come, the foremost first.
template<class Before>
std::vector<double> RunningExtreme(std::span<const double> adSignal, Before oBefore) {
    std::vector<double> adExtreme(adSignal.size());
    std::deque<std::size_t> anQueue;
    std::size_t nNext = 0;
    for (std::size_t nScan = 0; nScan < adSignal.size(); ++nScan) {
        for (; nNext < std::min(nScan + HalfWindow + 1, adSignal.size()); ++nNext) {
            while (!anQueue.empty() && !oBefore(adSignal[anQueue.back()], adSignal[nNext])) {
                anQueue.pop_back();
            }
            anQueue.push_back(nNext);
        }
        if (anQueue.front() + HalfWindow < nScan) anQueue.pop_front();
        adExtreme[nScan] = adSignal[anQueue.front()];
    }
    return adExtreme;
}

std::vector<double> RunningMean(std::span<const double> adSignal) {
    std::vector<double> adSums(adSignal.size() + 1);
    std::partial_sum(adSignal.begin(), adSignal.end(), adSums.begin() + 1);
    std::vector<double> adMean(adSignal.size());
    for (std::size_t nScan = 0; nScan < adSignal.size(); ++nScan) {
        const std::size_t nFirst = nScan < HalfWindow ? 0 : nScan - HalfWindow;
        const std::size_t nEnd = std::min(nScan + HalfWindow + 1, adSignal.size());
        adMean[nScan] = (adSums[nEnd] - adSums[nFirst]) / static_cast<double>(nEnd - nFirst);
    }
    return adMean;
}

} // namespace

std::vector<double> Baseline(std::span<const double> adSignal) {
    const auto adLow = RunningExtreme(adSignal, std::less<>());
    return RunningMean(RunningExtreme(adLow, std::greater<>()));
}

std::vector<double> Smoothed(std::span<const double> adSignal) {
    constexpr std::array<double, 7> Weights{-2, 3, 6, 7, 6, 3, -2}; // of 21
    std::vector<double> adSmooth(adSignal.begin(), adSignal.end());
    for (std::size_t nFirst = 0; nFirst + Weights.size() <= adSignal.size(); ++nFirst) {
        const auto adWindow = adSignal.subspan(nFirst, Weights.size());
        adSmooth[nFirst + Weights.size() / 2] =
            std::inner_product(Weights.begin(), Weights.end(), adWindow.begin(), 0.0) / 21;
    }
    return adSmooth;
}

std::vector<double> CorrectedSignal(const DyeSignal& oDye) {
    std::vector<double> adSignal(oDye.aiValues.begin(), oDye.aiValues.end());
    const auto adBaseline = Baseline(adSignal);
    std::transform(adSignal.begin(), adSignal.end(), adBaseline.begin(), adSignal.begin(), std::minus<>());
    return Smoothed(adSignal);
}

} // namespace GleanerSvc::Workbench
