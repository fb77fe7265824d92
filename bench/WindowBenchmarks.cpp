// The selection list in a window: what the window adds to the same gesture on the models alone, and what the
// operator waits for. Rows are samples.
#include <QCoreApplication>
#include <QScrollBar>
#include <QTableView>

#include <map>
#include <string_view>

#include "bench/Benchmarks.h"
#include "bench/ListRun.h"
#include "bench/Turns.h"
#include "pagebind/Text.h"
#include "workbench/window/PageView.h"

namespace GleanerSvc::Bench {
namespace {

using namespace Workbench;

// A list with its window, and the loop that draws what has changed.
class ListWindow {
  public:
    explicit ListWindow(Models::ModelLibraries& oLibraries) : m_oRun(oLibraries) {}

    ListRun& Run() { return m_oRun; }
    void Show() {
        m_pView = std::make_unique<PageView>(m_oRun.List(), ViewContext{m_oAppearance, m_oDoor});
        m_pView->show();
        Draw();
    }
    static void Draw() { QCoreApplication::processEvents(); }
    QTableView& Available() const {
        return *m_pView->findChild<QTableView*>(QString::fromStdString(m_oRun.AvailableName()));
    }

  private:
    ListRun m_oRun;
    Appearance m_oAppearance{false};
    GestureDoor m_oDoor{};
    std::unique_ptr<PageView> m_pView;
};

// Twenty places from the first row to the last, each drawn.
void ScrollThrough(const ListWindow& oWindow) {
    constexpr int Places = 20;
    auto& oBar = *oWindow.Available().verticalScrollBar();
    for (int nPlace = 1; nPlace <= Places; ++nPlace) {
        oBar.setValue(static_cast<int>(std::int64_t{oBar.maximum()} * nPlace / Places));
        ListWindow::Draw();
    }
}

struct Operation {
    const char* sName;
    std::string_view sFloor; // the same on the models alone, or the same at its smallest size
    void (*fnPrepare)(ListWindow&);
    void (*fnRun)(ListWindow&);
    bool bAllSelected; // afterwards
};

constexpr Operation Operations[] = {
    {"WindowOpen", "RefreshView", [](ListWindow&) {}, [](ListWindow& oWindow) { oWindow.Show(); }, false},
    {"WindowRefresh", "RefreshView", [](ListWindow& oWindow) { oWindow.Show(); },
     [](ListWindow& oWindow) {
         oWindow.Run().Refresh();
         ListWindow::Draw();
     },
     false},
    {"WindowScroll", "", [](ListWindow& oWindow) { oWindow.Show(); },
     [](ListWindow& oWindow) { ScrollThrough(oWindow); }, false},
    {"WindowAddAll", "AddAll", [](ListWindow& oWindow) { oWindow.Show(); },
     [](ListWindow& oWindow) {
         oWindow.Run().AddAll();
         ListWindow::Draw();
     },
     true},
};

void Measure(benchmark::State& oState, const Operation& oOperation) {
    const std::int64_t nRows = oState.range(0);
    static std::map<std::int64_t, Ref<Models::ModelLibraries>> s_oStores;
    auto& oLibraries = s_oStores[nRows];
    if (!oLibraries) oLibraries = MakeSamples(static_cast<std::int32_t>(nRows));
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        ListWindow oWindow(*oLibraries);
        oOperation.fnPrepare(oWindow);
        oTurns.Time([&] { oOperation.fnRun(oWindow); });
        const std::int64_t nShown = oWindow.Available().model()->rowCount();
        if (!oTurns.Expect(DecimalText(nShown), DecimalText(oOperation.bAllSelected ? 0 : nRows))) break;
    }
    oTurns.Close();
}

} // namespace

void RegisterWindow(RatioReporter& oReporter, bool bQuick) {
    for (const Operation& oOperation : Operations) {
        if (!oOperation.sFloor.empty()) oReporter.Compare(oOperation.sName, std::string(oOperation.sFloor));
        InTurns(
            benchmark::RegisterBenchmark(
                oOperation.sName, [&oOperation](benchmark::State& oState) { Measure(oState, oOperation); }),
            bQuick ? 100000 : 1000000);
    }
}

} // namespace GleanerSvc::Bench
