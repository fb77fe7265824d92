// One measurement: its turns, each timed by itself.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>

#include "bench/RatioReporter.h"

namespace GleanerSvc::Bench {

class Turns {
  public:
    explicit Turns(benchmark::State& oState) : m_oState(oState) {}

    // By hand, since pausing the library's own timer costs more than a small list. In processor time: what
    // else the machine does shall not count.
    template<class F>
    void Time(F&& fnRun) {
        const std::clock_t nStart = std::clock();
        fnRun();
        Keep(static_cast<double>(std::clock() - nStart) / CLOCKS_PER_SEC);
    }

    // By the clock on the wall, for what runs on several threads.
    template<class F>
    void TimeThreads(F&& fnRun) {
        const auto oStart = std::chrono::steady_clock::now();
        fnRun();
        Keep(std::chrono::duration<double>(std::chrono::steady_clock::now() - oStart).count());
    }

    // An operation that did not do what it is measured for ends the measurement; False then.
    bool Expect(const std::string& sState, const std::string& sExpected) {
        if (sState == sExpected) return true;
        m_oState.SkipWithError((sState + " instead of " + sExpected).c_str());
        return false;
    }

    void Close() {
        m_oState.counters[FastestTurn] = m_dFastest;
        m_oState.SetComplexityN(m_oState.range(0));
    }

  private:
    void Keep(double dSeconds) {
        m_oState.SetIterationTime(dSeconds);
        m_dFastest = std::min(m_dFastest, dSeconds);
    }

    benchmark::State& m_oState;
    double m_dFastest = std::numeric_limits<double>::infinity();
};

} // namespace GleanerSvc::Bench
